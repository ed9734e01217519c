#include "terminal/commands/wipe_command_report.h"

#include "app/app_delegate.h"
#include "app/filled_in.h"
#include "platform/linux/process/administrator.h"
#include "terminal/commands/command_words.h"
#include "terminal/json_text.h"
#include "terminal/text.h"
#include "volumes/refusal.h"
#include "wipe/lost_volume.h"

namespace calvero {
namespace {

std::string outcomeWord(const WipeReport& report) {
  switch (report.outcome) {
    case RunOutcome::finished:
      return "finished";
    case RunOutcome::failed:
      return report.exitCode == ExitCode::refused ? "refused" : "failed";
    case RunOutcome::cancelled:
      return "cancelled";
    case RunOutcome::none:
      break;
  }
  return report.exitCode == ExitCode::cancelled ? "cancelled" : "refused";
}

std::string causeOfFailure(const WipeReport& report, bool isMounted) {
  const std::string volume = volumeText(report);
  const Error& first = report.cause.failed() ? report.cause : report.firstFault;
  std::string cause = causeText(first.code, volume);
  if (first.code == ErrorCode::readOnly) return cause;
  // First, since that is what can be seen of a volume that was taken away, whatever became of its medium.
  if (!isMounted) return volume + " is not mounted any more";
  // Whatever else is full or over its quota was met by a single step, which tells more.
  if (report.cause.failed() || first.code == ErrorCode::gone) return cause;
  if (report.account.faults != 0) return printable(report.firstFault.text());
  return "the filler files on " + volume + " are gone: removed by another program, or the volume was taken away";
}

/// Faults are of many kinds: files that could not be made, opened, written, flushed or removed.
std::string stepsFailed(const WipeReport& report) {
  const std::uint64_t faults = report.account.faults;
  const std::string count = std::to_string(faults) + (faults == 1 ? " step" : " steps");
  return count + " of the run failed on " + volumeText(report) +
         ", the first one: " + printable(report.firstFault.text());
}

}  // namespace

std::string volumeText(const WipeReport& report) {
  return printable(report.volume) + " (" + printable(report.mountPath.value_or("not mounted")) + ")";
}

void addRun(WipeReport& report, const WipeRun* run) {
  if (run != nullptr) {
    report.account = run->account();
    report.bytesWritten = run->counters.bytesWritten;
    report.firstFault = run->firstFault();
    report.cause = run->cause();
    report.refusal = run->refusal();
    report.remains = run->remains();
    report.outcome = run->outcome;
  }
  report.exitCode = exitCodeOf(report.outcome, report.account);
  if (report.exitCode == ExitCode::failed && report.refusal.failed()) report.exitCode = ExitCode::refused;
}

std::string reportJson(const WipeReport& report) {
  const RunAccount& account = report.account;
  const bool isFinished = report.outcome == RunOutcome::finished;
  nlohmann::ordered_json json{{"outcome", outcomeWord(report)}};
  json["grade"] = isFinished ? nlohmann::ordered_json(wordOf(gradeOf(account))) : nullptr;
  json["message"] = report.message;
  json["volume"] = report.volume;
  json["mountPath"] = report.mountPath ? nlohmann::ordered_json(*report.mountPath) : nullptr;
  json["method"] = report.method ? nlohmann::ordered_json(*report.method + 1) : nullptr;
  json["passes"] = report.passes;
  json["freeBytes"] = report.freeBytes;
  json["freeAtStart"] = account.freeAtStart;
  json["bytesCovered"] = account.covered;
  json["bytesWritten"] = report.bytesWritten;
  json["seconds"] = report.seconds;
  json["notHeld"] = account.notHeld;
  json["shortBy"] = account.shortBy();
  json["faults"] = account.faults;
  json["firstFault"] = account.faults == 0 ? "" : report.firstFault.text();
  json["remains"] = report.remains.failed() ? nlohmann::ordered_json(report.remains.path) : nullptr;
  json["exitCode"] = static_cast<int>(report.exitCode);
  return jsonText(json);
}

std::string closingLine(const WipeReport& report) {
  if (report.outcome == RunOutcome::none) return "Cancelled: nothing was written.";
  const std::string erased = AppDelegate::getFormattedStringForSize(report.account.covered);
  const std::string time = AppDelegate::getElapsedTimeForInterval(report.seconds);
  if (report.outcome == RunOutcome::cancelled) {
    return "Cancelled after " + time + ": " + erased + " of " +
           AppDelegate::getFormattedStringForSize(report.freeBytes) + " erased on " + volumeText(report) + ".";
  }
  const RunGrade grade = gradeOf(report.account);
  if (grade == RunGrade::nothing) return kNothingOverwritten;
  const std::string begin =
      grade == RunGrade::partial ? "Partial: " + overwrittenText(report.account) : "Finished: " + erased;
  return begin + " of free space erased on " + volumeText(report) + " with method " + report.methodWord + ", " +
         std::to_string(report.passes) + (report.passes == 1 ? " pass" : " passes") + ", in " + time + ".";
}

std::string failureLine(const WipeReport& report, bool isMounted) {
  if (report.exitCode != ExitCode::failed || report.outcome == RunOutcome::cancelled) return "";
  const bool isFinished = report.outcome == RunOutcome::finished;
  if (isFinished && gradeOf(report.account) != RunGrade::partial) return "";  // something is left there, and no data
  if (isFinished && report.account.faults == 0) {
    return missingText(report.account, volumeText(report)) + kMayRemain;
  }
  if (isFinished && report.firstFault.code != ErrorCode::readOnly) return stepsFailed(report) + kMayRemain;
  return "Failed: " + causeOfFailure(report, isMounted) + kMayRemain;
}

std::string remainsLine(const WipeReport& report) {
  const Error& error = report.remains;
  if (!error.failed() || meansLostVolume(error.code)) return "";
  const std::string what = printable(error.path) + " could not be removed (" + printable(error.detail) + "); ";
  const std::string remedy = error.code == ErrorCode::notPermitted
                                 ? "lift what protects it or the folder above it (chattr -a -i, permissions), then "
                                 : "";
  return what + remedy + "remove it, or start another run, which does";
}

std::string refusalLine(const WipeReport& report, const Error& error) {
  const RefusalWords& words = refusalWords(error.code);
  const bool isToldTheAdministrator = words.administratorLine != nullptr && isAdministrator();
  return filledIn(isToldTheAdministrator ? words.administratorLine : words.line,
                  {volumeText(report), printable(error.path), printable(error.detail), printable(error.text())});
}

}  // namespace calvero
