#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/sysmacros.h>

#include <algorithm>
#include <chrono>
#include <fstream>

#include "platform/linux/files/linux_files.h"
#include "platform/linux/system/call_with_deadline.h"
#include "platform/linux/volumes/linux_volumes.h"
#include "platform/linux/volumes/volume_label.h"
#include "tests/platform/linux/volumes/mount_table_file.h"
#include "tests/platform/linux/volumes/mounted_images.h"

namespace calvero::testing {
namespace {

using Words = std::vector<std::string>;

class RealVolumes : public MountedImages {
 protected:
  /// The volume that the adapter lists at `path`.
  std::optional<MountedVolume> listedAt(const std::string& path) {
    for (MountedVolume& volume : volumes_.mountedVolumes()) {
      if (volume.mountPath == path) return std::move(volume);
    }
    return {};
  }
  /// A labelled ext4, mounted; nothing on failure.
  std::unique_ptr<LoopDevice> mountExt4(const std::string& path, const std::string& label) {
    auto device = makeFileSystem({"mkfs.ext4", "-q", "-L", label}, 16);
    return device && mount(device->path(), path, "ext4") ? std::move(device) : nullptr;
  }
  /// The name and format under which a fresh file system is listed.
  std::pair<std::string, std::string> listedAs(const Words& mkfs, std::uint64_t mebibytes, const char* type) {
    const std::string path = makeFolder(std::string("volume-") + type);
    const auto device = makeFileSystem(mkfs, mebibytes);
    EXPECT_TRUE(device && mount(device->path(), path, type));
    const auto volume = listedAt(path);
    return volume ? std::pair(volume->name, volume->formatDescription) : std::pair<std::string, std::string>();
  }

  /// Writes until the volume is full; the bytes that it took.
  static std::uint64_t fill(const std::string& path) {
    const Descriptor file(::open((path + "/fill").c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
    const std::string block(1U << 20U, 'x');
    std::uint64_t filled = 0;
    for (ssize_t bytes = 1; bytes > 0; filled += static_cast<std::uint64_t>(std::max<ssize_t>(bytes, 0))) {
      bytes = ::write(file.get(), block.data(), block.size());
    }
    return filled;
  }

  LinuxVolumes volumes_{[](const std::string&) { return std::uint64_t{0}; }};
};

TEST_F(RealVolumes, TellTheirLabelAndFormat) {
  using Pair = std::pair<std::string, std::string>;
  EXPECT_EQ(listedAs({"mkfs.ext4", "-q", "-L", "My Disk"}, 16, "ext4"), Pair("My Disk", "ext4"));
  EXPECT_EQ(listedAs({"mkfs.xfs", "-q", "-L", "xfsdisk"}, 300, "xfs"), Pair("xfsdisk", "XFS"));
  EXPECT_EQ(listedAs({"mkfs.btrfs", "-q", "-L", "Größe"}, 128, "btrfs"), Pair("Größe", "Btrfs"));
}

TEST_F(RealVolumes, TellTheUuidThatTheyWereMadeWith) {
  const std::string uuid = "0b1e9d4c-5a3f-4f3e-9c55-6f0a1b2c3d4e";
  const std::string other = "0b1e9d4c-5a3f-4f3e-9c55-6f0a1b2c3d4f";  // Btrfs wants one of its own
  for (const auto& [type, mkfs, mebibytes] : {std::tuple("ext4", Words{"mkfs.ext4", "-q", "-U", uuid}, 16),
                                              std::tuple("xfs", Words{"mkfs.xfs", "-q", "-m", "uuid=" + uuid}, 300),
                                              std::tuple("btrfs", Words{"mkfs.btrfs", "-q", "-U", other}, 128)}) {
    const std::string path = makeFolder(std::string("volume-") + type);
    const auto device = makeFileSystem(mkfs, static_cast<std::uint64_t>(mebibytes));
    ASSERT_TRUE(device && mount(device->path(), path, type)) << type;
    EXPECT_EQ(listedAt(path)->uuid, type == std::string("btrfs") ? other : uuid) << type;
  }
}

TEST_F(RealVolumes, ShowNoControlCharactersOfALabel) {
  const std::string path = makeFolder("volume");
  const auto device = mountExt4(path, "a\x1B[2Jb\xFF");
  ASSERT_TRUE(device);
  EXPECT_EQ(listedAt(path)->name, "a�[2Jb�");
}

TEST_F(RealVolumes, AreNamedByTheirFolderWithoutALabel) {
  const std::string path = makeFolder("folder");
  const auto device = mountExt4(path, "");
  ASSERT_TRUE(device);
  EXPECT_EQ(listedAt(path)->name, "folder");
}

TEST_F(RealVolumes, OfTheSameLabelAreToldApartAndFound) {
  const std::string first = makeFolder("first");
  const std::string second = makeFolder("second");
  const auto one = mountExt4(first, "CALVEROTWIN");
  const auto two = mountExt4(second, "CALVEROTWIN");
  ASSERT_TRUE(one && two);
  EXPECT_EQ(listedAt(first)->name, "CALVEROTWIN");
  EXPECT_EQ(listedAt(second)->name, "CALVEROTWIN 1");
  EXPECT_EQ(volumes_.mountPath("CALVEROTWIN"), first);
  EXPECT_EQ(volumes_.mountPath("CALVEROTWIN 1"), second);

  unmount(first);
  EXPECT_EQ(volumes_.mountPath("CALVEROTWIN"), std::nullopt);
  EXPECT_EQ(listedAt(second)->name, "CALVEROTWIN 1") << "names stay when others go";
  EXPECT_EQ(volumes_.mountPath("CALVEROTWIN 1"), second);
}

TEST_F(RealVolumes, AreListedAtTheirNewPlaceAfterARemount) {
  const std::string before = makeFolder("before");
  const std::string after = makeFolder("after");
  const auto device = mountExt4(before, "CALVEROMOVED");
  ASSERT_TRUE(device);
  ASSERT_TRUE(listedAt(before));
  unmount(before);
  ASSERT_TRUE(mount(device->path(), after, "ext4"));
  EXPECT_EQ(volumes_.mountPath("CALVEROMOVED"), std::nullopt) << "the list is still the old one";
  EXPECT_EQ(listedAt(after)->name, "CALVEROMOVED");
  EXPECT_EQ(volumes_.mountPath("CALVEROMOVED"), after);
}

TEST_F(RealVolumes, AreNotFoundWhereAnotherIsMountedOverThem) {
  const std::string path = makeFolder("volume");
  const auto lower = mountExt4(path, "CALVEROLOWER");
  ASSERT_TRUE(lower);
  ASSERT_TRUE(listedAt(path));
  const auto upper = mountExt4(path, "CALVEROUPPER");
  ASSERT_TRUE(upper);
  EXPECT_EQ(volumes_.mountPath("CALVEROLOWER"), std::nullopt);
  EXPECT_EQ(listedAt(path)->name, "CALVEROUPPER");
  unmount(path);
  EXPECT_EQ(volumes_.mountPath("CALVEROUPPER"), std::nullopt);
  EXPECT_EQ(listedAt(path)->name, "CALVEROLOWER");
}

TEST_F(RealVolumes, AreListedOnceWithBindMountsAndSubvolumes) {
  const std::string path = makeFolder("whole");
  const std::string part = makeFolder("part");
  const auto device = makeFileSystem({"mkfs.btrfs", "-q"}, 128);
  ASSERT_TRUE(device && mount(device->path(), path, "btrfs"));
  ASSERT_TRUE(runProgram({"btrfs", "subvolume", "create", path + "/second"}));
  ASSERT_TRUE(mount(device->path(), part, "btrfs", 0, "subvol=/second"));
  ASSERT_TRUE(mount(path, makeFolder("bound"), "none", MS_BIND));
  EXPECT_TRUE(listedAt(path));
  EXPECT_FALSE(listedAt(part));
  EXPECT_FALSE(listedAt(makeFolder("bound")));
}

TEST_F(RealVolumes, TellThatTheyAreReadOnlyAlsoBehindABindMount) {
  const std::string path = makeFolder("volume");
  const std::string bound = makeFolder("bound");
  const auto device = mountExt4(path, "CALVEROREADONLY");
  ASSERT_TRUE(device && mount(path, bound, "none", MS_BIND));
  EXPECT_EQ(volumes_.isReadOnly(bound), false);
  ASSERT_EQ(::mount(nullptr, bound.c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr), 0);
  EXPECT_EQ(volumes_.isReadOnly(bound), true);
  EXPECT_EQ(volumes_.isReadOnly(path), false);
  unmount(bound);
  ASSERT_EQ(::mount(nullptr, path.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr), 0);
  EXPECT_TRUE(listedAt(path)->readOnly);
}

TEST_F(RealVolumes, TellThatTheyHaveTurnedReadOnlyAfterAnError) {
  const std::string path = makeFolder("volume");
  const auto device = mountExt4(path, "CALVEROABORTED");
  ASSERT_TRUE(device);
  EXPECT_EQ(volumes_.isReadOnly(path), false);
  ASSERT_EQ(::mount(nullptr, path.c_str(), nullptr, MS_REMOUNT, "abort"), 0);
  EXPECT_EQ(volumes_.isReadOnly(path), true);
  EXPECT_TRUE(listedAt(path)->readOnly);
}

TEST_F(RealVolumes, CallAvailableWhatTheProcessCanFill) {
  constexpr double kOwnReserve = 2U << 20U;  // what ext4 keeps from everybody; a tenth of what it keeps for root here
  for (const char* reservedFor : {"resuid=0", "resuid=65533"}) {
    const std::string path = makeFolder(reservedFor);
    const auto device = makeFileSystem({"mkfs.ext4", "-q", "-m", "30"}, 64);
    ASSERT_TRUE(device && mount(device->path(), path, "ext4", 0, reservedFor));
    const auto available = static_cast<double>(listedAt(path)->availableBytes);
    EXPECT_NEAR(available, static_cast<double>(fill(path)), kOwnReserve) << reservedFor;
  }
}

TEST_F(RealVolumes, OnBtrfsCallAvailableWhatCanBeFilled) {
  const std::string path = makeFolder("volume");
  const auto device = makeFileSystem({"mkfs.btrfs", "-q"}, 256);
  ASSERT_TRUE(device && mount(device->path(), path, "btrfs"));
  const auto available = static_cast<double>(listedAt(path)->availableBytes);
  EXPECT_NEAR(available, static_cast<double>(fill(path)), available / 20);
}

TEST_F(RealVolumes, AreAllListedAlthoughOneIsDead) {
  const std::string dead = makeFolder("dead");
  const std::string alive = makeFolder("alive");
  {
    const Descriptor service(::open("/dev/fuse", O_RDWR | O_CLOEXEC));
    if (!service.isOpen()) GTEST_SKIP() << "there is no /dev/fuse";
    const std::string options = "fd=" + std::to_string(service.get()) + ",rootmode=40000,user_id=0,group_id=0";
    ASSERT_TRUE(mount("nobody@nowhere:", dead, "fuse.sshfs", 0, options));
  }
  const auto device = mountExt4(alive, "CALVEROALIVE");
  ASSERT_TRUE(device);
  const auto volume = listedAt(dead);
  ASSERT_TRUE(volume);
  EXPECT_EQ(volume->totalBytes, 0U);
  EXPECT_EQ(volume->formatDescription, "SSHFS");
  EXPECT_FALSE(volume->local);
  EXPECT_EQ(listedAt(alive)->name, "CALVEROALIVE");
}

TEST_F(RealVolumes, AreAllListedAlthoughOneHangs) {
  const std::string hanging = makeFolder("hanging");
  const std::string alive = makeFolder("alive");
  const Descriptor service(::open("/dev/fuse", O_RDWR | O_CLOEXEC));
  if (!service.isOpen()) GTEST_SKIP() << "there is no /dev/fuse";
  const std::string options = "fd=" + std::to_string(service.get()) + ",rootmode=40000,user_id=0,group_id=0";
  ASSERT_TRUE(mount("nobody@nowhere:", hanging, "fuse.sshfs", 0, options));  // and nobody answers its requests
  const auto device = mountExt4(alive, "CALVEROALIVE");
  ASSERT_TRUE(device);
  const auto listed = volumes_.mountedVolumes();
  const auto isAt = [&](const std::string& path) {
    return std::find_if(listed.begin(), listed.end(), [&](const auto& volume) { return volume.mountPath == path; });
  };
  ASSERT_NE(isAt(hanging), listed.end());
  EXPECT_EQ(isAt(hanging)->availableBytes, 0U);
  ASSERT_NE(isAt(alive), listed.end());
  EXPECT_EQ(isAt(alive)->name, "CALVEROALIVE");
  EXPECT_EQ(volumes_.isReadOnly(hanging), std::nullopt);
  EXPECT_EQ(LinuxFiles().checkFillerDirectory(hanging, hanging + "/.filler").code, ErrorCode::gone);
}

TEST_F(RealVolumes, AreAllListedInTimeAlthoughSeveralHangWhateverTheyAreAsked) {
  const Descriptor service(::open("/dev/fuse", O_RDWR | O_CLOEXEC));
  if (!service.isOpen()) GTEST_SKIP() << "there is no /dev/fuse";
  const std::string options = "fd=" + std::to_string(service.get()) + ",rootmode=40000,user_id=0,group_id=0";
  const std::string hanging = makeFolder("hanging");
  ASSERT_TRUE(mount("nobody@nowhere:", hanging, "fuse.sshfs", 0, options));
  const std::string alive = makeFolder("alive");
  const auto device = mountExt4(alive, "CALVEROALIVE");
  ASSERT_TRUE(device);
  // One is asked for its label; two show a part of a file system, so that they are asked for what they are, too.
  const std::string aliveNumber =
      std::to_string(major(device->number())) + ':' + std::to_string(minor(device->number()));
  const MountTableFile table("40 1 8:101 / " + hanging + " rw - ext4 /dev/none rw\n" +  //
                             "41 40 8:102 /part " + hanging + "/first rw - ext4 /dev/none rw\n" + "42 40 8:103 /part " +
                             hanging + "/second rw - ext4 /dev/none rw\n" +  //
                             "43 1 " + aliveNumber + " / " + alive + " rw - ext4 " + device->path() + " rw\n");
  LinuxVolumes volumes([](const std::string&) { return std::uint64_t{0}; }, {.mountTable = table.path()});
  const auto before = std::chrono::steady_clock::now();
  const auto listed = volumes.mountedVolumes();
  EXPECT_LT(std::chrono::steady_clock::now() - before, kVolumeTimeout + std::chrono::seconds(1));
  ASSERT_EQ(listed.size(), 4U);
  EXPECT_EQ(listed[0].name, "hanging");
  EXPECT_EQ(listed[1].name, "first");
  EXPECT_EQ(listed[2].name, "second");
  EXPECT_EQ(listed[2].totalBytes, 0U);
  EXPECT_EQ(listed[3].name, "CALVEROALIVE");
  EXPECT_NE(listed[3].totalBytes, 0U);
}

TEST_F(RealVolumes, BehindAFuseDriverAreDescribedByTheirDevice) {
  const std::string path = makeFolder("volume");
  const auto device = makeFileSystem({"mkfs.ntfs", "-Q", "-F", "-L", "Windows"}, 16);
  if (!device || !runProgram({"ntfs-3g", device->path(), path})) GTEST_SKIP() << "there is no NTFS driver";
  noteMount(path);
  const auto volume = listedAt(path);
  ASSERT_TRUE(volume);
  EXPECT_EQ(volume->name, "Windows");
  EXPECT_EQ(volume->formatDescription, "NTFS");
}

TEST_F(RealVolumes, CanBeToldByTheirDeviceAlone) {
  const auto device = makeFileSystem({"mkfs.vfat", "-F", "16", "-n", "STICK"}, 16);
  ASSERT_TRUE(device);
  const DeviceContent content = contentOf(device->number(), device->path());
  EXPECT_EQ(content.label, "STICK");
  EXPECT_EQ(content.type, "vfat");
  EXPECT_EQ(content.version, "FAT16");
}

TEST_F(RealVolumes, AreToldByTheDeviceDatabaseRatherThanByTheDevice) {
  const auto device = makeFileSystem({"mkfs.vfat", "-F", "16", "-n", "STICK"}, 16);
  ASSERT_TRUE(device && mount("run", "/run", "tmpfs"));
  std::filesystem::create_directories("/run/udev/data");
  const auto tell = [&](const std::string& properties) {
    std::ofstream("/run/udev/data/b7:" + std::to_string(minor(device->number()))) << "V:1\n" << properties;
    const DeviceContent content = contentOf(device->number(), device->path());
    return content.label + '|' + content.type + '|' + content.version;
  };
  EXPECT_EQ(tell("E:ID_FS_LABEL=my_stick\nE:ID_FS_LABEL_ENC=my\\x20stick\nE:ID_FS_TYPE=vfat\nE:ID_FS_VERSION=FAT32\n"),
            "my stick|vfat|FAT32");
  EXPECT_EQ(tell("E:ID_FS_LABEL=my_stick\nE:ID_FS_TYPE=vfat\n"), "my_stick|vfat|");
  EXPECT_EQ(tell("E:ID_BUS=usb\n"), "STICK|vfat|FAT16") << "a database that knows nothing about the contents";
}

}  // namespace
}  // namespace calvero::testing
