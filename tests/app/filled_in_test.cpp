#include "app/filled_in.h"

#include <gtest/gtest.h>

namespace calvero {
namespace {

TEST(FilledIn, PutsEachValueWhereItsPlaceholderStands) {
  EXPECT_EQ(filledIn("%2 on %1, %2", {"stick", "a file"}), "a file on stick, a file");
}

TEST(FilledIn, DoesNotLookThroughAValueForThePlaceholderOfAnother) {
  EXPECT_EQ(filledIn("%1 %2", {"%2", "b"}), "%2 b");
}

TEST(FilledIn, LeavesWhatHasNoValue) {
  EXPECT_EQ(filledIn("100 % of %1, %2 and %", {"it"}), "100 % of it, %2 and %");
}

}  // namespace
}  // namespace calvero
