#pragma once

#include <functional>

namespace calvero {

class SystemLog;

/// Runs what Qt's event loop calls: tasks, actions of timers, handlers of buttons. Nothing may be thrown through that
/// loop, so an exception is logged and ends here.
class EventDispatch {
 public:
  explicit EventDispatch(SystemLog& log) : log_(log) {}

  void run(const std::function<void()>& handler) const noexcept;

 private:
  SystemLog& log_;
};

}  // namespace calvero
