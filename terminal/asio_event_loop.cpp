#include "terminal/asio_event_loop.h"

#include <asio/post.hpp>
#include <utility>

namespace calvero {

struct AsioEventLoop::Timer {
  asio::steady_timer timer;
  std::chrono::milliseconds interval;
  TimerKind kind;
  std::function<void()> action;
};

AsioEventLoop::AsioEventLoop() : keepsServing_(asio::make_work_guard(context_)), thread_(std::this_thread::get_id()) {}

AsioEventLoop::~AsioEventLoop() {
  dropTasks();
}

void AsioEventLoop::post(std::function<void()> task) {
  const std::scoped_lock lock(mutex_);
  if (!takesTasks_) return;  // the caller's argument is destroyed after the lock is given back
  tasks_.push_back(std::move(task));
  asio::post(context_, [this] { runOldestTask(); });
}

void AsioEventLoop::runOldestTask() {
  std::function<void()> task;
  {
    const std::scoped_lock lock(mutex_);
    if (tasks_.empty()) return;
    task = std::move(tasks_.front());
    tasks_.pop_front();
  }
  task();
}

bool AsioEventLoop::isEventLoopThread() const {
  return std::this_thread::get_id() == thread_;
}

TimerId AsioEventLoop::startTimer(std::chrono::milliseconds interval, TimerKind kind, std::function<void()> action) {
  const TimerId id = ++lastTimer_;
  const auto timer = std::make_shared<Timer>(Timer{asio::steady_timer(context_), interval, kind, std::move(action)});
  timers_.emplace(id, timer);
  arm(id, timer);
  return id;
}

void AsioEventLoop::stopTimer(TimerId timer) {
  timers_.erase(timer);
}

void AsioEventLoop::arm(TimerId id, const std::shared_ptr<Timer>& timer) {
  timer->timer.expires_after(timer->interval);
  timer->timer.async_wait([this, id](const asio::error_code& error) {
    if (!error) fire(id);
  });
}

void AsioEventLoop::fire(TimerId id) {
  const auto found = timers_.find(id);
  if (found == timers_.end()) return;  // stopped while its turn was already due
  const auto timer = found->second;    // lives on if its own action stops it
  if (timer->kind == TimerKind::repeating) {
    arm(id, timer);
  } else {
    timers_.erase(found);
  }
  timer->action();
}

bool AsioEventLoop::serveUntil(const std::function<bool()>& done, std::chrono::milliseconds limit) {
  const auto end = std::chrono::steady_clock::now() + limit;
  const TimerId wakesAtTheEnd = startTimer(limit, TimerKind::oneShot, [] {});
  runUntil([&] { return done() || std::chrono::steady_clock::now() >= end; });
  stopTimer(wakesAtTheEnd);
  return done();
}

void AsioEventLoop::terminate() {
  context_.stop();
}

void AsioEventLoop::run() {
  struct Closer {
    AsioEventLoop& loop;
    ~Closer() { loop.dropTasks(); }
  } closer{*this};
  context_.run();
}

void AsioEventLoop::runUntil(const std::function<bool()>& done) {
  while (!done() && !context_.stopped()) context_.run_one();
}

void AsioEventLoop::dropTasks() {
  std::deque<std::function<void()>> dropped;
  const std::scoped_lock lock(mutex_);
  takesTasks_ = false;
  dropped.swap(tasks_);
}

}  // namespace calvero
