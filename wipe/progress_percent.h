#pragma once

#include <cstdint>

namespace calvero {

/// Progress shown before file `index` of `count` is written: the truncated percentage of the files before it, and 1
/// for none. `count` is not 0.
constexpr int progressPercent(std::uint64_t index, std::uint64_t count) {
  const auto percent = static_cast<int>(static_cast<double>(index) / static_cast<double>(count) * 100);
  return percent == 0 ? 1 : percent;
}

}  // namespace calvero
