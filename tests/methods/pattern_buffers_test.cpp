#include "methods/pattern_buffers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "tests/fakes/world.h"

namespace calvero {
namespace {

using testing::FakeRandom;
using testing::World;

constexpr std::uint64_t kOneFile = 1'000'000;

bool isAll(const PatternBuffers::Block& block, std::uint8_t value) {
  return std::all_of(block.begin(), block.end(), [value](std::uint8_t byte) { return byte == value; });
}

TEST(PatternBuffers, HoldOneByteValueEachButTheRandomOne) {
  FakeRandom random;
  PatternBuffers buffers;
  buffers.create(random);
  EXPECT_TRUE(isAll(*buffers.buff00, 0x00));
  EXPECT_TRUE(isAll(*buffers.buff55, 0x55));
  EXPECT_TRUE(isAll(*buffers.buff56, 0x56));
  EXPECT_TRUE(isAll(*buffers.buffAA, 0xAA));
  EXPECT_TRUE(isAll(*buffers.buffFF, 0xFF));
  EXPECT_EQ(buffers.buffRND->size(), 32768U);
}

TEST(PatternBuffers, HoldThe8192WordsDrawnInTheMachinesByteOrder) {
  FakeRandom random;
  PatternBuffers buffers;
  buffers.create(random);
  EXPECT_EQ(random.drawn(), 8192U);
  for (std::uint32_t i = 0; i < 8192; ++i) {
    std::uint32_t word = 0;
    std::memcpy(&word, buffers.buffRND->data() + 4U * i, sizeof word);
    ASSERT_EQ(word, FakeRandom::kFirst + i) << "word " << i;
  }
}

TEST(PatternBuffers, AreNullBeforeTheyAreCreated) {
  const PatternBuffers buffers;
  for (const Pattern pattern :
       {Pattern::zeros, Pattern::x55, Pattern::x56, Pattern::xAA, Pattern::xFF, Pattern::random}) {
    EXPECT_EQ(bufferOf(buffers, pattern), nullptr);
  }
}

TEST(PatternBuffers, AreCreatedByTheLaunch) {
  World world;
  world.volume("DATA", kOneFile);
  AppDelegate& app = world.create();
  EXPECT_EQ(app.fillBuffer(nullptr, kBlockBytes, 0, 0), nullptr);
  EXPECT_EQ(world.random.drawn(), 0U);
  app.applicationDidFinishLaunching();
  EXPECT_NE(app.fillBuffer(nullptr, kBlockBytes, 0, 0), nullptr);
  EXPECT_EQ(world.random.drawn(), 8192U);
}

TEST(PatternBuffers, AreChosenByMethodAndPassAlone) {
  World world;
  world.volume("DATA", kOneFile);
  const AppDelegate& app = world.launch();
  const std::uint8_t other[4] = {};
  for (std::int32_t method = -1; method <= 9; ++method) {
    for (std::int32_t pass = -2; pass <= 39; ++pass) {
      const std::uint8_t* const chosen = app.fillBuffer(nullptr, kBlockBytes, method, pass);
      EXPECT_EQ(app.fillBuffer(other, kBlockBytes, method, pass), chosen) << method << '/' << pass;
      EXPECT_EQ(app.fillBuffer(nullptr, 0, method, pass), chosen) << method << '/' << pass;
      EXPECT_EQ(app.fillBuffer(chosen, -7, method, pass), chosen) << method << '/' << pass;
    }
  }
}

TEST(PatternBuffers, FollowThePassPlan) {
  World world;
  world.volume("DATA", kOneFile);
  const AppDelegate& app = world.launch();
  EXPECT_EQ(app.fillBuffer(nullptr, kBlockBytes, 2, 3), nullptr);
  EXPECT_EQ(*app.fillBuffer(nullptr, kBlockBytes, 2, 0), 0x55);
  EXPECT_EQ(*app.fillBuffer(nullptr, kBlockBytes, 2, 1), 0xAA);
  EXPECT_EQ(*app.fillBuffer(nullptr, kBlockBytes, 6, 0), 0x56);
  EXPECT_EQ(*app.fillBuffer(nullptr, kBlockBytes, 4, 1), 0xFF);
  EXPECT_EQ(*app.fillBuffer(nullptr, kBlockBytes, 0, 0), 0x00);
  EXPECT_EQ(app.fillBuffer(nullptr, kBlockBytes, 8, 37), app.fillBuffer(nullptr, kBlockBytes, 1, 0));
}

TEST(PatternBuffers, GiveTwoRunsOfOneLaunchTheSameRandomData) {
  World world;
  world.volume("DATA", kOneFile);
  AppDelegate& app = world.launch();
  const std::uint8_t* const block = app.fillBuffer(nullptr, kBlockBytes, 1, 0);
  const std::vector<std::uint8_t> drawn(block, block + kBlockBytes);

  for (int run = 0; run < 2; ++run) {
    app.next();
    app.randomWipe();
    world.proceed();
    world.runWorker();
    EXPECT_EQ(app.fillBuffer(nullptr, kBlockBytes, 1, 0), block);
    EXPECT_EQ(std::vector<std::uint8_t>(block, block + kBlockBytes), drawn);
    app.OKBtn();
  }
  EXPECT_EQ(world.random.drawn(), 8192U);
  EXPECT_FALSE(world.journal.only({"pwrite"}).empty());
}

}  // namespace
}  // namespace calvero
