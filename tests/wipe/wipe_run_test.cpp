#include "wipe/wipe_run.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "tests/fakes/world.h"

namespace calvero {
namespace {

/// Looks at a run from another thread without a pause, as its worker may, while it is cancelled time and again.
class WatchedRun {
 public:
  explicit WatchedRun(testing::World& world)
      : run_(world.loop, world.controls, world.alerts), watcher_([this] { watch(); }) {}
  WatchedRun(const WatchedRun&) = delete;
  WatchedRun& operator=(const WatchedRun&) = delete;
  ~WatchedRun() {
    over_ = true;
    watcher_.join();
  }

  void cancelOnce() {
    while (!isWatching_) std::this_thread::yield();
    run_.cancel();
    while (isWatching_) std::this_thread::yield();
    run_.terminateThread = 0;
    run_.abortErasing = 0;
    run_.outcome = RunOutcome::none;
    mayWatch_ = true;
  }
  [[nodiscard]] int wrongLooks() const { return wrongLooks_; }

 private:
  void watch() {
    while (!over_) {
      if (!mayWatch_.exchange(false)) {
        std::this_thread::yield();
        continue;
      }
      isWatching_ = true;
      bool isTold = false;
      while (!isTold && !over_) isTold = looksRight();
      isWatching_ = false;
    }
  }
  /// Whether the run is seen as cancelled. What is stored last is read first.
  bool looksRight() {
    const bool terminates = run_.terminateThread != 0;
    const bool aborts = run_.abortErasing != 0;
    const bool hasOutcome = run_.outcome != RunOutcome::none;
    if ((terminates && !aborts) || (aborts && !hasOutcome)) ++wrongLooks_;
    return terminates && aborts && hasOutcome;
  }

  WipeRun run_;
  std::atomic<bool> over_{false};
  std::atomic<bool> mayWatch_{true};
  std::atomic<bool> isWatching_{false};
  std::atomic<int> wrongLooks_{0};
  std::thread watcher_;
};

TEST(WipeRun, IsNeverSeenToTerminateWithoutAnAbortNorToAbortWithoutItsOutcomeWhenItIsCancelled) {
  constexpr int kCancels = 1'000;
  testing::World world;
  WatchedRun watched(world);
  for (int cancels = 0; cancels < kCancels; ++cancels) watched.cancelOnce();
  EXPECT_EQ(watched.wrongLooks(), 0);
}

}  // namespace
}  // namespace calvero
