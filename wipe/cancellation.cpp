#include <chrono>
#include <exception>
#include <system_error>

#include "app/app_delegate.h"
#include "ports/alerts.h"
#include "ports/clock.h"
#include "ports/controls.h"
#include "ports/event_loop.h"
#include "ports/files.h"
#include "ports/system_log.h"
#include "ports/threads.h"

namespace calvero {
namespace {

constexpr Colour kOrange{1.0, 119.0 / 255.0, 52.0 / 255.0, 1.0};
constexpr std::chrono::seconds kTimeToReadOfTheAbort{3};

/// A cancel waits for as long as the clean-up makes progress; so many intervals without any end the wait. A medium that
/// hangs may never answer, and must not hold up the window. One interval is not enough: a process that was halted finds
/// it over when it goes on.
constexpr int kMostIntervalsWithoutProgress = 2;
constexpr std::chrono::seconds kProgressInterval{4};

}  // namespace

void AppDelegate::cancelWipe() {
  const RunPtr run = run_;
  // Before the flags, since a worker that sees them may be about to end the application.
  CancelWait idle = CancelWait::none;
  const bool isFirst = cancelWait_.compare_exchange_strong(idle, CancelWait::waiting);
  const bool comesInTime = run->cancel();
  ++shell_.cancelNumber;
  Controls& controls = ports_.controls;
  controls.hide(Control::proceedBtn);
  controls.setText(Control::labelPhase, localised("Please wait, finishing current process.."));
  controls.setProgressIndeterminate();
  if (!isFirst) return;  // one is under way already and goes on for both
  removeFilesAside(run);
  if (run->applicationEnding != 0 || !comesInTime) return;
  if (order_.cloudInitiation != 0) {
    endCancelledRemoteRun();
  } else if (order_.cloudTerm != 0) {
    ports_.eventLoop.terminate();
  } else {
    returnToFirstPageAfterCancel();
  }
}

void AppDelegate::removeFilesAside(const RunPtr& run) {
  if (!run->volume.table) run->volume = selection();  // a cancel without a run: what an earlier one left is removed
  const auto removed = std::make_shared<std::atomic<bool>>(false);
  const auto remove = [this, run, removed] {
    try {
      deleteFiles(*run);
    } catch (const std::exception& error) {
      ports_.log.line(std::string("cancel: ") + error.what());
    }
    *removed = true;
    ports_.eventLoop.post([] {});
  };
  try {
    ports_.threads.detach("calvero-cancel", remove);
  } catch (const std::system_error&) {
    remove();  // a window that stands still is better than files that stay
  }
  waitForRemoval(*removed, run->directory());  // now, since the worker lets go of the directory when it ends
  if (cancelWait_.exchange(CancelWait::none) == CancelWait::endsTheApplication) ports_.eventLoop.terminate();
}

void AppDelegate::waitForRemoval(const std::atomic<bool>& removed, const std::shared_ptr<FillerDirectory>& directory) {
  const auto cleanUpSteps = [&] { return directory ? directory->cleanUpSteps() : 0; };
  bool isRemoved = false;
  int intervalsWithoutProgress = 0;
  while (!isRemoved && intervalsWithoutProgress < kMostIntervalsWithoutProgress && !ports_.eventLoop.isEnding()) {
    const std::uint64_t steps = cleanUpSteps();
    isRemoved = ports_.eventLoop.serveUntil([&removed] { return removed.load(); }, kProgressInterval);
    intervalsWithoutProgress = cleanUpSteps() == steps ? intervalsWithoutProgress + 1 : 0;
  }
  if (!isRemoved && !ports_.eventLoop.isEnding()) {
    // The program may have to end before: what hangs in the kernel then dies when it comes back, its work undone.
    ports_.log.notice(
        "the volume does not answer; the filler files are removed as soon as it does if the program still runs then, "
        "else by the next run on it");
  }
}

void AppDelegate::returnToFirstPageAfterCancel() {
  ports_.alerts.runModal({localised("Information"), localised("Wiping process aborted"), localised("OK"), ""});
  ports_.eventLoop.post([this] { reloadVolumes(); });
  ports_.eventLoop.post([this] { reloadVolumes(); });  // others depend on two listings
  ports_.eventLoop.post([this] { back(); });
  ports_.controls.setText(Control::labelPhase, localised("Phase 1: Analyzing Data.."));
  ports_.controls.redraw(Control::labelPhase);
}

void AppDelegate::endCancelledRemoteRun() {
  cancelWait_ = CancelWait::tellingTheAbort;  // events may be served meanwhile, and another cancel among them
  popUp(kOrange, "Remote Wiping Process has been aborted.");
  // "3" also for a run that came to its end under the cancel.
  reportToOrderer(*run_, run_->outcome == RunOutcome::failed ? RunOutcome::failed : RunOutcome::cancelled);
  ports_.controls.selectPage(Page::volume);
  ports_.clock.sleep(kTimeToReadOfTheAbort);
  ports_.eventLoop.terminate();
}

void AppDelegate::OKBtn() {
  ports_.eventLoop.post([this] {
    back();
    ports_.controls.orderOut(Control::windowCompleted);
  });
}

void AppDelegate::eraseCompletedOK() {
  Controls& controls = ports_.controls;
  controls.selectPage(Page::volume);
  run_->abortErasing = 1;
  controls.hide(Control::buttonCancel);
  controls.setProgressIndeterminate();
  controls.show(Control::buttonNext);
  controls.hide(Control::buttonProceed);
  shell_.wipingProcessOn = 0;
}

}  // namespace calvero
