#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace calvero {

/// The first character of a text in UTF-8.
struct Character {
  std::optional<char32_t> codePoint;  ///< nothing for a byte with which no character begins
  std::size_t bytes = 1;
};

/// `text` is not empty.
Character firstCharacter(std::string_view text);

/// Whether a character of a stranger's text may be shown as it is: no control character, and none that changes the
/// direction of the text or breaks the line. The one rule for the names of volumes and for both faces.
bool isShown(char32_t c);

}  // namespace calvero
