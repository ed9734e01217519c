#include "platform/linux/volumes/volume_label.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace calvero::testing {
namespace {

TEST(UdevText, DecodesItsEscapes) {
  EXPECT_EQ(decodeUdevText("My\\x20Disk\\x2f\\xc3\\x9F"), "My Disk/\xC3\x9F");
  EXPECT_EQ(decodeUdevText("\\x5cx41"), "\\x41") << "what an escape stands for is no escape";
  EXPECT_EQ(decodeUdevText("a\\x00b"), std::string("a\0b", 3));
}

TEST(UdevText, LeavesWhatIsNoEscape) {
  for (const char* text : {"", "\\", "\\x", "\\x4", "\\xg0", "\\x4g", "\\y41", "\\x-1", "plain"}) {
    EXPECT_EQ(decodeUdevText(text), text);
  }
}

TEST(LabelFromFileSystem, IsUnknownWhereTheFileSystemHasNoSuchThing) {
  EXPECT_EQ(labelFromFileSystem("/proc"), std::nullopt);
  EXPECT_EQ(labelFromFileSystem("/nonexistent"), std::nullopt);
  EXPECT_EQ(labelFromFileSystem("/proc/self/mountinfo"), std::nullopt) << "not a folder";
}

TEST(BlockDevice, IsTheMountsOwnUnlessThatIsMadeUp) {
  EXPECT_EQ(blockDeviceOf(makedev(8, 17), "/dev/sdb1"), makedev(8, 17));
  EXPECT_EQ(blockDeviceOf(makedev(0, 40), "server:/export"), 0U);
  EXPECT_EQ(blockDeviceOf(makedev(0, 40), "/dev/nonexistent"), 0U);
  EXPECT_EQ(blockDeviceOf(makedev(0, 40), "/dev/null"), 0U) << "a character device";
}

TEST(DeviceContent, AreEmptyForADeviceThatNobodyKnows) {
  const DeviceContent content = contentOf(makedev(240, 99), "/nonexistent");
  EXPECT_EQ(content.label + content.type + content.version, "");
}

TEST(DeviceContent, AreNotReadFromAnotherFileUnderTheDevicesName) {
  EXPECT_EQ(contentOf(makedev(240, 99), "/dev/null").type, "");
  EXPECT_EQ(contentOf(makedev(240, 99), "/etc/passwd").type, "");
}

}  // namespace
}  // namespace calvero::testing
