#include "app/program_entry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "remote/authentication.h"
#include "tests/fakes/fake_tag_store.h"
#include "tests/fakes/small_fakes.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using testing::FakeDesktop;
using testing::FakeTagStore;
using testing::Journal;

class ProgramEntry : public ::testing::Test {
 protected:
  std::string chosen() { return chooseInterfaceLanguage(authentication, desktop); }

  Journal journal;
  FakeTagStore tags{journal};
  FakeDesktop desktop{journal};
  Authentication authentication{tags, desktop};
};

TEST_F(ProgramEntry, StoresEnglishAsTheOnlyLanguageWithoutTheLangTag) {
  EXPECT_EQ(chosen(), "en");
  EXPECT_THAT(journal.all(), ElementsAre("readTag LANG", "setTexts AppleLanguages \"en\"", "synchronise"));
}

TEST_F(ProgramEntry, StoresTheLangTagsValueAsTheOnlyLanguage) {
  tags.put("LANG", "de");
  EXPECT_EQ(chosen(), "de");
  EXPECT_THAT(journal.all(), ElementsAre("readTag LANG", "setTexts AppleLanguages \"de\"", "synchronise"));
}

TEST_F(ProgramEntry, StoresAValueThatIsNoLanguageAllTheSame) {
  tags.put("LANG", "no such language");
  EXPECT_EQ(chosen(), "no such language");
  EXPECT_THAT(journal.only({"setTexts"}), ElementsAre("setTexts AppleLanguages \"no such language\""));
}

TEST_F(ProgramEntry, StoresAnEmptyValueAsItIs) {
  tags.put("LANG", "");
  EXPECT_EQ(chosen(), "");
}

}  // namespace
}  // namespace calvero
