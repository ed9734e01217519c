#pragma once

#include <atomic>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <thread>

#include "ports/event_loop.h"

namespace calvero {

class EventDispatch;

/// The window's event loop: Qt's own. It belongs to the thread that creates it, which needs a QCoreApplication before
/// timers are started or events served.
///
/// A task has the loop's turn to itself: painting, input and timers come between any two of them. A repeating timer
/// does not fire while its own action still runs.
class QtEventLoop : public EventLoop {
 public:
  explicit QtEventLoop(EventDispatch& dispatch);
  ~QtEventLoop() override;

  void post(std::function<void()> task) override;
  bool isEventLoopThread() const override;
  TimerId startTimer(std::chrono::milliseconds interval, TimerKind kind, std::function<void()> action) override;
  void stopTimer(TimerId timer) override;
  bool serveUntil(const std::function<bool()>& done, std::chrono::milliseconds limit) override;
  /// Ends `run` and every loop nested in it, modal dialogs included. From now on no task and no timer is run.
  void terminate() override;
  bool isEnding() const override { return isEnding_; }

  /// Serves events until `terminate`; returns the exit status. What is still waiting is destroyed then, and what is
  /// posted later at once, so that nobody waits for it.
  int run();

 private:
  class Receiver;
  struct Timer {
    TimerId id;
    TimerKind kind;
    std::shared_ptr<const std::function<void()>> action;
  };

  void wakeUp();
  void runOldestTask();
  void fire(int qtTimer);
  void askWait() const;
  void dropTasks();

  EventDispatch& dispatch_;
  const std::thread::id thread_;
  const std::unique_ptr<Receiver> receiver_;
  std::map<int, Timer> timers_;  // by Qt's number, which is given again once a timer has ended
  TimerId lastTimer_ = kNoTimer;
  const std::function<void()>* innermostWait_ = nullptr;  // asks whether it may end

  std::atomic<bool> isEnding_{false};  // set under the mutex

  std::mutex mutex_;  // guards the members below; no task is run or destroyed under it
  std::deque<std::function<void()>> tasks_;
  bool isWakeUpPosted_ = false;
};

}  // namespace calvero
