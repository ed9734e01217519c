#include "window/translations.h"

#include <QGuiApplication>

namespace calvero {
namespace {

constexpr const char* kContext = "Calvero";

bool loadTable(QTranslator& translator, const QLocale& locale, const std::string& folder) {
  return translator.load(locale, "calvero", "_", QString::fromStdString(folder), ".qm");
}

}  // namespace

Translations::Translations(const std::string& language, const std::string& folder)
    : locale_(QLocale::English, QLocale::UnitedStates) {
  const QLocale wanted(QString::fromStdString(language));
  const QLocale usualPlace(wanted.language());
  const bool isRead = loadTable(translator_, wanted, folder) ||
                      (usualPlace.script() == wanted.script() && loadTable(translator_, usualPlace, folder));
  if (isRead && wanted.language() != QLocale::C) locale_ = wanted;
}

std::string Translations::localised(const std::string& key) const {
  if (key.empty()) return {};  // the key of a table's own header
  const QString text = translator_.translate(kContext, key.c_str());
  return text.isNull() ? key : text.toStdString();
}

void Translations::install() const {
  QLocale::setDefault(locale_);
  QGuiApplication::setLayoutDirection(locale_.textDirection());
}

}  // namespace calvero
