#pragma once

#include <cstdint>

#include "ports/error.h"

namespace calvero {

/// What stands for "%1" in the window's sentence.
enum class RefusalValue : std::uint8_t { none, folderName, folderPath };

/// What is said of a volume that is not wiped, and what to do about it.
struct RefusalWords {
  ErrorCode code;
  const char* key;  ///< the window's sentence, which the text tables translate
  RefusalValue value;
  /// The terminal's line. "%1" is the volume, "%2" the path that is in the way, "%3" the system's words for why, "%4"
  /// the whole error.
  const char* line;
  const char* administratorLine = nullptr;  ///< in its place, where root itself is refused
};

/// The one table of refusals, in the order in which they are looked for. A code without a row of its own gets the last
/// one.
const RefusalWords& refusalWords(ErrorCode code);

}  // namespace calvero
