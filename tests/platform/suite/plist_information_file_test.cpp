#include "platform/suite/plist_information_file.h"

#include <gmock/gmock.h>
#include <plist/plist.h>
#include <sys/stat.h>

#include <cstdlib>
#include <random>

#include "platform/suite/plist_bounds.h"
#include "tests/platform/suite/store_folder.h"

namespace calvero::testing {
namespace {

using ::testing::IsEmpty;
using ::testing::Pair;
using ::testing::UnorderedElementsAre;

std::string xml(const std::string& content) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
         "<plist version=\"1.0\">" +
         content + "</plist>\n";
}

std::string binary(const std::string& content) {
  const std::string text = xml(content);
  plist_t tree = nullptr;
  ::plist_from_xml(text.data(), static_cast<std::uint32_t>(text.size()), &tree);
  char* bytes = nullptr;
  std::uint32_t count = 0;
  ::plist_to_bin(tree, &bytes, &count);
  std::string result(bytes, count);
  std::free(bytes);
  ::plist_free(tree);
  return result;
}

const std::string kIdentifiers = "<dict><key>UID</key><string>u1</string><key>DID</key><string>d9</string></dict>";

/// A binary list of `levels` arrays, each of which holds the next one `times` over.
std::string nestedArrays(std::uint32_t levels, std::uint32_t times) {
  const auto bigEndian = [](std::uint64_t number, int bytes) {
    std::string text;
    for (int byte = bytes - 1; byte >= 0; --byte) text += static_cast<char>(number >> (8 * byte));
    return text;
  };
  std::string list = "bplist00";
  std::string offsets;
  for (std::uint32_t level = 0; level < levels; ++level) {
    offsets += bigEndian(list.size(), 4);
    list += static_cast<char>(0xA0U + times);
    for (std::uint32_t item = 0; item < times; ++item) list += bigEndian(level + 1, 4);
  }
  offsets += bigEndian(list.size(), 4);
  list += "\x51x";
  const std::uint64_t table = list.size();
  const std::string sizes = {4, 4};
  return list + offsets + std::string(6, '\0') + sizes + bigEndian(levels + 1, 8) + bigEndian(0, 8) +
         bigEndian(table, 8);
}

class TheInformationFile : public StoreFolder {
 protected:
  std::map<std::string, std::string> readBack(const std::string& bytes) {
    putBytes(file(), bytes);
    return information_.read(file());
  }
  [[nodiscard]] std::string file() const { return folder() + "/infoMaster.plist"; }

  PlistInformationFile information_;
};

TEST_F(TheInformationFile, IsReadInBothForms) {
  EXPECT_THAT(readBack(xml(kIdentifiers)), UnorderedElementsAre(Pair("UID", "u1"), Pair("DID", "d9")));
  EXPECT_THAT(readBack(binary(kIdentifiers)), UnorderedElementsAre(Pair("UID", "u1"), Pair("DID", "d9")));
}

TEST_F(TheInformationFile, GivesTextsAndIntegersAndNothingElse) {
  const std::string mixed =
      "<dict><key>text</key><string>a &amp; &lt;\xC3\xBC&gt;</string><key>empty</key><string></string>"
      "<key>number</key><integer>42</integer><key>negative</key><integer>-5</integer>"
      "<key>largest</key><integer>18446744073709551615</integer><key>truth</key><true/><key>real</key><real>1.5</real>"
      "<key>data</key><data>MQ==</data><key>date</key><date>2001-01-01T00:00:00Z</date>"
      "<key>list</key><array><string>x</string></array><key>inner</key><dict><key>UID</key><string>u2</string></dict>"
      "</dict>";
  for (const std::string& bytes : {xml(mixed), binary(mixed)}) {
    EXPECT_THAT(readBack(bytes),
                UnorderedElementsAre(Pair("text", "a & <\xC3\xBC>"), Pair("empty", ""), Pair("number", "42"),
                                     Pair("negative", "-5"), Pair("largest", "18446744073709551615")));
  }
}

TEST_F(TheInformationFile, IsEmptyWhenItIsNoDictionary) {
  for (const char* content : {"<string>UID</string>", "<array><string>UID</string></array>", "<dict/>", ""}) {
    EXPECT_THAT(readBack(xml(content)), IsEmpty()) << content;
  }
  EXPECT_THAT(readBack(binary("<array><string>UID</string></array>")), IsEmpty());
  EXPECT_THAT(readBack(""), IsEmpty());
  EXPECT_THAT(readBack("UID=u1\n"), IsEmpty());
}

TEST_F(TheInformationFile, IsEmptyWhenThereIsNoFile) {
  EXPECT_THAT(information_.read(file()), IsEmpty());
  EXPECT_THAT(information_.read(""), IsEmpty());
  EXPECT_THAT(information_.read(folder()), IsEmpty());
  ASSERT_EQ(::mkfifo(file().c_str(), 0600), 0);
  EXPECT_THAT(information_.read(file()), IsEmpty());
}

TEST_F(TheInformationFile, IsReadUpToItsGreatestSize) {
  constexpr std::size_t kGreatest = 1U << 20U;
  const std::string list = xml(kIdentifiers);
  const std::string greatest = list + std::string(kGreatest - list.size(), '\n');
  EXPECT_EQ(readBack(greatest).size(), 2U);
  EXPECT_THAT(readBack(greatest + '\n'), IsEmpty());
}

TEST_F(TheInformationFile, NeverBreaksTheProgramWhereverItIsCutOff) {
  for (const std::string& whole : {xml(kIdentifiers), binary(kIdentifiers)}) {
    for (std::size_t bytes = 0; bytes < whole.size(); ++bytes) {
      for (const auto& [key, value] : readBack(whole.substr(0, bytes))) {
        EXPECT_TRUE((key == "UID" && value == "u1") || (key == "DID" && value == "d9")) << bytes << " bytes";
      }
    }
  }
}

TEST_F(TheInformationFile, NeverBreaksTheProgramWhateverByteIsWrong) {
  std::mt19937 random(11);
  for (const std::string& whole : {xml(kIdentifiers), binary(kIdentifiers)}) {
    for (std::size_t position = 0; position < whole.size(); ++position) {
      for (const char byte : {'\0', '\xFF', static_cast<char>(random())}) {
        std::string damaged = whole;
        damaged[position] = byte;
        EXPECT_LE(readBack(damaged).size(), 2U) << "byte " << position;
      }
    }
  }
}

TEST_F(TheInformationFile, IsEmptyWhenItIsNestedTooDeeply) {
  constexpr std::uint32_t kLevels = 100'000;
  ASSERT_LT(nestedArrays(kLevels, 1).size(), 1U << 20U);
  EXPECT_THAT(readBack(nestedArrays(kLevels, 1)), IsEmpty());
  std::string arrays = "<dict><key>UID</key>";
  for (std::uint32_t level = 0; level < kLevels; ++level) arrays += "<array>";
  EXPECT_THAT(readBack(xml(arrays)), IsEmpty());
}

TEST_F(TheInformationFile, IsEmptyWhenItsPartsUnfoldWithoutEnd) {
  EXPECT_THAT(readBack(nestedArrays(30, 8)), IsEmpty());
}

TEST_F(TheInformationFile, IsEmptyWhenATextHoldsANul) {
  const std::string ascii = binary(kIdentifiers);
  const std::string wide = binary("<dict><key>UID</key><string>\xC4\x80q</string></dict>");
  const std::string wideText("\x62\x01\x00\x00q", 5);  // two letters: U+0100, q
  for (const auto& [whole, text] :
       {std::pair(ascii, std::string("\x52u1")), std::pair(ascii, std::string("\x53UID")), std::pair(wide, wideText)}) {
    ASSERT_NE(whole.find(text), std::string::npos);
    ASSERT_FALSE(readBack(whole).empty());
    std::string damaged = whole;
    damaged.replace(whole.find(text) + 1, text.size() - 1, text.size() - 1, '\0');
    EXPECT_THAT(readBack(damaged), IsEmpty());
  }
  EXPECT_THAT(readBack(xml(kIdentifiers + std::string(1, '\0'))), IsEmpty());
  for (const char* nul : {"&#0;", "&#x0;", "&#x00000000;"}) {
    for (const char* place :
         {"<dict><key>UID</key><string>u%1</string></dict>", "<dict><key>U%ID</key><string>u1</string></dict>"}) {
      std::string text = place;
      text.replace(text.find('%'), 1, nul);
      for (const auto& [key, value] : readBack(xml(text))) {
        EXPECT_EQ((key + value).find('\0'), std::string::npos) << text;
      }
    }
  }
}

TEST(ThePropertyListsBounds, AllowWhatAnInformationFileHolds) {
  EXPECT_TRUE(isModestPropertyList(xml(kIdentifiers)));
  EXPECT_TRUE(isModestPropertyList(binary(kIdentifiers)));
  EXPECT_TRUE(isModestPropertyList(nestedArrays(3, 8)));
  EXPECT_FALSE(isModestPropertyList(nestedArrays(30, 2)));
  std::string many = "<dict>";
  for (int entry = 0; entry < 500; ++entry) many += "<key>k" + std::to_string(entry) + "</key><string>v</string>";
  EXPECT_TRUE(isModestPropertyList(binary(many + "</dict>")));
}

TEST_F(TheInformationFile, KeepsNoFileOpen) {
  const auto before = namesIn("/proc/self/fd").size();
  for (const std::string& bytes : {xml(kIdentifiers), std::string("bplist00"), std::string()}) readBack(bytes);
  EXPECT_EQ(namesIn("/proc/self/fd").size(), before);
}

}  // namespace
}  // namespace calvero::testing
