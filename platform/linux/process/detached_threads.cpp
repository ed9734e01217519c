#include "platform/linux/process/detached_threads.h"

#include <pthread.h>
#include <syslog.h>

#include <condition_variable>
#include <cstddef>
#include <cstdlib>
#include <exception>
#include <mutex>
#include <thread>

#include "platform/threads/stop_signals_blocked.h"

namespace calvero {

namespace {

constexpr std::size_t kMaxNameBytes = 15;

void reportToSystemLog(const std::string& text) {
  ::syslog(LOG_ERR, "%s", text.c_str());
}

}  // namespace

struct DetachedThreads::State {
  explicit State(FailureReport report) : onFailure(std::move(report)) {}

  const FailureReport onFailure;
  std::mutex mutex;
  std::condition_variable changed;
  std::size_t running = 0;  // guarded by the mutex
};

/// Counts one thread for as long as it lives.
class DetachedThreads::Presence {
 public:
  explicit Presence(std::shared_ptr<State> state) : state_(std::move(state)) {
    const std::scoped_lock lock(state_->mutex);
    ++state_->running;
  }
  Presence(Presence&&) = default;
  Presence& operator=(Presence&&) = delete;
  ~Presence() {
    if (!state_) return;
    const std::scoped_lock lock(state_->mutex);
    --state_->running;
    state_->changed.notify_all();
  }

  void run(const std::string& name, const std::function<void()>& body) const {
    ::pthread_setname_np(::pthread_self(), name.substr(0, kMaxNameBytes).c_str());
    try {
      body();
    } catch (const std::exception& failure) {
      state_->onFailure("thread " + name + ": " + failure.what());
    } catch (...) {
      state_->onFailure("thread " + name + ": ended by an unknown exception");
    }
  }

 private:
  std::shared_ptr<State> state_;
};

DetachedThreads::DetachedThreads() : DetachedThreads(reportToSystemLog) {}

DetachedThreads::DetachedThreads(FailureReport onFailure) : state_(std::make_shared<State>(std::move(onFailure))) {}

void DetachedThreads::detach(const std::string& name, std::function<void()> body) {
  const StopSignalsBlocked blocked;
  std::thread([presence = Presence(state_), name, body = std::move(body)]() mutable {
    presence.run(name, body);
    body = nullptr;  // what it owns goes before the thread counts as ended
  }).detach();
}

bool DetachedThreads::waitForAll(std::chrono::milliseconds timeout) {
  std::unique_lock lock(state_->mutex);
  return state_->changed.wait_for(lock, timeout, [this] { return state_->running == 0; });
}

void endThreads(DetachedThreads& threads, const std::function<void()>& conclude, const std::function<int()>& code,
                std::chrono::milliseconds timeout) {
  const bool haveEnded = threads.waitForAll(timeout);
  conclude();
  if (!haveEnded) std::_Exit(code());
}

}  // namespace calvero
