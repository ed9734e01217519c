#include "platform/terminal/commands/wipe_command_report.h"

#include "app/app_delegate.h"
#include "methods/method_catalogue.h"
#include "platform/linux/administrator.h"
#include "platform/terminal/json_text.h"
#include "platform/terminal/text.h"
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
  if (report.firstFault.code == ErrorCode::readOnly) return volume + " turned read-only during the run";
  // First, since that is what can be seen of a volume that was taken away, whatever became of its medium.
  if (!isMounted) return volume + " is not mounted any more";
  if (report.firstFault.code == ErrorCode::gone) return "the medium of " + volume + " fails or has been pulled";
  if (report.faults != 0) return printable(report.firstFault.text());
  return "the filler files on " + volume + " are gone: removed by another program, or the volume was taken away";
}

/// Faults are of many kinds: files that could not be made, opened, written, flushed or removed.
std::string stepsFailed(const WipeReport& report) {
  const std::string count = std::to_string(report.faults) + (report.faults == 1 ? " step" : " steps");
  return count + " of the run failed on " + volumeText(report) +
         ", the first one: " + printable(report.firstFault.text());
}

bool isFlawedByRemainsOnly(const WipeReport& report) {
  return report.outcome == RunOutcome::finished && report.remains.failed() && report.faults == 1;
}

std::string notPermitted(const std::string& volume) {
  const std::string createFiles = " create files in the root folder of " + volume;
  if (!isAdministrator()) return "You may not" + createFiles + "; run the program as root, for example with sudo";
  return "Not even the administrator may" + createFiles + ": it is locked, or its file system is another user's";
}

}  // namespace

std::string volumeText(const WipeReport& report) {
  return printable(report.volume) + " (" + printable(report.mountPath.value_or("not mounted")) + ")";
}

ExitCode exitCodeOf(RunOutcome outcome, std::uint64_t faults) {
  switch (outcome) {
    case RunOutcome::finished:
      return faults == 0 ? ExitCode::finished : ExitCode::failed;
    case RunOutcome::failed:
      return ExitCode::failed;
    case RunOutcome::cancelled:
    case RunOutcome::none:
      break;
  }
  return ExitCode::cancelled;
}

void addRun(WipeReport& report, const WipeRun* run) {
  if (run != nullptr) {
    report.bytesCovered = run->counters.bytesCovered;
    report.bytesWritten = run->counters.bytesWritten;
    report.faults = run->faults();
    report.firstFault = run->firstFault();
    report.refusal = run->refusal();
    report.remains = run->remains();
    report.outcome = run->outcome;
  }
  report.exitCode = exitCodeOf(report.outcome, report.faults);
  if (report.outcome == RunOutcome::cancelled && report.remains.failed()) report.exitCode = ExitCode::failed;
  if (report.exitCode == ExitCode::failed && report.refusal.failed()) report.exitCode = ExitCode::refused;
}

std::string reportJson(const WipeReport& report) {
  nlohmann::ordered_json json{{"outcome", outcomeWord(report)}, {"volume", report.volume}};
  json["mountPath"] = report.mountPath ? nlohmann::ordered_json(*report.mountPath) : nullptr;
  json["method"] = report.method ? nlohmann::ordered_json(*report.method + 1) : nullptr;
  json["passes"] = report.passes;
  json["freeBytes"] = report.freeBytes;
  json["bytesCovered"] = report.bytesCovered;
  json["bytesWritten"] = report.bytesWritten;
  json["seconds"] = report.seconds;
  json["faults"] = report.faults;
  json["firstFault"] = report.faults == 0 ? "" : report.firstFault.text();
  json["exitCode"] = static_cast<int>(report.exitCode);
  return jsonText(json);
}

std::string closingLine(const WipeReport& report) {
  if (report.outcome == RunOutcome::none) return "Cancelled: nothing was written.";
  const std::string erased = AppDelegate::getFormattedStringForSize(report.bytesCovered);
  const std::string time = AppDelegate::getElapsedTimeForInterval(report.seconds);
  if (report.outcome == RunOutcome::cancelled) {
    return "Cancelled after " + time + ": " + erased + " of " +
           AppDelegate::getFormattedStringForSize(report.freeBytes) + " erased on " + volumeText(report) + ".";
  }
  const char* word = kMethodCatalogue.at(static_cast<std::size_t>(report.method.value_or(0))).word;
  return "Finished: " + erased + " of free space erased on " + volumeText(report) + " with method " + word + ", " +
         std::to_string(report.passes) + (report.passes == 1 ? " pass" : " passes") + ", in " + time + ".";
}

std::string failureLine(const WipeReport& report, bool isMounted) {
  if (report.exitCode != ExitCode::failed || report.outcome == RunOutcome::cancelled) return "";
  if (isFlawedByRemainsOnly(report)) return "";
  const std::string meaning = "; deleted data may remain readable there";
  if (report.outcome == RunOutcome::finished && report.firstFault.code != ErrorCode::readOnly) {
    return stepsFailed(report) + meaning;
  }
  return "Failed: " + causeOfFailure(report, isMounted) + meaning;
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
  const std::string volume = volumeText(report);
  switch (error.code) {
    case ErrorCode::readOnly:
      return "Read only drive, please select other drives";
    case ErrorCode::notPermitted:
      return notPermitted(volume);
    case ErrorCode::busy:
      return "Another run is wiping " + volume + "; wait until it has ended";
    case ErrorCode::notOurs:
      return printable(error.path) + " was not made by a run (" + printable(error.detail) +
             "); move it away and start again";
    case ErrorCode::locked:
      return printable(error.path) + ", which an earlier run left, may not be changed (" + printable(error.detail) +
             "); unlock it, for example with chattr -i -a, or remove it, and start again";
    case ErrorCode::thinStorage:
      return volume + " cannot be filled: " + printable(error.detail) + "; make room below it and start again";
    case ErrorCode::notFound:
      return volume + " is not mounted any more";
    default:
      return volume + " cannot be wiped: " + printable(error.text());
  }
}

}  // namespace calvero
