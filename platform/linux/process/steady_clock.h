#pragma once

#include "ports/clock.h"

namespace calvero {

class SteadyClock : public Clock {
 public:
  /// Goes on while the machine is suspended.
  Duration now() override;
  /// Sleeps the whole time even if signals arrive.
  void sleep(Duration duration) override;
};

}  // namespace calvero
