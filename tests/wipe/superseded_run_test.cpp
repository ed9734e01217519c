#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <latch>
#include <thread>
#include <utility>

#include "tests/fakes/world.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using testing::FakeEventLoop;
using testing::FakeThreads;
using testing::FileCall;
using ::testing::IsEmpty;
using testing::Steps;
using testing::World;

const std::initializer_list<const char*> kScreenSteps{"setText",
                                                      "show",
                                                      "hide",
                                                      "turnOn",
                                                      "turnOff",
                                                      "redraw",
                                                      "selectPage",
                                                      "alert",
                                                      "popUp",
                                                      "terminate",
                                                      "setProgress",
                                                      "setProgressDeterminate",
                                                      "bringToFront",
                                                      "setTag",
                                                      "post",
                                                      "orderOut",
                                                      "startProgressAnimation"};

/// The first run's worker hangs in a write while the user cancels, and starts anew.
class SupersededRun : public ::testing::Test {
 protected:
  SupersededRun() {
    world.volume("DATA", 300'000'000);
    world.loop.setPosts(FakeEventLoop::Posts::queued);
  }

  void startAnew() {
    world.app().cancelWipe();
    world.loop.drain();
    world.app().next();
    world.proceed();
    second = world.app().currentRun();
  }

  /// Runs the first worker; at its third write it meets `meanwhile`. The journal starts right after that.
  void runFirstWorker(const std::function<void()>& meanwhile) {
    world.start();
    first = world.app().currentRun();
    world.files.script.before(FileCall::pwrite, 3, [&] {
      meanwhile();
      world.journal.clear();
    });
    world.runWorker();
  }

  World world;
  RunPtr first;
  RunPtr second;
};

TEST_F(SupersededRun, StaysToldToStopAfterTheNextHasClearedItsFlags) {
  runFirstWorker([this] { startAnew(); });
  ASSERT_NE(first, second);
  EXPECT_EQ(first->workerEnded, 1);
  EXPECT_EQ(first->abortErasing, 1);
  EXPECT_EQ(first->terminateThread, 1);
  EXPECT_EQ(first->outcome, RunOutcome::cancelled);
  EXPECT_EQ(second->abortErasing, 0);
  EXPECT_EQ(second->terminateThread, 0);
  EXPECT_EQ(world.files.script.count(FileCall::pwrite), 3U) << "not one block more";
}

TEST_F(SupersededRun, TouchesTheScreenNoMore) {
  runFirstWorker([this] { startAnew(); });
  EXPECT_THAT(world.journal.only(kScreenSteps), IsEmpty());
  EXPECT_EQ(world.loop.terminations(), 0);
}

TEST_F(SupersededRun, DoesNotTouchTheDirectoryOfTheNext) {
  runFirstWorker([this] {
    startAnew();
    world.app().createFile(*second);
  });
  ASSERT_TRUE(world.files.directoryExists(World::kDirectory));
  EXPECT_THAT(world.files.names(World::kDirectory), ElementsAre(".temp0", ".temp1", ".temp2"));
}

TEST_F(SupersededRun, LetsTheNextOneFinish) {
  runFirstWorker([this] { startAnew(); });
  world.app().seventh_FAST_ZERO_WRITE();
  world.runWorker();
  EXPECT_EQ(second->outcome, RunOutcome::finished);
  EXPECT_EQ(world.journal.only({"bringToFront"}).size(), 1U);
  EXPECT_EQ(world.loop.terminations(), 0);
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
  EXPECT_EQ(world.files.volume("/media/DATA").disk.takenBlocks(), 0U);
}

TEST_F(SupersededRun, DoesNotEndTheProgramUnderTheNextWhenItWasCancelledWhileLayingOut) {
  world.start();
  first = world.app().currentRun();
  world.files.script.before(FileCall::createFile, 2, [this] {
    startAnew();
    world.journal.clear();
  });
  world.runWorker();
  EXPECT_EQ(first->outcome, RunOutcome::cancelled);
  EXPECT_EQ(world.loop.terminations(), 0);
  EXPECT_THAT(world.journal.only(kScreenSteps), IsEmpty());
}

TEST_F(SupersededRun, IsToldToStopWhenTheVolumesAreListedAnewUnderIt) {
  runFirstWorker([this] { world.app().reloadVolumes(); });
  EXPECT_EQ(first->workerEnded, 1);
  EXPECT_EQ(world.files.script.count(FileCall::pwrite), 3U);
  EXPECT_NE(first->outcome, RunOutcome::finished);
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
  EXPECT_THAT(world.journal.only({"selectPage", "bringToFront", "setProgress"}), IsEmpty());
}

TEST_F(SupersededRun, StopsItsClock) {
  world.start();
  bool superseded = false;
  world.clock.whenSlept([&](Clock::Duration) {
    if (std::exchange(superseded, true)) return;
    startAnew();
    world.journal.clear();
  });
  world.threads.run(1);
  EXPECT_THAT(world.journal.all(), IsEmpty());
}

TEST_F(SupersededRun, HasItsPostedScreenChangeDropped) {
  world.start();
  first = world.app().currentRun();
  world.loop.setLoopThread(FakeEventLoop::LoopThread::thisThreadOnly);
  world.app().cancelWipe();
  // Posted while the run is still the current one, behind the tasks that put another one in its place.
  std::thread([this] { first->screen.apply([](Controls& controls) { controls.setProgress(42); }); }).join();
  EXPECT_EQ(world.loop.drain(), 5U);
  EXPECT_THAT(world.journal.only({"setProgress 42"}), IsEmpty());
}

/// The fixture's thread is the event loop thread; the run has threads of its own.
class RunOnRealThreads : public ::testing::Test {
 protected:
  RunOnRealThreads() {
    world.volume("DATA", 2'000'000);
    world.threads.setMode(FakeThreads::Mode::real);
    world.loop.setPosts(FakeEventLoop::Posts::queued);
    world.loop.setLoopThread(FakeEventLoop::LoopThread::thisThreadOnly);
    // Time stands still while the worker is at it, or the clock would flood the event loop.
    world.clock.whenSlept([this](Clock::Duration slept) {
      if (slept > Clock::Duration::zero() && slept < std::chrono::seconds(1)) workerHasEnded.wait();
    });
  }
  ~RunOnRealThreads() override { world.threads.joinAll(); }

  void startRun() {
    world.launch().next();
    world.app().dODWipe();
    world.proceed();
    run = world.app().currentRun();
  }
  void serveUntilTheWorkerHasEnded() {
    while (run->workerEnded == 0) {
      if (world.loop.drain() == 0) std::this_thread::yield();
    }
    workerHasEnded.count_down();
    world.threads.joinAll();
    world.loop.drain();
  }

  std::latch workerHasEnded{1};
  World world;
  RunPtr run;
};

TEST_F(RunOnRealThreads, ReachesTheCompletionWindowThroughTheEventLoop) {
  startRun();
  serveUntilTheWorkerHasEnded();
  EXPECT_EQ(run->outcome, RunOutcome::finished);
  EXPECT_TRUE(world.controls.shown(Control::windowCompleted));
  EXPECT_EQ(world.controls.progress(), 100);
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
}

TEST_F(RunOnRealThreads, IsStoppedByACancelFromTheEventLoop) {
  std::latch writing{1};
  std::latch cancelled{1};
  world.files.script.before(FileCall::pwrite, 5, [&] {
    writing.count_down();
    cancelled.wait();
  });
  startRun();
  writing.wait();
  world.app().cancelWipe();
  cancelled.count_down();
  serveUntilTheWorkerHasEnded();
  EXPECT_EQ(run->outcome, RunOutcome::cancelled);
  EXPECT_EQ(world.files.script.count(FileCall::pwrite), 6U);
  EXPECT_EQ(world.controls.page(), 0);
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
}

}  // namespace
}  // namespace calvero
