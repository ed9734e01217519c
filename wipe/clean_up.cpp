#include <chrono>

#include "app/app_delegate.h"
#include "ports/clock.h"
#include "ports/controls.h"
#include "ports/files.h"
#include "ports/pop_up_window.h"
#include "ports/system_log.h"
#include "wipe/filler_names.h"
#include "wipe/lost_volume.h"

namespace calvero {
namespace {

constexpr Colour kGreen{0.0, 1.0, 0.0, 1.0};
constexpr std::chrono::seconds kTimeToReadOfTheEnd{7};

std::string withVolumeName(std::string format, const std::string& name) {
  const std::string placeholder = "%@";
  const auto at = format.find(placeholder);
  return at == std::string::npos ? format : format.replace(at, placeholder.size(), name);
}

}  // namespace

void AppDelegate::deleteByFiles(WipeRun& run, std::uint64_t index) {
  if (!volumePathOf(run)) {
    run.abortErasing = 1;
    run.end(RunOutcome::failed);
    return;
  }
  const auto directory = run.directory();
  if (!directory) return;
  const Error error = directory->removeItem(run.filePathsArray[index]);
  if (meansLostVolume(error.code) && !run.stopRequested()) run.noteFault(error);
}

void AppDelegate::deleteFiles(WipeRun& run) {
  auto volumePath = volumePathOf(run);
  // A second look: the volume may have gone since the first, and nothing must be removed below its mount point then.
  if (volumePath && !ports_.files.exists(*volumePath)) volumePath.reset();
  if (!volumePath) {
    run.abortErasing = 1;
    run.end(RunOutcome::failed);
    // The volume may only be out of sight, and would stay busy while its space is held.
    if (const auto directory = run.directory()) directory->releaseSpace();
    return;
  }
  removeFillerDirectory(run, *volumePath);
  if (run.abortErasing == 0 && order_.cloudInitiation != 0) {
    reportRemoteCompletion(run);
    return;
  }
  run.screen.apply([size = getFormattedStringForSize(volumeOf(run).freeBytes())](Controls& controls) {
    controls.setText(Control::tfCleanedSize, size);
  });
}

void AppDelegate::removeFillerDirectory(WipeRun& run, const std::string& volumePath) {
  Error error;
  if (const auto directory = run.directory()) {
    directory->releaseSpace();
    run.counters.bytesNotHeld = directory->bytesNotKept();
    if (const std::uint64_t bytes = run.counters.bytesNotHeld; bytes != 0 && run.notKeptTold.exchange(1) == 0) {
      ports_.log.notice(
          getFormattedStringForSize(bytes) +
          " were not held until the end of the run, since another program removed filler files: as much of what was "
          "deleted may remain readable");
    }
    error = directory->remove();
  } else {
    error = ports_.files.removeFillerDirectory(volumePath, fillerDirectoryPath(volumePath));
  }
  run.noteRemoval(error);
  if (!error.failed() || error.code == ErrorCode::notFound) return;
  // Some file systems keep an entry while the worker still has its file open; it removes the directory when it ends.
  ports_.log.line(error.text());
  if (!meansLostVolume(error.code)) return;
  run.noteFault(error);
  run.volumeEjected = 1;
  run.abortErasing = 1;
  run.end(RunOutcome::failed);
}

void AppDelegate::logFaults(const WipeRun& run) const {
  if (run.faults() == 0) return;
  ports_.log.line(std::to_string(run.faults()) +
                  " failures, so that deleted data may remain readable; the first one: " + run.firstFault().text());
}

void AppDelegate::logGrade(const WipeRun& run) const {
  const RunAccount account = run.account();
  const RunGrade grade = gradeOf(account);
  if (grade == RunGrade::nothing) ports_.log.line("nothing was overwritten: this method writes no data");
  if (grade != RunGrade::partial) return;
  ports_.log.line("partial: of " + std::to_string(account.freeAtStart) + " bytes that were free " +
                  std::to_string(account.overwritten()) + " have been overwritten; deleted data may remain readable");
}

void AppDelegate::reportRemoteCompletion(WipeRun& run) {
  logFaults(run);
  logGrade(run);
  popUp(kGreen, withVolumeName(localised("Your admin successfuly completed\n Calvero on:%@"), order_.CDriveName));
  ports_.clock.sleep(kTimeToReadOfTheEnd);
  if (!run.claimStatus(StatusTeller::worker)) {
    run.abortErasing = 1;  // the cancel is about to set it; until then this run would pass for one that goes on
    return;
  }
  run.end(RunOutcome::finished);
  reportToOrderer(run, RunOutcome::finished);
  endApplication(run);
}

}  // namespace calvero
