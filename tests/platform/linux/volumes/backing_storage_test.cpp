#include "platform/linux/volumes/backing_storage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/sysmacros.h>

#include <filesystem>
#include <fstream>

#include "platform/linux/volumes/mount_table.h"
#include "tests/scoped_folder.h"

namespace calvero::testing {
namespace {

using ::testing::HasSubstr;

constexpr std::uint64_t kTebibyte = std::uint64_t{1} << 40U;

/// A device tree as the kernel lays it out, with a file system on one of its devices.
class BackingStorage : public ::testing::Test {
 protected:
  /// Adds a device; its folder.
  std::string add(const std::string& number, const std::string& path) {
    std::filesystem::create_symlink("../../devices/" + path, folder_.make("dev/block") + '/' + number);
    return folder_.make("devices/" + path);
  }
  std::string addMapped(const std::string& number, const std::string& path, const std::string& uuid) {
    std::string device = add(number, path);
    write(folder_.make("devices/" + path + "/dm") + "/uuid", uuid);
    return device;
  }
  void addLoop(const std::string& number, const std::string& path, const std::string& image) {
    add(number, path);
    write(folder_.make("devices/" + path + "/loop") + "/backing_file", image);
  }
  /// `lower` serves `device`.
  void stack(const std::string& device, const std::string& lower) {
    std::filesystem::create_directory(device + "/slaves");
    std::filesystem::create_directory_symlink(lower,
                                              device + "/slaves/" + std::filesystem::path(lower).filename().string());
  }
  static void write(const std::string& file, const std::string& line) { std::ofstream(file) << line << '\n'; }
  /// An image that is all hole.
  std::string sparseImage(std::uint64_t bytes) {
    std::string image = folder_.make("images") + "/sparse";
    std::ofstream{image};
    std::filesystem::resize_file(image, bytes);
    return image;
  }
  std::string why(dev_t device, std::uint64_t bytes) {
    Mount mount;
    mount.device = device;
    mount.path = "/media/stick";
    return whyStorageIsTooThin(mount, bytes, {.sysfs = folder_.path()});
  }

  ScopedFolder folder_;
};

TEST_F(BackingStorage, OfADiskAPartitionAndAPlainVolumeIsEnough) {
  const std::string disk = add("8:0", "pci0000:00/block/sda");
  const std::string partition = add("8:1", "pci0000:00/block/sda/sda1");
  write(partition + "/partition", "1");
  const std::string plain = addMapped("253:0", "virtual/block/dm-0", "LVM-Kq3vg00000000000000000000000000aVolume");
  stack(plain, partition);
  for (const dev_t device : {makedev(8, 0), makedev(8, 1), makedev(253, 0), makedev(9, 9)}) {
    EXPECT_EQ(why(device, kTebibyte), "") << minor(device);
  }
}

TEST_F(BackingStorage, OfAThinVolumeIsTooThinAlsoUnderEncryption) {
  const std::string pool = addMapped("253:2", "virtual/block/dm-2", "LVM-Kq3vg00000000000000000000000000aPool-tpool");
  const std::string thin = addMapped("253:4", "virtual/block/dm-4", "LVM-Kq3vg00000000000000000000000000aThin");
  const std::string crypt = addMapped("253:5", "virtual/block/dm-5", "CRYPT-LUKS2-0123456789abcdef-home");
  stack(thin, pool);
  stack(crypt, thin);
  EXPECT_THAT(why(makedev(253, 4), 1), HasSubstr("thin pool"));
  EXPECT_THAT(why(makedev(253, 5), 1), HasSubstr("thin pool"));
}

TEST_F(BackingStorage, OfAnImageIsTooThinWhenItsHolesDoNotFitWhereItIs) {
  const std::string image = sparseImage(8 * kTebibyte);
  addLoop("7:0", "virtual/block/loop0", image);
  write(add("7:1", "virtual/block/loop0/loop0p1") + "/partition", "1");
  for (const dev_t device : {makedev(7, 0), makedev(7, 1)}) {
    EXPECT_THAT(why(device, 8 * kTebibyte), HasSubstr(image));
    EXPECT_EQ(why(device, 1), "");
  }
}

TEST_F(BackingStorage, IsAskedForNoMoreThanTheHolesOfAnImage) {
  addLoop("7:0", "virtual/block/loop0", sparseImage(65'536));
  EXPECT_EQ(why(makedev(7, 0), 8 * kTebibyte), "");
}

TEST_F(BackingStorage, OfAnImageWithoutHolesOrWithoutANameIsNotDoubted) {
  const std::string image = folder_.make("images") + "/full";
  write(image, std::string(65'536, 'x'));
  addLoop("7:0", "virtual/block/loop0", image);
  addLoop("7:1", "virtual/block/loop1", folder_.path() + "/images/gone (deleted)");
  EXPECT_EQ(why(makedev(7, 0), 8 * kTebibyte), "");
  EXPECT_EQ(why(makedev(7, 1), 8 * kTebibyte), "");
}

TEST_F(BackingStorage, IsFollowedThroughSeveralDevicesAndEndsWhereTheyLeadInACircle) {
  addLoop("7:0", "virtual/block/loop0", sparseImage(8 * kTebibyte));
  const std::string array = add("9:0", "virtual/block/md0");
  const std::string other = add("9:1", "virtual/block/md1");
  stack(array, other);
  stack(other, array);
  EXPECT_EQ(why(makedev(9, 0), 8 * kTebibyte), "");
  stack(other, folder_.path() + "/devices/virtual/block/loop0");
  EXPECT_THAT(why(makedev(9, 0), 8 * kTebibyte), HasSubstr("sparse"));
}

}  // namespace
}  // namespace calvero::testing
