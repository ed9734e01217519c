#include "platform/linux/volumes/format_description.h"

#include <gtest/gtest.h>

#include "platform/linux/volumes/mount_table.h"
#include "platform/linux/volumes/volume_label.h"

namespace calvero::testing {
namespace {

Mount mountOf(const std::string& type, const std::string& source = "/dev/sda1") {
  Mount mount;
  mount.type = type;
  mount.source = source;
  return mount;
}

std::string described(const std::string& type, const DeviceContent& content = {}) {
  return formatDescription(mountOf(type), content);
}

TEST(FormatDescription, IsTheCommonName) {
  EXPECT_EQ(described("ext4"), "ext4");
  EXPECT_EQ(described("xfs"), "XFS");
  EXPECT_EQ(described("btrfs"), "Btrfs");
  EXPECT_EQ(described("exfat"), "exFAT");
  EXPECT_EQ(described("ntfs3"), "NTFS");
  EXPECT_EQ(described("hfsplus"), "Mac OS Extended (Journaled)");
  EXPECT_EQ(described("nfs4"), "NFS");
}

TEST(FormatDescription, UsesTheTextsThatVolumesAreFilteredBy) {
  EXPECT_EQ(described("autofs"), "Unknown (autofs)");
  for (const char* type : {"cifs", "smb3", "smbfs"}) EXPECT_EQ(described(type), "SMB") << type;
}

TEST(FormatDescription, ShowsAnUnknownTypeAsItStands) {
  EXPECT_EQ(described("fuse.brandnew"), "fuse.brandnew");
}

TEST(FormatDescription, NamesAFatByItsVersionWhereThatIsKnown) {
  EXPECT_EQ(described("vfat", {.label = "", .type = "vfat", .version = "FAT16", .uuid = ""}), "FAT16");
  EXPECT_EQ(described("vfat", {.label = "", .type = "vfat", .version = "1.0", .uuid = ""}), "FAT32");
  EXPECT_EQ(described("vfat"), "FAT32");
}

TEST(FormatDescription, TellsADriversFuseFileSystemByWhatTheDeviceHolds) {
  EXPECT_EQ(described("fuseblk", {.label = "", .type = "ntfs", .version = "", .uuid = ""}), "NTFS");
  EXPECT_EQ(described("fuseblk", {.label = "", .type = "exfat", .version = "1.0", .uuid = ""}), "exFAT");
  EXPECT_EQ(described("fuseblk"), "fuseblk");
}

TEST(FormatDescription, DoesNotLetTheDeviceSpeakForADriverOfTheKernel) {
  EXPECT_EQ(described("ext4", {.label = "", .type = "ntfs", .version = "FAT16", .uuid = ""}), "ext4");
}

TEST(NetworkFileSystem, IsToldByTypeOrAddress) {
  for (const char* type : {"ceph", "davfs", "fuse.rclone", "fuse.s3fs", "smb3", "lustre"}) {
    EXPECT_TRUE(isNetworkFileSystem(mountOf(type))) << type;
  }
  EXPECT_TRUE(isNetworkFileSystem(mountOf("fuse", "https://dav.example.com/")));
  EXPECT_FALSE(isNetworkFileSystem(mountOf("fuse", "/dev/sdb1")));
  EXPECT_FALSE(isNetworkFileSystem(mountOf("fuseblk")));
  EXPECT_FALSE(isNetworkFileSystem(mountOf("ext4", "a://b")));
}

TEST(NetworkFileSystem, IsToldByLibmount) {
  Mount mount = mountOf("fuse.sshfs");
  mount.network = true;
  EXPECT_TRUE(isNetworkFileSystem(mount));
}

}  // namespace
}  // namespace calvero::testing
