#include "platform/linux/system/file_identity.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <time.h>
#include <unistd.h>

#include <string>
#include <utility>

#include "tests/scoped_folder.h"

namespace calvero {
namespace {

/// File systems take their times from a clock that is a few milliseconds coarse.
void waitForTheNextTimestamp() {
  const auto now = [] {
    timespec time = {};
    ::clock_gettime(CLOCK_REALTIME_COARSE, &time);
    return std::pair(time.tv_sec, time.tv_nsec);
  };
  for (const auto before = now(); now() == before;) {
  }
}

FileIdentity made(const std::string& path) {
  ::close(::open(path.c_str(), O_CREAT | O_EXCL | O_WRONLY, S_IRUSR | S_IWUSR));
  return identityBehind(path).value();
}

TEST(FileIdentity, TellsAFileFromTheRemovedOneWhoseNumberItGot) {
  constexpr int kAttempts = 5;
  const testing::ScopedFolder folder;
  const std::string path = folder.path() + "/file";
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    FileIdentity removed = made(path);
    ::unlink(path.c_str());
    waitForTheNextTimestamp();
    const FileIdentity fresh = made(path);
    ::unlink(path.c_str());
    EXPECT_FALSE(fresh.isSameFile(removed));
    removed.inode = fresh.inode;  // whatever number this file system has given out
    EXPECT_FALSE(fresh.isSameFile(removed));
    EXPECT_TRUE(fresh.isSameFile(fresh));
  }
}

}  // namespace
}  // namespace calvero
