#pragma once

#include <string>

namespace calvero {

/// The application's localisation table.
class Localisation {
 public:
  virtual ~Localisation() = default;

  /// The text for an English `key`, trailing blanks and the empty key included; the key itself where the table has
  /// none. Any thread.
  virtual std::string localised(const std::string& key) const = 0;
};

}  // namespace calvero
