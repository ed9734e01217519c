#include <gtest/gtest.h>
#include <sys/mount.h>

#include <array>
#include <chrono>
#include <filesystem>
#include <memory>
#include <string>

#include "tests/platform/linux/files/linux_files_test_volume.h"

namespace calvero::testing {
namespace {

namespace fs = std::filesystem;
using std::chrono::steady_clock;

// Looks at the path come once a second.
constexpr std::chrono::seconds kLongestWait{30};

/// A run whose first file is open and has been written to.
class VolumeTakenAway : public FillerVolume {
 protected:
  void start() {
    directoryOfRun_ = create();
    ASSERT_NE(directoryOfRun_, nullptr) << error_.text();
    ASSERT_FALSE(directoryOfRun_->createEmptyFile(pathOf(".temp0")).failed());
    file_ = directoryOfRun_->openForWriting(pathOf(".temp0"), error_);
    ASSERT_NE(file_, nullptr) << error_.text();
    ASSERT_FALSE(write().error.failed());
  }
  WriteResult write() { return file_->pwrite(block_.data(), block_.size(), 0); }
  /// The first write that fails; nothing but writes is done meanwhile.
  WriteResult writeUntilItFails() {
    const auto end = steady_clock::now() + kLongestWait;
    WriteResult result = write();
    while (!result.error.failed() && steady_clock::now() < end) result = write();
    return result;
  }
  void expectLost() {
    const WriteResult failed = writeUntilItFails();
    EXPECT_EQ(failed.bytes, -1);
    EXPECT_EQ(failed.error.code, ErrorCode::gone);
    EXPECT_EQ(write().error.code, ErrorCode::gone);
    EXPECT_FALSE(directoryOfRun_->exists(pathOf(".temp0")));
    EXPECT_EQ(directoryOfRun_->createEmptyFile(pathOf(".temp1")).code, ErrorCode::gone);
  }

  std::array<std::uint8_t, 512> block_{};
  std::unique_ptr<FillerDirectory> directoryOfRun_;
  std::unique_ptr<FillerFile> file_;
};

TEST_F(VolumeTakenAway, IsNoticedWhileAFileIsWrittenThoughTheSystemWouldStillWrite) {
  ScopedMount mounted("calvero", volume_, "tmpfs", 0, "size=1m");
  if (!mounted.done()) GTEST_SKIP() << "mounting needs root";
  start();
  ASSERT_EQ(::umount2(volume_.c_str(), MNT_DETACH), 0);
  expectLost();
}

TEST_F(VolumeTakenAway, IsNoticedWhenAnotherVolumeTookItsPlace) {
  ScopedMount mounted("calvero", volume_, "tmpfs", 0, "size=1m");
  if (!mounted.done()) GTEST_SKIP() << "mounting needs root";
  start();
  ScopedMount other("calvero", volume_, "tmpfs", 0, "size=1m");
  ASSERT_TRUE(other.done());
  expectLost();
}

TEST_F(VolumeTakenAway, IsNoticedWhenNothingIsAtItsPathAnyMore) {
  start();
  fs::rename(volume_, top_ + "/elsewhere");
  expectLost();
}

TEST_F(VolumeTakenAway, StaysLostWhenItComesBack) {
  start();
  fs::rename(volume_, top_ + "/elsewhere");
  EXPECT_FALSE(directoryOfRun_->exists(pathOf(".temp0")));
  fs::rename(top_ + "/elsewhere", volume_);
  EXPECT_EQ(write().error.code, ErrorCode::gone);
  EXPECT_FALSE(directoryOfRun_->exists(pathOf(".temp0")));
}

TEST_F(VolumeTakenAway, IsCleanedUpAllTheSame) {
  start();
  fs::rename(volume_, top_ + "/elsewhere");
  EXPECT_FALSE(directoryOfRun_->exists(pathOf(".temp0")));
  EXPECT_FALSE(directoryOfRun_->remove().failed());
  EXPECT_FALSE(fs::exists(top_ + "/elsewhere/.filler"));
  EXPECT_TRUE(fs::exists(top_ + "/elsewhere/precious"));
}

TEST_F(VolumeTakenAway, IsNotSeenInAPathThatLeadsThereByALink) {
  const std::string link = top_ + "/link";
  fs::create_directory_symlink(volume_, link);
  Error error;
  const auto run = files_.createFillerDirectory(link, link + "/.filler", error);
  ASSERT_NE(run, nullptr) << error.text();
  EXPECT_FALSE(run->createEmptyFile(link + "/.filler/.temp0").failed());
  EXPECT_TRUE(run->exists(link + "/.filler/.temp0"));
}

}  // namespace
}  // namespace calvero::testing
