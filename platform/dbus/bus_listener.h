#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <thread>

#include "platform/dbus/notification_signal.h"

namespace calvero {

/// A connection to the session bus, and the thread that alone uses it.
class BusListener {
 public:
  using FailureReport = std::function<void(const std::string&)>;

  /// Starts to connect and returns at once. `onFailure` learns why nothing is received, or nothing any more; once at
  /// most, on this thread or the listener's.
  explicit BusListener(FailureReport onFailure);
  BusListener(const BusListener&) = delete;
  BusListener& operator=(const BusListener&) = delete;
  /// Once it returns no callback is running or will be called. Takes half a second at most: a thread that a hanging bus
  /// holds is left behind.
  ~BusListener();

  /// Calls `onReceived`, which must not block, on the listener's thread for every notification like `wanted`. Waits
  /// until the bus knows, or can no longer be asked, but not longer than `limit`; a bus that answers later still learns
  /// of it. Any thread.
  void subscribe(const Notification& wanted, std::function<void()> onReceived, std::chrono::milliseconds limit);

 private:
  struct Subscription;
  class Shared;

  static void listen(const std::shared_ptr<Shared>& shared);

  const FailureReport onFailure_;
  std::shared_ptr<Shared> shared_;  // none when there is no thread
  std::thread thread_;
};

}  // namespace calvero
