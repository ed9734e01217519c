#pragma once

#include <cstdint>

#include "methods/pattern_buffers.h"

namespace calvero {

/// How a filler file is cut into blocks: `count` of them, all of kBlockBytes but the last, which has `lastBytes`.
struct BlockPlan {
  std::int32_t count;
  std::int32_t lastBytes;
};

/// The plan for a file of `size` bytes. A multiple of kBlockBytes ends with a full block. Size 0 gives no block but the
/// writer's last one.
constexpr BlockPlan blockPlan(std::uint64_t size) {
  const auto remainder = static_cast<std::int32_t>(size % kBlockBytes);
  const auto whole = static_cast<std::int32_t>(size / kBlockBytes);
  return remainder == 0 ? BlockPlan{whole, kBlockBytes} : BlockPlan{whole + 1, remainder};
}

}  // namespace calvero
