#include "terminal/commands/order_command.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <system_error>

#include "terminal/commands/order_command_watch.h"
#include "tests/terminal/fake_order_tags.h"

namespace calvero {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using testing::FakeOrderTags;
using testing::FakeProgram;
using testing::FakeRuns;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::Journal;
using ::testing::Not;
using ::testing::StartsWith;

constexpr const char* kStored =
    "store cvrResult= cvrStatus= CVRCANCEL= cvrDrive=stick cvrAlgo=3 cvrMountPath=/media/stick cvrVolumeUuid=12-34 "
    "cvrNamed=stick cvrOnline=1";

class PlaceOrder : public ::testing::Test {
 protected:
  PlacedOrder place() {
    return placeOrder({"stick", "/media/stick", 2, "/opt/calvero", "12-34"}, tags_, runs_.lookup(),
                      [this](const std::string& path) {
                        journal_.add("start " + path);
                        if (!starts_) throw std::system_error(ENOEXEC, std::generic_category(), path);
                        return std::make_unique<FakeProgram>();
                      });
  }

  Journal journal_;
  FakeOrderTags tags_{journal_};
  FakeRuns runs_;
  bool starts_ = true;
};

TEST_F(PlaceOrder, StoresTheOrderAsOneBeforeItStartsTheProgram) {
  const PlacedOrder placed = place();
  EXPECT_EQ(placed.answer.exitCode, ExitCode::finished);
  EXPECT_THAT(placed.answer.line, AllOf(HasSubstr("stick (/media/stick)"), HasSubstr("method 3 (dod)")));
  EXPECT_NE(placed.program, nullptr);
  EXPECT_THAT(journal_.all(), ElementsAre(kStored, "start /opt/calvero"));
}

TEST_F(PlaceOrder, LeavesNothingOfAnEarlierOrderThatHasEnded) {
  tags_.putOrder("disk", "8");
  tags_.put(kTagStatus, kStatusFailed);
  tags_.put(kTagCancel, "1");
  EXPECT_EQ(place().answer.exitCode, ExitCode::finished);
  EXPECT_EQ(tags_.peek(kTagStatus), "");
  EXPECT_EQ(tags_.peek(kTagCancel), "");
  EXPECT_EQ(tags_.peek(kTagDrive), "stick");
  EXPECT_EQ(tags_.peek(kTagAlgo), "3");
}

TEST_F(PlaceOrder, IsRefusedWhileAnEarlierOrderIsUnderWay) {
  tags_.putOrder("disk\n", "8");
  tags_.put(kTagStatus, kStatusFinished);  // left by an earlier run
  runs_.begin("disk\n");
  const PlacedOrder placed = place();
  EXPECT_EQ(placed.answer.exitCode, ExitCode::refused);
  EXPECT_THAT(placed.answer.line, AllOf(HasSubstr("disk\\012"), HasSubstr("under way")));
  EXPECT_EQ(placed.program, nullptr);
  EXPECT_THAT(journal_.all(), IsEmpty());
}

TEST_F(PlaceOrder, IsRefusedWhileARunOfTheOrderHoldsNoVolumeYetOrNoLonger) {
  tags_.putOrder("disk", "8");
  tags_.put(kTagStatus, kStatusFinished);
  runs_.claim();
  const PlacedOrder placed = place();
  EXPECT_EQ(placed.answer.exitCode, ExitCode::refused);
  EXPECT_THAT(placed.answer.line, AllOf(HasSubstr("disk"), HasSubstr("under way")));
  EXPECT_THAT(journal_.all(), IsEmpty());
}

TEST_F(PlaceOrder, IsRefusedWhileAnEarlierOrderHasNotEnded) {
  tags_.putOrder("disk", "8");
  const PlacedOrder placed = place();
  EXPECT_EQ(placed.answer.exitCode, ExitCode::refused);
  EXPECT_THAT(placed.answer.line, AllOf(HasSubstr("disk"), HasSubstr("calvero-cli clear")));
  EXPECT_THAT(journal_.all(), IsEmpty());
}

TEST_F(PlaceOrder, IsRefusedWhenAnotherOrderIsStoredFirst) {
  tags_.beforeStore([this] { tags_.putOrder("disk", "8"); });
  const PlacedOrder placed = place();
  EXPECT_EQ(placed.answer.exitCode, ExitCode::refused);
  EXPECT_THAT(placed.answer.line, AllOf(HasSubstr("disk"), HasSubstr("has not ended")));
  EXPECT_EQ(placed.program, nullptr);
  EXPECT_EQ(tags_.peek(kTagDrive), "disk");
  EXPECT_THAT(journal_.all(), IsEmpty());
}

TEST_F(PlaceOrder, IsRefusedWhileTheRunOfAnOrderThatWasCalledOffGoesOn) {
  tags_.putOrder("disk", "8");
  tags_.put(kTagOnline, "0");
  runs_.begin("disk");
  const PlacedOrder placed = place();
  EXPECT_EQ(placed.answer.exitCode, ExitCode::refused);
  EXPECT_THAT(placed.answer.line, AllOf(HasSubstr("disk"), HasSubstr("under way")));
  EXPECT_THAT(journal_.all(), IsEmpty());
}

TEST_F(PlaceOrder, IgnoresAnEarlierOrderThatIsNotPending) {
  tags_.putOrder("disk", "8");
  tags_.put(kTagOnline, "0");
  EXPECT_EQ(place().answer.exitCode, ExitCode::finished);
}

TEST_F(PlaceOrder, IsCalledOffWhenTheProgramCannotBeStarted) {
  starts_ = false;
  const PlacedOrder placed = place();
  EXPECT_EQ(placed.answer.exitCode, ExitCode::failed);
  EXPECT_THAT(placed.answer.line, HasSubstr("/opt/calvero"));
  EXPECT_EQ(placed.program, nullptr);
  EXPECT_THAT(journal_.all(), ElementsAre(kStored, "start /opt/calvero", "store cvrOnline=0"));
}

TEST_F(PlaceOrder, StartsNothingWhenTheStoreCannotBeWritten) {
  tags_.setWritable(false);
  EXPECT_THROW(place(), TagStoreFailure);
  EXPECT_THAT(journal_.all(), IsEmpty());
}

TEST_F(PlaceOrder, StoresNothingWhenTheStoreCannotBeRead) {
  tags_.setReadable(false);
  EXPECT_THROW(place(), TagStoreFailure);
  EXPECT_THAT(journal_.all(), IsEmpty());
}

class OrderWatchTest : public ::testing::Test {
 protected:
  [[nodiscard]] Answer result() const { return watch_.result("stick (/media/stick)", 2); }
  bool look() { return watch_.hasEnded(); }

  Journal journal_;
  FakeOrderTags tags_{journal_};
  FakeProgram program_;
  bool hasLeft_ = false;
  OrderWatch watch_{tags_, program_, [this] { return hasLeft_; }};
};

TEST_F(OrderWatchTest, WaitsForTheProgramAlsoOnceThereIsAStatus) {
  EXPECT_FALSE(look());
  tags_.put(kTagStatus, kStatusFinished);
  EXPECT_FALSE(look());
  program_.end();
  EXPECT_TRUE(look());
  EXPECT_EQ(result().exitCode, ExitCode::finished);
  EXPECT_THAT(result().line, AllOf(StartsWith("Finished: "), HasSubstr("stick (/media/stick)"),
                                   HasSubstr("method 3 (dod)"), HasSubstr("calvero-cli clear")));
}

TEST_F(OrderWatchTest, DoesNotWaitForAProgramThatHasLeftAndIsKeptByTheKernel) {
  hasLeft_ = true;
  EXPECT_FALSE(look()) << "it may have ended without a status";
  tags_.put(kTagStatus, kStatusFailed);
  EXPECT_TRUE(look());
  EXPECT_EQ(result().exitCode, ExitCode::failed);
  tags_.put(kTagCancel, "1");
  EXPECT_TRUE(look());
  EXPECT_EQ(result().exitCode, ExitCode::cancelled) << "the tags tell where the exit code does not";
}

TEST_F(OrderWatchTest, ReportsFailedWritesOfAFinishedRunAsFailed) {
  tags_.put(kTagStatus, kStatusFinished);
  program_.end(1);
  EXPECT_TRUE(look());
  EXPECT_EQ(result().exitCode, ExitCode::failed);
  EXPECT_THAT(result().line, AllOf(StartsWith("Failed: "), HasSubstr("may remain readable")));
}

TEST_F(OrderWatchTest, ReportsAPartialRunInBytesAsFailed) {
  tags_.put(kTagResult, "partial free=111000000 covered=9200000");
  tags_.put(kTagStatus, kStatusFinished);
  program_.endWithoutCode("in an unknown way");
  EXPECT_TRUE(look());
  EXPECT_EQ(result().exitCode, ExitCode::failed);
  EXPECT_THAT(result().line, AllOf(StartsWith("Partial: 9.20 MB of 111.00 MB of free space erased on stick"),
                                   HasSubstr("may remain readable")));
}

TEST_F(OrderWatchTest, SaysThatARunWithoutDataHasOverwrittenNothing) {
  tags_.put(kTagResult, "nothing free=111000000 covered=0");
  tags_.put(kTagStatus, kStatusFinished);
  program_.end();
  EXPECT_TRUE(look());
  EXPECT_EQ(result().exitCode, ExitCode::finished);
  EXPECT_THAT(result().line, StartsWith("Nothing was overwritten: this method writes no data. "));
}

TEST_F(OrderWatchTest, TellsWhyARunWasEndedAtOnce) {
  tags_.put(kTagResult, "failed free=5 covered=1 cause=storage-full");
  tags_.put(kTagStatus, kStatusFailed);
  program_.end(1);
  EXPECT_TRUE(look());
  EXPECT_EQ(result().exitCode, ExitCode::failed);
  EXPECT_THAT(result().line, HasSubstr("the storage under stick (/media/stick) is full"));
}

TEST_F(OrderWatchTest, ReportsALostVolumeAsFailed) {
  tags_.put(kTagStatus, kStatusFailed);
  tags_.put(kTagCancel, "1");  // which the run had no time to follow
  program_.end(1);
  EXPECT_TRUE(look());
  EXPECT_EQ(result().exitCode, ExitCode::failed);
  EXPECT_THAT(result().line, AllOf(StartsWith("Failed: "), HasSubstr("may remain readable")));
}

TEST_F(OrderWatchTest, ReportsARunThatWasCancelledByOtherMeansThanATagAsCancelled) {
  tags_.put(kTagStatus, kStatusFailed);
  program_.end(4);
  EXPECT_TRUE(look());
  EXPECT_EQ(result().exitCode, ExitCode::cancelled);
}

TEST_F(OrderWatchTest, ReportsARunThatHasFollowedARequestAsCancelledWhereNoExitCodeIsKnown) {
  tags_.put(kTagCancel, "0");
  tags_.put(kTagStatus, kStatusFailed);
  program_.endWithoutCode("in an unknown way");
  EXPECT_TRUE(look());
  EXPECT_EQ(result().exitCode, ExitCode::cancelled);
  EXPECT_THAT(result().line, StartsWith("Cancelled: "));
}

TEST_F(OrderWatchTest, TellsALostVolumeFromACancelByTheResultWhereNoExitCodeIsKnown) {
  hasLeft_ = true;
  tags_.put(kTagCancel, "later");
  tags_.put(kTagResult, "failed free=5 covered=1");
  tags_.put(kTagStatus, kStatusFailed);
  EXPECT_TRUE(look());
  EXPECT_EQ(result().exitCode, ExitCode::failed);
  tags_.put(kTagResult, "cancelled free=5 covered=1");
  EXPECT_TRUE(look());
  EXPECT_EQ(result().exitCode, ExitCode::cancelled);
}

TEST_F(OrderWatchTest, RemembersARequestThatIsTakenBackBeforeTheEnd) {
  tags_.put(kTagCancel, "1");
  EXPECT_FALSE(look());
  tags_.put(kTagCancel, "");
  tags_.put(kTagStatus, kStatusFailed);
  program_.endWithoutCode("in an unknown way");
  EXPECT_TRUE(look());
  EXPECT_EQ(result().exitCode, ExitCode::cancelled);
}

TEST_F(OrderWatchTest, ReportsARunThatFinishesInSpiteOfARequestAsFinished) {
  tags_.put(kTagCancel, "1");
  tags_.put(kTagStatus, kStatusFinished);
  program_.end();
  EXPECT_TRUE(look());
  EXPECT_EQ(result().exitCode, ExitCode::finished);
}

TEST_F(OrderWatchTest, ReportsAProgramThatEndsWithoutAStatusAsFailed) {
  program_.endWithoutCode("signal 9");
  EXPECT_TRUE(look());
  EXPECT_EQ(result().exitCode, ExitCode::failed);
  EXPECT_THAT(result().line, AllOf(HasSubstr("without a status"), HasSubstr("signal 9")));
}

TEST_F(OrderWatchTest, OutlastsAStoreThatCannotBeReadForAWhile) {
  tags_.setReadable(false);
  EXPECT_FALSE(look());
  tags_.setReadable(true);
  tags_.put(kTagStatus, kStatusFinished);
  program_.end();
  EXPECT_TRUE(look());
  EXPECT_EQ(result().exitCode, ExitCode::finished);
}

TEST_F(OrderWatchTest, TellsOfAnUnreadableStoreWhenTheProgramHasEnded) {
  tags_.setReadable(false);
  program_.end();
  EXPECT_THROW(look(), TagStoreFailure);
}

}  // namespace
}  // namespace calvero
