#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <vector>

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
  /// Another program fills the disk up to the last so many bytes; the blocks that it got.
  std::vector<std::size_t> takeAllBut(std::uint64_t bytes) {
    std::vector<std::size_t> blocks;
    for (std::uint64_t left = disk().freeBytes(); left > bytes; left -= kBlockBytesOfDisk) {
      blocks.push_back(*disk().allocate());
    }
    return blocks;
  }

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
  start(200'000'000);
  world.app().createFile(*run);
  world.files.script.failAt(FileCall::fsync, 2, ErrorCode::other);
  world.app().fillFilePath(*run, run->filePathsArray[0], 3 * 32768);
  EXPECT_EQ(run->counters.bytesCovered, 2U * 32768U);
  EXPECT_EQ(run->counters.bytesWritten, 3U * 32768U) << "and the file is written on";
}

TEST_F(Coverage, EndsARunAtOnceAsFailedWhenAFlushTellsThatTheStorageUnderTheVolumeIsFullOrFailing) {
  const std::map<ErrorCode, ErrorCode> causes{{ErrorCode::full, ErrorCode::storageFull},
                                              {ErrorCode::overQuota, ErrorCode::overQuota},
                                              {ErrorCode::gone, ErrorCode::gone},
                                              {ErrorCode::readOnly, ErrorCode::readOnly}};
  for (const auto& [code, cause] : causes) {
    World other;
    other.volume("DATA", 200'000'000);
    other.start().dODWipe();
    const RunPtr failed = other.app().currentRun();
    other.files.script.failAt(FileCall::fsync, 5, code);
    other.runWorker();
    EXPECT_EQ(failed->outcome, RunOutcome::failed);
    EXPECT_EQ(failed->cause().code, cause);
    EXPECT_EQ(failed->faults(), 1U);
    EXPECT_EQ(failed->counters.bytesCovered, 32768U);
    EXPECT_EQ(other.files.script.count(FileCall::pwrite), 5U) << "not even the block's other passes are written";
    EXPECT_THAT(other.journal.only({"bringToFront", "alert"}), IsEmpty());
    EXPECT_EQ(other.journal.only({"selectPage 0"}).size(), 1U) << "as with a lost volume";
    EXPECT_FALSE(other.files.directoryExists(World::kDirectory));
  }
}

TEST_F(Coverage, NotesNoFaultOfAFlushThatFailsUnderACancel) {
  start(200'000'000);
  world.files.script.before(FileCall::fsync, 2, [this] { world.app().cancelWipe(); });
  world.files.script.failAt(FileCall::fsync, 2, ErrorCode::full);
  world.runWorker();
  EXPECT_EQ(run->outcome, RunOutcome::cancelled);
  EXPECT_EQ(run->faults(), 0U);
}

TEST_F(Coverage, TellsOfAFileSystemThatTurnedReadOnlyUnderAFlushThatOnlyKnewOfAnError) {
  start(300'000'000);
  world.files.script.failAt(FileCall::fsync, 3, ErrorCode::gone);
  world.files.script.failFrom(FileCall::removeDirectory, 1, ErrorCode::readOnly);
  world.runWorker();
  EXPECT_EQ(run->outcome, RunOutcome::failed);
  EXPECT_EQ(run->firstFault().code, ErrorCode::gone);
  EXPECT_EQ(run->cause().code, ErrorCode::readOnly);
}

TEST_F(Coverage, ReportsNoSuccessOfARemoteRunWhoseLastFlushFails) {
  world.volume("DATA", 1'000'000);
  world.order("DATA", "1");
  world.launch();
  world.files.script.failAt(FileCall::fsync, 31, ErrorCode::full);
  world.runWorker();
  EXPECT_EQ(world.files.script.count(FileCall::fsync), 31U);
  EXPECT_EQ(world.app().currentRun()->outcome, RunOutcome::failed);
  EXPECT_NE(world.tags.peek("cvrStatus"), "2");
}

TEST_F(Coverage, TakesAQuotaForAFaultAndGoesOnWithTheNextFile) {
  start(300'000'000);
  world.files.script.failAt(FileCall::pwrite, 2, ErrorCode::overQuota);
  world.runWorker();
  EXPECT_EQ(run->outcome, RunOutcome::finished);
  EXPECT_EQ(run->firstFault().code, ErrorCode::overQuota);
  EXPECT_EQ(gradeOf(run->account()), RunGrade::partial);
  EXPECT_GE(world.journal.only({"open"}).size(), 3U);
}

TEST_F(Coverage, IsPartialWhereAnotherProgramTookTheSpaceDuringTheRun) {
  start(300'000'000);
  world.files.script.before(FileCall::pwrite, 100, [this] { takeAllBut(20'000'000); });
  world.runWorker();
  const RunAccount account = run->account();
  EXPECT_EQ(run->outcome, RunOutcome::finished);
  EXPECT_EQ(run->faults(), 0U);
  EXPECT_EQ(gradeOf(account), RunGrade::partial);
  EXPECT_EQ(account.freeAtStart, 73242U * kBlockBytesOfDisk);
  EXPECT_EQ(account.shortBy(), account.freeAtStart - account.covered);
  EXPECT_EQ(world.journal.only({"log partial: of 299999232"}).size(), 1U);
}

TEST_F(Coverage, MeasuresWhatIsFreeWhenTheRunBegins) {
  start(300'000'000);
  takeAllBut(40'000'000);  // since the volume was listed
  const std::uint64_t left = disk().freeBytes();
  world.runWorker();
  EXPECT_EQ(run->account().freeAtStart, left);
  EXPECT_EQ(gradeOf(run->account()), RunGrade::complete);
  EXPECT_EQ(world.files.script.count(FileCall::createFile), 3U) << "the number of files stays that of the listed space";
}

TEST_F(Coverage, ComparesWithTheListedSpaceWhereNothingCanBeMeasured) {
  start(300'000'000);
  world.files.volume("/media/DATA").tellsFreeSpace = false;
  world.runWorker();
  EXPECT_EQ(run->account().freeAtStart, 300'000'000U);
  EXPECT_EQ(gradeOf(run->account()), RunGrade::complete);
}

TEST_F(Coverage, TakesUpTheSpaceThatAnotherProgramFreesDuringTheRun) {
  world.volume("DATA", 900'000'000);
  const std::vector<std::size_t> file = takeAllBut(130'000'000);
  world.volumes.remove("DATA");
  MountedVolume listed;
  listed.name = "DATA";
  listed.mountPath = "/media/DATA";
  listed.formatDescription = "ext4";
  listed.availableBytes = disk().freeBytes();
  listed.totalBytes = 1'000'000'000;
  world.volumes.add(listed);
  world.start();
  run = world.app().currentRun();
  world.files.script.before(FileCall::pwrite, 100, [&] {
    for (const std::size_t block : file) disk().release(block);
  });
  world.files.script.before(FileCall::releaseSpace, 1, [this] { EXPECT_EQ(disk().freeBytes(), 0U); });
  world.runWorker();
  EXPECT_EQ(run->outcome, RunOutcome::finished);
  EXPECT_EQ(disk().blocksHolding(0x00), disk().blockCount());
  EXPECT_EQ(disk().takenBlocks(), 0U);
  EXPECT_EQ(run->numTempFiles, 1U);
  EXPECT_EQ(run->filePathsArray.back(), "/media/DATA/.$$XE8AQU/.temp7");
  EXPECT_THAT(world.journal.only({"setProgress"}),
              ::testing::IsSupersetOf({"setProgress 1", "setProgress 50", "setProgress 66", "setProgress 87"}));
  EXPECT_EQ(world.journal.only({"removeItem"}).size(), 8U);
}

TEST_F(Coverage, EndsOnAVolumeThatTakesNoSpaceForWhatIsWritten) {
  start(300'000'000);
  for (int file = 1; file <= 8; ++file) {  // each one's space is free again once it is written
    world.files.script.before(FileCall::removeItem, file, [this] {
      for (std::size_t block = 0; block < disk().blockCount(); ++block) disk().release(block);
    });
  }
  world.runWorker();
  EXPECT_EQ(run->outcome, RunOutcome::finished);
  EXPECT_GE(run->counters.bytesCovered, 600'000'000U) << "as much as the volume holds";
  EXPECT_LT(run->counters.bytesCovered, 600'000'000U + 128'000'000U);
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
