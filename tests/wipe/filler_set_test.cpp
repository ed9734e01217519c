#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/world.h"
#include "tests/wipe/alert_texts.h"
#include "wipe/filler_names.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using testing::FakeEntryKind;
using testing::FileCall;
using ::testing::IsEmpty;
using testing::Steps;
using testing::World;

class FillerSet : public ::testing::Test {
 protected:
  /// Lays the filler files out on a volume of that size.
  void layOut(std::uint64_t freeBytes) {
    world.volume("DATA", freeBytes);
    layOut();
  }
  void layOut() {
    AppDelegate& app = world.start();
    run = app.currentRun();
    app.createFile(*run);
  }

  [[nodiscard]] std::size_t filesFor(std::uint64_t freeBytes) {
    World other;
    other.volume("DATA", freeBytes);
    AppDelegate& app = other.start();
    app.createFile(*app.currentRun());
    return app.currentRun()->filePathsArray.size();
  }

  World world;
  RunPtr run;
};

TEST_F(FillerSet, IsOneFileOnASmallVolume) {
  layOut(127'999'999);
  EXPECT_EQ(run->numTempFiles, 0U);
  EXPECT_THAT(run->filePathsArray, ElementsAre("/media/DATA/.$$XE8AQU/.temp0"));
}

TEST_F(FillerSet, HasOneFileMoreThanTheFreeSpaceHolds) {
  EXPECT_EQ(filesFor(0), 1U);
  EXPECT_EQ(filesFor(128'000'000), 2U);
  EXPECT_EQ(filesFor(255'999'999), 2U);
  EXPECT_EQ(filesFor(256'000'000), 3U);
  EXPECT_EQ(filesFor(384'000'000), 4U);
}

TEST_F(FillerSet, DividesTheFreeSpaceAsItWasListed) {
  world.volume("DATA", 384'000'000);
  AppDelegate& app = world.start();
  world.volumes.remove("DATA");
  MountedVolume shrunk;
  shrunk.name = "DATA";
  shrunk.mountPath = "/media/DATA";
  shrunk.availableBytes = 1;
  world.volumes.add(shrunk);
  EXPECT_EQ(app.getNumbOfFiles(*app.currentRun()), 3U);
}

TEST_F(FillerSet, IsLaidOutInOrderInsideTheHiddenDirectory) {
  layOut(300'000'000);
  EXPECT_THAT(world.steps(),
              ElementsAre("createDirectory /media/DATA/.$$XE8AQU", "create .temp0", "create .temp1", "create .temp2"));
  EXPECT_THAT(run->filePathsArray, ElementsAre("/media/DATA/.$$XE8AQU/.temp0", "/media/DATA/.$$XE8AQU/.temp1",
                                               "/media/DATA/.$$XE8AQU/.temp2"));
  EXPECT_EQ(run->numTempFiles, 2U);
}

TEST_F(FillerSet, IsEmptyFilesThatTakeNoSpace) {
  layOut(300'000'000);
  EXPECT_EQ(world.files.bytesOf(World::kDirectory, ".temp0"), 0U);
  EXPECT_EQ(world.files.volume("/media/DATA").disk.takenBlocks(), 0U);
}

TEST_F(FillerSet, StandsAtTheRootOfTheRootVolumeWithoutADoubledSlash) {
  MountedVolume root;
  root.name = "ROOT";
  root.mountPath = "/";
  root.formatDescription = "ext4";
  root.availableBytes = 1'000;
  world.volume(root);
  layOut();
  EXPECT_THAT(world.steps(), ElementsAre("createDirectory /.$$XE8AQU", "create .temp0"));
  EXPECT_THAT(run->filePathsArray, ElementsAre("/.$$XE8AQU/.temp0"));
}

TEST_F(FillerSet, TakesOverWhatAnInterruptedRunLeftAndReplacesItsFilesByEmptyOnes) {
  world.volume("DATA", 200'000'000);
  world.files.addDirectory("/media/DATA", World::kDirectory);
  world.files.addEntry(World::kDirectory, ".temp0", FakeEntryKind::regularFile, 50'000);
  world.files.addEntry(World::kDirectory, ".temp9", FakeEntryKind::regularFile, 50'000);
  layOut();
  EXPECT_THAT(world.files.names(World::kDirectory), ElementsAre(".temp0", ".temp1"));
  EXPECT_EQ(world.files.bytesOf(World::kDirectory, ".temp0"), 0U);
  EXPECT_THAT(world.journal.only({"alert"}), IsEmpty());
}

TEST_F(FillerSet, StaysPartialWithoutAPageSwitchWhenTheThreadIsTold) {
  world.volume("DATA", 384'000'000);
  world.files.script.before(FileCall::createFile, 2, [this] { world.app().currentRun()->terminateThread = 1; });
  layOut();
  EXPECT_THAT(run->filePathsArray, ElementsAre("/media/DATA/.$$XE8AQU/.temp0", "/media/DATA/.$$XE8AQU/.temp1"));
  EXPECT_THAT(world.journal.only({"selectPage"}), IsEmpty());
  EXPECT_THAT(world.files.names(World::kDirectory), ElementsAre(".temp0", ".temp1"));
}

TEST_F(FillerSet, StaysPartialAndReturnsToTheFirstPageOnAnAbort) {
  world.volume("DATA", 384'000'000);
  world.files.script.before(FileCall::createFile, 2, [this] { world.app().setAbortErasing(true); });
  layOut();
  EXPECT_EQ(run->filePathsArray.size(), 2U);
  EXPECT_THAT(world.steps(),
              ElementsAre("createDirectory /media/DATA/.$$XE8AQU", "create .temp0", "create .temp1", "selectPage 0"));
}

TEST_F(FillerSet, LooksAtTheThreadsFlagBeforeTheAbort) {
  world.volume("DATA", 384'000'000);
  world.files.script.before(FileCall::createFile, 1, [this] {
    world.app().setAbortErasing(true);
    world.app().currentRun()->terminateThread = 1;
  });
  layOut();
  EXPECT_THAT(world.journal.only({"selectPage"}), IsEmpty());
}

TEST_F(FillerSet, IsNotBegunOnAVolumeThatIsGone) {
  world.volume("DATA", 300'000'000);
  AppDelegate& app = world.start();
  world.eject("DATA");
  app.createFile(*app.currentRun());
  EXPECT_THAT(world.steps(), ElementsAre(kUnknownErrorAlert, "terminate"));
  EXPECT_THAT(app.currentRun()->filePathsArray, IsEmpty());
}

TEST_F(FillerSet, IsNotBegunWhereNothingExistsAtTheMountPath) {
  world.volume("DATA", 300'000'000);
  AppDelegate& app = world.start();
  world.files.volume("/media/DATA").mounted = false;
  app.createFile(*app.currentRun());
  EXPECT_THAT(world.steps(), ElementsAre(kUnknownErrorAlert, "terminate"));
}

TEST_F(FillerSet, WritesTheStatusInsteadOfAPanelInRemoteModeWhenTheVolumeIsGone) {
  world.volume("DATA", 300'000'000);
  world.order("DATA", "1");
  AppDelegate& app = world.launch();
  world.eject("DATA");
  app.createFile(*app.currentRun());
  EXPECT_THAT(world.steps(), ElementsAre("setTag cvrResult \"failed free=0 covered=0 not-held=0 faults=0\"",
                                         "setTag cvrStatus \"3\"", "terminate"));
}

TEST_F(FillerSet, GoesOnWithoutAReportWhenTheDirectoryCannotBeMade) {
  world.volume("DATA", 200'000'000);
  world.files.script.failAt(FileCall::createDirectory, 1, ErrorCode::notPermitted);
  layOut();
  EXPECT_EQ(run->filePathsArray.size(), 2U);
  EXPECT_THAT(world.journal.only({"alert"}), IsEmpty());
  EXPECT_EQ(world.loop.terminations(), 0);
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
  EXPECT_EQ(run->refusal().code, ErrorCode::notPermitted);
}

TEST_F(FillerSet, TakesAVolumeThatTurnedReadOnlySinceItWasChosenAsAFaultAndNotAsARefusal) {
  world.volume("DATA", 200'000'000);
  world.files.script.failAt(FileCall::createDirectory, 1, ErrorCode::readOnly);
  layOut();
  EXPECT_EQ(run->firstFault().code, ErrorCode::readOnly);
  EXPECT_FALSE(run->refusal().failed());
}

TEST_F(FillerSet, GoesOnWithoutAReportWhenAFileCannotBeMade) {
  world.volume("DATA", 300'000'000);
  world.files.script.failAt(FileCall::createFile, 2, ErrorCode::full);
  layOut();
  EXPECT_EQ(run->filePathsArray.size(), 3U);
  EXPECT_THAT(world.files.names(World::kDirectory), ElementsAre(".temp0", ".temp2"));
  EXPECT_THAT(world.journal.only({"alert"}), IsEmpty());
}

TEST_F(FillerSet, StopsAsFailedAfterSixteenFailuresInARowOnAVolumeThatClaimsAbsurdSpace) {
  MountedVolume absurd;
  absurd.name = "DATA";
  absurd.mountPath = "/media/DATA";
  absurd.formatDescription = "ext4";
  absurd.availableBytes = absurd.totalBytes = std::uint64_t{1} << 40;
  world.files.addVolume("/media/DATA", 1'000'000);
  world.volumes.add(absurd);
  world.files.script.failFrom(FileCall::createFile, 5, ErrorCode::full);
  layOut();
  EXPECT_EQ(run->filePathsArray.size(), 20U);
  EXPECT_THAT(world.journal.only({"alert", "terminate"}), ElementsAre(kUnknownErrorAlert, "terminate"));
  EXPECT_EQ(run->outcome, RunOutcome::failed);
  EXPECT_EQ(run->faults(), 16U);
}

TEST_F(FillerSet, StopsAnOrderedRunWithItsStatusAfterSixteenFailuresInARow) {
  world.volume("DATA", 20 * 128'000'000ULL);
  world.order("DATA", "1");
  world.files.script.failFrom(FileCall::createFile, 1, ErrorCode::other);
  world.launch();
  world.runWorker();
  EXPECT_EQ(world.tags.peek("cvrStatus"), "3");
  EXPECT_EQ(world.files.script.count(FileCall::createFile), 16U);
  EXPECT_EQ(world.loop.terminations(), 1);
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
}

TEST_F(FillerSet, GoesOnAfterFailuresThatDoNotFollowOneAnother) {
  world.volume("DATA", 40 * 128'000'000ULL);
  for (std::size_t nth = 1; nth <= 41; ++nth) {
    if (nth % 16 != 0) world.files.script.failAt(FileCall::createFile, nth, ErrorCode::other);
  }
  layOut();
  EXPECT_EQ(run->filePathsArray.size(), 41U);
  EXPECT_THAT(world.journal.only({"alert"}), IsEmpty());
}

TEST_F(FillerSet, TouchesNothingInADirectoryThatNoRunMade) {
  world.volume("DATA", 200'000'000);
  world.files.addForeignDirectory("/media/DATA", World::kDirectory);
  world.files.addEntry(World::kDirectory, ".temp0", FakeEntryKind::regularFile, 50'000);
  layOut();
  EXPECT_THAT(world.journal.only({"create"}), IsEmpty());
  EXPECT_EQ(world.files.bytesOf(World::kDirectory, ".temp0"), 50'000U);
}

}  // namespace
}  // namespace calvero
