#pragma once

#include <functional>
#include <string>

namespace calvero {

/// Notifications that other programs of the user's session send.
class SystemNotifications {
 public:
  virtual ~SystemNotifications() = default;

  /// Runs `action` on the event loop thread for every notification with exactly this name and object. Event loop
  /// thread. Where the system has no such service nothing is ever received; that is no failure.
  virtual void observe(const std::string& name, const std::string& object, std::function<void()> action) = 0;
};

}  // namespace calvero
