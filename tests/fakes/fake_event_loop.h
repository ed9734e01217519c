#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <utility>

#include "ports/event_loop.h"
#include "tests/fakes/journal.h"

namespace calvero::testing {

/// An event loop without a loop of its own.
///
/// Inline (the default): a posted task runs at once and every thread counts as the event loop thread, so that the
/// journal has the steps in the order in which the controller asked for them. Queued: posted tasks wait for `drain`,
/// and are noted as "post"; who counts as the event loop thread is set apart.
class FakeEventLoop : public EventLoop {
 public:
  enum class Posts { runAtOnce, queued };
  enum class LoopThread { everyThread, thisThreadOnly };

  explicit FakeEventLoop(Journal& journal) : journal_(journal) {}

  void setPosts(Posts posts) { posts_ = posts; }
  /// `thisThreadOnly`: the thread that made this object.
  void setLoopThread(LoopThread thread) { loopThread_ = thread; }

  /// Runs what is waiting, and what that posts in turn. Returns how many tasks ran.
  std::size_t drain() {
    std::size_t ran = 0;
    while (auto task = takeFirst()) {
      task();
      ++ran;
    }
    return ran;
  }

  /// The program's end: waiting tasks are destroyed unrun.
  void dropPosts() {
    std::deque<std::function<void()>> dropped;
    const std::scoped_lock lock(mutex_);
    dropped.swap(tasks_);
  }

  /// Blocks until at least `tasks` tasks are waiting.
  void waitForPosts(std::size_t tasks) {
    std::unique_lock lock(mutex_);
    posted_.wait(lock, [&] { return tasks_.size() >= tasks; });
  }

  /// Fires a timer as if its interval had passed. An unknown one is ignored, as a real loop never fires it.
  void fire(TimerId timer) {
    const auto found = timers_.find(timer);
    if (found == timers_.end()) return;
    const std::function<void()> action = found->second.action;  // it may stop its own timer
    if (found->second.kind == TimerKind::oneShot) timers_.erase(found);
    action();
  }

  struct Timer {
    std::chrono::milliseconds interval;
    TimerKind kind;
    std::function<void()> action;
  };
  [[nodiscard]] const std::map<TimerId, Timer>& timers() const { return timers_; }

  /// How often the application was asked to end.
  [[nodiscard]] int terminations() const { return terminations_; }

  void post(std::function<void()> task) override {
    if (posts_ == Posts::runAtOnce) return task();
    journal_.add("post");
    const std::scoped_lock lock(mutex_);
    tasks_.push_back(std::move(task));
    posted_.notify_all();
  }

  [[nodiscard]] bool isEventLoopThread() const override {
    return loopThread_ == LoopThread::everyThread || std::this_thread::get_id() == home_;
  }

  TimerId startTimer(std::chrono::milliseconds interval, TimerKind kind, std::function<void()> action) override {
    journal_.add("startTimer " + std::to_string(interval.count()) +
                 (kind == TimerKind::repeating ? " repeating" : " once"));
    timers_[++lastTimer_] = {interval, kind, std::move(action)};
    return lastTimer_;
  }

  void stopTimer(TimerId timer) override {
    if (timers_.erase(timer) != 0) journal_.add("stopTimer");
  }

  /// Runs when somebody waits while serving events: what he waits for may happen here.
  void whenServed(std::function<void()> hook) { whenServed_ = std::move(hook); }
  /// From now on waiting lasts until its limit, unless `done` was true before it began.
  void letLimitsPass() { limitsPass_ = true; }
  void whenLimitPasses(std::function<void()> hook) { whenLimitPasses_ = std::move(hook); }

  bool serveUntil(const std::function<bool()>& done, std::chrono::milliseconds limit) override {
    if (isEnding()) return done();
    if (limitsPass_) {
      if (done()) return true;
      journal_.add("limit " + std::to_string(limit.count()));
      if (whenLimitPasses_) whenLimitPasses_();
      return done();
    }
    if (whenServed_) whenServed_();
    while (!done()) {
      if (isEnding()) return false;
      if (drain() != 0) continue;
      if (posts_ == Posts::queued) {
        waitForPosts(1);  // whoever makes it done posts something afterwards
      } else {
        std::this_thread::yield();
      }
    }
    return true;
  }

  void terminate() override {
    ++terminations_;
    journal_.add("terminate");
  }
  [[nodiscard]] bool isEnding() const override { return terminations_ != 0; }

 private:
  std::function<void()> takeFirst() {
    const std::scoped_lock lock(mutex_);
    if (tasks_.empty()) return {};
    auto task = std::move(tasks_.front());
    tasks_.pop_front();
    return task;
  }

  Journal& journal_;
  std::atomic<Posts> posts_{Posts::runAtOnce};
  std::atomic<LoopThread> loopThread_{LoopThread::everyThread};
  const std::thread::id home_ = std::this_thread::get_id();
  std::atomic<int> terminations_{0};
  std::function<void()> whenServed_;
  std::function<void()> whenLimitPasses_;
  std::atomic<bool> limitsPass_{false};
  std::map<TimerId, Timer> timers_;  // event loop thread
  TimerId lastTimer_ = kNoTimer;
  mutable std::mutex mutex_;  // guards the queue
  std::condition_variable posted_;
  std::deque<std::function<void()>> tasks_;
};

}  // namespace calvero::testing
