#pragma once

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

#include "platform/threads/stop_signals_blocked.h"

namespace calvero {

/// How long a volume may take to answer before it counts as hanging.
constexpr std::chrono::seconds kPatience{2};

inline std::chrono::steady_clock::time_point endOfPatience() {
  return std::chrono::steady_clock::now() + kPatience;
}

/// A question to the system that may never be answered, since the volume's medium or server hangs. It is asked on a
/// thread of its own, which then stays behind: the question must own what it uses.
template <typename Answer>
class PatientQuestion {
 public:
  explicit PatientQuestion(std::function<Answer()> question) {
    auto promise = std::make_shared<std::promise<Answer>>();
    answer_ = promise->get_future();
    try {
      const StopSignalsBlocked blocked;
      std::thread([promise, question = std::move(question)] { promise->set_value(question()); }).detach();
    } catch (const std::system_error&) {
      // No thread is to be had: the question stays unanswered.
    }
  }

  /// The answer; nothing when it has not come by `deadline`. Once.
  std::optional<Answer> answerBy(std::chrono::steady_clock::time_point deadline) {
    if (answer_.wait_until(deadline) != std::future_status::ready) return std::nullopt;
    try {
      return answer_.get();
    } catch (const std::future_error&) {
      return std::nullopt;
    }
  }

 private:
  std::future<Answer> answer_;
};

}  // namespace calvero
