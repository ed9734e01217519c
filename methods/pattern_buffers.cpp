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

Pattern byParity(std::int32_t pass, Pattern odd, Pattern even) {
  return pass % 2 != 0 ? odd : even;
}

// 32 is no slip: that pass is one of zeros.
bool isRandomGutmannPass(std::int32_t pass) {
  return (pass >= 0 && pass <= 3) || pass == 31 || pass == 33 || pass == 34;
}

Pattern firstOfThree(std::int32_t pass, Pattern first, Pattern second, Pattern third) {
  switch (pass) {
    case 0:
      return first;
    case 1:
      return second;
    case 2:
      return third;
    default:
      return Pattern::none;
  }
}

Pattern withDodPasses(std::int32_t pass) {
  switch (pass) {
    case 35:
      return Pattern::x55;
    case 36:
      return Pattern::xAA;
    case 37:
      return Pattern::random;
    default:
      return byParity(pass, Pattern::xFF, Pattern::zeros);
  }
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

Pattern plannedPattern(std::int32_t method, std::int32_t pass) {
  switch (method) {
    case 0:
      return Pattern::zeros;
    case 1:
      return Pattern::random;
    case 2:
      return firstOfThree(pass, Pattern::x55, Pattern::xAA, Pattern::random);
    case 3:
      return firstOfThree(pass, Pattern::zeros, Pattern::xFF, Pattern::random);
    case 4:
      return pass == 6 ? Pattern::random : byParity(pass, Pattern::xFF, Pattern::zeros);
    case 5:  // ends with 0xAA where its neighbours end with random data
      return pass == 6 ? Pattern::xAA : byParity(pass, Pattern::xFF, Pattern::zeros);
    case 6:
      return pass == 6 ? Pattern::random : byParity(pass, Pattern::xAA, Pattern::x56);
    case 7:
      return isRandomGutmannPass(pass) ? Pattern::random : byParity(pass, Pattern::xFF, Pattern::zeros);
    case 8:
      return isRandomGutmannPass(pass) ? Pattern::random : withDodPasses(pass);
    default:
      return Pattern::none;
  }
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
