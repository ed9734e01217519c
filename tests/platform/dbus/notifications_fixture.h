#pragma once

#include <gtest/gtest.h>
#include <sdbus-c++/sdbus-c++.h>

#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "platform/dbus/session_notifications.h"
#include "ports/system_log.h"
#include "terminal/asio_event_loop.h"
#include "tests/platform/dbus/bus_daemon.h"
#include "tests/platform/suite/environment_variable.h"

namespace calvero::testing {

constexpr std::chrono::seconds kLong{30};

/// Keeps what is logged. Any thread.
class RecordingLog : public SystemLog {
 public:
  void line(const std::string& text) override {
    const std::scoped_lock lock(mutex_);
    lines_.push_back(text);
    changed_.notify_all();
  }
  void notice(const std::string& text) override { line(text); }

  [[nodiscard]] std::vector<std::string> lines() const {
    const std::scoped_lock lock(mutex_);
    return lines_;
  }
  /// Waits until something was logged.
  [[nodiscard]] bool waitForALine() {
    std::unique_lock lock(mutex_);
    return changed_.wait_for(lock, kLong, [this] { return !lines_.empty(); });
  }

 private:
  mutable std::mutex mutex_;
  std::condition_variable changed_;
  std::vector<std::string> lines_;
};

/// Another program of the session.
class OtherProgram {
 public:
  using Arguments = std::function<void(sdbus::Signal&)>;

  OtherProgram() : connection_(sdbus::createSessionBusConnection()) {}

  void send(const std::string& path, const std::string& interface, const std::string& member,
            const Arguments& addArguments) {
    const auto object = sdbus::createObject(*connection_, path);
    auto signal = object->createSignal(interface, member);
    addArguments(signal);
    object->emitSignal(signal);
  }
  void sendArguments(const Arguments& addArguments) {
    send("/com/OndrelSoftware/Notifications", "com.OndrelSoftware.Notifications", "Posted", addArguments);
  }
  void send(const std::string& name, const std::string& object) {
    sendArguments([&](sdbus::Signal& signal) { signal << name << object; });
  }
  /// Waits until the bus has passed on all that was sent.
  void waitForTheBus() {
    const auto bus = sdbus::createProxy(*connection_, "org.freedesktop.DBus", "/org/freedesktop/DBus");
    auto question = bus->createMethodCall("org.freedesktop.DBus", "GetId");
    bus->callMethod(question);
  }

 private:
  std::unique_ptr<sdbus::IConnection> connection_;
};

/// The folders under /proc of the threads that use the bus.
inline std::vector<std::string> busThreads() {
  std::vector<std::string> found;
  for (const auto& thread : std::filesystem::directory_iterator("/proc/self/task")) {
    std::string name;
    std::getline(std::ifstream(thread.path() / "comm"), name);
    if (name == "calvero-dbus") found.push_back(thread.path());
  }
  return found;
}

/// An event loop, and no bus unless a test names one.
class NotificationsTest : public ::testing::Test {
 protected:
  static constexpr const char* kName = "cancel wipe";
  static constexpr const char* kObject = "cancel";

  void useBus(const std::string& address) { address_.emplace("DBUS_SESSION_BUS_ADDRESS", address); }
  [[nodiscard]] bool serveUntil(const std::function<bool()>& done) {
    for (const auto end = std::chrono::steady_clock::now() + kLong; !done();) {
      if (std::chrono::steady_clock::now() > end) return false;
      loop_.serveUntil(done, std::chrono::milliseconds(50));  // not everything that ends the wait wakes the loop
    }
    return true;
  }
  /// A thread is listed for a moment after it was joined.
  [[nodiscard]] bool waitUntilNoThreadUsesABus() {
    return serveUntil([] { return busThreads().empty(); });
  }

  const ScopedFolder folder_;
  const EnvironmentVariable runtimeFolder_{"XDG_RUNTIME_DIR", folder_.path()};
  const EnvironmentVariable noAddress_{"DBUS_SESSION_BUS_ADDRESS", std::nullopt};
  std::optional<EnvironmentVariable> address_;
  AsioEventLoop loop_;
  RecordingLog log_;
};

/// The same with a bus.
class NotificationsOnABus : public NotificationsTest {
 protected:
  NotificationsOnABus() { useBus(bus_.address()); }

  BusDaemon bus_;
};

}  // namespace calvero::testing
