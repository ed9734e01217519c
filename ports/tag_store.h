#pragma once

#include <optional>
#include <string>

namespace calvero {

/// The suite's shared store of text values under text tags. Any thread.
class TagStore {
 public:
  virtual ~TagStore() = default;

  /// The value of `tag`, or nothing when the tag is absent or the store cannot be read.
  virtual std::optional<std::string> value(const std::string& tag) = 0;

  /// Stores `value` under `tag`, replacing an earlier one.
  virtual void setValue(const std::string& tag, const std::string& value) = 0;
};

}  // namespace calvero
