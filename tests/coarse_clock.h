#pragma once

#include <time.h>

#include <thread>
#include <utility>

namespace calvero::testing {

/// File systems take their times from a clock that is a few milliseconds coarse. What is made afterwards has another
/// time of birth than what was made before.
inline void waitForTheNextTimestamp() {
  const auto now = [] {
    timespec time = {};
    ::clock_gettime(CLOCK_REALTIME_COARSE, &time);
    return std::pair(time.tv_sec, time.tv_nsec);
  };
  for (const auto before = now(); now() == before;) std::this_thread::yield();
}

}  // namespace calvero::testing
