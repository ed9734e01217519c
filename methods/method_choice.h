#pragma once

#include <atomic>
#include <cstdint>

namespace calvero {

/// The current erase method. Atomic since a remote order is applied on the worker thread while the window may read.
struct MethodChoice {
  std::atomic<std::int32_t> eraseMethodSelected{0};  ///< its number in the catalogue
  std::atomic<std::int32_t> numPassSelected{1};      ///< passes written over each block
};

/// A choice as a run has taken it with it.
struct ChosenMethod {
  std::int32_t number = 0;
  std::int32_t passes = 0;
};

}  // namespace calvero
