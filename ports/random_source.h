#pragma once

#include <cstdint>

namespace calvero {

/// Uniformly distributed random words that nobody can predict.
class RandomSource {
 public:
  virtual ~RandomSource() = default;

  /// The next word. Any thread; never fails.
  virtual std::uint32_t next() = 0;
};

}  // namespace calvero
