#pragma once

#include "platform/linux/process/steady_clock.h"

namespace calvero::testing {

/// Short pauses, but pauses: without any the clock's thread would flood the event loop.
class HastyClock : public SteadyClock {
 public:
  void sleep(Duration duration) override { SteadyClock::sleep(duration / 400); }
};

}  // namespace calvero::testing
