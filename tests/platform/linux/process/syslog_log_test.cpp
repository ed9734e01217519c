#include "platform/linux/process/syslog_log.h"

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <iostream>
#include <stdexcept>

#include "platform/linux/system/descriptor.h"

namespace calvero::testing {
namespace {

/// The system's log service, replaced in a mount namespace of the calling process.
class LogService {
 public:
  LogService() : socket_(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {
    sockaddr_un address = {.sun_family = AF_UNIX, .sun_path = "/dev/log"};
    const bool listening = ::unshare(CLONE_NEWNS) == 0 &&
                           ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                           ::mount("log", "/dev", "tmpfs", 0, nullptr) == 0 &&
                           ::bind(socket_.get(), reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    if (!listening) throw std::runtime_error("no log service");
  }

  std::string receive() {
    std::array<char, 512> text = {};
    const ssize_t bytes = ::recv(socket_.get(), text.data(), text.size(), MSG_DONTWAIT);
    return {text.data(), bytes < 0 ? 0 : static_cast<std::size_t>(bytes)};
  }

 private:
  Descriptor socket_;
};

/// Prints what the log service received for a line and a notice, and ends the process.
[[noreturn]] void logAndExit() {
  LogService service;
  SyslogLog log;
  log.line("50% of %s");
  std::cerr << "line:" << service.receive() << ':';
  log.notice("faults: 3");
  std::cerr << "notice:" << service.receive() << ':';
  ::_exit(0);
}

TEST(SyslogLogDeathTest, SendsTextsAsTheyStandUnderTheProgramsName) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can replace the log service";
  // Facility user is 1: 8 + 6 (info) and 8 + 4 (warning).
  EXPECT_EXIT(logAndExit(), ::testing::ExitedWithCode(0),
              "line:<14>.* calvero\\[[0-9]+\\]: 50% of %s:notice:<12>.* calvero\\[[0-9]+\\]: faults: 3:");
}

TEST(SyslogLog, HandsNoticesButNotLinesToTheReceiver) {
  std::string received;
  SyslogLog log([&](const std::string& text) { received += text + ';'; });
  log.line("a line of the unit tests");
  log.notice("a notice of the unit tests");
  EXPECT_EQ(received, "a notice of the unit tests;");
}

}  // namespace
}  // namespace calvero::testing
