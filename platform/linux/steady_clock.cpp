#include "platform/linux/steady_clock.h"

#include <thread>

namespace calvero {

Clock::Duration SteadyClock::now() {
  return std::chrono::steady_clock::now().time_since_epoch();
}

void SteadyClock::sleep(Duration duration) {
  if (duration > Duration::zero()) {
    std::this_thread::sleep_for(duration);
  } else {
    std::this_thread::yield();
  }
}

}  // namespace calvero
