#pragma once

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <optional>
#include <vector>

namespace calvero::testing {

/// The free blocks of a volume. It hands out the lowest free block first, so that a block given back is the next one
/// to be used again: a run that gives space back too early leaves the rest of the disk as it was. Any thread.
class FakeDisk {
 public:
  static constexpr std::size_t kBlockBytes = 4096;

  explicit FakeDisk(std::uint64_t freeBytes) : blocks_(static_cast<std::size_t>(freeBytes / kBlockBytes)) {}

  /// The next free block; nothing when the disk is full.
  std::optional<std::size_t> allocate() {
    const std::scoped_lock lock(mutex_);
    while (firstFree_ < blocks_.size() && blocks_[firstFree_].taken) ++firstFree_;
    if (firstFree_ == blocks_.size()) return std::nullopt;
    blocks_[firstFree_].taken = true;
    return firstFree_++;
  }

  void release(std::size_t block) {
    const std::scoped_lock lock(mutex_);
    blocks_[block].taken = false;
    if (block < firstFree_) firstFree_ = block;
  }

  void write(std::size_t block, std::uint8_t firstByte) {
    const std::scoped_lock lock(mutex_);
    blocks_[block].written = true;
    blocks_[block].firstByte = firstByte;
  }

  [[nodiscard]] std::size_t blockCount() const { return blocks_.size(); }
  [[nodiscard]] std::uint64_t freeBytes() const { return (blockCount() - takenBlocks()) * kBlockBytes; }
  [[nodiscard]] std::size_t takenBlocks() const { return count(&Block::taken); }
  /// Blocks that have been written at least once.
  [[nodiscard]] std::size_t coveredBlocks() const { return count(&Block::written); }
  /// Blocks whose last write began with `firstByte`.
  [[nodiscard]] std::size_t blocksHolding(std::uint8_t firstByte) const {
    const std::scoped_lock lock(mutex_);
    std::size_t found = 0;
    for (const Block& block : blocks_) found += block.written && block.firstByte == firstByte ? 1U : 0U;
    return found;
  }

 private:
  struct Block {
    bool taken = false;
    bool written = false;
    std::uint8_t firstByte = 0;
  };

  [[nodiscard]] std::size_t count(bool Block::*property) const {
    const std::scoped_lock lock(mutex_);
    std::size_t found = 0;
    for (const Block& block : blocks_) found += block.*property ? 1U : 0U;
    return found;
  }

  mutable std::mutex mutex_;
  std::vector<Block> blocks_;
  std::size_t firstFree_ = 0;  // no block before it is free
};

}  // namespace calvero::testing
