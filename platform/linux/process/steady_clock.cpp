#include "platform/linux/process/steady_clock.h"

#include <ctime>
#include <thread>

namespace calvero {

Clock::Duration SteadyClock::now() {
  std::timespec now = {};
  ::clock_gettime(CLOCK_BOOTTIME, &now);
  return std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec);
}

void SteadyClock::sleep(Duration duration) {
  if (duration > Duration::zero()) {
    std::this_thread::sleep_for(duration);
  } else {
    std::this_thread::yield();
  }
}

}  // namespace calvero
