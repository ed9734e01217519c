#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/world.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using testing::FileCall;
using testing::World;

/// What is told, and noted as the outcome, when a step of a run fails without ending it.
class ToldFailures : public ::testing::Test {
 protected:
  ToldFailures() { world.volume("DATA", 300'000'000); }

  void layOut() {
    run = world.start().currentRun();
    world.app().createFile(*run);
    world.journal.clear();
  }

  World world;
  RunPtr run;
};

TEST_F(ToldFailures, AVolumeThatIsGoneBetweenTwoFilesIsAFailedRun) {
  layOut();
  world.eject("DATA");
  world.app().deleteByFiles(*run, 0);
  EXPECT_EQ(run->outcome, RunOutcome::failed);
}

TEST_F(ToldFailures, AVolumeThatIsGoneAtTheCleanUpIsAFailedRun) {
  layOut();
  world.eject("DATA");
  world.app().deleteFiles(*run);
  EXPECT_EQ(run->outcome, RunOutcome::failed);
}

TEST_F(ToldFailures, ADirectoryThatCouldNotBeRemovedIsInTheLogOnce) {
  layOut();
  world.files.script.failAt(FileCall::removeDirectory, 1, ErrorCode::notPermitted);
  world.app().deleteFiles(*run);
  EXPECT_THAT(world.journal.only({"log", "notice"}), ElementsAre("log " + run->remains().text()))
      << "a face tells it at the end";
}

TEST_F(ToldFailures, ADirectoryThatCouldNotBeMadeIsInTheLog) {
  world.files.script.failAt(FileCall::createDirectory, 1, ErrorCode::notPermitted);
  run = world.start().currentRun();
  world.app().createFile(*run);
  EXPECT_THAT(world.journal.only({"log"}), ElementsAre("log " + run->refusal().text()));
}

TEST_F(ToldFailures, ACancelThatLeavesAVolumeThatDoesNotAnswerSaysSo) {
  layOut();
  world.loop.letLimitsPass();
  world.app().cancelWipe();
  EXPECT_EQ(world.journal.only({"notice"}).size(), 1U);
}

TEST_F(ToldFailures, ARunThatAsksTwiceForTheEndDuringACancelEndsTheApplicationOnceTheFilesAreRemoved) {
  layOut();
  world.loop.whenServed([this] {
    world.app().startPhaseTwo(*run);
    world.app().startPhaseTwo(*run);
    EXPECT_EQ(world.loop.terminations(), 0);
    world.threads.runWaiting("calvero-cancel");
  });
  world.app().cancelWipe();
  EXPECT_THAT(world.journal.only({"removeDirectory", "terminate"}),
              ElementsAre("removeDirectory /media/DATA/.$$XE8AQU", "terminate"));
}

}  // namespace
}  // namespace calvero
