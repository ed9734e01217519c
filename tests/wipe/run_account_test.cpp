#include "wipe/run_account.h"

#include <gtest/gtest.h>

#include "app/exit_code.h"

namespace calvero {
namespace {

RunAccount accountOf(std::uint64_t freeAtStart, std::uint64_t covered) {
  return {.freeAtStart = freeAtStart, .covered = covered, .notHeld = 0, .faults = 0, .passes = 1};
}

TEST(RunGrade, IsCompleteWhereEverythingWasCovered) {
  EXPECT_EQ(gradeOf(accountOf(1'000, 1'000)), RunGrade::complete);
  EXPECT_EQ(gradeOf(accountOf(1'000, 5'000)), RunGrade::complete) << "somebody freed space meanwhile";
  EXPECT_EQ(gradeOf(accountOf(0, 0)), RunGrade::complete);
}

TEST(RunGrade, IsPartialWhereMoreThanOnePercentAndSixteenMegabytesAreMissing) {
  EXPECT_EQ(gradeOf(accountOf(111'000'000, 94'999'999)), RunGrade::partial);
  EXPECT_EQ(gradeOf(accountOf(111'000'000, 95'000'000)), RunGrade::complete) << "16 MB, which the file system takes";
  EXPECT_EQ(gradeOf(accountOf(2'000'000'000, 1'979'999'999)), RunGrade::partial);
  EXPECT_EQ(gradeOf(accountOf(2'000'000'000, 1'980'000'000)), RunGrade::complete) << "one percent";
}

TEST(RunGrade, IsPartialWithAFaultOrWithSpaceThatWasNotHeld) {
  RunAccount account = accountOf(1'000, 1'000);
  account.faults = 1;
  EXPECT_EQ(gradeOf(account), RunGrade::partial);
  account = accountOf(1'000, 1'000);
  account.notHeld = 1;
  EXPECT_EQ(gradeOf(account), RunGrade::partial);
}

TEST(RunGrade, IsNothingForAMethodWithoutPasses) {
  RunAccount account = accountOf(300'000'000, 0);
  account.passes = 0;
  EXPECT_EQ(gradeOf(account), RunGrade::nothing);
  account.faults = 1;
  EXPECT_EQ(gradeOf(account), RunGrade::partial) << "a failure is no success, whatever the method";
}

TEST(RunAccount, CountsSpaceThatWasNotHeldAsMissing) {
  RunAccount account = accountOf(100, 90);
  account.notHeld = 30;
  EXPECT_EQ(account.overwritten(), 60U);
  EXPECT_EQ(account.shortBy(), 40U);
  account.notHeld = 200;
  EXPECT_EQ(account.overwritten(), 0U);
}

constexpr RunAccount kComplete{.freeAtStart = 100, .covered = 100, .notHeld = 0, .faults = 0, .passes = 1};
constexpr RunAccount kFlawed{.freeAtStart = 100, .covered = 100, .notHeld = 0, .faults = 1, .passes = 1};
constexpr RunAccount kWithoutData{.freeAtStart = 100, .covered = 0, .notHeld = 0, .faults = 0, .passes = 0};

TEST(ExitCodeOf, FollowsTheOutcome) {
  EXPECT_EQ(exitCodeOf(RunOutcome::finished, kComplete), ExitCode::finished);
  EXPECT_EQ(exitCodeOf(RunOutcome::failed, kComplete), ExitCode::failed);
  EXPECT_EQ(exitCodeOf(RunOutcome::cancelled, kFlawed), ExitCode::cancelled);
  EXPECT_EQ(exitCodeOf(RunOutcome::none, kComplete), ExitCode::cancelled) << "declined";
}

TEST(ExitCodeOf, IsASuccessOnlyOfARunThatLeftNothingOut) {
  EXPECT_EQ(exitCodeOf(RunOutcome::finished, kFlawed), ExitCode::failed);
  EXPECT_EQ(exitCodeOf(RunOutcome::finished, kWithoutData), ExitCode::finished);
}

TEST(ExitCodeOf, IsAFailureWhereTheDirectoryStays) {
  for (const RunOutcome outcome : {RunOutcome::finished, RunOutcome::cancelled}) {
    RunAccount account = kComplete;
    account.directoryStays = true;
    EXPECT_EQ(exitCodeOf(outcome, account), ExitCode::failed);
    EXPECT_EQ(gradeOf(account), RunGrade::complete) << "no deleted data remains readable for it";
  }
}

}  // namespace
}  // namespace calvero
