#include "platform/dbus/post_notification.h"

#include <pthread.h>
#include <sdbus-c++/sdbus-c++.h>

#include <chrono>
#include <exception>
#include <future>
#include <stdexcept>
#include <thread>
#include <utility>

#include "platform/dbus/notification_signal.h"
#include "platform/threads/stop_signals_blocked.h"
#include "ports/system_log.h"

namespace calvero {

namespace {

constexpr std::chrono::seconds kLongestPosting{2};

void send(const Notification& notification) {
  const auto connection = sdbus::createSessionBusConnection();
  const auto object = sdbus::createObject(*connection, kNotificationPath);
  auto signal = object->createSignal(kNotificationInterface, kNotificationSignal);
  signal << notification.name << notification.object;
  object->emitSignal(signal);
  // The bus works in order: its answer says that it has passed the signal on.
  const auto bus = sdbus::createProxy(*connection, "org.freedesktop.DBus", "/org/freedesktop/DBus");
  auto question = bus->createMethodCall("org.freedesktop.DBus", "GetId");
  bus->callMethod(question);
}

void sendAndTell(const Notification& notification, std::promise<void> outcome) {
  ::pthread_setname_np(::pthread_self(), "calvero-dbus");
  try {
    send(notification);
    outcome.set_value();
  } catch (...) {
    outcome.set_exception(std::current_exception());
  }
}

std::thread startSender(Notification notification, std::promise<void> outcome) {
  const StopSignalsBlocked blocked;
  return std::thread(sendAndTell, std::move(notification), std::move(outcome));
}

/// On a thread of its own, since the library cannot be interrupted while it waits for the bus. Throws what went wrong.
void sendWithTimeout(Notification notification) {
  std::promise<void> promise;
  auto outcome = promise.get_future();
  std::thread sender = startSender(std::move(notification), std::move(promise));
  if (outcome.wait_for(kLongestPosting) != std::future_status::ready) {
    sender.detach();
    throw std::runtime_error("the session bus does not answer");
  }
  sender.join();
  outcome.get();
}

}  // namespace

bool postNotification(const std::string& name, const std::string& object, SystemLog& log) {
  try {
    // The bus would take the text up to it for the whole.
    if ((name + object).find('\0') != std::string::npos) throw std::invalid_argument("a text holds a NUL");
    sendWithTimeout({.name = name, .object = object});
    return true;
  } catch (const std::exception& failure) {
    log.line("the notification \"" + name + "\" is not sent: " + failure.what());
    return false;
  }
}

}  // namespace calvero
