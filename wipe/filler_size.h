#pragma once

#include <cstdint>

namespace calvero {

/// Size of one filler file when written, in bytes: decimal, not a power of two. The layout divides the free space by
/// it, and the erased amount counts in it.
constexpr std::uint64_t kFillerFileBytes = 128'000'000;

}  // namespace calvero
