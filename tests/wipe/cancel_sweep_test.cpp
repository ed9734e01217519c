#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/wipe/alert_texts.h"
#include "tests/wipe/cancel_sweep.h"

namespace calvero {
namespace {

using testing::CancelSweep;
using testing::positionOf;
using testing::Steps;
using testing::SweptRun;

/// What the event loop does around the cancel while the worker is held: nothing, or all that is posted.
enum class EventLoopIs { busy, idle };

class CancelSweepOfLoops : public CancelSweep, public ::testing::WithParamInterface<EventLoopIs> {
 protected:
  static void serveIfIdle(SweptRun& swept) {
    if (GetParam() == EventLoopIs::idle) swept.world.loop.drain();
  }
};

INSTANTIATE_TEST_SUITE_P(Loop, CancelSweepOfLoops, ::testing::Values(EventLoopIs::busy, EventLoopIs::idle),
                         [](const auto& tested) { return tested.param == EventLoopIs::busy ? "busy" : "idle"; });

TEST_P(CancelSweepOfLoops, ByAPersonLeavesNothingAndTheNextRunIsWhole) {
  const Steps calls = undisturbed(SweptRun::Ordered::byPerson);
  const Steps next = undisturbedAgain();
  for (std::size_t stop = 1; stop <= calls.size(); ++stop) {
    SCOPED_TRACE(std::to_string(stop) + ": " + calls[stop - 1]);
    SweptRun swept(SweptRun::Ordered::byPerson, stop);
    serveIfIdle(swept);
    swept.world.app().cancelWipe();
    serveIfIdle(swept);
    swept.end();
    expectStoppedForGood(swept, stop);
    EXPECT_EQ(swept.world.journal.only({kAbortedAlert}).size(), 1U);
    const bool ends = endsTheApplication(calls, stop);
    EXPECT_EQ(swept.world.loop.terminations(), ends ? 1 : 0);
    EXPECT_EQ(swept.world.journal.only({kUnknownErrorAlert}).size(), ends ? 1U : 0U);
    if (ends) continue;
    const std::uint64_t writesWithoutName = swept.volume().writesWithoutName;
    EXPECT_EQ(wipeAgain(swept), next);
    EXPECT_EQ(swept.volume().disk.blocksHolding(0x00), swept.volume().disk.blockCount()) << "which only it writes";
    EXPECT_EQ(swept.volume().writesWithoutName, writesWithoutName);
    EXPECT_TRUE(swept.leftNothing());
  }
  report("a person's cancel", calls.size());
}

TEST_P(CancelSweepOfLoops, ByTheSuiteEndsThePersonsProgramWithoutAWord) {
  const Steps calls = undisturbed(SweptRun::Ordered::byPerson);
  for (std::size_t stop = 1; stop <= calls.size(); ++stop) {
    SCOPED_TRACE(std::to_string(stop) + ": " + calls[stop - 1]);
    SweptRun swept(SweptRun::Ordered::byPerson, stop);
    serveIfIdle(swept);
    swept.world.systemNotifications.send("cancel wipe", "cancel");
    EXPECT_EQ(swept.world.loop.terminations(), 1);
    swept.end();
    expectStoppedForGood(swept, stop);
    EXPECT_TRUE(swept.world.journal.only({kAbortedAlert}).empty());
  }
  report("the suite's cancel", calls.size());
}

TEST_P(CancelSweepOfLoops, OfAnOrderedRunReportsItAndEndsTheProgram) {
  const Steps calls = undisturbed(SweptRun::Ordered::bySuite);
  // Behind the time to read its message the worker looks for the last time; from then on the word is its own.
  const std::size_t lastLook = positionOf(calls, "sleep 7");
  ASSERT_LT(lastLook, calls.size());
  ASSERT_EQ(calls.back(), "terminate");
  for (std::size_t stop = 1; stop <= calls.size(); ++stop) {
    SCOPED_TRACE(std::to_string(stop) + ": " + calls[stop - 1]);
    SweptRun swept(SweptRun::Ordered::bySuite, stop);
    serveIfIdle(swept);
    swept.world.systemNotifications.send("cancel wipe", "cancel");
    const bool hadEnded = stop > lastLook;
    if (!hadEnded) {
      EXPECT_EQ(swept.world.tags.peek("cvrStatus"), "3");
      EXPECT_GE(swept.world.loop.terminations(), 1);
    }
    swept.end();
    expectStoppedForGood(swept, stop);
    EXPECT_TRUE(swept.world.alerts.shown().empty());
    EXPECT_EQ(swept.world.tags.peek("cvrStatus"), hadEnded ? "2" : "3");
    EXPECT_EQ(swept.world.journal.only({"setTag cvrStatus \"2\""}).size(), hadEnded ? 1U : 0U);
    EXPECT_EQ(swept.run->outcome, hadEnded ? RunOutcome::finished : RunOutcome::cancelled);
    EXPECT_GE(swept.world.loop.terminations(), 1);
  }
  report("the cancel of an order", calls.size());
}

}  // namespace
}  // namespace calvero
