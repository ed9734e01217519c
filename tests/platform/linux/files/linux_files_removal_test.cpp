#include <gmock/gmock.h>

#include <atomic>
#include <thread>
#include <vector>

#include "tests/platform/linux/files/linux_files_test_volume.h"

namespace calvero::testing {
namespace {

namespace fs = std::filesystem;

class FillerDirectoryRemoval : public FillerVolume {
 protected:
  void SetUp() override {
    run_ = create();
    ASSERT_NE(run_, nullptr) << error_.text();
  }

  std::unique_ptr<FillerDirectory> run_;
};

TEST_F(FillerDirectoryRemoval, RemovesThousandsOfFiles) {
  constexpr int kFiles = 2200;  // more than the system tells of at once, twice over
  for (int number = 0; number < kFiles; ++number) {
    ASSERT_FALSE(run_->createEmptyFile(pathOf(".temp" + std::to_string(number))).failed());
  }
  EXPECT_FALSE(run_->remove().failed());
  EXPECT_FALSE(fs::exists(directory_));
}

TEST_F(FillerDirectoryRemoval, NeverFollowsALink) {
  fs::create_directory(volume_ + "/folder");
  writeFile(volume_ + "/folder/inside", kPreciousText);
  fs::create_directory_symlink(volume_ + "/folder", pathOf("link"));
  fs::create_directories(pathOf("a/b/c"));
  fs::create_directory_symlink(volume_ + "/folder", pathOf("a/b/c/link"));
  fs::create_hard_link(precious_, pathOf("a/second name"));
  EXPECT_FALSE(run_->remove().failed());
  EXPECT_FALSE(fs::exists(directory_));
  EXPECT_EQ(readFile(volume_ + "/folder/inside"), kPreciousText);
  EXPECT_TRUE(preciousIsUntouched());
}

TEST_F(FillerDirectoryRemoval, NeverLeavesTheVolume) {
  fs::create_directory(volume_ + "/folder");
  writeFile(volume_ + "/folder/inside", kPreciousText);
  fs::create_directory(pathOf("mounted"));
  writeFile(pathOf(".temp0"), "");
  const ScopedMount bind(volume_ + "/folder", pathOf("mounted"), "", MS_BIND);
  if (!bind.done()) GTEST_SKIP() << "needs the right to mount";
  EXPECT_EQ(run_->remove().code, ErrorCode::notOurs);
  EXPECT_EQ(readFile(volume_ + "/folder/inside"), kPreciousText);
  EXPECT_FALSE(fs::exists(pathOf(".temp0"))) << "one obstacle keeps nothing else";
}

TEST_F(FillerDirectoryRemoval, StopsInATreeThatIsTooDeep) {
  std::string deep = directory_;
  for (int level = 0; level < 100; ++level) deep += "/d";
  fs::create_directories(deep);
  EXPECT_EQ(run_->remove().code, ErrorCode::other);
  EXPECT_TRUE(fs::exists(deep));
}

TEST_F(FillerDirectoryRemoval, LeavesNothingOfAThreadThatIsStillCreating) {
  std::atomic<int> created{0};
  ErrorCode last = ErrorCode::none;
  std::thread worker([&] {
    while (last == ErrorCode::none) last = run_->createEmptyFile(pathOf(".temp" + std::to_string(created++))).code;
  });
  while (created < 200) std::this_thread::yield();
  EXPECT_FALSE(run_->remove().failed());
  worker.join();
  EXPECT_EQ(last, ErrorCode::closed);
  EXPECT_FALSE(fs::exists(directory_));
}

TEST_F(FillerDirectoryRemoval, ByTwoThreadsAtOnceSucceedsForOne) {
  for (int number = 0; number < 500; ++number) {
    ASSERT_FALSE(run_->createEmptyFile(pathOf(".temp" + std::to_string(number))).failed());
  }
  std::vector<ErrorCode> results(2);
  std::thread other([&] { results[0] = run_->remove().code; });
  results[1] = run_->remove().code;
  other.join();
  EXPECT_THAT(results, ::testing::UnorderedElementsAre(ErrorCode::none, ErrorCode::notFound));
  EXPECT_FALSE(fs::exists(directory_));
}

TEST_F(FillerDirectoryRemoval, ReleasesSpaceWhileAnotherThreadRemovesFiles) {
  std::atomic<bool> over{false};
  std::thread other([&] {
    while (!over) run_->releaseSpace();
  });
  for (int number = 0; number < 200; ++number) {
    const std::string path = pathOf(".temp" + std::to_string(number));
    fill(*run_, path, 4096);
    EXPECT_FALSE(run_->removeItem(path).failed());
  }
  over = true;
  other.join();
  EXPECT_FALSE(run_->remove().failed());
}

TEST_F(FillerDirectoryRemoval, OfADirectoryThatIsGoneFindsNothing) {
  fs::remove_all(directory_);
  EXPECT_EQ(run_->remove().code, ErrorCode::notFound);
}

TEST_F(FillerDirectoryRemoval, FindsARenamedDirectoryAmongOthersAndLeavesThem) {
  ASSERT_FALSE(run_->createEmptyFile(pathOf(".temp0")).failed());
  for (const char* name : {"/a", "/z"}) fs::create_directory(volume_ + name);
  fs::create_directory_symlink("renamed", volume_ + "/link");
  fs::rename(directory_, volume_ + "/renamed");
  EXPECT_FALSE(run_->remove().failed());
  EXPECT_EQ(run_->createEmptyFile(pathOf(".temp1")).code, ErrorCode::closed);
  EXPECT_FALSE(fs::exists(volume_ + "/renamed"));
  for (const char* name : {"/a", "/z"}) EXPECT_TRUE(fs::is_directory(volume_ + name)) << name;
  EXPECT_TRUE(fs::is_symlink(volume_ + "/link"));
  EXPECT_TRUE(preciousIsUntouched());
}

TEST_F(FillerDirectoryRemoval, EmptiesADirectoryThatWasMovedElsewhereAndLeavesWhatTookItsName) {
  ASSERT_FALSE(run_->createEmptyFile(pathOf(".temp0")).failed());
  fs::create_directory(volume_ + "/folder");
  fs::rename(directory_, volume_ + "/folder/moved");
  EXPECT_EQ(run_->remove().code, ErrorCode::notOurs);
  EXPECT_EQ(run_->createEmptyFile(pathOf(".temp1")).code, ErrorCode::closed);
  EXPECT_TRUE(fs::is_empty(volume_ + "/folder/moved"));
  fs::create_directory(directory_);
  EXPECT_EQ(run_->remove().code, ErrorCode::notOurs);
  EXPECT_TRUE(fs::exists(directory_));
}

TEST_F(FillerDirectoryRemoval, LeavesARenamedDirectoryThatIsNotEmptyBecauseOfAMountInIt) {
  fs::create_directory(volume_ + "/folder");
  writeFile(volume_ + "/folder/inside", kPreciousText);
  fs::create_directory(pathOf("mounted"));
  fs::rename(directory_, volume_ + "/renamed");
  const ScopedMount bind(volume_ + "/folder", volume_ + "/renamed/mounted", "", MS_BIND);
  if (!bind.done()) GTEST_SKIP() << "needs the right to mount";
  EXPECT_TRUE(run_->remove().failed());
  EXPECT_EQ(readFile(volume_ + "/folder/inside"), kPreciousText);
}

TEST_F(FillerDirectoryRemoval, DoesNotTouchTheNextRunsDirectory) {
  ASSERT_FALSE(run_->remove().failed());
  const auto next = create();
  ASSERT_NE(next, nullptr) << error_.text();
  ASSERT_FALSE(next->createEmptyFile(pathOf(".temp0")).failed());
  EXPECT_EQ(run_->remove().code, ErrorCode::notFound);
  EXPECT_EQ(run_->createEmptyFile(pathOf(".temp1")).code, ErrorCode::closed);
  EXPECT_TRUE(next->exists(pathOf(".temp0")));
  EXPECT_FALSE(next->exists(pathOf(".temp1")));
}

TEST_F(FillerDirectoryRemoval, IsNotDoneByTheDestructor) {
  ASSERT_FALSE(run_->createEmptyFile(pathOf(".temp0")).failed());
  run_.reset();
  EXPECT_TRUE(fs::exists(pathOf(".temp0")));
}

}  // namespace
}  // namespace calvero::testing
