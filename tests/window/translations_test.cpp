#include "window/translations.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <thread>

namespace calvero {
namespace {

/// Tables in which the key "OK " reads the locale's name and "Only German" is known to German alone.
class TranslationsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!QFile::exists(compiler())) GTEST_SKIP() << "needs " << compiler().toStdString();
    for (const char* locale : {"en", "de", "pt_BR", "zh_CN", "ar"}) addTable(locale);
  }
  void TearDown() override {
    QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
    QLocale::setDefault(QLocale::system());
  }

  [[nodiscard]] std::string folder() const { return folder_.path().toStdString(); }

  /// The table that a language reads.
  [[nodiscard]] std::string tableFor(const std::string& language) const {
    return Translations(language, folder()).localised("OK ");
  }

 private:
  static QString compiler() { return QLibraryInfo::path(QLibraryInfo::BinariesPath) + "/lrelease"; }

  void addTable(const QString& locale) {
    const QString source = folder_.filePath("source.ts");
    QFile file(source);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(R"(<?xml version="1.0" encoding="utf-8"?><TS version="2.1"><context><name>Calvero</name>)");
    file.write(message("OK ", locale + ' '));
    if (locale == "de") file.write(message("Only German", "Nur Deutsch: Ä"));
    file.write("</context></TS>");
    file.close();
    const QString table = folder_.filePath("calvero_" + locale + ".qm");
    ASSERT_EQ(QProcess::execute(compiler(), {"-silent", source, "-qm", table}), 0);
  }

  static QByteArray message(const QString& key, const QString& text) {
    return QString("<message><source>%1</source><translation>%2</translation></message>").arg(key, text).toUtf8();
  }

  QTemporaryDir folder_;
};

TEST_F(TranslationsTest, ReadTheTableThatFitsTheLanguageCode) {
  EXPECT_EQ(tableFor("de"), "de ");
  EXPECT_EQ(tableFor("de_AT"), "de ");
  EXPECT_EQ(tableFor("de-CH"), "de ");
  EXPECT_EQ(tableFor("pt"), "pt_BR ");
  EXPECT_EQ(tableFor("pt-BR"), "pt_BR ");
  EXPECT_EQ(tableFor("zh"), "zh_CN ");
  EXPECT_EQ(tableFor("zh-Hans"), "zh_CN ");
  EXPECT_EQ(tableFor("zh_CN"), "zh_CN ");
  EXPECT_EQ(tableFor("ar"), "ar ");
  EXPECT_EQ(tableFor("en"), "en ");
}

TEST_F(TranslationsTest, AnotherPlacesTableServesWhereTheLanguageIsWrittenAlike) {
  EXPECT_EQ(tableFor("pt_PT"), "pt_BR ");
  EXPECT_EQ(tableFor("zh_SG"), "zh_CN ");
  EXPECT_EQ(tableFor("zh_TW"), "OK ");
  EXPECT_EQ(tableFor("zh-Hant"), "OK ");
  EXPECT_EQ(tableFor("zh_HK"), "OK ");
}

TEST_F(TranslationsTest, AnUnknownLanguageReadsTheKeys) {
  for (const char* language : {"xx", "", "German", "klingon-Latn-XX", "fr", "../de", "C"}) {
    EXPECT_EQ(tableFor(language), "OK ") << language;
    QLocale::setDefault(QLocale::German);
    Translations(language, folder()).install();
    EXPECT_EQ(QLocale().language(), QLocale::English) << language;
  }
}

TEST_F(TranslationsTest, AKeyThatTheTableLacksIsItsOwnTextAndTheEmptyKeyIsEmpty) {
  const Translations german("de", folder());
  EXPECT_EQ(german.localised("Only German"), "Nur Deutsch: Ä");
  EXPECT_EQ(german.localised("OK"), "OK");
  EXPECT_EQ(german.localised("Unknown \n key: %@ "), "Unknown \n key: %@ ");
  EXPECT_EQ(german.localised(""), "");
  EXPECT_EQ(Translations("ar", folder()).localised("Only German"), "Only German");
}

TEST_F(TranslationsTest, AFolderWithoutTablesGivesTheKeys) {
  EXPECT_EQ(Translations("de", folder() + "/none").localised("OK "), "OK ");
}

TEST_F(TranslationsTest, AnswersOnEveryThread) {
  const Translations german("de", folder());
  std::string other;
  std::thread reader([&] { other = german.localised("OK "); });
  const std::string own = german.localised("OK ");
  reader.join();
  EXPECT_EQ(own, "de ");
  EXPECT_EQ(other, "de ");
}

TEST_F(TranslationsTest, InstallingSetsTheDirectionOfWritingAndTheLocale) {
  Translations("ar", folder()).install();
  EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::RightToLeft);
  EXPECT_EQ(QLocale().language(), QLocale::Arabic);
  Translations("de", folder()).install();
  EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
  EXPECT_EQ(QLocale().language(), QLocale::German);
}

TEST_F(TranslationsTest, ARightToLeftLanguageWithoutATableIsLaidOutAsTheEnglishThatItReads) {
  Translations("he", folder()).install();
  EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

}  // namespace
}  // namespace calvero
