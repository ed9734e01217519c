#pragma once

#include <asio/executor_work_guard.hpp>
#include <asio/io_context.hpp>
#include <asio/steady_timer.hpp>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <thread>

#include "ports/event_loop.h"

namespace calvero {

/// The terminal's event loop. It belongs to the thread that creates it.
class AsioEventLoop : public EventLoop {
 public:
  AsioEventLoop();
  ~AsioEventLoop() override;

  void post(std::function<void()> task) override;
  bool isEventLoopThread() const override;
  TimerId startTimer(std::chrono::milliseconds interval, TimerKind kind, std::function<void()> action) override;
  void stopTimer(TimerId timer) override;
  bool serveUntil(const std::function<bool()>& done, std::chrono::milliseconds limit) override;
  void terminate() override;
  bool isEnding() const override { return context_.stopped(); }

  /// Serves events until `terminate`. What is posted from then on is destroyed without being run, so that nobody waits
  /// for it.
  void run();
  /// Serves events until `done` says so or the loop ends. May be called from a task or timer of this loop.
  void runUntil(const std::function<bool()>& done);

  /// Serves what is due now and returns. May be called like `runUntil`.
  void runReady() { context_.poll(); }

  asio::io_context& context() { return context_; }

 private:
  struct Timer;

  void runOldestTask();
  void arm(TimerId id, const std::shared_ptr<Timer>& timer);
  void fire(TimerId id);
  void dropTasks();

  asio::io_context context_;
  asio::executor_work_guard<asio::io_context::executor_type> keepsServing_;
  const std::thread::id thread_;
  std::map<TimerId, std::shared_ptr<Timer>> timers_;
  TimerId lastTimer_ = kNoTimer;

  std::mutex mutex_;  // guards the members below; no task is run or destroyed under it
  std::deque<std::function<void()>> tasks_;
  bool takesTasks_ = true;
};

}  // namespace calvero
