#pragma once

#include "platform/linux/process/steady_clock.h"

namespace calvero {

/// Time, as the window's thread may sleep it: what has changed on the screen is drawn before, since nothing is drawn
/// while that thread sleeps.
class PaintingClock : public SteadyClock {
 public:
  void sleep(Duration duration) override;
};

}  // namespace calvero
