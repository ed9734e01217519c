#pragma once

#include <functional>
#include <string>

#include "ports/event_loop.h"
#include "window/quit_signals.h"
#include "wipe/wipe_run.h"

namespace calvero {

class AppDelegate;
class WizardPorts;

/// Hands what the user does to the controller, from the start of the program to its end, and tells what the controller
/// leaves unsaid: why a drive cannot be erased, how a run has ended. Event loop thread.
class WizardSession {
 public:
  WizardSession(WizardPorts& ports, AppDelegate& app);
  WizardSession(const WizardSession&) = delete;
  WizardSession& operator=(const WizardSession&) = delete;

  /// Completes the launch; the window is shown unless a wipe was ordered.
  void start();

  /// Whether a signal has asked the program to end.
  [[nodiscard]] bool wasToldToEnd() const { return signals_.wasSent(); }

 private:
  void connectWizard();
  void connectSideBar();
  void connectWindows();
  /// A handler that may throw: a query beyond the list of volumes does.
  std::function<void()> safely(std::function<void()> handler);

  void next();
  void proceed();
  void completionOk();
  void quit();
  /// Whether the selected volume cannot be erased, by what a look at it gave; the user has been told then.
  [[nodiscard]] bool isRefused(const Error& error);
  /// Whether there is a command with which the administrator erases the selected volume; it has been shown then.
  [[nodiscard]] bool showsAdministratorCommand();
  void inform(const std::string& message);

  /// From now on the run is looked at until it has ended.
  void followRun();
  void look();
  void stopLooking();
  void tellLostVolume();
  void showOutcome();

  void noteSelection();
  /// The volume that was selected stays selected, and its tile is the one that is drawn so.
  void settlePicker();
  void describeNothing();

  WizardPorts& ports_;
  AppDelegate& app_;
  QuitSignals signals_;
  RunPtr run_;
  TimerId looking_ = kNoTimer;
  bool isFlawed_ = false;      // something of the run could not be done
  bool listsAfterOk_ = false;  // the list of volumes is known to be out of date
  bool isSettling_ = false;
  bool isAsking_ = false;  // before a run
  std::string selectedName_;
};

}  // namespace calvero
