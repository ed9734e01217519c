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
constexpr std::chrono::seconds kVolumeTimeout{2};

inline std::chrono::steady_clock::time_point volumeDeadline() {
  return std::chrono::steady_clock::now() + kVolumeTimeout;
}

/// A call to the system that may never return, since the volume's medium or server hangs. It is made on a thread of its
/// own, which then stays behind: the call must own what it uses.
template <typename Result>
class CallWithDeadline {
 public:
  explicit CallWithDeadline(std::function<Result()> call) {
    auto promise = std::make_shared<std::promise<Result>>();
    result_ = promise->get_future();
    try {
      const StopSignalsBlocked blocked;
      std::thread([promise, call = std::move(call)] { promise->set_value(call()); }).detach();
    } catch (const std::system_error&) {
      // No thread is to be had: there will be no result.
    }
  }

  /// The result; nothing when it has not come by `deadline`. Once.
  std::optional<Result> resultBy(std::chrono::steady_clock::time_point deadline) {
    if (result_.wait_until(deadline) != std::future_status::ready) return std::nullopt;
    try {
      return result_.get();
    } catch (const std::future_error&) {
      return std::nullopt;
    }
  }

 private:
  std::future<Result> result_;
};

}  // namespace calvero
