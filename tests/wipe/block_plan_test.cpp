#include "wipe/block_plan.h"

#include <gtest/gtest.h>

namespace calvero {
namespace {

void expectPlan(std::uint64_t size, std::int32_t count, std::int32_t lastBytes) {
  EXPECT_EQ(blockPlan(size).count, count) << size;
  EXPECT_EQ(blockPlan(size).lastBytes, lastBytes) << size;
}

TEST(BlockPlan, CutsAFillerFileInto3907BlocksWithAShortLastOne) {
  expectPlan(128'000'000, 3907, 8192);
}

TEST(BlockPlan, EndsAMultipleOfTheBlockSizeWithAFullBlock) {
  expectPlan(32'768, 1, 32'768);
  expectPlan(65'536, 2, 32'768);
  expectPlan(0, 0, 32'768);
}

TEST(BlockPlan, EndsAnyOtherSizeWithTheRemainder) {
  expectPlan(1, 1, 1);
  expectPlan(32'767, 1, 32'767);
  expectPlan(32'769, 2, 1);
}

}  // namespace
}  // namespace calvero
