#include "terminal/commands/methods_command.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

namespace calvero {
namespace {

using ::testing::ContainsRegex;
using ::testing::EndsWith;
using ::testing::HasSubstr;

TEST(MethodNamed, IsOneBased) {
  EXPECT_EQ(methodNamed("1"), 0);
  EXPECT_EQ(methodNamed("9"), 8);
}

TEST(MethodNamed, AcceptsTheWordInAnyCase) {
  EXPECT_EQ(methodNamed("random"), 1);
  EXPECT_EQ(methodNamed("Gutmann-DoD"), 8);
}

TEST(MethodNamed, RefusesEverythingElse) {
  for (const char* wrong : {"", "0", "10", "-1", "abc", "1x", "gut"}) {
    EXPECT_EQ(methodNamed(wrong), std::nullopt) << wrong;
  }
}

TEST(ValidMethods, IsOneLineOfNumbersAndWords) {
  EXPECT_THAT(validMethods(), HasSubstr("1 (zero), 2 (random)"));
  EXPECT_THAT(validMethods(), HasSubstr("9 (gutmann-dod)"));
  EXPECT_EQ(validMethods().find('\n'), std::string::npos);
}

TEST(WrittenSequence, HoldsOnlyWhatIsWritten) {
  EXPECT_EQ(writtenSequence(2), (std::vector<std::string>{"0x55", "0xAA", "random"}));
  EXPECT_EQ(writtenSequence(3), (std::vector<std::string>{"0x00"}));
  EXPECT_TRUE(writtenSequence(6).empty());
  EXPECT_EQ(writtenSequence(8).size(), 38U);
}

TEST(Shortened, DrawsRepetitionsTogether) {
  EXPECT_EQ(shortened(writtenSequence(0)), "0x00");
  EXPECT_EQ(shortened(writtenSequence(2)), "0x55, 0xAA, random");
  EXPECT_EQ(shortened(writtenSequence(4)), "0x00/0xFF in turn x6, random");
  EXPECT_EQ(shortened(writtenSequence(6)), "nothing");
  EXPECT_EQ(shortened(writtenSequence(7)), "random x4, 0x00/0xFF in turn x27, random, 0x00, random x2");
  EXPECT_EQ(shortened(writtenSequence(8)),
            "random x4, 0x00/0xFF in turn x27, random, 0x00, random x2, 0x55, 0xAA, random");
}

TEST(MethodsJson, KeepsTheLabelAsItStandsAndListsEveryPass) {
  const auto methods = nlohmann::json::parse(methodsJson());
  ASSERT_EQ(methods.size(), 9U);
  EXPECT_EQ(methods[1]["label"], "Random ");
  EXPECT_EQ(methods[1]["number"], 2);
  EXPECT_EQ(methods[8]["passes"], 38);
  EXPECT_EQ(methods[8]["sequence"].size(), 38U);
  EXPECT_TRUE(methods[6]["sequence"].empty());
}

TEST(MethodsTable, HasALineForEachMethodAndOneForTheHeadings) {
  const std::string text = methodsTable();
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 10);
  EXPECT_THAT(text, HasSubstr("V.S.I.T.R. (German Standard)"));
}

TEST(ShortMethodsTable, WarnsOfTheMethodThatWritesNothing) {
  EXPECT_THAT(shortMethodsTable(), EndsWith("\nMethod 7 writes nothing: what was deleted stays readable.\n"));
}

TEST(MethodsTable, SaysWhichMethodWritesNothing) {
  EXPECT_THAT(methodsTable(), ContainsRegex("  7  none              0  Fast Zero Write [^\n]*  nothing\n"));
}

TEST(ShortMethodsTable, FitsATerminalOfEightyColumns) {
  std::istringstream lines(shortMethodsTable());
  int count = 0;
  for (std::string line; std::getline(lines, line); ++count) EXPECT_LE(line.size(), 80U) << line;
  EXPECT_EQ(count, 11) << "the last one is a warning";
}

}  // namespace
}  // namespace calvero
