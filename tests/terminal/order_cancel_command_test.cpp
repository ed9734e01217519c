#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "terminal/commands/cancel_command.h"
#include "tests/terminal/fake_order_tags.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using testing::FakeOrderTags;
using testing::FakeRuns;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::Journal;
using ::testing::StartsWith;

class CancelOrder : public ::testing::Test {
 protected:
  Answer cancel() {
    const auto notify = [this] {
      journal_.add("notify");
      return true;
    };
    return cancelOrder(tags_, runs_.lookup(), notify).answer;
  }
  void expectRefused(const std::string& words) {
    const Answer answer = cancel();
    EXPECT_EQ(answer.exitCode, ExitCode::refused);
    EXPECT_THAT(answer.line, HasSubstr(words));
    EXPECT_THAT(journal_.all(), IsEmpty());
  }

  Journal journal_;
  FakeOrderTags tags_{journal_};
  FakeRuns runs_;
};

TEST_F(CancelOrder, SetsTheTagBeforeItNotifies) {
  tags_.putOrder("stick", "3");
  runs_.claim();
  const Answer answer = cancel();
  EXPECT_EQ(answer.exitCode, ExitCode::finished);
  EXPECT_THAT(answer.line, HasSubstr("stick"));
  EXPECT_THAT(journal_.all(), ElementsAre("store CVRCANCEL=1", "notify"));
}

TEST_F(CancelOrder, NeedsNoNotification) {
  tags_.putOrder("stick", "3");
  runs_.claim();
  const AskedToEnd asked = cancelOrder(tags_, runs_.lookup(), nullptr);
  EXPECT_EQ(asked.answer.exitCode, ExitCode::finished);
  EXPECT_FALSE(asked.isNotified);
  EXPECT_EQ(tags_.peek(kTagCancel), "1");
}

TEST_F(CancelOrder, TellsWhetherTheNotificationWentOut) {
  tags_.putOrder("stick", "3");
  runs_.claim();
  for (const bool isSent : {true, false}) {
    EXPECT_EQ(cancelOrder(tags_, runs_.lookup(), [isSent] { return isSent; }).isNotified, isSent);
  }
}

TEST_F(CancelOrder, IsRefusedWhenTheRunEndsBeforeTheRequestIsStored) {
  tags_.putOrder("stick", "3");
  runs_.claim();
  tags_.beforeStore([this] {
    tags_.put(kTagStatus, kStatusFinished);
    runs_.giveUpClaim();
  });
  expectRefused("has ended already");
  EXPECT_EQ(tags_.peek(kTagCancel), "");
}

TEST_F(CancelOrder, IsRefusedWithoutAnOrder) {
  expectRefused("There is no order");
}

TEST_F(CancelOrder, IsRefusedWithNothingStoredOrSentForAnOrderThatHasNoRun) {
  tags_.putOrder("stick", "3");
  for (const char* value : {"", "0", "1"}) {
    tags_.put(kTagCancel, value);
    expectRefused("The order for stick has no run to cancel");
    EXPECT_EQ(tags_.peek(kTagCancel), value);
  }
}

TEST_F(CancelOrder, IsRefusedOnceTheRunHasEnded) {
  tags_.putOrder("stick", "3");
  tags_.put(kTagStatus, kStatusFinished);
  expectRefused("has ended already");
}

TEST_F(CancelOrder, IsRefusedForAnOrderThatIsNotPending) {
  tags_.putOrder("stick", "3");
  tags_.put(kTagOnline, "0");
  expectRefused("not pending");
}

TEST_F(CancelOrder, ReachesARunWhoseOrderWasCalledOffOrWhoseStatusIsAnOldOne) {
  tags_.putOrder("stick", "3");
  tags_.put(kTagOnline, "0");
  tags_.put(kTagStatus, kStatusFinished);
  runs_.begin("stick");
  EXPECT_EQ(cancel().exitCode, ExitCode::finished);
}

TEST_F(CancelOrder, NotifiesNobodyWhenTheStoreCannotBeWritten) {
  tags_.putOrder("stick", "3");
  runs_.claim();
  tags_.setWritable(false);
  EXPECT_THROW(cancel(), TagStoreFailure);
  EXPECT_THAT(journal_.all(), IsEmpty());
}

class TakeBackRequest : public ::testing::Test {
 protected:
  TakeBackRequest() {
    tags_.putOrder("stick", "3");
    tags_.put(kTagCancel, "1");
  }
  std::string requestAfterwards() {
    takeBackRequest(tags_, runs_.claimLookup(), "stick");
    return tags_.peek(kTagCancel);
  }

  Journal journal_;
  FakeOrderTags tags_{journal_};
  FakeRuns runs_;
};

TEST_F(TakeBackRequest, LeavesNoneForTheNextRunOfTheOrder) {
  EXPECT_EQ(requestAfterwards(), "0");
  EXPECT_THAT(journal_.all(), ElementsAre("store CVRCANCEL=0"));
}

TEST_F(TakeBackRequest, StoresNothingWhenTheRunHasDoneSoItself) {
  for (const char* value : {"0", "", "2"}) {
    tags_.put(kTagCancel, value);
    EXPECT_EQ(requestAfterwards(), value);
  }
  EXPECT_THAT(journal_.all(), IsEmpty());
}

TEST_F(TakeBackRequest, LeavesTheRequestOfARunThatHasBegunSinceOrOfAnotherOrder) {
  runs_.claim();
  EXPECT_EQ(requestAfterwards(), "1");
  runs_.giveUpClaim();
  tags_.put(kTagDrive, "disk");
  EXPECT_EQ(requestAfterwards(), "1");
}

TEST_F(TakeBackRequest, HeedsNoRunThatLooksAtNoRequest) {
  runs_.begin("stick");
  EXPECT_EQ(requestAfterwards(), "0");
}

class CancelWatchTest : public ::testing::Test {
 protected:
  CancelWatchTest() {
    tags_.putOrder("stick", "3");
    runs_.claim();
    runs_.begin("stick");
  }

  CancelWatch watch() { return {tags_, runs_.lookup(), runs_.claimLookup(), readPendingOrder(tags_)}; }

  Journal journal_;
  FakeOrderTags tags_{journal_};
  FakeRuns runs_;
};

TEST_F(CancelWatchTest, EndsWithTheProgramThatHasToldTheStatus) {
  CancelWatch run = watch();
  EXPECT_FALSE(run.look());
  EXPECT_THAT(run.result().line, HasSubstr("has not ended yet"));
  EXPECT_EQ(run.result().exitCode, ExitCode::failed);
  runs_.end("stick");
  EXPECT_FALSE(run.look()) << "it shows a message now";
  tags_.put(kTagStatus, kStatusFailed);
  EXPECT_FALSE(run.look());
  runs_.giveUpClaim();
  EXPECT_TRUE(run.look());
  EXPECT_EQ(run.result().exitCode, ExitCode::finished);
  EXPECT_THAT(run.result().line, StartsWith("Cancelled: "));
}

TEST_F(CancelWatchTest, TellsOfARunThatWasFasterThanItsCancel) {
  CancelWatch run = watch();
  tags_.put(kTagStatus, kStatusFinished);
  runs_.end("stick");
  runs_.giveUpClaim();
  EXPECT_TRUE(run.look());
  EXPECT_EQ(run.result().exitCode, ExitCode::finished);
  EXPECT_THAT(run.result().line, StartsWith("Finished: "));
}

TEST_F(CancelWatchTest, DoesNotWaitForAVolumeThatIsKeptByAProgramThatHasLeft) {
  CancelWatch run = watch();
  EXPECT_FALSE(run.look());
  tags_.put(kTagStatus, kStatusFailed);
  runs_.giveUpClaim();
  EXPECT_TRUE(run.look());
  EXPECT_THAT(run.result().line, StartsWith("Cancelled: "));
}

TEST_F(CancelWatchTest, EndsWithAProgramThatLeavesNoStatus) {
  CancelWatch run = watch();
  EXPECT_FALSE(run.look());
  runs_.end("stick");
  runs_.giveUpClaim();
  EXPECT_TRUE(run.look());
  EXPECT_EQ(run.result().exitCode, ExitCode::finished);
  EXPECT_THAT(run.result().line, HasSubstr("has ended"));
}

TEST_F(CancelWatchTest, TakesTheProgramsEndForTheRunsWhereAnOldStatusWasLeft) {
  tags_.put(kTagStatus, kStatusFinished);
  CancelWatch run = watch();
  EXPECT_FALSE(run.look());
  runs_.end("stick");
  EXPECT_FALSE(run.look());
  runs_.giveUpClaim();
  EXPECT_TRUE(run.look());
  EXPECT_THAT(run.result().line, HasSubstr("has ended"));
}

TEST_F(CancelWatchTest, DoesNotTakeARunThatHasNotBegunForOneThatHasEnded) {
  runs_.end("stick");
  runs_.giveUpClaim();
  CancelWatch run = watch();
  EXPECT_FALSE(run.look());
  EXPECT_FALSE(run.look());
  EXPECT_EQ(run.result().exitCode, ExitCode::failed);
  EXPECT_THAT(run.result().line, HasSubstr("No run has followed"));
}

TEST_F(CancelWatchTest, OutlastsAStoreThatCannotBeReadForAWhile) {
  CancelWatch run = watch();
  tags_.setReadable(false);
  EXPECT_FALSE(run.look());
  tags_.setReadable(true);
  tags_.put(kTagStatus, kStatusFailed);
  runs_.end("stick");
  runs_.giveUpClaim();
  EXPECT_TRUE(run.look());
}

}  // namespace
}  // namespace calvero
