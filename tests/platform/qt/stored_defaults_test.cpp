#include "platform/qt/stored_defaults.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace calvero {
namespace {

using Texts = std::vector<std::string>;

class StoredDefaultsTest : public ::testing::Test {
 protected:
  StoredDefaultsTest() { QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path()); }

  QTemporaryDir folder;
};

TEST_F(StoredDefaultsTest, OneTextReadsBackAsAListOfOne) {
  {
    StoredDefaults defaults;
    defaults.setTexts("AppleLanguages", {"de"});
    defaults.synchronise();
  }
  EXPECT_EQ(StoredDefaults().texts("AppleLanguages"), Texts{"de"});
}

TEST_F(StoredDefaultsTest, TextsReadBackAsTheyAre) {
  for (const Texts& texts : {Texts{"en", "pt-BR"}, Texts{"a, b; \"c\" = %41\\n", "@Invalid()", "Ä"}, Texts{""},
                             Texts{"", ""}, Texts{"two, words"}, Texts{}}) {
    {
      StoredDefaults defaults;
      defaults.setTexts("key", texts);
    }
    EXPECT_EQ(StoredDefaults().texts("key"), texts);
  }
}

TEST_F(StoredDefaultsTest, AnUnknownKeyHoldsNothing) {
  EXPECT_EQ(StoredDefaults().texts("AppleLanguages"), Texts{});
}

TEST_F(StoredDefaultsTest, SynchronisingWritesTheUsersFileAtOnce) {
  StoredDefaults defaults;
  defaults.setTexts("AppleLanguages", {"en"});
  defaults.synchronise();
  QFile file(folder.filePath("Ondrel Software/Calvero.ini"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), "[General]\nAppleLanguages=en\n");
}

TEST_F(StoredDefaultsTest, WhatElseTheFileHoldsStays) {
  StoredDefaults().setTexts("other", {"kept"});
  StoredDefaults().setTexts("AppleLanguages", {"en"});
  EXPECT_EQ(StoredDefaults().texts("other"), Texts{"kept"});
}

TEST_F(StoredDefaultsTest, AFileThatCannotBeWrittenIsNotAFailure) {
  QFile blocker(folder.filePath("Ondrel Software"));
  ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
  StoredDefaults defaults;
  defaults.setTexts("AppleLanguages", {"de"});
  defaults.synchronise();
  EXPECT_EQ(defaults.texts("AppleLanguages"), Texts{"de"});
  EXPECT_TRUE(QFileInfo(blocker).isFile());
}

}  // namespace
}  // namespace calvero
