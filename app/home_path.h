#pragma once

#include <string>

namespace calvero {

/// `path` without its last component: "/a/b" gives "/a", "/a" and "/" give "/", "a" gives "".
inline std::string withoutLastComponent(const std::string& path) {
  const auto end = path.find_last_not_of('/');
  if (end == std::string::npos) return path.empty() ? "" : "/";
  const auto slash = path.find_last_of('/', end);
  if (slash == std::string::npos) return "";
  const auto kept = path.find_last_not_of('/', slash);
  return kept == std::string::npos ? "/" : path.substr(0, kept + 1);
}

/// The suite's home application: this one is installed six levels below it.
inline std::string homeApplicationPath(std::string bundlePath) {
  constexpr int kLevels = 6;
  for (int level = 0; level < kLevels; ++level) bundlePath = withoutLastComponent(bundlePath);
  return bundlePath;
}

}  // namespace calvero
