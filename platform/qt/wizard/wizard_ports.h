#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/dbus/session_notifications.h"
#include "platform/linux/detached_threads.h"
#include "platform/linux/kernel_random.h"
#include "platform/linux/linux_volumes.h"
#include "platform/linux/posix_files.h"
#include "platform/linux/syslog_log.h"
#include "platform/qt/event_dispatch.h"
#include "platform/qt/main_window.h"
#include "platform/qt/painting_clock.h"
#include "platform/qt/pop_up_widget.h"
#include "platform/qt/qt_alerts.h"
#include "platform/qt/qt_event_loop.h"
#include "platform/qt/wizard/wizard_controls.h"
#include "platform/suite/plist_information_file.h"
#include "ports/ports.h"

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
  PosixFiles files_{volumes_};
  KernelRandom random_;
  PlistInformationFile informationFile_;
  SessionNotifications systemNotifications_{loop, log};
};

}  // namespace calvero
