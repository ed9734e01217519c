#include "terminal/text.h"

#include <gtest/gtest.h>

#include <clocale>

namespace calvero {
namespace {

TEST(Printable, LeavesOrdinaryTextInAnyScriptAlone) {
  EXPECT_EQ(printable("/media/Größe 映画 \U0001F4BE"), "/media/Größe 映画 \U0001F4BE");
}

TEST(Printable, EscapesControlCharacters) {
  EXPECT_EQ(printable("a\033[2Jb\nc\td\x7F"), "a\\033[2Jb\\012c\\011d\\177");
  EXPECT_EQ(printable("\u009B"), "\\302\\233") << "the one-character form of ESC [";
}

TEST(Printable, EscapesCharactersThatTurnTheTextAroundOrBreakTheLine) {
  EXPECT_EQ(printable("\u202Etxt"), "\\342\\200\\256txt");
  EXPECT_EQ(printable("\u2066\u2028"), "\\342\\201\\246\\342\\200\\250");
}

TEST(Printable, EscapesBytesThatAreNotUtf8) {
  EXPECT_EQ(printable("a\xFFz"), "a\\377z");
  EXPECT_EQ(printable("\xC3"), "\\303") << "cut off";
  EXPECT_EQ(printable("\xC0\xAF"), "\\300\\257") << "longer than it must be";
  EXPECT_EQ(printable("\xED\xA0\x80"), "\\355\\240\\200") << "half of a surrogate pair";
}

TEST(ColumnsOf, CountsCharactersAndNotBytes) {
  EXPECT_EQ(columnsOf("Größe"), 5U);
  EXPECT_EQ(columnsOf(""), 0U);
}

TEST(ColumnsOf, CountsWideCharactersTwice) {
  ASSERT_NE(std::setlocale(LC_CTYPE, "C.UTF-8"), nullptr);
  EXPECT_EQ(columnsOf("映画"), 4U);
  std::setlocale(LC_CTYPE, "C");
}

TEST(WithSingleBlanks, DropsBlanksAtTheEndsAndDoubledOnes) {
  EXPECT_EQ(withSingleBlanks("  V.S.I.T.R.  (German Standard) "), "V.S.I.T.R. (German Standard)");
  EXPECT_EQ(withSingleBlanks("   "), "");
}

TEST(EqualIgnoringCase, ComparesLettersOnlyByTheirKind) {
  EXPECT_TRUE(equalIgnoringCase("yEs", "YES"));
  EXPECT_FALSE(equalIgnoringCase("ye", "YES"));
}

}  // namespace
}  // namespace calvero
