#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "terminal/text.h"

namespace calvero {

/// The text of a JSON value; bytes of a path that are not UTF-8 become U+FFFD, and what a terminal must not get is
/// escaped.
inline std::string jsonText(const nlohmann::ordered_json& value) {
  constexpr int kIndent = 2;
  constexpr char kIndentWith = ' ';
  constexpr bool kEscapeNonAscii = false;
  return withJsonEscapes(
      value.dump(kIndent, kIndentWith, kEscapeNonAscii, nlohmann::ordered_json::error_handler_t::replace));
}

}  // namespace calvero
