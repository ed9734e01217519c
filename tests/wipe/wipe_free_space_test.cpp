#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/world.h"
#include "tests/wipe/alert_texts.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using testing::FileCall;
using ::testing::IsEmpty;
using testing::Steps;
using testing::World;

class FreeSpaceWipe : public ::testing::Test {
 protected:
  /// A run with its files laid out, at the beginning of the second phase. Writes no patterns.
  void reachLoop(std::uint64_t freeBytes = 300'000'000) {
    world.volume("DATA", freeBytes);
    world.start();
    layOut();
  }
  void reachLoopOfOrderedRun() {
    world.volume("DATA", 300'000'000);
    world.order("DATA", "7");
    world.launch();
    layOut();
  }
  void layOut() {
    world.app().seventh_FAST_ZERO_WRITE();
    run = world.app().currentRun();
    world.app().createFile(*run);
    world.journal.clear();
  }
  void wipe() { world.app().wipeFreeSpace(*run); }

  World world;
  RunPtr run;
};

TEST_F(FreeSpaceWipe, WritesReportsAndRemovesEachFileBeforeTheNext) {
  reachLoop(200'000'000);
  world.app().fastZeroWipe();
  world.files.script.failFrom(FileCall::pwrite, 1, ErrorCode::full);
  world.journal.clear();
  wipe();
  EXPECT_THAT(
      world.steps(),
      ElementsAre("setProgress 1", "exists .temp0", "readAttributes .temp0", "open .temp0",
                  "pwrite .temp0 32768@0 0x00", "fsync .temp0", "pwrite .temp0 8192@32768 0x00", "fsync .temp0",
                  "close .temp0", "setText tfElapsedData \"0.00 KB\"", "redraw tfElapsedData", "removeItem .temp0",
                  "setProgress 50", "exists .temp1", "readAttributes .temp1", "open .temp1",
                  "pwrite .temp1 32768@0 0x00", "fsync .temp1", "pwrite .temp1 8192@32768 0x00", "fsync .temp1",
                  "close .temp1", "setText tfElapsedData \"128.00 MB\"", "redraw tfElapsedData", "removeItem .temp1",
                  "releaseSpace", "removeDirectory /media/DATA/.$$XE8AQU", "setText tfCleanedSize \"200.00 MB\"",
                  "setText tfCleanedSize \"200.00 MB\"", "setProgress 100", "bringToFront windowCompleted"));
}

TEST_F(FreeSpaceWipe, ShowsTheProgressBeforeEachFileAnd100AfterTheCleanUp) {
  reachLoop(128'000'000 * 6);
  wipe();
  EXPECT_THAT(
      world.journal.only({"setProgress", "removeDirectory"}),
      ElementsAre("setProgress 1", "setProgress 14", "setProgress 28", "setProgress 42", "setProgress 57",
                  "setProgress 71", "setProgress 85", "removeDirectory /media/DATA/.$$XE8AQU", "setProgress 100"));
}

TEST_F(FreeSpaceWipe, ShowsOnly1Before100WithASingleFile) {
  reachLoop(1'000);
  wipe();
  EXPECT_THAT(world.journal.only({"setProgress"}), ElementsAre("setProgress 1", "setProgress 100"));
}

TEST_F(FreeSpaceWipe, RedrawsNothingWhileTheWindowIsHidden) {
  reachLoop();
  world.controls.setMainWindowVisible(false);
  wipe();
  EXPECT_THAT(world.journal.only({"redraw"}), IsEmpty());
  EXPECT_EQ(world.journal.only({"setText tfElapsedData"}).size(), 3U);
}

TEST_F(FreeSpaceWipe, EndsTheApplicationWhenAFileVanished) {
  reachLoop();
  world.files.script.before(FileCall::removeItem, 1,
                            [this] { world.files.removeFromOutside(World::kDirectory, ".temp1"); });
  wipe();
  EXPECT_THAT(world.steps(),
              ElementsAre("setProgress 1", "exists .temp0", "readAttributes .temp0", "open .temp0", "close .temp0",
                          "setText tfElapsedData \"0.00 KB\"", "redraw tfElapsedData", "removeItem .temp0",
                          "setProgress 33", "exists .temp1", kUnknownErrorAlert, "terminate"));
  EXPECT_EQ(run->volumeEjected, 1);
  EXPECT_EQ(run->outcome, RunOutcome::failed);
}

TEST_F(FreeSpaceWipe, LocalisesTheAlertOfAVanishedFile) {
  reachLoop();
  world.localisation.markTexts();
  world.files.removeFromOutside(World::kDirectory, ".temp0");
  wipe();
  EXPECT_THAT(world.journal.only({"alert"}),
              ElementsAre("alert \"<Information>\" \"<Unknown Error Occured>\" \"<Relaunch the application>\" \"<>\""));
}

TEST_F(FreeSpaceWipe, WritesTheStatusInRemoteModeWhenAFileVanished) {
  reachLoopOfOrderedRun();
  world.files.removeFromOutside(World::kDirectory, ".temp0");
  wipe();
  EXPECT_THAT(world.steps(), ElementsAre("setProgress 1", "exists .temp0",
                                         "setTag cvrResult \"failed free=299999232 covered=0 not-held=0 faults=0\"",
                                         "setTag cvrStatus \"3\"", "terminate"));
  EXPECT_EQ(run->volumeEjected, 1);
}

TEST_F(FreeSpaceWipe, ReachesAFileThatCouldNotBeMadeAsAVanishedOne) {
  world.volume("DATA", 300'000'000);
  world.files.script.failAt(FileCall::createFile, 2, ErrorCode::other);
  world.start();
  layOut();
  wipe();
  EXPECT_THAT(world.journal.only({"exists .temp0", "exists .temp1", "exists .temp2", "alert", "terminate"}),
              ElementsAre("exists .temp0", "exists .temp1", kUnknownErrorAlert, "terminate"));
}

TEST_F(FreeSpaceWipe, ReachesADirectoryThatCouldNotBeMadeAsAVanishedFile) {
  world.volume("DATA", 300'000'000);
  world.files.script.failAt(FileCall::createDirectory, 1, ErrorCode::notPermitted);
  world.start();
  layOut();
  wipe();
  EXPECT_THAT(world.journal.only({"alert", "terminate"}), ElementsAre(kUnknownErrorAlert, "terminate"));
  EXPECT_EQ(run->outcome, RunOutcome::failed);
}

TEST_F(FreeSpaceWipe, LeavesTheCleanUpToTheCancelOnAnAbort) {
  reachLoop();
  world.files.script.before(FileCall::removeItem, 1, [this] { run->abortErasing = 1; });
  wipe();
  EXPECT_EQ(world.journal.all().back(), "selectPage 0");
  EXPECT_THAT(world.journal.only({"removeDirectory", "bringToFront"}), IsEmpty());
  EXPECT_TRUE(world.files.directoryExists(World::kDirectory));
}

TEST_F(FreeSpaceWipe, StillRemovesTheDirectoryWhenOnlyTheThreadIsTold) {
  reachLoop();
  world.files.script.before(FileCall::removeItem, 1, [this] { run->terminateThread = 1; });
  wipe();
  EXPECT_EQ(world.journal.only({"open"}).size(), 1U);
  EXPECT_THAT(world.journal.only({"removeDirectory", "selectPage"}),
              ElementsAre("removeDirectory /media/DATA/.$$XE8AQU"));
}

TEST_F(FreeSpaceWipe, LooksAtTheThreadsFlagBeforeTheAbort) {
  reachLoop();
  run->terminateThread = 1;
  run->abortErasing = 1;
  wipe();
  EXPECT_THAT(world.journal.only({"selectPage", "setProgress", "bringToFront"}), IsEmpty());
  EXPECT_EQ(world.journal.only({"removeDirectory"}).size(), 1U);
}

TEST_F(FreeSpaceWipe, EndsQuietlyAfterTheCleanUpWhenTheVolumeIsGoneAtTheLastFile) {
  reachLoop(1'000);
  world.files.script.before(FileCall::open, 1, [this] { world.eject("DATA"); });
  wipe();
  EXPECT_THAT(world.journal.only({"removeItem", "removeDirectory", "bringToFront", "setText tfCleanedSize"}),
              IsEmpty());
  EXPECT_TRUE(world.app().abortErasing());
  EXPECT_EQ(run->outcome, RunOutcome::failed);
}

TEST_F(FreeSpaceWipe, ReturnsToTheFirstPageWhenTheVolumeIsGoneBetweenTwoFiles) {
  reachLoop();
  world.files.script.before(FileCall::open, 1, [this] { world.eject("DATA"); });
  wipe();
  EXPECT_EQ(world.journal.all().back(), "selectPage 0");
  EXPECT_THAT(world.journal.only({"alert", "terminate", "bringToFront"}), IsEmpty());
}

TEST_F(FreeSpaceWipe, EndsTheApplicationOnceWhenTheLookupFailsDuringTheRun) {
  for (const std::uint64_t freeBytes : {1'000U, 300'000'000U}) {
    World other;
    other.volume("DATA", freeBytes);
    other.start().seventh_FAST_ZERO_WRITE();
    other.files.script.before(FileCall::open, 1, [&] { other.volumes.breakLookup(); });
    other.runWorker();
    EXPECT_THAT(other.journal.only({"alert", "terminate", "bringToFront"}),
                ElementsAre(kUnknownErrorAlert, "terminate"));
    EXPECT_EQ(other.app().currentRun()->outcome, RunOutcome::failed);
  }
}

TEST_F(FreeSpaceWipe, ShowsTheFreeSpaceAsListedWhateverWasWritten) {
  reachLoop(1'234'567);
  wipe();
  EXPECT_EQ(world.controls.text(Control::tfCleanedSize), "1.23 MB");
}

TEST_F(FreeSpaceWipe, WipesTheVolumeItStartedOnWhateverIsSelectedMeanwhile) {
  world.volume("MORE", 999'000'000);
  world.volume("DATA", 1'000);
  AppDelegate& app = world.launch();
  app.setCurrentSelection(1);
  app.next();
  world.proceed();
  layOut();
  app.setCurrentSelection(0);
  wipe();
  EXPECT_THAT(world.journal.only({"removeItem", "removeDirectory"}),
              ElementsAre("removeItem .temp0", "removeDirectory /media/DATA/.$$XE8AQU"));
  EXPECT_EQ(world.controls.text(Control::tfCleanedSize), "1.00 KB");
}

}  // namespace
}  // namespace calvero
