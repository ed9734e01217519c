#include <exception>
#include <system_error>
#include <utility>

#include "app/app_delegate.h"
#include "ports/alerts.h"
#include "ports/clock.h"
#include "ports/controls.h"
#include "ports/event_loop.h"
#include "ports/files.h"
#include "ports/system_log.h"
#include "ports/threads.h"
#include "wipe/progress_percent.h"

namespace calvero {

bool AppDelegate::wipeConfirmed() {
  const Alert question{localised("Alert!!"),
                       localised("Are you sure , you want to erase the free space of selected drive?"),
                       localised("YES"), localised("NO")};
  return ports_.alerts.runModal(question) != AlertAnswer::alternateButton;
}

void AppDelegate::proceed() {
  Controls& controls = ports_.controls;
  if (order_.cloudInitiation == 0) {
    if (!wipeConfirmed()) {
      controls.hide(Control::buttonProceed);
      controls.show(Control::buttonNext);
      controls.selectPage(Page::volume);
      return;
    }
    ports_.alerts.runModal(
        {localised("Please!! \n Close all the files related to drive , as well as do not add any data to "
                   "drive during process."),
         "", "", ""});
    if (order_.cloudTerm != 0) return;  // the suite has ended the application while it asked
    controls.selectPage(Page::progress);
  }
  controls.hide(Control::buttonBack);
  controls.hide(Control::buttonHome);
  setIBObjectsBeforeWipe();

  replaceRun();
  supersedeEarlierRuns();
  run_->volume = selection();
  run_->abortErasing = 0;
  shell_.wipingProcessOn = 1;
  ports_.clock.sleep(fixed_.scale.pauseBeforeStart);
  run_->terminateThread = 0;
  startRunThreads();
}

void AppDelegate::startRunThreads() {
  const RunPtr run = run_;
  run->startedAt = ports_.clock.now();
  try {
    ports_.threads.detach("calvero-wipe", [this, run] { runWorker(*run); });
    ports_.threads.detach("calvero-clock", [this, run] { setElapsedTime(*run); });
  } catch (const std::system_error& error) {
    // The worker may have been started. It takes no further step, and leaves nothing.
    run->applicationEnding = 1;
    run->abortErasing = 1;
    run->terminateThread = 1;
    giveUp(*run, error);
  }
}

void AppDelegate::giveUp(WipeRun& run, const std::exception& error) {
  ports_.log.line(std::string("run: ") + error.what());
  run.noteFault({ErrorCode::other, "carry out", "the run", error.what()});
  reportUnknownError(run);
}

void AppDelegate::replaceRun() {
  auto fresh = std::make_shared<WipeRun>(ports_.eventLoop, ports_.controls, ports_.alerts);
  fresh->abortErasing = run_->abortErasing.load();
  fresh->terminateThread = run_->terminateThread.load();
  fresh->volumeEjected = run_->volumeEjected.load();
  // Nobody can cancel the old one any more, so it must not go on.
  run_->terminateThread = 1;
  run_->abortErasing = 1;
  run_->screen.setStanding(RunStanding::replaced);
  std::erase_if(earlierRuns_, [](const auto& earlier) { return earlier.expired(); });
  earlierRuns_.push_back(run_);
  run_ = std::move(fresh);
}

void AppDelegate::supersedeEarlierRuns() {
  for (const auto& earlier : earlierRuns_) {
    if (const RunPtr run = earlier.lock()) run->screen.setStanding(RunStanding::superseded);
  }
}

void AppDelegate::runWorker(WipeRun& run) {
  try {
    startPhaseOne(run);
  } catch (const std::exception& error) {
    giveUp(run, error);
  }
  // A run that did not get to its own clean-up, or was stopped before it, has nobody else to remove its directory.
  if (const auto directory = run.directory()) {
    if (run.outcome != RunOutcome::finished) run.noteRemoval(directory->remove());
    run.counters.bytesNotHeld = directory->bytesNotKept();
  }
  // The controller keeps the run; the volume must be free to be unmounted and for the next run all the same.
  run.setDirectory(nullptr);
  run.workerEnded = 1;
}

void AppDelegate::setPhase(WipeRun& run, const std::string& key) {
  run.screen.apply([text = localised(key)](Controls& controls) {
    controls.setText(Control::labelPhase, text);
    controls.redraw(Control::labelPhase);
  });
}

void AppDelegate::startPhaseOne(WipeRun& run) {
  ports_.log.line("terminate thread in phjase1 = " + std::to_string(run.terminateThread));
  ports_.clock.sleep(Clock::Duration::zero());
  if (run.terminateThread != 0) return;

  if (order_.cloudInitiation != 0) redirectToAlog();
  setPhase(run, "Phase 1: Analyzing Data..");
  run.screen.apply([](Controls& controls) { controls.startProgressAnimation(); });
  createFile(run);
  if (run.applicationEnding != 0) return;

  run.screen.apply([](Controls& controls) { controls.setProgressDeterminate(); });
  startDataThread();
  for (int percent = 0; percent <= 100; ++percent) {
    run.screen.apply([percent](Controls& controls) { controls.setProgress(percent); });
  }
  ports_.clock.sleep(fixed_.scale.pauseAfterLayout);
  run.screen.apply([](Controls& controls) { controls.setProgress(0); });
  startPhaseTwo(run);
}

/// It has no work, so that a run does as well without it.
void AppDelegate::startDataThread() {
  try {
    ports_.threads.detach("calvero-data", [this] { setElapsedData(); });
  } catch (const std::system_error& error) {
    ports_.log.line(std::string("run: ") + error.what());
  }
}

void AppDelegate::startPhaseTwo(WipeRun& run) {
  run.screen.apply([](Controls& controls) { controls.hide(Control::buttonNext); });
  if (run.abortErasing != 0) {
    // A cancel during phase 1 ends the application here: others depend on this outcome (docs/compatibility.md).
    reportUnknownError(run);
    return;
  }
  setPhase(run, "Phase 2: Securely Erasing Data..");
  wipeFreeSpace(run);
}

void AppDelegate::wipeFreeSpace(WipeRun& run) {
  for (std::uint64_t i = 0; i < run.filePathsArray.size(); ++i) {
    if (run.terminateThread != 0) break;
    if (run.abortErasing != 0) {
      run.screen.apply([](Controls& controls) { controls.selectPage(Page::volume); });
      return;
    }
    const int percent = progressPercent(i, run.filePathsArray.size());
    run.screen.apply([percent](Controls& controls) { controls.setProgress(percent); });

    const std::string& path = run.filePathsArray[i];
    const auto directory = run.directory();
    if (!directory || !directory->exists(path)) {
      if (run.stopRequested()) break;  // it was there at the last look, and a cancel has removed it since
      run.volumeEjected = 1;
      reportUnknownError(run);
      return;
    }
    directory->readAttributes(path);
    const FillEnd end = fillFilePath(run, path, fixed_.scale.fillerBytes);
    run.screen.apply(
        [text = getElapsedData(i)](Controls& controls) { controls.setText(Control::tfElapsedData, text); });
    if (run.screen.mainWindowVisible()) {
      run.screen.apply([](Controls& controls) { controls.redraw(Control::tfElapsedData); });
    }
    deleteByFiles(run, i);
    if (run.applicationEnding != 0) return;
    if (i + 1 == run.filePathsArray.size()) followLastFile(run, end);
  }
  finishRun(run);
}

void AppDelegate::finishRun(WipeRun& run) {
  deleteFiles(run);
  if (run.applicationEnding != 0 || run.abortErasing != 0) return;
  run.end(RunOutcome::finished);
  logFaults(run);
  logGrade(run);
  run.screen.apply([size = getFormattedStringForSize(volumeOf(run).freeBytes())](Controls& controls) {
    controls.setText(Control::tfCleanedSize, size);
    controls.setProgress(100);
  });
  run.screen.apply([](Controls& controls) { controls.bringToFront(Control::windowCompleted); });
  // The mark that the run is over: it stops the clock thread.
  run.abortErasing = 1;
}

}  // namespace calvero
