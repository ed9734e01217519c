#include "terminal/commands/wipe_command_session.h"

#include <algorithm>
#include <exception>

#include "app/app_delegate.h"
#include "terminal/text.h"

namespace calvero {
namespace {

constexpr std::chrono::milliseconds kLookInterval{100};
constexpr int kEnded = 100;  // percent

}  // namespace

WipeCommandSession::WipeCommandSession(CommandPorts& ports, AppDelegate& app, const Output& progressOutput,
                                       ProgressStyle style)
    : ports_(ports), app_(app), view_(progressOutput, style), signals_(ports.loop, [this] { stop(); }) {}

void WipeCommandSession::run() {
  freeBytes_ = app_.freeSpaceOnDisk();
  ports_.onNotice = [this](const std::string& text) {
    view_.makeRoom();
    printError(printable(text));
  };
  ports_.onThreadFailure = [this](const std::string& text) { giveUp(text); };
  ports_.controls.onText = [this](Control control) { showCaption(control); };
  ports_.controls.onCompleted = [this] {
    app_.OKBtn();
    ports_.loop.post([this] { end(); });
  };
  ports_.loop.post([this] { start(); });
  try {
    ports_.loop.run();
  } catch (const NoticeLeft&) {
    // The run was about to start; nothing of it exists yet.
  } catch (const std::exception& failure) {
    run_ = app_.currentRun();
    giveUp(failure.what());
  }
  if (run_) seconds_ = sinceStart().count();
  hasEnded_ = true;
  if (run_ && run_->outcome == RunOutcome::finished) view_.updateAtOnce(figures());
  view_.makeRoom();
}

void WipeCommandSession::start() {
  app_.proceed();
  if (ports_.controls.page() != Page::progress) {
    ports_.loop.terminate();
    return;
  }
  run_ = app_.currentRun();
  ports_.alerts.runStarted([this] { view_.makeRoom(); });
  ports_.loop.startTimer(kLookInterval, TimerKind::repeating, [this] { look(); });
}

void WipeCommandSession::look() {
  speed_.note(run_->counters.bytesCovered, sinceStart());
  view_.update(figures(), std::chrono::duration_cast<std::chrono::milliseconds>(sinceStart()));
  if (isCancelling_) return;  // the cancel is waiting for the clean-up
  // A run that loses its volume ends without a word. The end takes its place behind what the worker posted before.
  if (run_->workerEnded != 0) ports_.loop.post([this] { end(); });
}

void WipeCommandSession::stop() {
  if (ports_.input.isReading()) {
    ports_.input.interrupt();
  } else if (run_ && !isCancelling_) {
    isCancelling_ = true;
    if (run_->workerEnded == 0 && run_->outcome != RunOutcome::finished) app_.cancelWipe();
    // Behind what the cancel itself has posted.
    ports_.loop.post([this] { end(); });
  }
}

void WipeCommandSession::giveUp(const std::string& reason) {
  ports_.onNotice(reason);
  run_->end(RunOutcome::failed);
  stop();
}

void WipeCommandSession::end() {
  ports_.loop.terminate();
}

void WipeCommandSession::showCaption(Control control) {
  // A cancel may take long, and its caption must not wait for the next look.
  const bool isWaiting = isCancelling_ && run_->outcome == RunOutcome::cancelled && !isCancelShown_;
  if (control != Control::labelPhase || !isWaiting) return;
  isCancelShown_ = true;
  view_.updateAtOnce(figures());
}

std::chrono::duration<double> WipeCommandSession::sinceStart() {
  return ports_.clock.now() - run_->startedAt.value_or(ports_.clock.now());
}

ProgressFigures WipeCommandSession::figures() {
  const std::uint64_t covered = run_->counters.bytesCovered;
  const double bytesPerSecond = speed_.bytesPerSecond();
  const bool isFinished = run_->outcome == RunOutcome::finished;
  ProgressFigures shown;
  shown.percent = isFinished ? kEnded : percentOf(covered, freeBytes_);
  shown.phase = ports_.controls.text(Control::labelPhase);
  // The clock's last look was a moment before the end.
  shown.elapsed =
      hasEnded_ ? AppDelegate::getElapsedTimeForInterval(seconds_) : ports_.controls.text(Control::tfElapsedTime);
  if (isCancelling_) return shown;  // the caption must not give way to figures that no longer move

  shown.erased = AppDelegate::getFormattedStringForSize(covered);
  // More than was listed can turn up, such as space that another program has freed since.
  if (covered <= freeBytes_) shown.total = AppDelegate::getFormattedStringForSize(freeBytes_);
  if (bytesPerSecond > 0) {
    shown.rate = AppDelegate::getFormattedStringForSize(static_cast<std::uint64_t>(bytesPerSecond)) + "/s";
  }
  const auto left = remainingTime(freeBytes_ - std::min(covered, freeBytes_), bytesPerSecond);
  if (left && !isFinished) {
    shown.remaining = AppDelegate::getElapsedTimeForInterval(static_cast<double>(left->count()));
  }
  return shown;
}

}  // namespace calvero
