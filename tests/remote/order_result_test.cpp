#include "remote/order_result.h"

#include <gtest/gtest.h>

#include "remote/remote_order.h"

namespace calvero {
namespace {

constexpr RunAccount kAccount{.freeAtStart = 111'000'000, .covered = 9'200'000, .notHeld = 5, .faults = 2, .passes = 0};

TEST(OrderResult, IsAWordAndFigures) {
  EXPECT_EQ(resultTag({.outcome = RunOutcome::finished, .grade = RunGrade::partial, .account = kAccount}),
            "partial free=111000000 covered=9200000 not-held=5 faults=2");
  EXPECT_EQ(resultTag({.outcome = RunOutcome::failed, .account = kAccount, .cause = ErrorCode::storageFull}),
            "failed free=111000000 covered=9200000 not-held=5 faults=2 cause=storage-full");
  EXPECT_EQ(resultTag({.outcome = RunOutcome::cancelled, .account = {}}),
            "cancelled free=0 covered=0 not-held=0 faults=0");
}

TEST(OrderResult, IsReadAsItWasWritten) {
  const auto read =
      resultFromTag(resultTag({.outcome = RunOutcome::failed, .account = kAccount, .cause = ErrorCode::storageFull}));
  ASSERT_TRUE(read);
  EXPECT_EQ(read->outcome, RunOutcome::failed);
  EXPECT_EQ(read->cause, ErrorCode::storageFull);
  EXPECT_EQ(read->account.freeAtStart, kAccount.freeAtStart);
  EXPECT_EQ(read->account.covered, kAccount.covered);
  EXPECT_EQ(read->account.notHeld, kAccount.notHeld);
  EXPECT_EQ(read->account.faults, kAccount.faults);
}

TEST(OrderResult, PassesOverWhatItDoesNotKnow) {
  const auto read = resultFromTag("nothing later=1 covered=x free=7");
  ASSERT_TRUE(read);
  EXPECT_EQ(read->grade, RunGrade::nothing);
  EXPECT_EQ(read->account.freeAtStart, 7U);
  for (const char* other : {"", " ", "free=7", "Partial", "2"}) EXPECT_FALSE(resultFromTag(other)) << other;
}

TEST(OrderResult, CountsOnlyBesideTheStatusItWasWrittenWith) {
  EXPECT_TRUE(resultOfStatus("partial free=1", kStatusFinished));
  EXPECT_FALSE(resultOfStatus("partial free=1", kStatusFailed));
  EXPECT_TRUE(resultOfStatus("failed", kStatusFailed));
  EXPECT_FALSE(resultOfStatus("failed", kStatusFinished));
  EXPECT_FALSE(resultOfStatus("failed", ""));
}

}  // namespace
}  // namespace calvero
