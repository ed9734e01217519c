#include "platform/linux/volumes/volume_names.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace calvero::testing {
namespace {

using ::testing::ElementsAre;

std::vector<std::string> named(const std::vector<std::string>& labels) {
  std::vector<NameRequest> requests;
  for (const std::string& label : labels) requests.push_back({label, ""});
  return uniqueNames(requests);
}

TEST(PrintableLabel, KeepsTextOfAnyScript) {
  for (const char* label : {"My Disk", "a/b", "Größe", "日本語", "диск", "😀", "\xEF\xBF\xBD", "\xF4\x8F\xBF\xBF"}) {
    EXPECT_EQ(printableLabel(label), label);
  }
}

TEST(PrintableLabel, TakesBlanksFromTheEndsOnly) {
  EXPECT_EQ(printableLabel("  BACK UP   "), "BACK UP");
  EXPECT_EQ(printableLabel("    "), "");
  EXPECT_EQ(printableLabel(""), "");
}

TEST(PrintableLabel, ReplacesControlCharacters) {
  EXPECT_EQ(printableLabel("a\x1B[31mb"), "a�[31mb");
  EXPECT_EQ(printableLabel("a\nb\tc\rd\x7F"), "a�b�c�d�");
  EXPECT_EQ(printableLabel(std::string_view("a\0b", 3)), "a�b");
  EXPECT_EQ(printableLabel("a\xC2\x80\xC2\x9F"), "a��") << "C1";
  EXPECT_EQ(printableLabel("a\xC2\xA0z"), "a\xC2\xA0z") << "the first character behind C1";
}

TEST(PrintableLabel, ReplacesWhatChangesTheDirectionOfWriting) {
  for (const char* mark : {"\u061C", "\u200E", "\u200F", "\u202A", "\u202E", "\u2066", "\u2069"}) {
    EXPECT_EQ(printableLabel(std::string("a") + mark + "b"), "a�b");
  }
  for (const char* beside : {"\u200D", "\u2010", "\u202F", "\u2065", "\u206A"})
    EXPECT_EQ(printableLabel(beside), beside);
}

TEST(PrintableLabel, ReplacesLineAndParagraphSeparators) {
  EXPECT_EQ(printableLabel("a\u2028b\u2029c"), "a�b�c");
}

TEST(PrintableLabel, ReplacesEachByteThatIsNoUtf8) {
  EXPECT_EQ(printableLabel("a\xFFz"), "a�z");
  EXPECT_EQ(printableLabel("\x80"), "�") << "a continuation alone";
  EXPECT_EQ(printableLabel("a\xE2\x82"), "a��") << "cut off";
  EXPECT_EQ(printableLabel("\xC0\xAF"), "��") << "an overlong slash";
  EXPECT_EQ(printableLabel("\xE0\x80\xAF"), "���") << "an overlong slash";
  EXPECT_EQ(printableLabel("\xED\xA0\x80"), "���") << "a surrogate";
  EXPECT_EQ(printableLabel("\xF4\x90\x80\x80"), "����") << "beyond the last character";
  EXPECT_EQ(printableLabel("\xE2\x28\xA1"), "�(�") << "a text goes on after a broken character";
}

TEST(NameFromLabel, IsNeverAnAbsolutePath) {
  EXPECT_EQ(nameFromLabel("/home"), "�home");
  EXPECT_EQ(nameFromLabel(" /"), "�");
  EXPECT_EQ(nameFromLabel("//home"), "�/home");
}

TEST(NameFromLabel, IsThePrintableLabelOtherwise) {
  EXPECT_EQ(nameFromLabel(" a/b\x1B "), "a/b�");
  EXPECT_EQ(nameFromLabel("  "), "");
}

TEST(LastPart, IsWhatFollowsTheLastSlash) {
  EXPECT_EQ(lastPartOf("/media/ann/STICK"), "STICK");
  EXPECT_EQ(lastPartOf("/mnt"), "mnt");
  EXPECT_EQ(lastPartOf("/"), "/");
}

TEST(UniqueNames, NumbersTheSecondAndFurtherVolumesOfALabel) {
  EXPECT_THAT(named({"USB", "DATA", "USB", "USB"}), ElementsAre("USB", "DATA", "USB 1", "USB 2"));
}

TEST(UniqueNames, PassesOverANumberedNameThatIsAnothersLabel) {
  EXPECT_THAT(named({"USB", "USB", "USB 1"}), ElementsAre("USB", "USB 2", "USB 1"));
  EXPECT_THAT(named({"USB 1", "USB", "USB", "USB 1"}), ElementsAre("USB 1", "USB", "USB 2", "USB 1 1"));
}

TEST(UniqueNames, KeepsTheNamesThatVolumesHave) {
  EXPECT_THAT(uniqueNames({{"USB", ""}, {"USB", "USB 1"}}), ElementsAre("USB", "USB 1"));
  EXPECT_THAT(uniqueNames({{"USB", ""}, {"renamed since", "USB"}}), ElementsAre("USB 1", "USB"));
}

}  // namespace
}  // namespace calvero::testing
