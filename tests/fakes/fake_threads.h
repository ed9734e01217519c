#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "ports/threads.h"
#include "tests/fakes/journal.h"

namespace calvero::testing {

/// Keeps the bodies of detached threads for the test to run by hand; or really runs them, and joins them at its end.
class FakeThreads : public Threads {
 public:
  enum class Mode { byHand, real };

  explicit FakeThreads(Journal& journal) : journal_(journal) {}
  ~FakeThreads() override { joinAll(); }

  void setMode(Mode mode) {
    const std::scoped_lock lock(mutex_);
    mode_ = mode;
  }

  /// The system has no thread to spare for those of that name.
  void refuse(const std::string& name) {
    const std::scoped_lock lock(mutex_);
    refused_ = name;
  }

  /// The name of the thread that calls, if it was really started here; else "".
  [[nodiscard]] static const std::string& current() { return current_; }

  void detach(const std::string& name, std::function<void()> body) override {
    journal_.add("detach");
    const std::scoped_lock lock(mutex_);
    if (name == refused_) throw std::system_error(std::make_error_code(std::errc::resource_unavailable_try_again));
    names_.push_back(name);
    if (mode_ == Mode::real) {
      bodies_.emplace_back();  // none that is left to run by hand
      running_.emplace_back([name, body = std::move(body)] {
        current_ = name;
        body();
      });
    } else {
      bodies_.push_back(std::move(body));
    }
  }

  /// Runs the body of the `nth` thread (from 0, since the start) on the caller's thread, once.
  void run(std::size_t nth) {
    std::function<void()> body;
    {
      const std::scoped_lock lock(mutex_);
      body.swap(bodies_.at(nth));
    }
    body();
  }

  /// Runs the threads of that name that have not been run yet, as `run` does.
  void runWaiting(const std::string& name) {
    for (std::size_t nth = 0; nth < started(); ++nth) {
      std::function<void()> body;
      {
        const std::scoped_lock lock(mutex_);
        if (names_[nth] != name) continue;
        body.swap(bodies_[nth]);
      }
      if (body) body();
    }
  }

  [[nodiscard]] std::size_t started() const {
    const std::scoped_lock lock(mutex_);
    return names_.size();
  }
  [[nodiscard]] std::vector<std::string> names() const {
    const std::scoped_lock lock(mutex_);
    return names_;
  }

  void joinAll() {
    // A thread may start another one before it ends.
    while (true) {
      std::vector<std::thread> ending;
      {
        const std::scoped_lock lock(mutex_);
        ending.swap(running_);
      }
      if (ending.empty()) return;
      for (std::thread& thread : ending) thread.join();
    }
  }

 private:
  inline static thread_local std::string current_;

  Journal& journal_;
  mutable std::mutex mutex_;  // guards the members below
  Mode mode_ = Mode::byHand;
  std::string refused_;
  std::vector<std::string> names_;
  std::vector<std::function<void()>> bodies_;
  std::vector<std::thread> running_;
};

}  // namespace calvero::testing
