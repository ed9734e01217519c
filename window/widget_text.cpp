#include "window/widget_text.h"

#include <QTextDocument>
#include <algorithm>

#include "platform/linux/system/shown_text.h"

namespace calvero {
namespace {

constexpr QChar kFirstStrongIsolate(0x2068);
constexpr QChar kPopDirectionalIsolate(0x2069);

bool isHarmful(QChar c) {
  return !isShown(c.unicode());
}

}  // namespace

QString toText(const std::string& text) {
  return QString::fromStdString(text);
}

QString harmless(QString text) {
  std::replace_if(text.begin(), text.end(), isHarmful, QChar(QChar::ReplacementCharacter));
  return text;
}

QString asTitle(const std::string& text) {
  return toText(text).replace(u'&', QStringLiteral("&&"));
}

QString isolated(const QString& text) {
  return text.isEmpty() ? text : kFirstStrongIsolate + text + kPopDirectionalIsolate;
}

QString plainToolTip(const QString& text) {
  return text.isEmpty() ? text : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}

}  // namespace calvero
