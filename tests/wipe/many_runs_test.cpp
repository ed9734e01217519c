#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <memory>
#include <thread>
#include <vector>

#include "tests/fakes/world.h"
#include "tests/holdings.h"

namespace calvero {
namespace {

using testing::FakeEventLoop;
using testing::FakeThreads;
using testing::FileCall;
using testing::Holdings;
using testing::World;

/// One program that wipes a volume again and again, its threads being real.
class ManyRuns : public ::testing::Test {
 protected:
  ManyRuns() {
    world.volume("DATA", 100'000);
    world.threads.setMode(FakeThreads::Mode::real);
    world.loop.setPosts(FakeEventLoop::Posts::queued);
    world.loop.setLoopThread(FakeEventLoop::LoopThread::thisThreadOnly);
    // Time stands still for the clock until the run is over, or it would flood the event loop.
    world.clock.whenSlept([this](Clock::Duration) {
      if (FakeThreads::current() == "calvero-clock") isUnderWay.wait(true);
    });
    world.launch();
  }

  void start() {
    isUnderWay = true;
    world.app().next();
    world.proceed();
    runs.push_back(world.app().currentRun());
  }
  /// Serves until every thread of the run has ended; how it ended.
  RunOutcome end() {
    const RunPtr run = runs.back().lock();
    while (run->workerEnded == 0) {
      if (world.loop.drain() == 0) std::this_thread::yield();
    }
    isUnderWay = false;
    isUnderWay.notify_all();
    world.threads.joinAll();
    world.loop.drain();
    world.journal.clear();
    world.alerts.forgetShown();
    return run->outcome;
  }
  void wipe() {
    start();
    EXPECT_EQ(end(), RunOutcome::finished);
    world.app().OKBtn();
    world.loop.drain();
  }
  void wipeAndCancel() {
    std::atomic<bool> isWriting{false};
    std::atomic<bool> isCancelled{false};
    world.files.script.before(FileCall::pwrite, world.files.script.count(FileCall::pwrite) + 2, [&] {
      isWriting = true;
      isWriting.notify_all();
      isCancelled.wait(false);
    });
    start();
    isWriting.wait(false);
    world.app().cancelWipe();
    isCancelled = true;
    isCancelled.notify_all();
    EXPECT_EQ(end(), RunOutcome::cancelled);
  }

  World world;
  std::atomic<bool> isUnderWay{false};
  std::vector<std::weak_ptr<WipeRun>> runs;
};

TEST_F(ManyRuns, AndCancelsLeaveNoRunMemoryDescriptorOrThreadBehind) {
  constexpr std::size_t kPairs = 250;
  constexpr std::size_t kPairsBefore = 25;
  // What grows by design is an observer for each list of volumes; the rest is what the fakes note down themselves.
  constexpr std::size_t kBytesForAPair = 1280;
  for (std::size_t pair = 0; pair < kPairsBefore; ++pair) {
    wipe();
    wipeAndCancel();
  }
  runs.clear();
  const Holdings before;
  for (std::size_t pair = 0; pair < kPairs; ++pair) {
    wipe();
    wipeAndCancel();
  }
  const auto held = std::count_if(runs.begin(), runs.end(), [](const auto& run) { return !run.expired(); });
  EXPECT_LE(held, 1) << "the controller's own";
  runs.clear();  // even those that are gone keep their memory for as long as somebody may ask
  const Holdings after;
  EXPECT_EQ(after.descriptors, before.descriptors);
  EXPECT_EQ(after.threads, before.threads);
  EXPECT_LT(after.bytes, before.bytes + kPairs * kBytesForAPair);
  RecordProperty("bytesForAPair", static_cast<int>((after.bytes - before.bytes) / kPairs));
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
  EXPECT_EQ(world.files.volume("/media/DATA").disk.takenBlocks(), 0U);
}

}  // namespace
}  // namespace calvero
