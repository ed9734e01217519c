#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace calvero {

/// `text` as it may be shown: control characters, characters that change the direction of the text or break the line,
/// and bytes that are not UTF-8 become octal escapes such as "\033".
std::string printable(std::string_view text);

/// The text of a JSON value with what `printable` escapes, but for its line breaks, as JSON's own escapes.
std::string withJsonEscapes(std::string_view json);

/// Columns that printable text takes on a terminal. Wide characters count as two once LC_CTYPE is a UTF-8 locale.
std::size_t columnsOf(std::string_view text);

/// `text` without the blanks at both ends, and with single blanks inside.
std::string withSingleBlanks(std::string_view text);

/// Whether both are equal but for the case of the letters A to Z.
bool equalIgnoringCase(std::string_view left, std::string_view right);

}  // namespace calvero
