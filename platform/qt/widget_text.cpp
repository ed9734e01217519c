#include "platform/qt/widget_text.h"

#include <QTextDocument>
#include <algorithm>

namespace calvero {
namespace {

constexpr QChar kFirstStrongIsolate(0x2068);
constexpr QChar kPopDirectionalIsolate(0x2069);

bool isHarmful(QChar c) {
  switch (c.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
      return true;
    default:
      break;
  }
  const char16_t unit = c.unicode();
  return unit == 0x061C || unit == 0x200E || unit == 0x200F || (unit >= 0x202A && unit <= 0x202E) ||
         (unit >= 0x2066 && unit <= 0x2069);
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
