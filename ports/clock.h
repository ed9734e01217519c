#pragma once

#include <chrono>

namespace calvero {

/// Time that only goes forward, and does so while the machine is suspended: setting the system's clock must not change
/// an elapsed time.
class Clock {
 public:
  using Duration = std::chrono::duration<double>;  ///< seconds

  virtual ~Clock() = default;

  /// Seconds since an arbitrary fixed moment. Any thread.
  virtual Duration now() = 0;

  /// Blocks the calling thread for `duration`; a zero duration yields.
  virtual void sleep(Duration duration) = 0;
};

}  // namespace calvero
