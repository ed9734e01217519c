#include "platform/dbus/session_notifications.h"

#include <chrono>
#include <utility>

#include "ports/event_loop.h"
#include "ports/system_log.h"

namespace calvero {

namespace {

constexpr std::chrono::milliseconds kLongestSubscribing{500};

}  // namespace

SessionNotifications::SessionNotifications(EventLoop& eventLoop, SystemLog& log)
    : eventLoop_(eventLoop), listener_([&log](const std::string& reason) {
        log.line("no notifications of other programs are received: " + reason);
      }) {}

void SessionNotifications::observe(const std::string& name, const std::string& object, std::function<void()> action) {
  const auto& kept = actions_.emplace_back(std::make_shared<const Action>(std::move(action)));
  listener_.subscribe(
      {.name = name, .object = object},
      [&eventLoop = eventLoop_, waiting = std::weak_ptr(kept)] {
        eventLoop.post([waiting] {
          if (const auto current = waiting.lock()) (*current)();
        });
      },
      kLongestSubscribing);
}

}  // namespace calvero
