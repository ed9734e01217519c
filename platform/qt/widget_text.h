#pragma once

#include <QString>
#include <string>

namespace calvero {

QString toText(const std::string& text);

/// A button's title that shows every '&' instead of taking it for a mnemonic.
QString asTitle(const std::string& text);

/// Keeps a foreign text's direction from disturbing what stands around it. For painted texts; not for what is read out.
QString isolated(const QString& text);

/// A tool tip that shows `text` as it is, tags included.
QString plainToolTip(const QString& text);

}  // namespace calvero
