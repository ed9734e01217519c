#include "platform/linux/process/kernel_random.h"

#include <gtest/gtest.h>

#include <bit>
#include <set>

namespace calvero::testing {
namespace {

TEST(KernelRandom, GivesWordsWhoseBitsAreAllInUse) {
  constexpr int kWords = 8192;
  KernelRandom random;
  std::set<std::uint32_t> different;
  int ones = 0;
  for (int i = 0; i < kWords; ++i) {
    const std::uint32_t word = random.next();
    different.insert(word);
    ones += std::popcount(word);
  }
  // Both bounds are missed by less than one honest source in a million million.
  EXPECT_GT(different.size(), kWords - 16U);
  EXPECT_NEAR(ones, kWords * 16, 2048);
}

}  // namespace
}  // namespace calvero::testing
