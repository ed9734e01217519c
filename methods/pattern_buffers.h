#pragma once

#include <array>
#include <cstdint>
#include <memory>

namespace calvero {

class RandomSource;

/// The unit of every write, and the size of every pattern buffer.
constexpr std::int32_t kBlockBytes = 32768;

/// The six patterns that every written byte comes from. Filled once before a run can start, then only read, by any
/// thread, and kept until the process ends. The random block is the same for every random pass of one launch.
struct PatternBuffers {
  using Block = std::array<std::uint8_t, kBlockBytes>;

  std::unique_ptr<const Block> buff00;
  std::unique_ptr<const Block> buff55;
  std::unique_ptr<const Block> buff56;  ///< a pattern of its own, not a slip for 0x55
  std::unique_ptr<const Block> buffAA;
  std::unique_ptr<const Block> buffFF;
  std::unique_ptr<const Block> buffRND;  ///< 8192 words in the machine's byte order

  /// Allocates and fills all six. Throws std::bad_alloc, which is fatal at launch.
  void create(RandomSource& random);
};

/// Which of the six buffers a pass writes.
enum class Pattern { none, zeros, x55, x56, xAA, xFF, random };

/// The buffer of a pattern; null for `none`, and before `create`.
const std::uint8_t* bufferOf(const PatternBuffers& buffers, Pattern pattern);

}  // namespace calvero
