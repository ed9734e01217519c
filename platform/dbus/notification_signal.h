#pragma once

#include <sdbus-c++/Message.h>

#include <optional>
#include <string>

namespace calvero {

// How a notification looks on the bus: this signal with two texts, its name and its object.
constexpr const char* kNotificationPath = "/com/OndrelSoftware/Notifications";
constexpr const char* kNotificationInterface = "com.OndrelSoftware.Notifications";
constexpr const char* kNotificationSignal = "Posted";

struct Notification {
  std::string name;
  std::string object;

  bool operator==(const Notification&) const = default;
};

/// The rule by which a bus passes on notifications like `wanted`. Others may pass it too.
std::string matchRule(const Notification& wanted);

/// What a signal that passed such a rule carries; nothing when it is not exactly two texts.
std::optional<Notification> readNotification(sdbus::Message& message);

}  // namespace calvero
