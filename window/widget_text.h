#pragma once

#include <QString>
#include <string>

namespace calvero {

QString toText(const std::string& text);

/// A foreign text as one line that disturbs nothing about it: control characters, and characters that break the line or
/// change the direction of writing, become U+FFFD.
QString harmless(QString text);

/// A button's title that shows every '&' instead of taking it for a mnemonic.
QString asTitle(const std::string& text);

/// Keeps a foreign text's direction from disturbing what stands around it. For painted texts; not for what is read out.
QString isolated(const QString& text);

/// A tool tip that shows `text` as it is, tags included.
QString plainToolTip(const QString& text);

}  // namespace calvero
