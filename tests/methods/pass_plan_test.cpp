#include <gtest/gtest.h>

#include <array>
#include <string>

#include "methods/method_catalogue.h"
#include "methods/pattern_buffers.h"
#include "tests/ten_methods.h"

namespace calvero {
namespace {

constexpr std::int32_t kFirstPass = -5;
constexpr std::int32_t kLastPass = 45;

// One character for each pass from -5 to 45: 0 zeros, 5 0x55, 6 0x56, A 0xAA, F 0xFF, R random, - nothing.
struct PlannedMethod {
  std::int32_t method;
  const char* beforeZero;  // passes -5 to -1
  const char* fromZero;    // passes 0 to 45
};

constexpr std::array<PlannedMethod, 11> kPlan{{
    {-1, "-----", "----------------------------------------------"},
    {0, "00000", "0000000000000000000000000000000000000000000000"},
    {1, "RRRRR", "RRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRR"},
    {2, "-----", "5AR-------------------------------------------"},
    {3, "-----", "0FR-------------------------------------------"},
    {4, "F0F0F", "0F0F0FRF0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F"},
    {5, "F0F0F", "0F0F0FAF0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F"},
    {6, "A6A6A", "6A6A6ARA6A6A6A6A6A6A6A6A6A6A6A6A6A6A6A6A6A6A6A"},
    {7, "F0F0F", "RRRR0F0F0F0F0F0F0F0F0F0F0F0F0F0R0RRF0F0F0F0F0F"},
    {8, "F0F0F", "RRRR0F0F0F0F0F0F0F0F0F0F0F0F0F0R0RR5AR0F0F0F0F"},
    {9, "-----", "----------------------------------------------"},
}};

char letterOf(Pattern pattern) {
  switch (pattern) {
    case Pattern::none:
      return '-';
    case Pattern::zeros:
      return '0';
    case Pattern::x55:
      return '5';
    case Pattern::x56:
      return '6';
    case Pattern::xAA:
      return 'A';
    case Pattern::xFF:
      return 'F';
    case Pattern::random:
      return 'R';
  }
  return '?';
}

std::string passes(std::int32_t method, std::int32_t first, std::int32_t last) {
  std::string letters;
  for (std::int32_t pass = first; pass <= last; ++pass) letters += letterOf(plannedPattern(method, pass));
  return letters;
}

TEST(PassPlan, FollowsTheTableForEveryMethodAndPass) {
  for (const PlannedMethod& planned : kPlan) {
    EXPECT_EQ(passes(planned.method, kFirstPass, kLastPass), std::string(planned.beforeZero) + planned.fromZero)
        << "method " << planned.method;
  }
}

TEST(PassPlan, WritesZerosInEveryPassOfMethod0AndRandomDataInEveryPassOfMethod1) {
  EXPECT_EQ(plannedPattern(0, 1000), Pattern::zeros);
  EXPECT_EQ(plannedPattern(0, -5), Pattern::zeros);
  EXPECT_EQ(plannedPattern(1, 1000), Pattern::random);
  EXPECT_EQ(plannedPattern(1, -1), Pattern::random);
}

TEST(PassPlan, HasNothingBeyondTheThirdPassOfMethods2And3) {
  EXPECT_EQ(plannedPattern(2, 3), Pattern::none);
  EXPECT_EQ(plannedPattern(3, 3), Pattern::none);
}

TEST(PassPlan, HasNothingForMethodsBeyondTheCatalogue) {
  for (std::int32_t pass = kFirstPass; pass <= kLastPass; ++pass) {
    EXPECT_EQ(plannedPattern(9, pass), Pattern::none) << pass;
    EXPECT_EQ(plannedPattern(-1, pass), Pattern::none) << pass;
  }
}

TEST(PassPlan, CountsANegativePassAsOddByItsSignedRemainder) {
  EXPECT_EQ(plannedPattern(4, -1), Pattern::xFF);
  EXPECT_EQ(plannedPattern(4, -2), Pattern::zeros);
}

TEST(PassPlan, EndsMethod5With0xAAAndMethods4And6WithRandomData) {
  EXPECT_EQ(plannedPattern(5, 6), Pattern::xAA);
  EXPECT_EQ(plannedPattern(4, 6), Pattern::random);
  EXPECT_EQ(plannedPattern(6, 6), Pattern::random);
}

TEST(PassPlan, BeginsMethod6With0x56ThenWith0xAA) {
  EXPECT_EQ(plannedPattern(6, 0), Pattern::x56);
  EXPECT_EQ(plannedPattern(6, 1), Pattern::xAA);
}

TEST(PassPlan, WritesZerosInPass32OfMethod7BetweenTwoRandomPasses) {
  EXPECT_EQ(plannedPattern(7, 31), Pattern::random);
  EXPECT_EQ(plannedPattern(7, 32), Pattern::zeros);
  EXPECT_EQ(plannedPattern(7, 33), Pattern::random);
  EXPECT_EQ(plannedPattern(7, 35), Pattern::xFF);
}

TEST(PassPlan, EndsMethod8WithThreePassesOfItsOwnAndPlansOnByParity) {
  EXPECT_EQ(passes(8, 35, 39), "5AR0F");
}

TEST(PassPlan, IsTheOneOfTheMethodsRow) {
  EXPECT_EQ(plannedPattern(9, 0, testing::tenMethods()), Pattern::xAA);
  EXPECT_EQ(plannedPattern(9, 1, testing::tenMethods()), Pattern::random);
  EXPECT_EQ(plannedPattern(10, 0, testing::tenMethods()), Pattern::none);
}

TEST(PassPlan, WritesTheKnownSequenceOfEachMethodWithItsPassCount) {
  const std::array<const char*, 9> written{"0",
                                           "R",
                                           "5AR",
                                           "0",
                                           "0F0F0FR",
                                           "0F0F0FA",
                                           "",
                                           "RRRR0F0F0F0F0F0F0F0F0F0F0F0F0F0R0RR",
                                           "RRRR0F0F0F0F0F0F0F0F0F0F0F0F0F0R0RR5AR"};
  ASSERT_EQ(kMethodCatalogue.size(), written.size());
  for (const EraseMethod& method : kMethodCatalogue) {
    EXPECT_EQ(passes(method.number, 0, method.passes - 1), written.at(static_cast<std::size_t>(method.number)))
        << "method " << method.number;
  }
}

}  // namespace
}  // namespace calvero
