#include "platform/dbus/notification_signal.h"

#include <sdbus-c++/Error.h>

#include <algorithm>
#include <cstddef>

namespace calvero {

namespace {

/// Buses and the library disagree on how to quote quotes and backslashes, refuse what is no UTF-8 and limit a rule to
/// 1024 bytes.
bool isFitForARule(const std::string& text) {
  constexpr std::size_t kMaxBytes = 256;
  return text.size() <= kMaxBytes && std::ranges::all_of(text, [](char character) {
           return character >= ' ' && character <= '~' && character != '\'' && character != '\\';
         });
}

constexpr char kText = 's';
constexpr char kNoMore = '\0';

char typeOfNextArgument(const sdbus::Message& message) {
  std::string type;
  std::string contents;
  message.peekType(type, contents);
  return type.empty() ? kNoMore : type.front();
}

}  // namespace

std::string matchRule(const Notification& wanted) {
  std::string rule = "type='signal'";
  const auto demand = [&rule](const char* key, const std::string& value) {
    rule.append(",").append(key).append("='").append(value).append("'");
  };
  demand("path", kNotificationPath);
  demand("interface", kNotificationInterface);
  demand("member", kNotificationSignal);
  if (isFitForARule(wanted.name)) demand("arg0", wanted.name);
  if (isFitForARule(wanted.object)) demand("arg1", wanted.object);
  return rule;
}

std::optional<Notification> readNotification(sdbus::Message& message) {
  try {
    Notification read;
    for (std::string* text : {&read.name, &read.object}) {
      if (typeOfNextArgument(message) != kText) return std::nullopt;
      message >> *text;
    }
    if (typeOfNextArgument(message) != kNoMore) return std::nullopt;
    return read;
  } catch (const sdbus::Error&) {
    return std::nullopt;
  }
}

}  // namespace calvero
