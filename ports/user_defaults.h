#pragma once

#include <string>
#include <vector>

namespace calvero {

/// The application's own settings, kept for the user. Event loop thread; failures are swallowed.
class UserDefaults {
 public:
  virtual ~UserDefaults() = default;

  virtual void setTexts(const std::string& key, const std::vector<std::string>& values) = 0;
  /// Writes what was set at once.
  virtual void synchronise() = 0;
};

}  // namespace calvero
