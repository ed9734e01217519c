#pragma once

#include <chrono>
#include <cstdint>

#include "wipe/filler_size.h"

namespace calvero {

/// How large a run's filler files are, and how long it pauses. The programs run at the values given here; a sweep that
/// makes thousands of runs hands in its own.
struct RunScale {
  std::uint64_t fillerBytes = kFillerFileBytes;
  std::chrono::seconds pauseBeforeStart{1};  ///< between the last answer and the start of the worker
  std::chrono::seconds pauseAfterLayout{1};  ///< between the full bar of phase 1 and phase 2
};

}  // namespace calvero
