#pragma once

#include <string>

namespace calvero {

/// The name at the end of a path, inside `path`; all of it where there is no slash.
inline const char* lastPart(const std::string& path) {
  return path.c_str() + (path.rfind('/') + 1);
}

}  // namespace calvero
