#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/dbus/bus_listener.h"
#include "ports/system_notifications.h"

namespace calvero {

class EventLoop;
class SystemLog;

/// The notifications of the user's session bus. Without a bus, or once it has gone away, nothing is received, which is
/// logged once.
class SessionNotifications : public SystemNotifications {
 public:
  /// Starts to connect and returns at once. Both must outlive the object. Event loop thread, as all of it.
  SessionNotifications(EventLoop& eventLoop, SystemLog& log);
  SessionNotifications(const SessionNotifications&) = delete;
  SessionNotifications& operator=(const SessionNotifications&) = delete;
  /// What was received and not run yet is dropped. Takes half a second at most, however the bus hangs.
  ~SessionNotifications() override = default;

  /// Whatever is sent after it returns is received, unless the bus needs more than half a second to answer: then it is
  /// what is sent after the answer.
  void observe(const std::string& name, const std::string& object, std::function<void()> action) override;

 private:
  using Action = std::function<void()>;

  EventLoop& eventLoop_;
  std::vector<std::shared_ptr<const Action>> actions_;  // the only owners, so that nothing waiting outlives them
  BusListener listener_;
};

}  // namespace calvero
