#pragma once

#include <cstdint>

// Stands in front of the product's header of the same name, for the program of the fault sweep alone: the same run with
// filler files so small that every single call of it can be made to fail in turn.
namespace calvero {

constexpr std::uint64_t kFillerFileBytes = 100'000;

}  // namespace calvero
