#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/world.h"
#include "tests/wipe/alert_texts.h"

namespace calvero {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::Steps;
using testing::World;

/// Which step of a run heeds which of the two stop flags, each raised alone.
class StopFlags : public ::testing::Test {
 protected:
  StopFlags() {
    world.volume("DATA", 300'000'000);
    run = world.start().currentRun();
    world.app().seventh_FAST_ZERO_WRITE();
    world.journal.clear();
  }

  /// Runs when `entry` is about to be carried out, once.
  void when(const std::string& awaited, const std::function<void()>& action) {
    world.journal.whenAdded([awaited, action](const std::string& entry) {
      if (entry == awaited) action();
    });
  }

  World world;
  RunPtr run;
};

TEST_F(StopFlags, AnAbortAloneDoesNotEndTheFirstPhaseBeforeTheLayout) {
  run->abortErasing = 1;
  world.app().startPhaseOne(*run);
  const Steps steps = world.journal.without({"log", "lookUp", "exists", "setProgress"});
  EXPECT_THAT(steps, ElementsAre("sleep 0", "setText labelPhase \"Phase 1: Analyzing Data..\"", "redraw labelPhase",
                                 "startProgressAnimation", "createDirectory /media/DATA/.$$XE8AQU",
                                 "removeDirectory /media/DATA/.$$XE8AQU", "selectPage 0", "setProgressDeterminate",
                                 "detach", "sleep 1", "hide buttonNext", kUnknownErrorAlert, "terminate"));
  EXPECT_THAT(world.journal.only({"create"}), IsEmpty()) << "the layout itself heeds it";
}

TEST_F(StopFlags, AnAbortAloneDoesNotEndTheFirstPhaseAfterTheLayout) {
  when("setProgressDeterminate", [this] { run->abortErasing = 1; });
  world.app().startPhaseOne(*run);
  EXPECT_EQ(world.journal.only({"setProgress"}).size(), 102U) << "0 to 100, and 0";
  const Steps steps = world.steps();
  EXPECT_THAT(Steps(steps.end() - 5, steps.end()),
              ElementsAre("sleep 1", "setProgress 0", "hide buttonNext", kUnknownErrorAlert, "terminate"));
}

TEST_F(StopFlags, ToldThreadsAreNoReasonForAnAlertAtTheStartOfTheSecondPhase) {
  world.app().createFile(*run);
  world.journal.clear();
  run->terminateThread = 1;
  world.app().startPhaseTwo(*run);
  EXPECT_THAT(world.journal.only({"alert", "terminate"}), IsEmpty());
  EXPECT_THAT(world.steps(), Contains("setText labelPhase \"Phase 2: Securely Erasing Data..\""));
  EXPECT_THAT(world.journal.only({"open", "selectPage"}), IsEmpty());
  EXPECT_THAT(world.journal.only({"removeDirectory"}), ElementsAre("removeDirectory /media/DATA/.$$XE8AQU"));
  EXPECT_EQ(run->applicationEnding, 0);
}

TEST_F(StopFlags, AreAllOfThemRaisedForAWorkerThatIsLeftWithoutItsClock) {
  world.threads.refuse("calvero-clock");
  bool isTold = false;
  world.alerts.whileShown([&] {
    const RunPtr left = world.app().currentRun();
    isTold = left->abortErasing != 0 && left->terminateThread != 0 && left->applicationEnding != 0;
  });
  world.proceed();
  EXPECT_TRUE(isTold) << "whichever of them the worker looks at next";
}

TEST_F(StopFlags, AreBothRaisedForARunThatIsReplacedAndGoOverToTheNext) {
  run->volumeEjected = 1;
  world.app().allocateAllArrays();
  EXPECT_EQ(run->abortErasing, 1);
  EXPECT_EQ(run->terminateThread, 1);
  const RunPtr next = world.app().currentRun();
  ASSERT_NE(next, run);
  EXPECT_EQ(next->abortErasing, 0);
  EXPECT_EQ(next->terminateThread, 0);
  EXPECT_EQ(next->volumeEjected, 1) << "only the list of files is a new one";
}

TEST_F(StopFlags, OfAnEarlierRunStayRaisedWhenItIsProceededOnceMore) {
  world.proceed();
  EXPECT_NE(world.app().currentRun(), run);
  EXPECT_TRUE(run->stopRequested());
  EXPECT_FALSE(world.app().currentRun()->stopRequested());
}

TEST_F(StopFlags, ToldThreadsDoNotEndTheFirstPhaseAfterItsFirstLook) {
  when("startProgressAnimation", [this] { run->terminateThread = 1; });
  world.app().startPhaseOne(*run);
  EXPECT_THAT(world.journal.only({"create", "alert", "terminate"}), IsEmpty()) << "the layout itself heeds it";
  EXPECT_EQ(world.journal.only({"setProgress 0"}).size(), 2U) << "filled, and set back";
  EXPECT_THAT(world.steps(), Contains("hide buttonNext"));
}

}  // namespace
}  // namespace calvero
