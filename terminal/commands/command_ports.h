#pragma once

#include <functional>
#include <string>

#include "app/exit_code.h"
#include "platform/linux/files/linux_files.h"
#include "platform/linux/process/detached_threads.h"
#include "platform/linux/process/kernel_random.h"
#include "platform/linux/process/steady_clock.h"
#include "platform/linux/process/syslog_log.h"
#include "platform/linux/volumes/linux_volumes.h"
#include "ports/ports.h"
#include "terminal/asio_event_loop.h"
#include "terminal/line_input.h"
#include "terminal/output.h"
#include "terminal/terminal_alerts.h"
#include "terminal/terminal_controls.h"
#include "terminal/terminal_services.h"

namespace calvero {

class AppDelegate;

/// Everything that a command gives the controller. Where the dialogue goes and who answers it is the command's choice.
class CommandPorts {
 public:
  CommandPorts(Output dialogueOutput, Answering answering);
  CommandPorts(const CommandPorts&) = delete;
  CommandPorts& operator=(const CommandPorts&) = delete;

  Ports ports();

  // Both are called on the event loop thread, and are set before any other thread is started.
  /// What the log wants whoever ordered the run to know.
  std::function<void(const std::string&)> onNotice;
  /// A thread has ended by an exception: what it was doing will never be done.
  std::function<void(const std::string&)> onThreadFailure;

  const Output dialogue;
  AsioEventLoop loop;
  LineInput input;
  TerminalAlerts alerts;
  TerminalControls controls;
  SteadyClock clock;
  DetachedThreads threads{[this](const std::string& text) { passOn(onThreadFailure, text); }};

 private:
  using Receiver = std::function<void(const std::string&)>;

  /// Any thread.
  void passOn(const Receiver& receiver, const std::string& text);

  LinuxVolumes volumes_;
  LinuxFiles files_{volumes_};
  SyslogLog log_;
  KernelRandom random_;
  NoTags tagStore_;
  NotificationsOnDemand systemNotifications_{loop, log_};
  EnglishTexts texts_;
  PrintedPopUp popUp_;
  NoDesktop desktop_;
};

/// The volumes that the controller offers, in its order, as the system described them.
std::vector<MountedVolume> offeredVolumes(const AppDelegate& app);

/// A line on standard error under the program's name.
void printError(const std::string& text);

/// How the program ends that was to end with `code`: what could not be printed is told, and is no success.
ExitCode afterOutput(ExitCode code);

}  // namespace calvero
