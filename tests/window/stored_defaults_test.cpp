#include "window/stored_defaults.h"

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

  /// As another program of the desktop reads them.
  static Texts read(const char* key) {
    const QSettings settings(QSettings::IniFormat, QSettings::UserScope, "Ondrel Software", "Calvero");
    Texts texts;
    for (const QString& text : settings.value(key).toStringList()) texts.push_back(text.toStdString());
    return texts;
  }

  QTemporaryDir folder;
};

TEST_F(StoredDefaultsTest, OneTextReadsBackAsAListOfOne) {
  {
    StoredDefaults defaults;
    defaults.setTexts("AppleLanguages", {"de"});
    defaults.synchronise();
  }
  EXPECT_EQ(read("AppleLanguages"), Texts{"de"});
}

TEST_F(StoredDefaultsTest, TextsReadBackAsTheyAre) {
  for (const Texts& texts : {Texts{"en", "pt-BR"}, Texts{"a, b; \"c\" = %41\\n", "@Invalid()", "Ä"}, Texts{""},
                             Texts{"", ""}, Texts{"two, words"}, Texts{}}) {
    {
      StoredDefaults defaults;
      defaults.setTexts("key", texts);
    }
    EXPECT_EQ(read("key"), texts);
  }
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
  EXPECT_EQ(read("other"), Texts{"kept"});
}

TEST_F(StoredDefaultsTest, AFileThatCannotBeWrittenIsNotAFailure) {
  QFile blocker(folder.filePath("Ondrel Software"));
  ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
  StoredDefaults defaults;
  defaults.setTexts("AppleLanguages", {"de"});
  defaults.synchronise();
  EXPECT_TRUE(QFileInfo(blocker).isFile());
}

}  // namespace
}  // namespace calvero
