#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/world.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using testing::FakeDisk;
using testing::FileCall;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::Steps;
using testing::World;

class CleanUp : public ::testing::Test {
 protected:
  CleanUp() { world.volume("DATA", 300'000'000); }

  /// A run whose files are laid out.
  void layOut() {
    world.start();
    afterStart();
  }
  void layOutOrdered() {
    world.order("DATA", "1");
    world.launch();
    afterStart();
  }
  void afterStart() {
    run = world.app().currentRun();
    world.app().createFile(*run);
    world.journal.clear();
  }
  /// Another program removes a written file that is held by its name.
  void loseAHeldName() {
    world.files.setHandleLimit(0);
    world.app().fillFilePath(*run, run->filePathsArray[0], 2'000'000);
    world.app().deleteByFiles(*run, 0);
    world.files.removeFromOutside(World::kDirectory, ".temp0");
    world.journal.clear();
  }
  /// The volume is found by its name, but nothing exists at its mount path.
  void makeMountPathVanish() { world.files.volume("/media/DATA").mounted = false; }

  World world;
  RunPtr run;
};

TEST_F(CleanUp, RemovesTheFileOfThatIndex) {
  layOut();
  world.app().deleteByFiles(*run, 1);
  EXPECT_THAT(world.steps(), ElementsAre("removeItem .temp1"));
  EXPECT_THAT(world.files.names(World::kDirectory), ElementsAre(".temp0", ".temp2"));
  EXPECT_FALSE(world.app().abortErasing());
}

TEST_F(CleanUp, LooksTheVolumeUpBeforeItRemovesAFile) {
  layOut();
  world.app().deleteByFiles(*run, 0);
  EXPECT_THAT(world.journal.all(), ElementsAre("lookUp DATA", "exists /media/DATA", "removeItem .temp0"));
}

TEST_F(CleanUp, AbortsAndRemovesNothingWhenTheVolumeIsGoneBetweenTwoFiles) {
  layOut();
  world.eject("DATA");
  world.app().deleteByFiles(*run, 0);
  EXPECT_TRUE(world.app().abortErasing());
  EXPECT_THAT(world.steps(), IsEmpty());
}

TEST_F(CleanUp, AbortsAndRemovesNothingWhenTheMountPathVanished) {
  layOut();
  makeMountPathVanish();
  world.app().deleteByFiles(*run, 0);
  EXPECT_TRUE(world.app().abortErasing());
  EXPECT_THAT(world.steps(), IsEmpty());
}

TEST_F(CleanUp, IgnoresAFileThatCannotBeRemoved) {
  layOut();
  world.files.script.failAt(FileCall::removeItem, 1, ErrorCode::notPermitted);
  world.app().deleteByFiles(*run, 0);
  EXPECT_FALSE(world.app().abortErasing());
  EXPECT_THAT(world.journal.only({"alert", "terminate"}), IsEmpty());
}

TEST_F(CleanUp, ReleasesTheSpaceThenRemovesTheDirectoryThenShowsTheSize) {
  layOut();
  world.app().deleteFiles(*run);
  EXPECT_THAT(world.steps(), ElementsAre("releaseSpace", "removeDirectory /media/DATA/.$$XE8AQU",
                                         "setText tfCleanedSize \"300.00 MB\""));
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
  EXPECT_FALSE(world.app().abortErasing());
}

TEST_F(CleanUp, LeavesNothingOfAFinishedRunOnTheVolume) {
  World other;
  other.volume("DATA", 300'000);
  run = other.start().currentRun();
  FakeDisk& disk = other.files.volume("/media/DATA").disk;
  std::size_t takenAtTheEnd = 0;
  other.files.script.before(FileCall::releaseSpace, 1, [&] { takenAtTheEnd = disk.takenBlocks(); });
  other.runWorker();
  EXPECT_EQ(run->outcome, RunOutcome::finished);
  EXPECT_EQ(takenAtTheEnd, disk.blockCount()) << "everything was held until the end";
  EXPECT_EQ(disk.takenBlocks(), 0U);
  EXPECT_FALSE(other.files.directoryExists(World::kDirectory));
}

TEST_F(CleanUp, ShowsTheSizeAsListedAfterARunThatWroteNothing) {
  world.start();
  world.app().seventh_FAST_ZERO_WRITE();
  world.runWorker();
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
  EXPECT_EQ(world.files.volume("/media/DATA").disk.takenBlocks(), 0U);
  EXPECT_THAT(world.journal.only({"setText tfCleanedSize"}),
              ElementsAre("setText tfCleanedSize \"300.00 MB\"", "setText tfCleanedSize \"300.00 MB\""));
}

TEST_F(CleanUp, RemovesTheDirectoryAtTheRootOfTheRootVolume) {
  World other;
  MountedVolume root;
  root.name = "ROOT";
  root.mountPath = "/";
  root.formatDescription = "ext4";
  root.availableBytes = 1'000;
  other.volume(root);
  AppDelegate& app = other.start();
  app.createFile(*app.currentRun());
  app.deleteFiles(*app.currentRun());
  EXPECT_THAT(other.journal.only({"removeDirectory"}), ElementsAre("removeDirectory /.$$XE8AQU"));
  EXPECT_FALSE(other.files.directoryExists("/.$$XE8AQU"));
}

TEST_F(CleanUp, OnlyAbortsWhenTheVolumeIsGone) {
  layOut();
  world.eject("DATA");
  world.app().deleteFiles(*run);
  EXPECT_TRUE(world.app().abortErasing());
  EXPECT_THAT(world.journal.only({"removeDirectory", "setText", "alert", "terminate"}), IsEmpty());
}

TEST_F(CleanUp, OnlyAbortsWhenTheVolumeVanishesBetweenTheTwoLooks) {
  layOut();
  const std::size_t looks = world.files.script.count(FileCall::volumeExists);
  world.files.script.before(FileCall::volumeExists, looks + 2, [this] { makeMountPathVanish(); });
  world.app().deleteFiles(*run);
  EXPECT_EQ(world.files.script.count(FileCall::volumeExists), looks + 2) << "the volume is looked for twice";
  EXPECT_TRUE(world.app().abortErasing());
  EXPECT_THAT(world.journal.only({"removeDirectory", "setText"}), IsEmpty());
}

TEST_F(CleanUp, GivesBackTheSpaceOfAVolumeThatIsOutOfSight) {
  layOut();
  world.app().fillFilePath(*run, run->filePathsArray[0], 2'000'000);
  world.app().deleteByFiles(*run, 0);
  makeMountPathVanish();
  ASSERT_NE(world.files.volume("/media/DATA").disk.takenBlocks(), 0U);
  world.app().deleteFiles(*run);
  EXPECT_EQ(world.files.volume("/media/DATA").disk.takenBlocks(), 0U);
}

TEST_F(CleanUp, TellsOfAFinishedRunWhoseDirectoryCannotBeRemoved) {
  for (const ErrorCode code : {ErrorCode::notPermitted, ErrorCode::other, ErrorCode::notOurs}) {
    World other;
    other.volume("DATA", 1'000'000);
    const RunPtr flawed = other.start().currentRun();
    other.files.script.failAt(FileCall::removeDirectory, 1, code);
    other.runWorker();
    EXPECT_EQ(flawed->outcome, RunOutcome::finished);
    EXPECT_EQ(flawed->remains().path, World::kDirectory);
    EXPECT_EQ(flawed->remains().code, code);
    EXPECT_TRUE(flawed->account().directoryStays);
    EXPECT_EQ(flawed->faults(), 0U) << "no deleted data remains readable for it";
  }
}

TEST_F(CleanUp, TellsWhatACancelCouldNotRemoveUnlessTheWorkerDoesWhenItEnds) {
  for (const bool isProtected : {false, true}) {
    World other;
    other.volume("DATA", 1'000'000);
    const RunPtr cancelled = other.start().currentRun();
    auto& script = other.files.script;
    script.failAt(FileCall::removeDirectory, 1, ErrorCode::notPermitted);
    if (isProtected) script.failFrom(FileCall::removeDirectory, 2, ErrorCode::notPermitted);
    script.before(FileCall::pwrite, 3, [&] { other.app().cancelWipe(); });
    other.runWorker();
    EXPECT_EQ(cancelled->outcome, RunOutcome::cancelled);
    EXPECT_EQ(cancelled->remains().failed(), isProtected);
    EXPECT_EQ(cancelled->faults(), 0U);
  }
}

TEST_F(CleanUp, TellsWhatARunThatEndsBeforeItsCleanUpCouldNotRemove) {
  world.files.script.failFrom(FileCall::removeDirectory, 1, ErrorCode::notPermitted);
  world.files.script.before(FileCall::exists, 2,
                            [this] { world.files.removeFromOutside(World::kDirectory, ".temp1"); });
  const RunPtr failed = world.start().currentRun();
  world.runWorker();
  EXPECT_EQ(failed->outcome, RunOutcome::failed);
  EXPECT_EQ(failed->remains().code, ErrorCode::notPermitted);
}

TEST_F(CleanUp, IgnoresADirectoryThatCannotBeRemoved) {
  layOut();
  world.files.script.failAt(FileCall::removeDirectory, 1, ErrorCode::notPermitted);
  world.app().deleteFiles(*run);
  EXPECT_FALSE(world.app().abortErasing());
  EXPECT_EQ(run->volumeEjected, 0);
  EXPECT_THAT(world.journal.only({"setText"}), ElementsAre("setText tfCleanedSize \"300.00 MB\""));
}

TEST_F(CleanUp, TakesALostMediumAsALostVolumeAndCarriesOn) {
  for (const ErrorCode code : {ErrorCode::readOnly, ErrorCode::gone}) {
    World other;
    other.volume("DATA", 300'000'000);
    AppDelegate& app = other.start();
    app.createFile(*app.currentRun());
    other.files.script.failAt(FileCall::removeDirectory, 1, code);
    other.journal.clear();
    app.deleteFiles(*app.currentRun());
    EXPECT_TRUE(app.abortErasing());
    EXPECT_EQ(app.currentRun()->volumeEjected, 1);
    EXPECT_EQ(app.currentRun()->outcome, RunOutcome::failed);
    EXPECT_THAT(other.journal.only({"setText", "alert", "terminate"}),
                ElementsAre("setText tfCleanedSize \"300.00 MB\""));
  }
}

TEST_F(CleanUp, ReportsAFinishedRemoteRunAndEndsTheApplication) {
  layOutOrdered();
  world.app().deleteFiles(*run);
  EXPECT_THAT(world.steps(),
              ElementsAre("releaseSpace", "removeDirectory /media/DATA/.$$XE8AQU", "startTimer 7000 once",
                          "activateApplication", "popUp 0 1 0 1 \"Your admin successfuly completed\n Calvero on:DATA\"",
                          "sleep 7", "setTag cvrResult \"nothing free=299999232 covered=0 not-held=0 faults=0\"",
                          "setTag cvrStatus \"2\"", "terminate"));
}

TEST_F(CleanUp, EndsAWholeRemoteRunWithoutTheCompletionWindow) {
  world.order("DATA", "7");
  world.launch();
  world.runWorker();
  const Steps steps = world.steps();
  ASSERT_GE(steps.size(), 8U);
  EXPECT_THAT(Steps(steps.end() - 8, steps.end()),
              ElementsAre("removeDirectory /media/DATA/.$$XE8AQU", "startTimer 7000 once", "activateApplication",
                          "popUp 0 1 0 1 \"Your admin successfuly completed\n Calvero on:DATA\"", "sleep 7",
                          "setTag cvrResult \"nothing free=299999232 covered=0 not-held=0 faults=0\"",
                          "setTag cvrStatus \"2\"", "terminate"));
  EXPECT_THAT(world.journal.only({"setText tfCleanedSize", "bringToFront"}), IsEmpty());
  EXPECT_EQ(world.app().currentRun()->outcome, RunOutcome::finished);
}

TEST_F(CleanUp, ReportsNoSuccessForAnAbortedRemoteRun) {
  layOutOrdered();
  world.app().setAbortErasing(true);
  world.app().deleteFiles(*run);
  EXPECT_THAT(world.steps(), ElementsAre("releaseSpace", "removeDirectory /media/DATA/.$$XE8AQU",
                                         "setText tfCleanedSize \"300.00 MB\""));
}

TEST_F(CleanUp, ReportsNoSuccessForARemoteRunThatLostItsVolume) {
  layOutOrdered();
  world.files.script.failAt(FileCall::removeDirectory, 1, ErrorCode::gone);
  world.app().deleteFiles(*run);
  EXPECT_EQ(world.tags.peek("cvrStatus"), std::nullopt);
  EXPECT_THAT(world.journal.only({"popUp", "sleep"}), IsEmpty());
}

TEST_F(CleanUp, KeepsTheDrivesNameAsItIsInTheMessage) {
  World other;
  other.volume("50%@ off %s", 1'000);
  other.order("50%@ off %s", "7");
  other.launch();
  other.runWorker();
  EXPECT_THAT(other.journal.only({"popUp"}),
              ElementsAre("popUp 0 1 0 1 \"Your admin successfuly completed\n Calvero on:50%@ off %s\""));
}

TEST_F(CleanUp, IsHarmlessTwice) {
  layOut();
  world.app().deleteFiles(*run);
  world.journal.clear();
  world.app().deleteFiles(*run);
  EXPECT_THAT(world.journal.only({"alert", "terminate"}), IsEmpty());
  EXPECT_FALSE(world.app().abortErasing());
  EXPECT_EQ(run->faults(), 0U);
}

TEST_F(CleanUp, RemovesWhatAnInterruptedRunLeftWhenThereIsNoRun) {
  world.files.addDirectory("/media/DATA", World::kDirectory);
  AppDelegate& app = world.launch();
  app.deleteFiles(*app.currentRun());
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
}

TEST_F(CleanUp, TellsHowMuchSpaceWasLostWithTheNamesThatHeldIt) {
  layOut();
  loseAHeldName();
  world.app().deleteFiles(*run);
  const Steps notices = world.journal.only({"notice"});
  ASSERT_EQ(notices.size(), 1U);
  EXPECT_THAT(notices[0], HasSubstr("2.00 MB were not held until the end of the run"));
}

TEST_F(CleanUp, TellsOnlyOnceHowMuchSpaceWasLostThoughACancelAndTheWorkerBothCleanUp) {
  layOut();
  loseAHeldName();
  world.app().cancelWipe();
  world.app().deleteFiles(*run);
  EXPECT_EQ(world.journal.only({"notice"}).size(), 1U);
}

}  // namespace
}  // namespace calvero
