#include "platform/linux/system/file_identity.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <string>

#include "tests/coarse_clock.h"
#include "tests/scoped_folder.h"

namespace calvero {
namespace {

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
    testing::waitForTheNextTimestamp();
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
