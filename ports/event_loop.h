#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

namespace calvero {

using TimerId = std::uint64_t;
constexpr TimerId kNoTimer = 0;

enum class TimerKind { oneShot, repeating };

/// The face's event loop.
class EventLoop {
 public:
  virtual ~EventLoop() = default;

  /// Runs `task` on the event loop thread, after everything posted before it. Any thread; never blocks. A task still
  /// waiting when the program ends is destroyed without being run.
  virtual void post(std::function<void()> task) = 0;

  /// Whether the caller is the event loop thread.
  virtual bool isEventLoopThread() const = 0;

  /// Starts a timer that runs `action` on the event loop thread. Event loop thread. Never returns kNoTimer.
  virtual TimerId startTimer(std::chrono::milliseconds interval, TimerKind kind, std::function<void()> action) = 0;

  /// Stops a timer; an unknown or ended one is ignored. Event loop thread.
  virtual void stopTimer(TimerId timer) = 0;

  /// Serves events until `done` says so, asked after each event; until `limit` has passed; or until the application
  /// ends. Returns the last answer of `done`. Whoever makes `done` true posts something afterwards. Event loop thread;
  /// may be nested.
  virtual bool serveUntil(const std::function<bool()>& done, std::chrono::milliseconds limit) = 0;

  /// Asks the application to end. Any thread; returns at once, and the caller must not go on with its work.
  virtual void terminate() = 0;

  /// Whether the application has been asked to end, so that no wait serves events any more. Any thread.
  virtual bool isEnding() const = 0;
};

}  // namespace calvero
