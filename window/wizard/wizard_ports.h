#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/dbus/session_notifications.h"
#include "platform/linux/files/linux_files.h"
#include "platform/linux/process/detached_threads.h"
#include "platform/linux/process/kernel_random.h"
#include "platform/linux/process/syslog_log.h"
#include "platform/linux/volumes/linux_volumes.h"
#include "platform/suite/plist_information_file.h"
#include "ports/ports.h"
#include "window/event_dispatch.h"
#include "window/main_window.h"
#include "window/painting_clock.h"
#include "window/pop_up_widget.h"
#include "window/qt_alerts.h"
#include "window/qt_event_loop.h"
#include "window/wizard/wizard_controls.h"

namespace calvero {

class Localisation;
class SuiteWeb;
class TagStore;
class Workspace;

/// What the program has before it has a window, and shares with whatever face it shows.
struct SuiteServices {
  TagStore& tags;
  SuiteWeb& web;
  Workspace& workspace;
  Localisation& texts;
};

/// Everything that the window gives the controller, and the window itself. Needs a QApplication.
class WizardPorts {
 public:
  explicit WizardPorts(const SuiteServices& suite);
  WizardPorts(const WizardPorts&) = delete;
  WizardPorts& operator=(const WizardPorts&) = delete;

  Ports ports();

  /// The command for a terminal with which the administrator erases the volume mounted there. Nothing where there is
  /// no such command, or this user is the administrator.
  std::function<std::optional<std::string>(const std::string& mountPath)> commandForAdministrator;

  /// The terminal's program that would be in such a command, had a user not the right to change it; nothing where the
  /// command is offered, or there is no such program at all.
  std::function<std::optional<std::string>()> untrustedProgram;

  /// What the log wants whoever ordered the run to know. Event loop thread.
  std::function<void()> onNotice;

  const SuiteServices suite;
  SyslogLog log;
  EventDispatch dispatch{log};
  QtEventLoop loop{dispatch};
  DetachedThreads threads;
  MainWindow window;
  PopUpWidget popUp;
  WizardControls controls{window, popUp};
  QtAlerts alerts;

 private:
  PaintingClock clock_;
  LinuxVolumes volumes_;
  LinuxFiles files_{volumes_};
  KernelRandom random_;
  PlistInformationFile informationFile_;
  SessionNotifications systemNotifications_{loop, log};
};

}  // namespace calvero
