#pragma once

#include <chrono>

#include "terminal/commands/command_ports.h"
#include "terminal/progress_view.h"
#include "terminal/stop_signals.h"
#include "wipe/wipe_run.h"

namespace calvero {

class AppDelegate;

/// One run from its first question to its end: what the progress page, the Cancel button and the completion window are
/// to a person. From its creation on, a signal ends the prompt under way or cancels the run.
class WipeCommandSession {
 public:
  WipeCommandSession(CommandPorts& ports, AppDelegate& app, const Output& progressOutput, ProgressStyle style);
  WipeCommandSession(const WipeCommandSession&) = delete;
  WipeCommandSession& operator=(const WipeCommandSession&) = delete;

  /// Confirms and carries out the run. It must be ready: a volume and a method are chosen. Returns when the run has
  /// ended, though its threads may still be on their way out.
  void run();

  /// The run; null if it never started.
  [[nodiscard]] const RunPtr& theRun() const { return run_; }
  [[nodiscard]] double seconds() const { return seconds_; }

 private:
  void start();
  void look();
  void stop();
  void giveUp(const std::string& reason);
  void end();
  void showCaption(Control control);
  [[nodiscard]] std::chrono::duration<double> sinceStart();
  [[nodiscard]] ProgressFigures figures();

  CommandPorts& ports_;
  AppDelegate& app_;
  ProgressView view_;
  MeanSpeed speed_;
  StopSignals signals_;
  RunPtr run_;
  std::uint64_t freeBytes_ = 0;
  double seconds_ = 0;
  bool hasEnded_ = false;
  bool isCancelling_ = false;
  bool isCancelShown_ = false;
};

}  // namespace calvero
