#include "platform/dbus/bus_listener.h"

#include <pthread.h>
#include <sdbus-c++/IConnection.h>

#include <condition_variable>
#include <cstddef>
#include <exception>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

#include "platform/dbus/wake_up.h"
#include "platform/threads/stop_signals_blocked.h"

namespace calvero {

namespace {

constexpr std::chrono::milliseconds kLongestEnd{500};

}  // namespace

struct BusListener::Subscription {
  Notification wanted;
  std::function<void()> onReceived;
};

/// What the thread shares with its listener, which it may outlive.
class BusListener::Shared {
 public:
  explicit Shared(FailureReport onFailure) : onFailure_(std::move(onFailure)) {}

  // The listener's side.

  void subscribe(Subscription subscription, std::chrono::milliseconds limit) {
    std::unique_lock lock(mutex_);
    wanted_.push_back(std::move(subscription));
    const std::size_t mine = ++given_;
    wakeUp_.wake();
    changed_.wait_for(lock, limit, [&] { return added_ >= mine || ended_; });
  }

  /// Whether the thread has ended before long. It calls nobody from now on.
  bool close() {
    std::unique_lock lock(mutex_);
    closed_ = true;
    wakeUp_.wake();
    return changed_.wait_for(lock, kLongestEnd, [this] { return ended_; });
  }

  // The thread's side.

  /// The subscriptions that the bus does not know yet; nothing once the listener is closed.
  std::optional<std::vector<Subscription>> takeWanted() {
    const std::scoped_lock lock(mutex_);
    if (closed_) return std::nullopt;
    return std::exchange(wanted_, {});
  }

  void noteAdded() {
    const std::scoped_lock lock(mutex_);
    ++added_;
    changed_.notify_all();
  }

  void deliver(const Subscription& subscription, sdbus::Message& message) {
    if (readNotification(message) != subscription.wanted) return;
    const std::scoped_lock lock(mutex_);
    if (!closed_) subscription.onReceived();
  }

  void waitForWork(const sdbus::IConnection& connection) const {
    const auto bus = connection.getEventLoopPollData();
    wakeUp_.waitFor(bus.fd, bus.events, bus.getPollTimeout());
  }

  void fail(const std::string& reason) {
    const std::scoped_lock lock(mutex_);
    if (!closed_) onFailure_(reason);
  }

  void noteEnd() {
    const std::scoped_lock lock(mutex_);
    ended_ = true;
    changed_.notify_all();
  }

 private:
  const FailureReport onFailure_;
  const WakeUp wakeUp_;
  std::mutex mutex_;
  std::condition_variable changed_;
  // Guarded by the mutex:
  std::vector<Subscription> wanted_;
  std::size_t given_ = 0;
  std::size_t added_ = 0;
  bool closed_ = false;
  bool ended_ = false;
};

BusListener::BusListener(FailureReport onFailure) : onFailure_(std::move(onFailure)) {
  try {
    shared_ = std::make_shared<Shared>(onFailure_);
    const StopSignalsBlocked blocked;
    thread_ = std::thread(&BusListener::listen, shared_);
  } catch (const std::exception& failure) {
    shared_ = nullptr;
    onFailure_(failure.what());
  }
}

BusListener::~BusListener() {
  if (!shared_) return;
  if (shared_->close()) {
    thread_.join();
  } else {
    thread_.detach();
  }
}

void BusListener::subscribe(const Notification& wanted, std::function<void()> onReceived,
                            std::chrono::milliseconds limit) {
  if (shared_) shared_->subscribe({.wanted = wanted, .onReceived = std::move(onReceived)}, limit);
}

void BusListener::listen(const std::shared_ptr<Shared>& shared) {
  ::pthread_setname_np(::pthread_self(), "calvero-dbus");
  try {
    const auto connection = sdbus::createSessionBusConnection();
    while (auto wanted = shared->takeWanted()) {
      for (Subscription& subscription : *wanted) {
        const std::string rule = matchRule(subscription.wanted);
        connection->addMatch(
            rule, [shared, mine = std::move(subscription)](sdbus::Message& message) { shared->deliver(mine, message); },
            sdbus::floating_slot);
        shared->noteAdded();
      }
      if (!connection->processPendingRequest()) shared->waitForWork(*connection);
    }
  } catch (const std::exception& failure) {
    shared->fail(failure.what());
  }
  shared->noteEnd();
}

}  // namespace calvero
