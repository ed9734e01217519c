#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/wipe/alert_texts.h"
#include "tests/wipe/cancel_sweep.h"

namespace calvero {
namespace {

using testing::CallPoints;
using testing::CancelSweep;
using testing::positionOf;
using testing::Steps;
using testing::SweptRun;

/// The next run is started at once; at call number `meeting` of its worker the cancelled one goes on to its end.
Steps wipeAndMeet(SweptRun& swept, std::size_t callsBeforeTheWorker, std::size_t meeting) {
  swept.world.app().cancelWipe();
  swept.world.loop.drain();
  const std::size_t before = swept.points.count(CallPoints::kEventLoop) + callsBeforeTheWorker;
  swept.points.at(CallPoints::kEventLoop, before + meeting, [&swept] { swept.releaseAndServe(); });
  return CancelSweep::wipeAgain(swept);
}

TEST_F(CancelSweep, FollowedByAnotherRunAtOnceLeavesThatOneWhole) {
  const Steps calls = undisturbed(SweptRun::Ordered::byPerson);
  const Steps next = undisturbedAgain();
  const std::size_t beforeTheWorker = positionOf(next, "sleep 0") - 2;  // the log line comes first
  const std::size_t layout = positionOf(next, "open .temp0") - 1 - beforeTheWorker;
  for (std::size_t stop = 1; stop <= calls.size(); ++stop) {
    SCOPED_TRACE(std::to_string(stop) + ": " + calls[stop - 1]);
    SweptRun swept(SweptRun::Ordered::byPerson, stop);
    EXPECT_EQ(wipeAndMeet(swept, beforeTheWorker, 1 + stop % layout), next);
    EXPECT_EQ(swept.run->workerEnded, 1);
    EXPECT_EQ(swept.volume().disk.blocksHolding(0x00), swept.volume().disk.blockCount());
    swept.end();
    expectStopped(swept, stop);
    EXPECT_EQ(swept.world.loop.terminations(), 0);
  }
  report("the next run meets a cancelled one", calls.size());
}

TEST_F(CancelSweep, FollowedByAnotherRunThatWritesKeepsFromItAtMostTheFileThatWasOpen) {
  const Steps calls = undisturbed(SweptRun::Ordered::byPerson);
  const Steps next = undisturbedAgain();
  const std::size_t beforeTheWorker = positionOf(next, "sleep 0") - 2;
  const std::size_t firstWrite = positionOf(next, "open .temp0") - beforeTheWorker;
  const std::size_t writing = next.size() - beforeTheWorker - firstWrite;
  for (std::size_t stop = 1; stop <= calls.size(); ++stop) {
    SCOPED_TRACE(std::to_string(stop) + ": " + calls[stop - 1]);
    SweptRun swept(SweptRun::Ordered::byPerson, stop);
    wipeAndMeet(swept, beforeTheWorker, firstWrite + stop % writing);
    swept.end();
    EXPECT_GE(swept.volume().disk.blocksHolding(0x00) + SweptRun::kBlocksOfAFile, swept.volume().disk.blockCount());
    EXPECT_EQ(swept.volume().disk.coveredBlocks(), swept.volume().disk.blockCount());
    expectStopped(swept, stop);
    EXPECT_EQ(swept.world.loop.terminations(), 0);
  }
  report("the next run writes beside a cancelled one", calls.size());
}

TEST_F(CancelSweep, FollowedByAnotherRunOutlivesThatOneWithoutTouchingAnything) {
  const Steps calls = undisturbed(SweptRun::Ordered::byPerson);
  for (std::size_t stop = 1; stop <= calls.size(); ++stop) {
    SCOPED_TRACE(std::to_string(stop) + ": " + calls[stop - 1]);
    SweptRun swept(SweptRun::Ordered::byPerson, stop);
    swept.world.app().cancelWipe();
    swept.world.loop.drain();
    wipeAgain(swept);
    EXPECT_EQ(swept.volume().disk.blocksHolding(0x00) + swept.volume().disk.takenBlocks(),
              swept.volume().disk.blockCount())
        << "zeros, which the first run does not write, are everywhere but in the file that is still open";
    EXPECT_FALSE(swept.world.files.directoryExists(testing::World::kDirectory));
    EXPECT_LE(swept.volume().disk.takenBlocks(), SweptRun::kBlocksOfAFile) << "the file that the worker has open";
    const std::size_t onTheScreen = swept.points.count(CallPoints::kEventLoop);
    swept.end();
    EXPECT_EQ(swept.points.count(CallPoints::kEventLoop), onTheScreen);
    expectStopped(swept, stop);
    EXPECT_EQ(swept.world.loop.terminations(), 0);
  }
  report("a cancelled run outlives the next", calls.size());
}

/// At each of its calls the clean-up of the cancel waits for the worker, which was held at one of its own.
TEST_F(CancelSweep, MeetsTheEndOfTheWorkerAtAnyOfItsOwnCalls) {
  const Steps calls = undisturbed(SweptRun::Ordered::byPerson);
  std::size_t points = 0;
  for (const std::size_t stop : tellingStops(calls)) {
    for (std::size_t step = 1; step <= callsOfCancel(stop); ++step, ++points) {
      SCOPED_TRACE(std::to_string(stop) + ": " + calls[stop - 1] + ", cancel at " + std::to_string(step));
      SweptRun swept(SweptRun::Ordered::byPerson, stop);
      swept.points.at(CallPoints::kCancel, step, [&swept] { swept.releaseAndWait(); });
      swept.world.app().cancelWipe();
      swept.end();
      expectStoppedForGood(swept, stop);
      const bool ends = endsTheApplication(calls, stop);
      EXPECT_EQ(swept.world.loop.terminations(), ends ? 1 : 0);
      EXPECT_GE(swept.world.journal.only({kAbortedAlert}).size(), ends ? 0U : 1U);
    }
  }
  EXPECT_GT(points, 0U);
  report("the worker ends during the cancel", points);
}

TEST_F(CancelSweep, AskedForAgainAtAnyCallOfTheFirstIsOneCancel) {
  const Steps calls = undisturbed(SweptRun::Ordered::byPerson);
  std::size_t points = 0;
  for (const std::size_t stop : tellingStops(calls)) {
    // With its last call the clean-up says that it is over: a second cancel would be one of its own.
    for (std::size_t step = 1; step < callsOfCancel(stop); ++step, ++points) {
      SCOPED_TRACE(std::to_string(stop) + ": " + calls[stop - 1] + ", cancel at " + std::to_string(step));
      SweptRun swept(SweptRun::Ordered::byPerson, stop);
      swept.points.at(CallPoints::kCancel, step, [&swept] {
        std::latch asked{1};
        swept.world.loop.post([&] {
          swept.world.app().cancelWipe();
          asked.count_down();
        });
        asked.wait();
      });
      swept.world.app().cancelWipe();
      swept.end();
      expectStoppedForGood(swept, stop);
      EXPECT_EQ(swept.world.app().shell().cancelNumber, 2);
      EXPECT_EQ(swept.world.journal.only({kAbortedAlert}).size(), 1U);
    }
  }
  EXPECT_GT(points, 0U);
  report("a second cancel during the first", points);
}

TEST_F(CancelSweep, OfARunWhoseWorkerHasEndedLeavesNothing) {
  SweptRun swept(SweptRun::Ordered::byPerson, SweptRun::kNowhere);
  swept.releaseAndServe();
  swept.world.app().cancelWipe();
  swept.end();
  EXPECT_EQ(swept.run->outcome, RunOutcome::finished);
  EXPECT_TRUE(swept.leftNothing());
  EXPECT_EQ(wipeAgain(swept), undisturbedAgain());
}

TEST_F(CancelSweep, AtAnyCallOfTheClockEndsTheClock) {
  constexpr std::size_t kPoints = 20;
  for (std::size_t stop = 1; stop <= kPoints; ++stop) {
    SCOPED_TRACE(stop);
    testing::World world;
    CallPoints points;
    world.volume("DATA", 300'000'000);
    world.start();
    const RunPtr run = world.app().currentRun();
    world.loop.setPosts(testing::FakeEventLoop::Posts::queued);
    std::size_t callsBefore = 0;
    bool isCancelled = false;
    std::size_t callsAfter = 0;
    world.journal.whenAdded([&](const std::string&) {
      if (isCancelled) ++callsAfter;
      if (++callsBefore != stop) return;
      world.app().cancelWipe();
      isCancelled = true;
    });
    world.runElapsedClock();
    EXPECT_TRUE(isCancelled);
    EXPECT_LE(callsAfter, 3U) << "the rest of its look: the text, its redraw, the pause";
    EXPECT_FALSE(world.files.directoryExists(testing::World::kDirectory));
  }
  report("the clock", kPoints);
}

}  // namespace
}  // namespace calvero
