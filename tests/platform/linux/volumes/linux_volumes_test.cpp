#include "platform/linux/volumes/linux_volumes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <thread>

#include "tests/platform/linux/volumes/mount_table_file.h"
#include "tests/scoped_folder.h"

namespace calvero::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::uint64_t nothingToReclaim(const std::string& /*mountPath*/) {
  return 0;
}

/// The adapter over a mount table and a device tree that the test writes. Network file systems are not asked for a
/// label, so that names depend on nothing else.
class ListedVolumes : public ::testing::Test {
 protected:
  [[nodiscard]] std::vector<std::string> list() {
    std::vector<std::string> names;
    for (const MountedVolume& volume : volumes_.mountedVolumes()) names.push_back(volume.name);
    return names;
  }
  [[nodiscard]] KernelPaths paths() const { return {.mountTable = table_.path(), .sysfs = deviceTree_.path()}; }
  /// The next number of a disk that holds the numbers major:minor.
  void plugIn(const std::string& number, const std::string& sequence) const {
    std::ofstream(deviceTree_.make("dev/block/" + number) + "/diskseq") << sequence << '\n';
  }

  const MountTableFile table_;
  const ScopedFolder deviceTree_;
  const ScopedFolder mounts_;
  LinuxVolumes volumes_{nothingToReclaim, paths()};
};

const std::string kFirst = "40 1 0:40 / /a/disk rw - nfs first:/export rw\n";
const std::string kSecond = "41 1 0:41 / /b/disk rw - nfs second:/export rw\n";
const std::string kThird = "42 1 0:42 / /c/disk rw - nfs third:/export rw\n";

TEST_F(ListedVolumes, AreNamedByTheLastPartOfThePathWhereThereIsNoLabel) {
  table_.tell("40 41 0:40 / /srv/pho\x1Btos rw - nfs server:/export rw\n41 1 0:41 / / rw - nfs server:/root rw\n");
  EXPECT_THAT(list(), ElementsAre("pho�tos", "/"));
}

TEST_F(ListedVolumes, AreNamedByTheirWholePathWhereItsLastPartIsBlank) {
  table_.tell("40 1 0:40 / /srv/\\040\\040 rw - nfs server:/export rw\n");
  EXPECT_THAT(list(), ElementsAre("/srv/"));
  EXPECT_EQ(volumes_.mountPath("/srv/"), "/srv/  ") << "the path itself stays raw";
}

TEST_F(ListedVolumes, KeepTheirNamesWhenOthersComeAndGo) {
  table_.tell(kFirst + kSecond);
  EXPECT_THAT(list(), ElementsAre("disk", "disk 1"));
  table_.tell(kSecond);
  EXPECT_THAT(list(), ElementsAre("disk 1"));
  table_.tell(kThird + kSecond);
  EXPECT_THAT(list(), ElementsAre("disk", "disk 1"));
  EXPECT_EQ(volumes_.mountPath("disk"), "/c/disk");
  EXPECT_EQ(volumes_.mountPath("disk 1"), "/b/disk");
}

TEST_F(ListedVolumes, AreNamedAnewAfterAListWithoutThem) {
  table_.tell(kFirst + kSecond);
  EXPECT_THAT(list(), ElementsAre("disk", "disk 1"));
  table_.tell("");
  EXPECT_THAT(list(), IsEmpty());
  table_.tell(kSecond);
  EXPECT_THAT(list(), ElementsAre("disk"));
}

TEST_F(ListedVolumes, AreNotFoundUnderANameThatWasNeverListed) {
  table_.tell(kFirst);
  EXPECT_EQ(volumes_.mountPath("disk"), std::nullopt) << "mounted, but not listed yet";
  EXPECT_THAT(list(), ElementsAre("disk"));
  EXPECT_EQ(volumes_.mountPath("another"), std::nullopt);
}

TEST_F(ListedVolumes, AreNotFoundOnceUnmountedAlthoughTheListIsOld) {
  table_.tell(kFirst);
  EXPECT_THAT(list(), ElementsAre("disk"));
  table_.tell("");
  EXPECT_EQ(volumes_.mountPath("disk"), std::nullopt);
}

TEST_F(ListedVolumes, AreNotFoundWhereTheyWereMountedElsewhere) {
  table_.tell(kFirst);
  EXPECT_THAT(list(), ElementsAre("disk"));
  table_.tell("40 1 0:40 / /elsewhere rw - nfs first:/export rw\n");
  EXPECT_EQ(volumes_.mountPath("disk"), std::nullopt);
}

TEST_F(ListedVolumes, AreNotFoundWhereAnotherIsMountedInTheirPlace) {
  table_.tell(kFirst);
  EXPECT_THAT(list(), ElementsAre("disk"));
  table_.tell("40 1 0:40 / /a/disk rw - nfs other:/export rw\n");
  EXPECT_EQ(volumes_.mountPath("disk"), std::nullopt);
}

TEST_F(ListedVolumes, AreNotFoundUnderAMountThatHidesThem) {
  table_.tell(kFirst);
  EXPECT_THAT(list(), ElementsAre("disk"));
  table_.tell(kFirst + "50 40 0:50 / /a/disk rw - tmpfs tmpfs rw\n");
  EXPECT_EQ(volumes_.mountPath("disk"), std::nullopt);
  EXPECT_THAT(list(), IsEmpty());
}

TEST_F(ListedVolumes, AreNotMistakenForTheNextStickThatGetsTheSameDevice) {
  const std::string path = mounts_.make("STICK");
  table_.tell("40 1 8:17 / " + path + " rw - fuseblk /dev/calvero-no-such-device rw\n");
  plugIn("8:17", "21");
  EXPECT_THAT(list(), ElementsAre("STICK"));
  EXPECT_EQ(volumes_.mountPath("STICK"), path);
  plugIn("8:17", "22");
  EXPECT_EQ(volumes_.mountPath("STICK"), std::nullopt);
}

TEST_F(ListedVolumes, CannotBeLookedUpWithoutAMountTable) {
  table_.tell(kFirst + kSecond);
  EXPECT_THAT(list(), ElementsAre("disk", "disk 1"));
  table_.remove();
  EXPECT_THROW(volumes_.mountPath("disk"), std::runtime_error);
  EXPECT_THROW(volumes_.mountPath("never listed"), std::runtime_error);
  EXPECT_THAT(list(), IsEmpty());
  table_.tell(kSecond + kThird);
  EXPECT_THAT(list(), ElementsAre("disk 1", "disk")) << "names outlive a table that cannot be read";
}

TEST_F(ListedVolumes, CountWhatTheNextRunTakesBackAsAvailable) {
  const std::string path = mounts_.make("share");
  table_.tell("40 1 0:40 / " + path + " rw - nfs first:/export rw\n");
  std::string asked;
  LinuxVolumes reclaiming(
      [&](const std::string& mountPath) {
        asked = mountPath;
        return std::uint64_t{1} << 60U;
      },
      paths());
  const std::vector<MountedVolume> listed = reclaiming.mountedVolumes();
  ASSERT_EQ(listed.size(), 1U);
  EXPECT_EQ(asked, path);
  EXPECT_GE(listed[0].availableBytes, std::uint64_t{1} << 60U);
  EXPECT_GT(listed[0].totalBytes, 0U);
  EXPECT_LT(listed[0].totalBytes, std::uint64_t{1} << 60U);
}

TEST_F(ListedVolumes, AreListedWithZerosWhereTheyDoNotAnswer) {
  table_.tell("40 1 0:40 / /nonexistent/gone rw - nfs first:/export rw\n41 1 0:41 / " + mounts_.make("here") +
              " rw - nfs second:/export rw\n");
  const std::vector<MountedVolume> listed = volumes_.mountedVolumes();
  ASSERT_EQ(listed.size(), 2U);
  EXPECT_EQ(listed[0].totalBytes, 0U);
  EXPECT_EQ(listed[0].availableBytes, 0U);
  EXPECT_GT(listed[1].totalBytes, 0U);
}

TEST_F(ListedVolumes, AreNotLookedIntoWhereAnAutomounterWaits) {
  table_.tell("40 1 0:40 / " + mounts_.make("auto") + " rw - autofs /etc/auto.misc rw\n");
  bool lookedInto = false;
  LinuxVolumes watched(
      [&](const std::string&) {
        lookedInto = true;
        return std::uint64_t{0};
      },
      paths());
  const std::vector<MountedVolume> listed = watched.mountedVolumes();
  ASSERT_EQ(listed.size(), 1U);
  EXPECT_EQ(listed[0].formatDescription, "Unknown (autofs)");
  EXPECT_EQ(listed[0].totalBytes, 0U);
  EXPECT_FALSE(lookedInto);
}

TEST_F(ListedVolumes, SayWhetherTheyAreOfThisMachine) {
  table_.tell("40 1 0:40 / " + mounts_.make("a") + " rw - cifs //server/share rw\n41 1 0:41 / " + mounts_.make("b") +
              " rw - fuse.somefs some rw\n");
  const std::vector<MountedVolume> listed = volumes_.mountedVolumes();
  ASSERT_EQ(listed.size(), 2U);
  EXPECT_EQ(listed[0].formatDescription, "SMB");
  EXPECT_FALSE(listed[0].local);
  EXPECT_TRUE(listed[1].local);
}

TEST_F(ListedVolumes, DoNotTellTheReadOnlyFlagOfAPathThatIsGone) {
  EXPECT_EQ(volumes_.isReadOnly("/nonexistent"), std::nullopt);
  EXPECT_EQ(volumes_.isReadOnly(mounts_.path()), false);
}

TEST_F(ListedVolumes, AreReadOnlyOnceAnErrorHasTurnedThemSoThoughTheyStillLookWritable) {
  const std::string mount = "40 1 8:1 / " + mounts_.path() + " rw - ext4 /dev/a rw";
  table_.tell(mount + "\n");
  EXPECT_EQ(volumes_.isReadOnly(mounts_.path()), false);
  table_.tell(mount + ",emergency_ro\n");
  EXPECT_EQ(volumes_.isReadOnly(mounts_.path()), true);
}

TEST_F(ListedVolumes, AreLookedUpWhileTheyAreListedAnew) {
  table_.tell(kFirst + kSecond);
  ASSERT_THAT(list(), ElementsAre("disk", "disk 1"));
  std::atomic<int> misses{0};
  std::thread worker([&] {
    for (int i = 0; i < 200; ++i) {
      if (volumes_.mountPath("disk 1") != "/b/disk") ++misses;
    }
  });
  for (int i = 0; i < 200; ++i) EXPECT_THAT(list(), ElementsAre("disk", "disk 1"));
  worker.join();
  EXPECT_EQ(misses, 0);
}

}  // namespace
}  // namespace calvero::testing
