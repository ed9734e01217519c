#pragma once

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <fstream>
#include <stdexcept>
#include <string>

#include "tests/scoped_folder.h"

namespace calvero::testing {

/// A session bus of the test's own. Start it before there are any threads.
class BusDaemon {
 public:
  BusDaemon() {
    std::ofstream(configuration())
        << "<busconfig><type>session</type><listen>unix:path=" << folder_.path() << "/bus"
        << "</listen><auth>EXTERNAL</auth><policy context=\"default\">"
        << "<allow send_destination=\"*\"/><allow receive_sender=\"*\"/><allow own=\"*\"/></policy></busconfig>";
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
    const std::string printing = "--print-address=" + std::to_string(ends[1]);
    const std::string configured = "--config-file=" + configuration();
    id_ = ::fork();
    if (id_ == 0) {
      ::prctl(PR_SET_PDEATHSIG, SIGKILL);
      ::close(STDERR_FILENO);  // it complains about limits that no test needs
      ::execlp("dbus-daemon", "dbus-daemon", configured.c_str(), printing.c_str(), "--nofork", "--nopidfile",
               "--nosyslog", nullptr);
      ::_exit(1);
    }
    ::close(ends[1]);
    for (char letter = 0; ::read(ends[0], &letter, 1) == 1 && letter != '\n';) address_ += letter;
    ::close(ends[0]);
    if (address_.empty()) throw std::runtime_error("dbus-daemon does not start");
  }
  BusDaemon(const BusDaemon&) = delete;
  BusDaemon& operator=(const BusDaemon&) = delete;
  ~BusDaemon() { kill(); }

  [[nodiscard]] const std::string& address() const { return address_; }
  /// The address without the bus's identity.
  [[nodiscard]] std::string socketPath() const { return folder_.path() + "/bus"; }

  void kill() {
    if (id_ <= 0) return;
    ::kill(id_, SIGKILL);
    ::waitpid(id_, nullptr, 0);
    id_ = 0;
  }
  /// It answers nobody until it goes on.
  void hang() const {
    ::kill(id_, SIGSTOP);
    ::waitpid(id_, nullptr, WUNTRACED);
  }
  void goOn() const { ::kill(id_, SIGCONT); }

 private:
  [[nodiscard]] std::string configuration() const { return folder_.path() + "/session.conf"; }

  const ScopedFolder folder_;
  std::string address_;
  pid_t id_ = 0;
};

}  // namespace calvero::testing
