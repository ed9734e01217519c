#include "terminal/commands/methods_command.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/ten_methods.h"

namespace calvero {
namespace {

using ::testing::ContainsRegex;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using testing::tenMethods;

TEST(MethodNamed, IsOneBased) {
  EXPECT_EQ(methodNamed("1", kMethodCatalogue), 0);
  EXPECT_EQ(methodNamed("9", kMethodCatalogue), 8);
}

TEST(MethodNamed, AcceptsTheWordInAnyCase) {
  EXPECT_EQ(methodNamed("random", kMethodCatalogue), 1);
  EXPECT_EQ(methodNamed("Gutmann-DoD", kMethodCatalogue), 8);
}

TEST(MethodNamed, RefusesEverythingElse) {
  for (const char* wrong : {"", "0", "10", "-1", "abc", "1x", "gut"}) {
    EXPECT_EQ(methodNamed(wrong, kMethodCatalogue), std::nullopt) << wrong;
  }
}

TEST(ValidMethods, IsOneLineOfNumbersAndWords) {
  EXPECT_THAT(validMethods(kMethodCatalogue), HasSubstr("1 (zero), 2 (random)"));
  EXPECT_THAT(validMethods(kMethodCatalogue), HasSubstr("9 (gutmann-dod)"));
  EXPECT_EQ(validMethods(kMethodCatalogue).find('\n'), std::string::npos);
}

TEST(WrittenSequence, HoldsOnlyWhatIsWritten) {
  EXPECT_EQ(writtenSequence(kMethodCatalogue[2]), (std::vector<std::string>{"0x55", "0xAA", "random"}));
  EXPECT_EQ(writtenSequence(kMethodCatalogue[3]), (std::vector<std::string>{"0x00"}));
  EXPECT_TRUE(writtenSequence(kMethodCatalogue[6]).empty());
  EXPECT_EQ(writtenSequence(kMethodCatalogue[8]).size(), 38U);
}

TEST(Shortened, DrawsRepetitionsTogether) {
  EXPECT_EQ(shortened(writtenSequence(kMethodCatalogue[0])), "0x00");
  EXPECT_EQ(shortened(writtenSequence(kMethodCatalogue[2])), "0x55, 0xAA, random");
  EXPECT_EQ(shortened(writtenSequence(kMethodCatalogue[4])), "0x00/0xFF in turn x6, random");
  EXPECT_EQ(shortened(writtenSequence(kMethodCatalogue[6])), "nothing");
  EXPECT_EQ(shortened(writtenSequence(kMethodCatalogue[7])),
            "random x4, 0x00/0xFF in turn x27, random, 0x00, random x2");
  EXPECT_EQ(shortened(writtenSequence(kMethodCatalogue[8])),
            "random x4, 0x00/0xFF in turn x27, random, 0x00, random x2, 0x55, 0xAA, random");
}

TEST(MethodsJson, KeepsTheLabelAsItStandsAndListsEveryPass) {
  const auto methods = nlohmann::json::parse(methodsJson(kMethodCatalogue));
  ASSERT_EQ(methods.size(), 9U);
  EXPECT_EQ(methods[1]["label"], "Random ");
  EXPECT_EQ(methods[1]["number"], 2);
  EXPECT_EQ(methods[8]["passes"], 38);
  EXPECT_EQ(methods[8]["sequence"].size(), 38U);
  EXPECT_TRUE(methods[6]["sequence"].empty());
}

TEST(MethodsTable, HasALineForEachMethodAndOneForTheHeadings) {
  const std::string text = methodsTable(kMethodCatalogue);
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 10);
  EXPECT_THAT(text, HasSubstr("V.S.I.T.R. (German Standard)"));
}

TEST(ShortMethodsTable, WarnsOfTheMethodThatWritesNothing) {
  EXPECT_THAT(shortMethodsTable(kMethodCatalogue),
              EndsWith("\nMethod 7 writes nothing: what was deleted stays readable.\n"));
}

TEST(MethodsTable, SaysWhichMethodWritesNothing) {
  EXPECT_THAT(methodsTable(kMethodCatalogue),
              ContainsRegex("  7  none              0  Fast Zero Write [^\n]*  nothing\n"));
}

TEST(ShortMethodsTable, FitsATerminalOfEightyColumns) {
  std::istringstream lines(shortMethodsTable(kMethodCatalogue));
  int count = 0;
  for (std::string line; std::getline(lines, line); ++count) EXPECT_LE(line.size(), 80U) << line;
  EXPECT_EQ(count, 11) << "the last one is a warning";
}

TEST(MethodsTable, ListsEveryRowOfItsCatalogue) {
  EXPECT_THAT(methodsTable(tenMethods()), ContainsRegex("\n *10  twice +2  Twice over +0xAA, random\n"));
  EXPECT_THAT(shortMethodsTable(tenMethods()), HasSubstr("10  twice"));
  EXPECT_THAT(validMethods(tenMethods()), EndsWith(", 10 (twice)"));
  const auto methods = nlohmann::json::parse(methodsJson(tenMethods()));
  ASSERT_EQ(methods.size(), 10U);
  EXPECT_EQ(methods[9]["sequence"], nlohmann::json({"0xAA", "random"}));
}

TEST(MethodNamed, FindsEveryRowOfItsCatalogueByNumberAndWord) {
  EXPECT_EQ(methodNamed("10", tenMethods()), 9);
  EXPECT_EQ(methodNamed("Twice", tenMethods()), 9);
  EXPECT_EQ(methodNamed("11", tenMethods()), std::nullopt);
  EXPECT_EQ(methodNamed("10", orderableMethods(tenMethods())), std::nullopt) << "no order can name it";
}

}  // namespace
}  // namespace calvero
