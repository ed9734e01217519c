#pragma once

#include <functional>
#include <mutex>
#include <sstream>
#include <string>
#include <utility>

#include "ports/clock.h"
#include "tests/fakes/journal.h"

namespace calvero::testing {

/// Time that moves when a test ticks it or when somebody sleeps. Any thread.
class FakeClock : public Clock {
 public:
  explicit FakeClock(Journal& journal) : journal_(journal) {}

  void tick(Duration duration) {
    const std::scoped_lock lock(mutex_);
    now_ += duration;
  }
  /// Runs after every sleep, on the sleeper's thread, with the time slept.
  void whenSlept(std::function<void(Duration)> hook) {
    const std::scoped_lock lock(mutex_);
    hook_ = std::move(hook);
  }

  Duration now() override {
    const std::scoped_lock lock(mutex_);
    return now_;
  }

  void sleep(Duration duration) override {
    std::ostringstream entry;
    entry << "sleep " << duration.count();
    journal_.add(entry.str());
    tick(duration);
    std::function<void(Duration)> hook;
    {
      const std::scoped_lock lock(mutex_);
      hook = hook_;
    }
    if (hook) hook(duration);
  }

 private:
  Journal& journal_;
  std::mutex mutex_;
  Duration now_{1000.0};
  std::function<void(Duration)> hook_;
};

}  // namespace calvero::testing
