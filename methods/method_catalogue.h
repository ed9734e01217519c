#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "ports/controls.h"

namespace calvero {

/// One erase method: a slot of the method page.
struct EraseMethod {
  std::int32_t number;  ///< 0 to 8; one-based wherever a person or another program names it
  const char* word;     ///< the short name for the command line
  Control button;
  Control label;
  const char* labelKey;  ///< localisation key; its blanks and letters are part of the key
  std::int32_t passes;   ///< passes written over each block
};

constexpr std::int32_t kMethodCount = 9;

/// Two pass counts look like mistakes and are meant: method 3 writes only the first of its three planned passes, and
/// method 6 writes none, so that a run lays out and removes empty filler files. Methods 0 and 6 share one label.
extern const std::array<EraseMethod, kMethodCount> kMethodCatalogue;

/// All nine selection buttons, in the order in which a change of method sets them.
extern const std::array<Control, kMethodCount> kButtonOrder;

/// The integer at the start of `text`: leading blanks skipped, an optional sign, decimal digits. 0 when there is none;
/// beyond 32 bits the nearest value.
std::int32_t integerValue(const std::string& text);

/// The method that a one-based number in a tag names; nothing outside "1" to "9".
std::optional<std::int32_t> methodFromTag(const std::string& text);

}  // namespace calvero
