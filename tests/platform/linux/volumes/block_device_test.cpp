#include "platform/linux/volumes/block_device.h"

#include <gtest/gtest.h>
#include <sys/sysmacros.h>

#include <filesystem>
#include <fstream>

#include "tests/scoped_folder.h"

namespace calvero::testing {
namespace {

/// A device tree as the kernel lays it out.
class DeviceTree : public ::testing::Test {
 protected:
  void addDisk(const std::string& number, const std::string& path, const std::string& removable,
               const std::string& sequence) const {
    const std::string disk = add(number, path);
    std::ofstream(disk + "/removable") << removable << '\n';
    std::ofstream(disk + "/diskseq") << sequence << '\n';
  }
  void addPartition(const std::string& number, const std::string& path) const {
    std::ofstream(add(number, path) + "/partition") << "1\n";
  }
  [[nodiscard]] const std::string& root() const { return folder_.path(); }

 private:
  [[nodiscard]] std::string add(const std::string& number, const std::string& path) const {
    const std::string links = folder_.make("dev/block");
    std::filesystem::create_symlink("../../devices/" + path, links + '/' + number);
    return folder_.make("devices/" + path);
  }

  ScopedFolder folder_;
};

TEST_F(DeviceTree, ToldRemovableByTheWholeDisk) {
  addDisk("8:0", "pci0000:00/ata1/block/sda", "0", "1");
  addPartition("8:1", "pci0000:00/ata1/block/sda/sda1");
  addDisk("179:0", "platform/mmc0/block/mmcblk0", "1", "2");
  addPartition("179:1", "platform/mmc0/block/mmcblk0/mmcblk0p1");
  EXPECT_FALSE(isOnRemovableDisk(makedev(8, 0), root()));
  EXPECT_FALSE(isOnRemovableDisk(makedev(8, 1), root()));
  EXPECT_TRUE(isOnRemovableDisk(makedev(179, 0), root()));
  EXPECT_TRUE(isOnRemovableDisk(makedev(179, 1), root()));
}

TEST_F(DeviceTree, CountsAnyDiskOnUsbAsRemovable) {
  addDisk("8:16", "pci0000:00/0000:00:14.0/usb2/2-1/host4/block/sdb", "0", "1");
  addPartition("8:17", "pci0000:00/0000:00:14.0/usb2/2-1/host4/block/sdb/sdb1");
  EXPECT_TRUE(isOnRemovableDisk(makedev(8, 16), root()));
  EXPECT_TRUE(isOnRemovableDisk(makedev(8, 17), root()));
}

TEST_F(DeviceTree, DoesNotTakeANameThatOnlyBeginsLikeUsbForUsb) {
  addDisk("253:0", "virtual/usb/block/dm-0", "0", "1");
  addDisk("253:1", "virtual/usbip/block/dm-1", "0", "1");
  EXPECT_FALSE(isOnRemovableDisk(makedev(253, 0), root()));
  EXPECT_FALSE(isOnRemovableDisk(makedev(253, 1), root()));
}

TEST_F(DeviceTree, TellsTheSequenceOfTheWholeDisk) {
  addDisk("8:0", "pci0000:00/ata1/block/sda", "0", "17");
  addPartition("8:1", "pci0000:00/ata1/block/sda/sda1");
  EXPECT_EQ(diskSequence(makedev(8, 0), root()), "17");
  EXPECT_EQ(diskSequence(makedev(8, 1), root()), "17");
}

TEST_F(DeviceTree, TellsNothingAboutAnUnknownDevice) {
  EXPECT_FALSE(isOnRemovableDisk(makedev(8, 0), root()));
  EXPECT_EQ(diskSequence(makedev(8, 0), root()), "");
  EXPECT_EQ(diskSequence(0, root()), "");
}

}  // namespace
}  // namespace calvero::testing
