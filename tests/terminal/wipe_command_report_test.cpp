#include "terminal/commands/wipe_command_report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "platform/linux/process/administrator.h"
#include "tests/platform/suite/child_process.h"

namespace calvero {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

constexpr bool kMounted = true;
constexpr bool kNotMounted = false;

WipeReport reportOf(RunOutcome outcome, std::uint64_t faults = 0, ErrorCode code = ErrorCode::other) {
  WipeReport report;
  report.volume = "stick";
  report.mountPath = "/media/stick";
  report.method = 2;
  report.methodWord = "dod";
  report.passes = 3;
  report.freeBytes = 2'000'000'000;
  report.account = {
      .freeAtStart = 1'005'000'000, .covered = 1'000'000'000, .notHeld = 0, .faults = faults, .passes = 3};
  report.bytesWritten = 3'000'000'000;
  report.seconds = 3725.5;
  if (faults != 0) report.firstFault = {code, "pwrite", "/media/stick/.temp0", "Input/output error"};
  report.outcome = outcome;
  report.exitCode = exitCodeOf(outcome, report.account);
  return report;
}

WipeReport finishedWith(const RunAccount& account) {
  WipeReport report = reportOf(RunOutcome::finished);
  report.account = account;
  report.exitCode = exitCodeOf(report.outcome, account);
  return report;
}

constexpr RunAccount kShort{.freeAtStart = 111'000'000, .covered = 9'200'000, .notHeld = 0, .faults = 0, .passes = 1};
constexpr RunAccount kNothing{.freeAtStart = 111'000'000, .covered = 0, .notHeld = 0, .faults = 0, .passes = 0};

TEST(PartialRun, IsToldInBytesAndIsNoSuccess) {
  const WipeReport report = finishedWith(kShort);
  EXPECT_EQ(report.exitCode, ExitCode::failed);
  EXPECT_EQ(closingLine(report),
            "Partial: 9.20 MB of 111.00 MB of free space erased on stick (/media/stick) with method dod, 3 passes, in "
            "01:02:05.");
  EXPECT_EQ(failureLine(report, kMounted),
            "101.80 MB of the free space of stick (/media/stick) have not been overwritten: another program took them "
            "during the run, or the file system gave no more; deleted data may remain readable there");
  const auto json = nlohmann::json::parse(reportJson(report));
  EXPECT_EQ(json["outcome"], "finished");
  EXPECT_EQ(json["grade"], "partial");
  EXPECT_EQ(json["shortBy"], 101'800'000);
  EXPECT_EQ(json["notHeld"], 0);
  EXPECT_EQ(json["freeAtStart"], 111'000'000);
  EXPECT_EQ(json["exitCode"], 1);
}

TEST(PartialRun, TellsOfSpaceThatCouldNotBeHeld) {
  RunAccount account = kShort;
  account.covered = 111'000'000;
  account.notHeld = 5'000'000;
  const WipeReport report = finishedWith(account);
  EXPECT_EQ(report.exitCode, ExitCode::failed);
  EXPECT_THAT(failureLine(report, kMounted), StartsWith("5.00 MB of the space overwritten on stick"));
  EXPECT_THAT(closingLine(report), StartsWith("Partial: 106.00 MB of 111.00 MB of free space erased on stick"));
}

TEST(RunWithoutData, SaysSoAndIsASuccess) {
  const WipeReport report = finishedWith(kNothing);
  EXPECT_EQ(report.exitCode, ExitCode::finished);
  EXPECT_EQ(closingLine(report), "Nothing was overwritten: this method writes no data.");
  EXPECT_EQ(failureLine(report, kMounted), "");
  EXPECT_EQ(nlohmann::json::parse(reportJson(report))["grade"], "nothing");
}

TEST(FailedRun, SaysWhatAFailedFlushMeans) {
  const auto lineFor = [](ErrorCode cause) {
    WipeReport report = reportOf(RunOutcome::failed, 2);
    report.cause.code = cause;
    return failureLine(report, kMounted);
  };
  EXPECT_EQ(lineFor(ErrorCode::storageFull),
            "Failed: the storage under stick (/media/stick) is full: it dropped what the volume had taken already, and "
            "more would damage the file system; make room there before the volume is unmounted; deleted data may "
            "remain readable there");
  EXPECT_THAT(lineFor(ErrorCode::overQuota), HasSubstr("the quota on stick (/media/stick) is used up"));
  EXPECT_THAT(lineFor(ErrorCode::gone), HasSubstr("the medium of stick (/media/stick) fails"));
  EXPECT_TRUE(nlohmann::json::parse(reportJson(reportOf(RunOutcome::failed, 2)))["grade"].is_null());
}

TEST(ClosingLine, TellsWhatWasErased) {
  EXPECT_EQ(closingLine(reportOf(RunOutcome::finished)),
            "Finished: 1.00 GB of free space erased on stick (/media/stick) with method dod, 3 passes, in 01:02:05.");
  EXPECT_EQ(closingLine(reportOf(RunOutcome::cancelled)),
            "Cancelled after 01:02:05: 1.00 GB of 2.00 GB erased on stick (/media/stick).");
  EXPECT_EQ(closingLine(reportOf(RunOutcome::none)), "Cancelled: nothing was written.");
}

TEST(FailureLine, IsEmptyWithoutAFlaw) {
  EXPECT_EQ(failureLine(reportOf(RunOutcome::finished), kMounted), "");
  EXPECT_EQ(failureLine(reportOf(RunOutcome::cancelled, 1), kMounted), "");
}

TEST(FailureLine, CountsTheFailedWritesOfAFinishedRun) {
  EXPECT_EQ(failureLine(reportOf(RunOutcome::finished, 7), kMounted),
            "7 steps of the run failed on stick (/media/stick), the first one: pwrite /media/stick/.temp0: "
            "Input/output error; "
            "deleted data may remain readable there");
}

TEST(FailureLine, NamesAVolumeThatTurnedReadOnly) {
  for (const RunOutcome outcome : {RunOutcome::finished, RunOutcome::failed}) {
    EXPECT_THAT(failureLine(reportOf(outcome, 1, ErrorCode::readOnly), kMounted),
                HasSubstr("stick (/media/stick) turned read-only during the run"));
  }
}

TEST(FailureLine, TellsAVolumeThatIsGoneFromFilesThatAreGone) {
  EXPECT_THAT(failureLine(reportOf(RunOutcome::failed), kNotMounted), HasSubstr("is not mounted any more"));
  EXPECT_THAT(failureLine(reportOf(RunOutcome::failed), kMounted), HasSubstr("filler files"));
  EXPECT_THAT(failureLine(reportOf(RunOutcome::failed, 1, ErrorCode::gone), kMounted), HasSubstr("medium"));
  EXPECT_THAT(failureLine(reportOf(RunOutcome::failed, 1, ErrorCode::gone), kNotMounted),
              HasSubstr("is not mounted any more"));
}

TEST(RefusalLine, SaysWhatToDo) {
  const WipeReport report = reportOf(RunOutcome::none);
  EXPECT_EQ(refusalLine(report, {ErrorCode::readOnly, "", "", ""}), "Read only drive, please select other drives");
  EXPECT_THAT(refusalLine(report, {ErrorCode::busy, "", "", ""}), StartsWith("Another run is wiping stick"));
  EXPECT_THAT(refusalLine(report, {ErrorCode::notOurs, "openat", "/media/stick/.x", "a symbolic link"}),
              AllOf(HasSubstr("/media/stick/.x"), HasSubstr("a symbolic link"), HasSubstr("move it away")));
  EXPECT_THAT(refusalLine(report, {ErrorCode::notFound, "", "", ""}), HasSubstr("not mounted"));
  EXPECT_THAT(refusalLine(report, {ErrorCode::thinStorage, "look below", "/media/stick", "its image /a\nb is thin"}),
              AllOf(HasSubstr("its image /a\\012b is thin"), HasSubstr("make room below it")));
  EXPECT_THAT(refusalLine(report, {ErrorCode::gone, "openat", "/a\nb", "no"}), Not(HasSubstr("\n")));
}

TEST(RefusalLine, NamesTheLeftoverThatMayNotBeChangedAndWhatToDo) {
  const std::string line = refusalLine(reportOf(RunOutcome::none),
                                       {ErrorCode::locked, "fchmod", "/media/stick/.x", "Operation not permitted"});
  EXPECT_EQ(line,
            "/media/stick/.x, which an earlier run left, may not be changed (Operation not permitted); unlock it, for "
            "example with chattr -i -a, or remove it, and start again");
}

TEST(RefusalLine, SaysNoAboutTheAdministratorOnlyOnce) {
  if (!isAdministrator()) GTEST_SKIP() << "needs root";
  EXPECT_EQ(refusalLine(reportOf(RunOutcome::none), {ErrorCode::notPermitted, "", "", ""}),
            "Not even the administrator may create files in the root folder of stick (/media/stick): it is locked, or "
            "its file system is another user's");
}

TEST(RemainsLine, NamesWhatIsLeftWhyAndWhatToDo) {
  WipeReport report = reportOf(RunOutcome::finished);
  EXPECT_EQ(remainsLine(report), "");
  report.account.directoryStays = true;
  report.exitCode = exitCodeOf(report.outcome, report.account);
  EXPECT_EQ(report.exitCode, ExitCode::failed);
  report.remains = {ErrorCode::notPermitted, "unlinkat", "/media/stick/.x", "Operation not permitted"};
  EXPECT_EQ(remainsLine(report),
            "/media/stick/.x could not be removed (Operation not permitted); lift what protects it or the folder above "
            "it (chattr -a -i, permissions), then remove it, or start another run, which does");
  EXPECT_EQ(failureLine(report, kMounted), "") << "no deleted data remains readable for it";
  report.account.faults = 2;
  EXPECT_THAT(failureLine(report, kMounted), HasSubstr("2 steps of the run failed"));
  report.remains.code = ErrorCode::gone;
  EXPECT_EQ(remainsLine(report), "") << "the failure line tells a lost volume";
}

TEST(RefusalLine, SendsAUserToTheAdministratorAndNotTheAdministrator) {
  const auto isSentTo = [](const char* word) {
    const std::string line = refusalLine(reportOf(RunOutcome::none), {ErrorCode::notPermitted, "", "", ""});
    return line.find("stick (/media/stick)") != std::string::npos && line.find(word) != std::string::npos;
  };
  EXPECT_TRUE(testing::succeedsAsPlainUser([&] { return isSentTo("as root, for example with sudo"); }));
  EXPECT_TRUE(!isAdministrator() || isSentTo("Not even the administrator may"));
}

TEST(ReportJson, HoldsTheFiguresOfTheRun) {
  const auto json = nlohmann::json::parse(reportJson(reportOf(RunOutcome::finished, 7)));
  EXPECT_EQ(json["outcome"], "finished");
  EXPECT_EQ(json["grade"], "partial") << "of a run with faults";
  EXPECT_EQ(json["message"], "");
  EXPECT_EQ(json["volume"], "stick");
  EXPECT_EQ(json["mountPath"], "/media/stick");
  EXPECT_EQ(json["method"], 3);
  EXPECT_EQ(json["passes"], 3);
  EXPECT_EQ(json["freeBytes"], 2'000'000'000U);
  EXPECT_EQ(json["bytesCovered"], 1'000'000'000);
  EXPECT_EQ(json["bytesWritten"], 3'000'000'000U);
  EXPECT_DOUBLE_EQ(json["seconds"], 3725.5);
  EXPECT_EQ(json["faults"], 7);
  EXPECT_EQ(json["firstFault"], "pwrite /media/stick/.temp0: Input/output error");
  EXPECT_EQ(json["exitCode"], 1);
}

TEST(ReportJson, TellsARefusalFromACancel) {
  WipeReport report;
  report.volume = "unknown";
  report.exitCode = ExitCode::refused;
  auto json = nlohmann::json::parse(reportJson(report));
  EXPECT_EQ(json["outcome"], "refused");
  EXPECT_TRUE(json["mountPath"].is_null());
  EXPECT_TRUE(json["method"].is_null());
  report.exitCode = ExitCode::cancelled;
  json = nlohmann::json::parse(reportJson(report));
  EXPECT_EQ(json["outcome"], "cancelled");
}

}  // namespace
}  // namespace calvero
