#pragma once

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>
#include <stdexcept>

namespace calvero::testing {

/// A process of its own that does one thing; it ends with the test. It shares no thread with this one: start it before
/// there are any.
class ChildProcess {
 public:
  explicit ChildProcess(const std::function<bool()>& body) : id_(::fork()) {
    if (id_ != 0) return;
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    ::_exit(succeeds(body) ? 0 : 1);
  }
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;
  ~ChildProcess() {
    if (id_ > 0) kill();
  }

  /// Waits for its end; whether the body succeeded.
  bool succeeded() { return end() == 0; }
  /// Whether it was at work until then.
  bool kill() {
    ::kill(id_, SIGKILL);
    const int status = end();
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
  }

 private:
  static bool succeeds(const std::function<bool()>& body) {
    try {
      return body();
    } catch (...) {
      return false;
    }
  }

  int end() {
    int status = -1;
    ::waitpid(id_, &status, 0);
    id_ = 0;
    return status;
  }

  pid_t id_;
};

/// Lets processes go at one moment: it is made before them, and they wait until it is opened.
class StartingGate {
 public:
  StartingGate() {
    if (::pipe(ends_) != 0) throw std::runtime_error("no pipe can be made");
  }
  StartingGate(const StartingGate&) = delete;
  StartingGate& operator=(const StartingGate&) = delete;
  ~StartingGate() {
    open();
    ::close(ends_[0]);
  }

  void open() {
    if (ends_[1] >= 0) ::close(ends_[1]);
    ends_[1] = -1;
  }
  /// In the process that waits.
  void wait() {
    open();  // its own copy
    char ignored = 0;
    while (::read(ends_[0], &ignored, 1) < 0) {
    }
  }

 private:
  int ends_[2] = {-1, -1};
};

constexpr uid_t kPlainUser = 65534;

/// Runs `body` in a process without the rights of root.
inline bool succeedsAsPlainUser(const std::function<bool()>& body) {
  return ChildProcess([&] { return (::geteuid() != 0 || ::setuid(kPlainUser) == 0) && body(); }).succeeded();
}

}  // namespace calvero::testing
