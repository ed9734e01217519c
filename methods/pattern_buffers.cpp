#include "methods/pattern_buffers.h"

#include <cstring>

#include "ports/random_source.h"

namespace calvero {
namespace {

std::unique_ptr<const PatternBuffers::Block> filledWith(std::uint8_t value) {
  auto block = std::make_unique<PatternBuffers::Block>();
  block->fill(value);
  return block;
}

std::unique_ptr<const PatternBuffers::Block> filledWith(RandomSource& random) {
  auto block = std::make_unique<PatternBuffers::Block>();
  for (std::size_t at = 0; at < block->size(); at += sizeof(std::uint32_t)) {
    const std::uint32_t word = random.next();
    std::memcpy(block->data() + at, &word, sizeof word);
  }
  return block;
}

}  // namespace

void PatternBuffers::create(RandomSource& random) {
  buff00 = filledWith(0x00);
  buff55 = filledWith(0x55);
  buff56 = filledWith(0x56);
  buffAA = filledWith(0xAA);
  buffFF = filledWith(0xFF);
  buffRND = filledWith(random);
}

const std::uint8_t* bufferOf(const PatternBuffers& buffers, Pattern pattern) {
  const auto data = [](const std::unique_ptr<const PatternBuffers::Block>& block) {
    return block ? block->data() : nullptr;
  };
  switch (pattern) {
    case Pattern::zeros:
      return data(buffers.buff00);
    case Pattern::x55:
      return data(buffers.buff55);
    case Pattern::x56:
      return data(buffers.buff56);
    case Pattern::xAA:
      return data(buffers.buffAA);
    case Pattern::xFF:
      return data(buffers.buffFF);
    case Pattern::random:
      return data(buffers.buffRND);
    case Pattern::none:
      break;
  }
  return nullptr;
}

}  // namespace calvero
