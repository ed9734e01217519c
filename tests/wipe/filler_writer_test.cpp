#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/world.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using testing::FileCall;
using ::testing::IsEmpty;
using testing::Steps;
using testing::World;

constexpr std::uint64_t kFileBytes = 128'000'000;

class FillerWriter : public ::testing::Test {
 protected:
  FillerWriter() { world.volume("DATA", 140'000'000); }

  /// Lays out the set, and writes its first file with the method that `choose` selects.
  void write(std::uint64_t size, void (AppDelegate::*choose)() = &AppDelegate::fastZeroWipe) {
    prepare(choose);
    world.app().fillFilePath(*run, run->filePathsArray.at(0), size);
  }
  void prepare(void (AppDelegate::*choose)() = &AppDelegate::fastZeroWipe) {
    AppDelegate& app = world.start();
    run = app.currentRun();
    (app.*choose)();
    app.createFile(*run);
    world.journal.clear();
  }
  [[nodiscard]] std::size_t writes() const { return world.files.script.count(FileCall::pwrite); }
  [[nodiscard]] std::size_t flushes() const { return world.files.script.count(FileCall::fsync); }

  /// The writes of the journal without the file's name.
  [[nodiscard]] Steps written() const {
    Steps steps = world.journal.only({"pwrite"});
    for (std::string& step : steps) step.erase(0, std::string("pwrite .temp0 ").size());
    return steps;
  }

  World world;
  RunPtr run;
};

TEST_F(FillerWriter, WritesAFillerFileIn3907WritesEachFollowedByAFlush) {
  write(kFileBytes);
  EXPECT_EQ(writes(), 3907U);
  const Steps steps = world.journal.all();
  ASSERT_EQ(steps.size(), 2U + 2U * 3907U);
  EXPECT_EQ(steps.front(), "open .temp0");
  EXPECT_EQ(steps.back(), "close .temp0");
  for (std::uint64_t block = 0; block < 3906; ++block) {
    ASSERT_EQ(steps[1 + 2 * block], "pwrite .temp0 32768@" + std::to_string(block * 32768) + " 0x00");
    ASSERT_EQ(steps[2 + 2 * block], "fsync .temp0");
  }
  EXPECT_EQ(steps[1 + 2 * 3906], "pwrite .temp0 8192@127991808 0x00");
  EXPECT_EQ(steps[2 + 2 * 3906], "fsync .temp0");
  EXPECT_EQ(world.files.bytesOf(World::kDirectory, ".temp0"), kFileBytes);
}

TEST_F(FillerWriter, WritesEveryPassOfABlockBeforeTheNextBlockEachFlushed) {
  write(2 * 32768 + 100, &AppDelegate::dODWipe);
  EXPECT_THAT(world.journal.all(),
              ElementsAre("open .temp0",                                       //
                          "pwrite .temp0 32768@0 0x55", "fsync .temp0",        //
                          "pwrite .temp0 32768@0 0xAA", "fsync .temp0",        //
                          "pwrite .temp0 32768@0 random", "fsync .temp0",      //
                          "pwrite .temp0 32768@32768 0x55", "fsync .temp0",    //
                          "pwrite .temp0 32768@32768 0xAA", "fsync .temp0",    //
                          "pwrite .temp0 32768@32768 random", "fsync .temp0",  //
                          "pwrite .temp0 100@65536 0x55", "fsync .temp0",      //
                          "pwrite .temp0 100@65536 0xAA", "fsync .temp0",      //
                          "pwrite .temp0 100@65536 random", "fsync .temp0", "close .temp0"));
}

TEST_F(FillerWriter, EndsAMultipleOfTheBlockSizeWithAFullBlock) {
  write(2 * 32768);
  EXPECT_THAT(written(), ElementsAre("32768@0 0x00", "32768@32768 0x00"));
}

TEST_F(FillerWriter, WritesASmallSizeInOneWrite) {
  write(1);
  EXPECT_THAT(written(), ElementsAre("1@0 0x00"));
}

TEST_F(FillerWriter, WritesNothingWithAMethodOfNoPasses) {
  write(2 * 32768, &AppDelegate::seventh_FAST_ZERO_WRITE);
  EXPECT_THAT(world.journal.all(), ElementsAre("open .temp0", "close .temp0"));
}

TEST_F(FillerWriter, WritesOnlyTheFirstPlannedPassOfMethod3) {
  write(32768, &AppDelegate::fourth_NAVSO);
  EXPECT_THAT(written(), ElementsAre("32768@0 0x00"));
}

TEST_F(FillerWriter, AttemptsTheBlocksPassesAfterAFailedWriteThenTheLastBlockAtTheNextOffset) {
  prepare(&AppDelegate::dODWipe);
  world.files.script.failAt(FileCall::pwrite, 5, ErrorCode::full);
  world.app().fillFilePath(*run, run->filePathsArray[0], 9 * 32768 + 100);
  EXPECT_THAT(written(),
              ElementsAre("32768@0 0x55", "32768@0 0xAA", "32768@0 random", "32768@32768 0x55", "32768@32768 0xAA",
                          "32768@32768 random", "100@65536 0x55", "100@65536 0xAA", "100@65536 random"));
  EXPECT_EQ(flushes(), 9U) << "a failed write is flushed like the others";
}

TEST_F(FillerWriter, PassesOverFailedWritesOfTheLastBlock) {
  prepare(&AppDelegate::dODWipe);
  world.files.script.failFrom(FileCall::pwrite, 1, ErrorCode::full);
  world.app().fillFilePath(*run, run->filePathsArray[0], 9 * 32768);
  EXPECT_THAT(written(), ElementsAre("32768@0 0x55", "32768@0 0xAA", "32768@0 random", "32768@32768 0x55",
                                     "32768@32768 0xAA", "32768@32768 random"));
  EXPECT_EQ(flushes(), 6U);
}

TEST_F(FillerWriter, DoesNotNoticeAShortWrite) {
  prepare();
  world.files.script.shortWriteAt(1, 4096);
  world.app().fillFilePath(*run, run->filePathsArray[0], 3 * 32768);
  EXPECT_THAT(written(), ElementsAre("32768@0 0x00", "32768@32768 0x00", "32768@65536 0x00"));
}

TEST_F(FillerWriter, OpensNothingAndReturnsToTheFirstPageWhenAlreadyAborted) {
  prepare();
  world.app().setAbortErasing(true);
  world.app().fillFilePath(*run, run->filePathsArray[0], kFileBytes);
  EXPECT_THAT(world.journal.all(), ElementsAre("selectPage 0"));
}

TEST_F(FillerWriter, FinishesTheBlocksPassesBeforeItHeedsAnAbort) {
  prepare(&AppDelegate::dODWipe);
  world.files.script.before(FileCall::pwrite, 4, [this] { world.app().setAbortErasing(true); });
  world.app().fillFilePath(*run, run->filePathsArray[0], 9 * 32768);
  EXPECT_THAT(written(), ElementsAre("32768@0 0x55", "32768@0 0xAA", "32768@0 random", "32768@32768 0x55",
                                     "32768@32768 0xAA", "32768@32768 random"));
  EXPECT_THAT(world.journal.only({"selectPage"}), IsEmpty());
}

TEST_F(FillerWriter, HeedsAnAbortBetweenThePassesOfTheLastBlock) {
  prepare(&AppDelegate::dODWipe);
  world.files.script.before(FileCall::pwrite, 5, [this] { world.app().setAbortErasing(true); });
  world.app().fillFilePath(*run, run->filePathsArray[0], 32768 + 10);
  EXPECT_THAT(written(),
              ElementsAre("32768@0 0x55", "32768@0 0xAA", "32768@0 random", "10@32768 0x55", "10@32768 0xAA"));
}

TEST_F(FillerWriter, DoesNotLookAtTheThreadsFlag) {
  prepare();
  run->terminateThread = 1;
  world.app().fillFilePath(*run, run->filePathsArray[0], 2 * 32768);
  EXPECT_EQ(writes(), 2U);
}

TEST_F(FillerWriter, TakesANewMethodUpWithTheNextFile) {
  prepare();
  world.files.script.before(FileCall::pwrite, 1, [this] { world.app().dODWipe(); });
  world.app().fillFilePath(*run, run->filePathsArray[0], 2 * 32768);
  EXPECT_THAT(written(), ElementsAre("32768@0 0x00", "32768@32768 0x00"));
  world.journal.clear();
  world.app().fillFilePath(*run, run->filePathsArray[1], 10);
  EXPECT_THAT(world.journal.only({"pwrite"}),
              ElementsAre("pwrite .temp1 10@0 0x55", "pwrite .temp1 10@0 0xAA", "pwrite .temp1 10@0 random"));
}

TEST_F(FillerWriter, WritesOnAfterAFailedFlush) {
  prepare();
  world.files.script.failAt(FileCall::fsync, 1, ErrorCode::other);
  world.app().fillFilePath(*run, run->filePathsArray[0], 3 * 32768);
  EXPECT_EQ(writes(), 3U);
  EXPECT_EQ(flushes(), 3U) << "a failed flush is not repeated";
  EXPECT_EQ(run->firstFault().text(), "fsync " + run->filePathsArray[0] + ": as the test has it");
}

TEST_F(FillerWriter, KeepsTheSystemsWordsAboutAFailedWrite) {
  prepare();
  world.files.script.failAt(FileCall::pwrite, 1, ErrorCode::other);
  world.app().fillFilePath(*run, run->filePathsArray[0], 3 * 32768);
  EXPECT_EQ(run->firstFault().text(), "pwrite " + run->filePathsArray[0] + ": as the test has it");
}

TEST_F(FillerWriter, WritesNothingIntoAFileThatCannotBeOpened) {
  prepare();
  world.files.script.failAt(FileCall::open, 1, ErrorCode::notOurs);
  world.app().fillFilePath(*run, run->filePathsArray[0], kFileBytes);
  EXPECT_THAT(world.journal.without({"log", "notice"}), ElementsAre("open .temp0"));
  EXPECT_EQ(run->firstFault().code, ErrorCode::notOurs);
}

}  // namespace
}  // namespace calvero
