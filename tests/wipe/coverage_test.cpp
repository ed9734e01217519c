#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/world.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using testing::FakeDisk;
using testing::FileCall;
using ::testing::IsEmpty;
using testing::World;

constexpr std::uint64_t kBlockBytesOfDisk = FakeDisk::kBlockBytes;

/// Runs on a volume that is really filled.
class Coverage : public ::testing::Test {
 protected:
  void start(std::uint64_t freeBytes) {
    world.volume("DATA", freeBytes);
    world.start();
    run = world.app().currentRun();
  }
  FakeDisk& disk() { return world.files.volume("/media/DATA").disk; }

  World world;
  RunPtr run;
};

TEST_F(Coverage, HasReachedEveryByteOfTheFreeSpaceByTheLastFile) {
  start(300'000'000);
  world.files.script.before(FileCall::removeItem, 3, [this] {
    EXPECT_EQ(disk().takenBlocks(), disk().blockCount()) << "the space of the files before is still held";
    EXPECT_EQ(disk().coveredBlocks(), disk().blockCount());
  });
  world.runWorker();
  EXPECT_EQ(world.files.script.count(FileCall::removeItem), 3U);
  EXPECT_EQ(disk().blocksHolding(0x00), disk().blockCount());
  EXPECT_EQ(disk().takenBlocks(), 0U);
}

TEST_F(Coverage, IsCompleteWhereTheLimitOfOpenFilesLetsNoWrittenFileBeHeld) {
  world.files.setHandleLimit(0);
  start(300'000'000);
  world.runWorker();
  EXPECT_EQ(disk().coveredBlocks(), disk().blockCount());
  EXPECT_EQ(disk().takenBlocks(), 0U);
  EXPECT_EQ(run->faults(), 0U);
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
  EXPECT_THAT(world.journal.only({"notice"}), IsEmpty());
}

TEST_F(Coverage, LeavesTheLastPatternOfTheMethodEverywhere) {
  start(2'000'000);
  world.app().sixth_VSITR_GERMAN();
  world.runWorker();
  EXPECT_EQ(disk().blocksHolding(0xAA), disk().blockCount());
}

TEST_F(Coverage, EndsOnAFullVolumeAsFinishedAndWithoutAFault) {
  start(130'000'000);
  world.runWorker();
  EXPECT_EQ(run->outcome, RunOutcome::finished);
  EXPECT_EQ(run->faults(), 0U);
  EXPECT_EQ(disk().coveredBlocks(), disk().blockCount());
  EXPECT_TRUE(world.controls.shown(Control::windowCompleted));
}

TEST_F(Coverage, NotesAFaultWhenTheFileSystemTurnsReadOnlyUnderTheRun) {
  start(2'000'000);
  world.files.script.before(FileCall::pwrite, 3, [this] { world.files.volume("/media/DATA").readOnly = true; });
  world.runWorker();
  EXPECT_GE(run->faults(), 1U);
  EXPECT_EQ(run->firstFault().code, ErrorCode::readOnly);
  EXPECT_EQ(run->firstFault().operation, "pwrite");
  EXPECT_EQ(run->firstFault().path, "/media/DATA/.$$XE8AQU/.temp0");
}

TEST_F(Coverage, IsToldToBeFlawedInTheLogWhenARunWithFaultsFinishes) {
  for (const bool isOrdered : {false, true}) {
    World other;
    other.volume("DATA", 1'000'000);
    if (isOrdered) other.order("DATA", "1");
    other.files.script.failAt(FileCall::fsync, 1, ErrorCode::other);
    isOrdered ? other.launch() : other.start();
    other.runWorker();
    EXPECT_THAT(other.journal.only({"log 1"}),
                ElementsAre("log 1 failures, so that deleted data may remain readable; the first one: fsync "
                            "/media/DATA/.$$XE8AQU/.temp0: as the test has it"));
  }
}

TEST_F(Coverage, EndsARunOnAFileSystemThatTurnedReadOnlyAsFailedWithoutTheCompletionWindow) {
  start(2'000'000);
  world.files.script.before(FileCall::pwrite, 3, [this] { world.files.volume("/media/DATA").readOnly = true; });
  world.runWorker();
  EXPECT_EQ(run->outcome, RunOutcome::failed);
  EXPECT_THAT(world.journal.only({"bringToFront"}), IsEmpty());
  EXPECT_FALSE(world.controls.shown(Control::windowCompleted));
  EXPECT_EQ(run->abortErasing, 1);
  EXPECT_EQ(run->volumeEjected, 1);
}

TEST_F(Coverage, EndsARunWhoseDirectoryCannotBeRemovedFromALostMediumAsFailed) {
  for (const ErrorCode code : {ErrorCode::readOnly, ErrorCode::gone}) {
    World other;
    other.volume("DATA", 1'000'000);
    other.files.script.failAt(FileCall::removeDirectory, 1, code);
    const RunPtr failed = other.start().currentRun();
    other.runWorker();
    EXPECT_EQ(failed->outcome, RunOutcome::failed);
    EXPECT_FALSE(other.controls.shown(Control::windowCompleted));
    EXPECT_EQ(failed->faults(), 1U);
  }
}

TEST_F(Coverage, ReportsNoSuccessOfARemoteRunOnAFileSystemThatTurnedReadOnly) {
  world.volume("DATA", 2'000'000);
  world.order("DATA", "1");
  world.launch();
  world.files.script.before(FileCall::pwrite, 3, [this] { world.files.volume("/media/DATA").readOnly = true; });
  world.runWorker();
  EXPECT_NE(world.tags.peek("cvrStatus"), "2");
  EXPECT_THAT(world.journal.only({"popUp"}), IsEmpty());
}

TEST_F(Coverage, CountsWhatTheWriterCoveredAndWrote) {
  start(200'000'000);
  world.app().dODWipe();
  world.app().createFile(*run);
  world.app().fillFilePath(*run, run->filePathsArray[0], 2 * 32768 + 100);
  EXPECT_EQ(run->counters.bytesCovered, 2U * 32768U + 100U);
  EXPECT_EQ(run->counters.bytesWritten, 3U * (2U * 32768U + 100U));
}

TEST_F(Coverage, PublishesTheCountersWhileTheFileIsBeingWritten) {
  start(200'000'000);
  world.files.script.before(FileCall::pwrite, 101, [this] {
    EXPECT_GE(run->counters.bytesCovered, 99U * 32768U);
    EXPECT_LE(run->counters.bytesCovered, 100U * 32768U);
    EXPECT_GE(run->counters.bytesWritten, 99U * 32768U);
    world.app().setAbortErasing(true);
  });
  world.runWorker();
  EXPECT_EQ(world.files.script.count(FileCall::pwrite), 101U);
}

TEST_F(Coverage, CountsNothingAsCoveredByAMethodWithoutPasses) {
  start(200'000'000);
  world.app().seventh_FAST_ZERO_WRITE();
  world.runWorker();
  EXPECT_EQ(run->counters.bytesCovered, 0U);
  EXPECT_EQ(run->counters.bytesWritten, 0U);
  EXPECT_EQ(world.files.script.count(FileCall::removeItem), 2U);
}

TEST_F(Coverage, CountsABlockWithAFailedPassAsNotCovered) {
  start(200'000'000);
  world.app().dODWipe();
  world.app().createFile(*run);
  world.files.script.failAt(FileCall::pwrite, 2, ErrorCode::gone);
  world.app().fillFilePath(*run, run->filePathsArray[0], 3 * 32768);
  EXPECT_EQ(run->counters.bytesCovered, 32768U) << "the last block alone";
  EXPECT_EQ(run->counters.bytesWritten, 5U * 32768U);
  EXPECT_EQ(run->faults(), 1U);
}

TEST_F(Coverage, CountsABlockWhoseFlushFailedAsNotCovered) {
  for (const ErrorCode code : {ErrorCode::gone, ErrorCode::full}) {
    World other;
    other.volume("DATA", 200'000'000);
    AppDelegate& app = other.start();
    const RunPtr disturbed = app.currentRun();
    app.createFile(*disturbed);
    other.files.script.failAt(FileCall::fsync, 2, code);
    app.fillFilePath(*disturbed, disturbed->filePathsArray[0], 3 * 32768);
    EXPECT_EQ(disturbed->counters.bytesCovered, 2U * 32768U);
    EXPECT_EQ(disturbed->counters.bytesWritten, 3U * 32768U) << "and the file is written on";
  }
}

TEST_F(Coverage, TakesAFileThatCannotBeOpenedForAFaultEvenOnAFullVolume) {
  start(200'000'000);
  world.app().createFile(*run);
  world.files.script.failAt(FileCall::open, 1, ErrorCode::full);
  world.app().fillFilePath(*run, run->filePathsArray[0], 32768);
  EXPECT_EQ(run->faults(), 1U);
  EXPECT_EQ(run->firstFault().code, ErrorCode::full);
}

TEST_F(Coverage, TellsWhyAFileThatIsFoundMissingCouldNotBeCreated) {
  start(200'000'000);
  world.files.script.failAt(FileCall::createFile, 2, ErrorCode::full);
  world.runWorker();
  EXPECT_EQ(run->outcome, RunOutcome::failed);
  EXPECT_EQ(run->firstFault().operation, "openat");
}

TEST_F(Coverage, ClaimsNoMoreThanTheVolumeHolds) {
  start(2'010'000);
  world.runWorker();
  EXPECT_EQ(run->counters.bytesWritten, disk().blockCount() * kBlockBytesOfDisk);
  EXPECT_LE(run->counters.bytesCovered, disk().blockCount() * kBlockBytesOfDisk);
}

TEST_F(Coverage, KeepsTheFirstFaultAndCountsTheOthers) {
  start(200'000'000);
  world.app().createFile(*run);
  world.files.script.failAt(FileCall::pwrite, 1, ErrorCode::gone);
  world.files.script.failAt(FileCall::fsync, 2, ErrorCode::other);
  world.app().fillFilePath(*run, run->filePathsArray[0], 5 * 32768);
  EXPECT_EQ(run->faults(), 2U);
  EXPECT_EQ(run->firstFault().code, ErrorCode::gone);
}

TEST_F(Coverage, KeepsTheFirstOutcome) {
  start(1'000);
  run->end(RunOutcome::cancelled);
  run->end(RunOutcome::finished);
  EXPECT_EQ(run->outcome, RunOutcome::cancelled);
}

}  // namespace
}  // namespace calvero
