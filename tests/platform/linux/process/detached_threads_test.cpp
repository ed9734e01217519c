#include "platform/linux/process/detached_threads.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pthread.h>

#include <array>
#include <future>
#include <stdexcept>

namespace calvero::testing {
namespace {

constexpr std::chrono::seconds kLong{30};
constexpr std::chrono::milliseconds kNoTime{0};

std::string nameOfThisThread() {
  std::array<char, 16> name = {};
  ::pthread_getname_np(::pthread_self(), name.data(), name.size());
  return name.data();
}

TEST(DetachedThreads, RunsTheBodyOnAThreadOfThatName) {
  DetachedThreads threads;
  std::string name;
  threads.detach("calvero-wipe", [&] { name = nameOfThisThread(); });
  ASSERT_TRUE(threads.waitForAll(kLong));
  EXPECT_EQ(name, "calvero-wipe");
}

TEST(DetachedThreads, CutsANameThatIsTooLong) {
  DetachedThreads threads;
  std::string name;
  threads.detach("calvero-0123456789", [&] { name = nameOfThisThread(); });
  ASSERT_TRUE(threads.waitForAll(kLong));
  EXPECT_EQ(name, "calvero-0123456");
}

TEST(DetachedThreads, TimesOutWhileAThreadGoesOn) {
  DetachedThreads threads;
  std::promise<void> release;
  threads.detach("waiting", [&] { release.get_future().wait(); });
  EXPECT_FALSE(threads.waitForAll(kNoTime));
  release.set_value();
  EXPECT_TRUE(threads.waitForAll(kLong));
}

TEST(DetachedThreads, HaveAllEndedWhenNoneWasStarted) {
  EXPECT_TRUE(DetachedThreads().waitForAll(kNoTime));
}

TEST(EndThreads, ConcludesAndGoesOnOnceAllHaveEnded) {
  DetachedThreads threads;
  threads.detach("quick", [] {});
  bool isConcluded = false;
  endThreads(
      threads, [&] { isConcluded = true; }, [] { return 1; }, kLong);
  EXPECT_TRUE(isConcluded);
}

TEST(EndThreads, ConcludesAndLeavesAtOnceWithTheCodeWhereAThreadHangs) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto end = [] {
    DetachedThreads threads;
    std::promise<void> never;
    threads.detach("hanging", [&] { never.get_future().wait(); });
    int code = 0;
    endThreads(
        threads, [&] { code = 7; }, [&] { return code; }, kNoTime);
  };
  EXPECT_EXIT(end(), ::testing::ExitedWithCode(7), "");
}

TEST(DetachedThreads, CountsAThreadAsEndedOnceItsBodyHasReleasedWhatItOwned) {
  DetachedThreads threads;
  auto owned = std::make_shared<int>(1);
  const std::weak_ptr<int> watched = owned;
  threads.detach("owner", [owned] { EXPECT_EQ(*owned, 1); });
  owned.reset();
  ASSERT_TRUE(threads.waitForAll(kLong));
  EXPECT_TRUE(watched.expired());
}

TEST(DetachedThreads, LetsAThreadOutliveItsStarter) {
  std::promise<void> release;
  std::promise<std::string> ended;
  {
    DetachedThreads threads;
    threads.detach("outliving", [&, go = release.get_future().share()] {
      go.wait();
      ended.set_value("ended");
    });
  }
  release.set_value();
  EXPECT_EQ(ended.get_future().get(), "ended");
}

TEST(DetachedThreads, ReportsABodyThatThrowsAndCountsItAsEnded) {
  std::string reported;
  DetachedThreads threads([&](const std::string& text) { reported = text; });
  threads.detach("failing", [] { throw std::runtime_error("the table cannot be read"); });
  ASSERT_TRUE(threads.waitForAll(kLong));
  EXPECT_EQ(reported, "thread failing: the table cannot be read");
  threads.detach("failing", [] { throw 1; });
  ASSERT_TRUE(threads.waitForAll(kLong));
  EXPECT_THAT(reported, ::testing::HasSubstr("unknown exception"));
}

}  // namespace
}  // namespace calvero::testing
