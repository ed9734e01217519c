#include "platform/linux/volumes/mount_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/sysmacros.h>

#include <stdexcept>

#include "tests/platform/linux/volumes/mount_table_file.h"

namespace calvero::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<Mount> read(const std::string& text) {
  const MountTableFile file(text);
  return readMountTable(file.path());
}

bool everythingIsAFolder(const std::string& /*path*/) {
  return true;
}

std::vector<std::string> volumePaths(const std::string& text, const IsFolder& isFolder = everythingIsAFolder) {
  std::vector<std::string> paths;
  for (const Mount& volume : volumesAmong(read(text), isFolder)) paths.push_back(volume.path);
  return paths;
}

TEST(MountTable, ReadsAnEntryWithItsEscapesDecoded) {
  const std::vector<Mount> table =
      read("36 35 8:17 /@home /media/my\\040stick\\134\\011 rw,noatime master:1 - btrfs /dev/sdb1 rw,space_cache=v2\n");
  ASSERT_EQ(table.size(), 1U);
  EXPECT_EQ(table[0].id, 36);
  EXPECT_EQ(table[0].parentId, 35);
  EXPECT_EQ(table[0].device, makedev(8, 17));
  EXPECT_EQ(table[0].root, "/@home");
  EXPECT_EQ(table[0].path, "/media/my stick\\\t");
  EXPECT_EQ(table[0].type, "btrfs");
  EXPECT_EQ(table[0].source, "/dev/sdb1");
}

TEST(MountTable, TellsWhomReservedBlocksAreKeptFor) {
  const std::vector<Mount> table =
      read("36 1 8:1 / / rw - ext4 /dev/a rw\n37 36 8:2 / /b rw - ext4 /dev/b rw,discard,resuid=65534,resgid=7\n");
  ASSERT_EQ(table.size(), 2U);
  EXPECT_EQ(table[0].reservedFor, 0U);
  EXPECT_EQ(table[1].reservedFor, 65534U);
}

TEST(MountTable, KnowsAFileSystemThatTakesNothingAnyMoreAfterAnError) {
  const auto table = read("36 1 8:1 / / rw - ext4 /dev/a rw\n37 36 8:2 / /b rw - ext4 /dev/b rw,abort,emergency_ro\n");
  EXPECT_FALSE(table[0].emergencyReadOnly);
  EXPECT_TRUE(table[1].emergencyReadOnly);
}

TEST(MountTable, PassesOverLinesThatAreNoEntry) {
  const std::vector<Mount> table = read(
      "36 1 8:17 / / rw - ext4 /dev/sdb1 rw\nthis is no entry\n\n37 36 8:18\n38 36 8:19 / /b rw - xfs /dev/c rw\n");
  ASSERT_EQ(table.size(), 2U);
  EXPECT_EQ(table[0].path, "/");
  EXPECT_EQ(table[1].path, "/b");
}

TEST(MountTable, ThrowsWhenItCannotBeRead) {
  EXPECT_THROW(readMountTable("/nonexistent/mountinfo"), std::runtime_error);
  EXPECT_THROW(readMountTable("/proc/self"), std::runtime_error);
}

TEST(MountTable, ReadsTheRunningSystemsTable) {
  const std::vector<Mount> table = readMountTable("/proc/self/mountinfo");
  const Mount* root = MountTree(table).reachedAt("/");
  ASSERT_NE(root, nullptr);
  EXPECT_EQ(root->path, "/");
}

TEST(VolumesAmong, TakesFromADesktopOnlyWhatStoresFiles) {
  EXPECT_THAT(volumePaths("22 28 0:20 / /sys rw - sysfs sysfs rw\n"
                          "23 28 0:21 / /proc rw - proc proc rw\n"
                          "24 28 0:5 / /dev rw - devtmpfs udev rw\n"
                          "25 24 0:22 / /dev/pts rw - devpts devpts rw\n"
                          "26 28 0:23 / /run rw - tmpfs tmpfs rw\n"
                          "28 1 259:2 / / rw,relatime shared:1 - ext4 /dev/nvme0n1p2 rw\n"
                          "29 24 0:24 / /dev/shm rw - tmpfs tmpfs rw\n"
                          "30 22 0:26 / /sys/fs/cgroup rw - cgroup2 cgroup2 rw\n"
                          "31 22 0:30 / /sys/fs/fuse/connections rw - fusectl fusectl rw\n"
                          "32 24 0:19 / /dev/hugepages rw - hugetlbfs hugetlbfs rw\n"
                          "33 28 7:0 / /snap/core22/1122 ro - squashfs /dev/loop0 ro\n"
                          "34 28 7:1 / /usr/lib/image ro - erofs /dev/loop1 ro\n"
                          "35 28 259:1 / /boot/efi rw - vfat /dev/nvme0n1p1 rw\n"
                          "36 26 0:50 / /run/user/1000 rw - tmpfs tmpfs rw\n"
                          "37 36 0:51 / /run/user/1000/gvfs rw - fuse.gvfsd-fuse gvfsd-fuse rw\n"
                          "38 36 0:52 / /run/user/1000/doc rw - fuse.portal portal rw\n"
                          "39 28 0:53 / /var/lib/lxcfs rw - fuse.lxcfs lxcfs rw\n"
                          "40 28 0:54 / /tmp/.mount_viewer rw - fuse.viewer viewer.AppImage ro\n"
                          "41 28 0:55 / /snap/bare/5 ro - fuse.snapfuse snapfuse ro\n"
                          "42 28 8:17 / /media/ann/STICK rw - exfat /dev/sdb1 rw\n"
                          "43 28 8:33 / /media/ann/WINDOWS rw - fuseblk /dev/sdc1 rw\n"
                          "44 28 11:0 / /media/ann/CD ro - iso9660 /dev/sr0 ro\n"),
              ElementsAre("/", "/boot/efi", "/media/ann/STICK", "/media/ann/WINDOWS", "/media/ann/CD"));
}

TEST(VolumesAmong, TakesNetworkFileSystemsAndAutomounters) {
  EXPECT_THAT(volumePaths("28 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
                          "31 28 0:31 / /net/nfs rw - nfs4 server:/export rw\n"
                          "32 28 0:32 / /net/smb rw - cifs //server/share rw\n"
                          "33 28 0:33 / /net/auto rw - autofs /etc/auto.misc rw\n"
                          "34 28 0:34 / /net/ceph rw - ceph 10.0.0.1:/ rw\n"
                          "35 28 0:35 / /net/dav rw - fuse https://dav.example.com/ rw\n"
                          "36 28 0:36 / /net/cloud rw - fuse.rclone cloud: rw\n"
                          "37 28 0:37 / /net/ssh rw - fuse.sshfs ann@host: rw\n"
                          "38 28 0:38 / /net/host rw - virtiofs host rw\n"
                          "39 28 0:39 / /net/dav2 rw - davfs https://dav.example.com/ rw\n"),
              ElementsAre("/", "/net/nfs", "/net/smb", "/net/auto", "/net/ceph", "/net/dav", "/net/cloud", "/net/ssh",
                          "/net/host", "/net/dav2"));
}

TEST(VolumesAmong, ListsAFileSystemOnceHoweverOftenItIsMounted) {
  EXPECT_THAT(volumePaths("28 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
                          "29 28 8:1 / /mnt/again rw - ext4 /dev/sda1 rw\n"
                          "30 28 8:1 /srv/data /data rw - ext4 /dev/sda1 rw\n"),
              ElementsAre("/"));
}

TEST(VolumesAmong, PrefersTheMountThatShowsAllToAnEarlierBindMount) {
  EXPECT_THAT(volumePaths("28 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
                          "29 28 8:2 /part /part rw - xfs /dev/sda2 rw\n"
                          "30 28 8:2 / /whole rw - xfs /dev/sda2 rw\n"
                          "31 28 8:2 / /whole2 rw - xfs /dev/sda2 rw\n"),
              ElementsAre("/", "/whole"));
}

TEST(VolumesAmong, TakesTheFirstSubvolumeWhereNoMountShowsAll) {
  EXPECT_THAT(volumePaths("28 1 0:27 /@ / rw - btrfs /dev/sda2 rw,subvol=/@\n"
                          "29 28 0:27 /@home /home rw - btrfs /dev/sda2 rw,subvol=/@home\n"
                          "30 28 0:27 /@log /var/log rw - btrfs /dev/sda2 rw,subvol=/@log\n"),
              ElementsAre("/"));
}

TEST(VolumesAmong, TakesAContainersRootAndFoldersButNotItsSingleFiles) {
  const auto isFolder = [](const std::string& path) { return path == "/data"; };
  EXPECT_THAT(volumePaths("300 200 0:60 / / rw - overlay overlay rw,lowerdir=/l\n"
                          "301 300 0:61 / /proc rw - proc proc rw\n"
                          "302 300 0:62 / /dev rw - tmpfs tmpfs rw\n"
                          "303 300 8:1 /var/lib/c/hosts /etc/hosts rw - ext4 /dev/sda1 rw\n"
                          "304 300 8:1 /var/lib/c/data /data rw - ext4 /dev/sda1 rw\n",
                          isFolder),
              ElementsAre("/", "/data"));
}

TEST(VolumesAmong, LeavesOutTheOverlaysOfContainersThatTheMachineRuns) {
  EXPECT_THAT(volumePaths("28 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
                          "90 28 0:44 / /var/lib/docker/overlay2/f00/merged rw - overlay overlay rw\n"
                          "91 28 0:4 net:[4026532280] /run/docker/netns/f00 rw - nsfs nsfs rw\n"),
              ElementsAre("/"));
}

TEST(VolumesAmong, LeavesOutAMountThatALaterOneHides) {
  EXPECT_THAT(volumePaths("28 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
                          "29 28 8:2 / /mnt rw - xfs /dev/sda2 rw\n"
                          "30 29 8:3 / /mnt rw - ext4 /dev/sda3 rw\n"),
              ElementsAre("/", "/mnt"));
  EXPECT_THAT(volumePaths("28 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
                          "29 28 8:2 / /mnt/deep rw - xfs /dev/sda2 rw\n"
                          "30 28 0:40 / /mnt rw - tmpfs tmpfs rw\n"),
              ElementsAre("/"))
      << "a parent folder is hidden";
}

TEST(VolumesAmong, TakesTheOtherMountOfAFileSystemWhoseFirstIsHidden) {
  const std::string text =
      "28 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
      "29 28 8:2 / /mnt rw - xfs /dev/sda2 rw\n"
      "30 29 8:3 / /mnt rw - ext4 /dev/sda3 rw\n"
      "31 28 8:2 /folder /other rw - xfs /dev/sda2 rw\n";
  EXPECT_THAT(volumePaths(text), ElementsAre("/", "/mnt", "/other"));
  EXPECT_EQ(volumesAmong(read(text), everythingIsAFolder)[1].device, makedev(8, 3));
}

TEST(VolumesAmong, DoesNotTakeTheFolderBesideAMountForHidden) {
  EXPECT_THAT(volumePaths("28 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
                          "29 28 8:2 / /mnt rw - xfs /dev/sda2 rw\n"
                          "30 28 8:3 / /mnt2 rw - xfs /dev/sda3 rw\n"),
              ElementsAre("/", "/mnt", "/mnt2"));
}

TEST(VolumesAmong, EndsOnATableThatGoesInCircles) {
  EXPECT_THAT(volumePaths("1 9 8:1 / /a rw - ext4 /dev/a rw\n2 1 8:2 / /a rw - ext4 /dev/b rw\n"
                          "1 2 8:3 / /a rw - ext4 /dev/c rw\n"),
              ::testing::SizeIs(::testing::Le(1U)));
  EXPECT_THAT(volumePaths("1 2 8:1 / /a rw - ext4 /dev/a rw\n2 1 8:2 / /a rw - ext4 /dev/b rw\n"), IsEmpty());
}

}  // namespace
}  // namespace calvero::testing
