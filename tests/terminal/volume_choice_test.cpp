#include "terminal/volume_choice.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace calvero {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

MountedVolume volume(const std::string& name, const std::string& mountPath) {
  MountedVolume made;
  made.name = name;
  made.mountPath = mountPath;
  return made;
}

class ChooseVolume : public ::testing::Test {
 protected:
  const std::vector<MountedVolume> volumes_{volume("system", "/"), volume("usb stick", "/nowhere/usb"),
                                            volume("photos", "/nowhere/usb/photos")};
};

TEST_F(ChooseVolume, FindsAVolumeByItsName) {
  EXPECT_EQ(chooseVolume("usb stick", volumes_).index, 1U);
}

TEST_F(ChooseVolume, FindsAVolumeByItsMountPath) {
  EXPECT_EQ(chooseVolume("/nowhere/usb/photos", volumes_).index, 2U);
  EXPECT_EQ(chooseVolume("/", volumes_).index, 0U);
}

TEST_F(ChooseVolume, AcceptsSlashesAtTheEnd) {
  EXPECT_EQ(chooseVolume("/nowhere/usb//", volumes_).index, 1U);
  EXPECT_EQ(chooseVolume("//", volumes_).index, 0U);
}

TEST_F(ChooseVolume, AcceptsDetoursInThePath) {
  EXPECT_EQ(chooseVolume("/nowhere/./usb/photos/..", volumes_).index, 1U);
}

TEST_F(ChooseVolume, FollowsALinkToAMountPath) {
  const auto folder = std::filesystem::temp_directory_path() / "calvero-volume-choice";
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder / "mounted");
  std::filesystem::create_directory_symlink(folder / "mounted", folder / "link");
  const auto mounted = std::filesystem::canonical(folder / "mounted").string();
  EXPECT_EQ(chooseVolume((folder / "link").string(), {volume("linked", mounted)}).index, 0U);
  std::filesystem::remove_all(folder);
}

TEST_F(ChooseVolume, PrefersTheNameToThePath) {
  const std::vector<MountedVolume> volumes{volume("first", "/second"), volume("/second", "/first")};
  EXPECT_EQ(chooseVolume("/second", volumes).index, 1U);
}

TEST_F(ChooseVolume, ListsTheNamesWhenTheNameIsUnknown) {
  const VolumeChoice choice = chooseVolume("backup", volumes_);
  EXPECT_EQ(choice.index, std::nullopt);
  EXPECT_EQ(choice.refusal, "There is no volume \"backup\"; the volumes are: system, usb stick, photos");
}

TEST_F(ChooseVolume, NamesTheInnermostVolumeForAPathInside) {
  const VolumeChoice choice = chooseVolume("/nowhere/usb/photos/2024", volumes_);
  EXPECT_EQ(choice.index, std::nullopt);
  EXPECT_THAT(choice.refusal, AllOf(HasSubstr("/nowhere/usb/photos"), HasSubstr("photos"), Not(HasSubstr("stick"))));
}

TEST_F(ChooseVolume, DoesNotTakeALongerFolderNameForAPathInside) {
  const VolumeChoice choice = chooseVolume("/nowhere/usbstick", {volume("usb", "/nowhere/usb")});
  EXPECT_EQ(choice.refusal, "No volume is mounted at /nowhere/usbstick; the volumes are: usb");
}

TEST_F(ChooseVolume, SaysSoWhenNothingIsMounted) {
  EXPECT_EQ(chooseVolume("usb", {}).refusal, "No volume can be wiped: none is mounted");
}

TEST_F(ChooseVolume, KeepsTheRefusalOnOneLineWithoutControlCharacters) {
  EXPECT_THAT(chooseVolume("a\n\033b", volumes_).refusal, HasSubstr("a\\012\\033b"));
}

TEST(NumberUpTo, AcceptsTheOfferedNumbersOnly) {
  EXPECT_EQ(numberUpTo(9, "1"), 1U);
  EXPECT_EQ(numberUpTo(9, " 9 "), 9U);
  for (const char* wrong : {"", "0", "10", "-1", "+1", "1x", "abc", "1 2", "99999999999999999999999"}) {
    EXPECT_EQ(numberUpTo(9, wrong), std::nullopt) << wrong;
  }
}

TEST(AmbiguousVolume, IsOneThatIsNamedByALabelThatAnotherCarries) {
  std::vector<MountedVolume> volumes{volume("stick", "/media/a"), volume("stick 1", "/media/b"), volume("disk", "/c")};
  for (MountedVolume& one : volumes) one.label = one.name == "disk" ? "disk" : "stick";
  EXPECT_THAT(ambiguityOf("stick", volumes[0], volumes),
              AllOf(HasSubstr("\"stick\""), HasSubstr("mount path: /media/a, /media/b")));
  EXPECT_NE(ambiguityOf("stick 1", volumes[1], volumes), "");
  EXPECT_EQ(ambiguityOf("/media/a", volumes[0], volumes), "");
  EXPECT_EQ(ambiguityOf("disk", volumes[2], volumes), "");
}

}  // namespace
}  // namespace calvero
