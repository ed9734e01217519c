#include "platform/linux/files/linux_filler_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/magic.h>

#include <array>
#include <cerrno>

#include "platform/linux/system/file_identity.h"
#include "tests/scoped_folder.h"

namespace calvero::testing {
namespace {

/// A file system that commits; without a thread, so that its calls can be plain functions.
struct CommittingFileSystem {
  bool isBtrfs = true;
  bool isFull = false;
  bool commitMakesRoom = true;
  int commits = 0;
};
CommittingFileSystem fileSystem;

ssize_t writeUnlessFull(int, const void*, std::size_t bytes, off_t) {
  if (!fileSystem.isFull) return static_cast<ssize_t>(bytes);
  errno = ENOSPC;
  return -1;
}

int flush(int) {
  return 0;
}

int commit(int) {
  ++fileSystem.commits;
  if (fileSystem.commitMakesRoom) fileSystem.isFull = false;
  return 0;
}

int describe(int, struct statfs* properties) {
  properties->f_type = fileSystem.isBtrfs ? BTRFS_SUPER_MAGIC : EXT4_SUPER_MAGIC;
  return 0;
}

class FillerFileOnBtrfs : public ::testing::Test {
 protected:
  void SetUp() override { fileSystem = {}; }
  LinuxFillerFile open() {
    return {Descriptor(::open(folder_.path().c_str(), O_PATH | O_CLOEXEC)),
            folder_.path(),
            std::make_shared<VolumeWatch>(folder_.path(), identityBehind(folder_.path())->device),
            {writeUnlessFull, flush, commit, describe}};
  }
  static WriteResult write(FillerFile& file) {
    const std::array<std::uint8_t, 512> data{};
    return file.pwrite(data.data(), data.size(), 0);
  }
  static void flushTimes(FillerFile& file, int times) {
    for (int flushes = 0; flushes < times; ++flushes) EXPECT_FALSE(file.fsync().failed());
  }

  const ScopedFolder folder_;
};

TEST_F(FillerFileOnBtrfs, CommitsTheFileSystemAtEvery128thFlush) {
  LinuxFillerFile file = open();
  flushTimes(file, 127);
  EXPECT_EQ(fileSystem.commits, 0);
  flushTimes(file, 1);
  EXPECT_EQ(fileSystem.commits, 1);
  flushTimes(file, 128);
  EXPECT_EQ(fileSystem.commits, 2);
}

TEST_F(FillerFileOnBtrfs, IsFullOnlyWhenACommitMakesNoRoom) {
  LinuxFillerFile file = open();
  fileSystem.isFull = true;
  EXPECT_EQ(write(file).bytes, 512);
  EXPECT_EQ(fileSystem.commits, 1);
  fileSystem.isFull = true;
  fileSystem.commitMakesRoom = false;
  EXPECT_EQ(write(file).error.code, ErrorCode::full);
  EXPECT_EQ(fileSystem.commits, 2);
}

TEST_F(FillerFileOnBtrfs, AloneIsCommitted) {
  fileSystem.isBtrfs = false;
  LinuxFillerFile file = open();
  flushTimes(file, 256);
  fileSystem.isFull = true;
  EXPECT_EQ(write(file).error.code, ErrorCode::full);
  EXPECT_EQ(fileSystem.commits, 0);
}

}  // namespace
}  // namespace calvero::testing
