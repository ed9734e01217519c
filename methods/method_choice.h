#pragma once

#include <atomic>
#include <cstdint>

namespace calvero {

/// The current erase method. Atomic since a remote order is applied on the worker thread while the window may read.
struct MethodChoice {
  std::atomic<std::int32_t> eraseMethodSelected{0};  ///< 0 to 8, a row of `kMethodCatalogue`
  std::atomic<std::int32_t> numPassSelected{1};      ///< passes written over each block
};

}  // namespace calvero
