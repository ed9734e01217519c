#include "methods/method_catalogue.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

#include "tests/ten_methods.h"

namespace calvero {
namespace {

TEST(MethodFromTag, ReadsTheOneBasedNumberAtTheStartOfTheText) {
  EXPECT_EQ(methodFromTag("1"), 0);
  EXPECT_EQ(methodFromTag("3"), 2);
  EXPECT_EQ(methodFromTag("9"), 8);
  EXPECT_EQ(methodFromTag(" 4"), 3);
  EXPECT_EQ(methodFromTag("4x"), 3);
  EXPECT_EQ(methodFromTag("+5"), 4);
}

TEST(MethodFromTag, IsNothingOutside1To9) {
  for (const char* text :
       {"0", "10", "-1", "", "abc", "x4", "- 4", "99999999999999999999", "4294967297", "-4294967295"}) {
    EXPECT_EQ(methodFromTag(text), std::nullopt) << text;
  }
}

TEST(MethodAt, RefusesANumberThatIsNoneOfTheCatalogue) {
  EXPECT_EQ(methodAt(kMethodCatalogue, 8).number, 8);
  EXPECT_THROW(methodAt(kMethodCatalogue, 9), std::out_of_range);
  EXPECT_THROW(methodAt(kMethodCatalogue, -1), std::out_of_range);
}

TEST(OrderableMethods, AreNoMoreThanNineAndNoMoreThanThereAre) {
  EXPECT_EQ(orderableMethods(testing::tenMethods()).size(), 9U);
  EXPECT_EQ(orderableMethods(kMethodCatalogue.first(2)).size(), 2U);
}

TEST(IntegerValue, StopsAtTheNearest32BitNumber) {
  EXPECT_EQ(integerValue("99999999999999999999"), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(integerValue("-99999999999999999999"), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(integerValue("-12"), -12);
}

}  // namespace
}  // namespace calvero
