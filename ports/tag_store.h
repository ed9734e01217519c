#pragma once

#include <optional>
#include <string>

namespace calvero {

/// The suite's shared store of text values under text tags. Other programs read and write it at the same time. Any
/// thread.
class TagStore {
 public:
  virtual ~TagStore() = default;

  /// The value of `tag`, or nothing when the tag is absent or the store cannot be read. A value that this process has
  /// set and that is not stored yet is answered as if it were. Reads the store; another program that is just writing
  /// may delay it by up to two seconds.
  virtual std::optional<std::string> value(const std::string& tag) = 0;

  /// Stores `value` under `tag`, replacing an earlier one. Waits until it is stored, one second at most; what cannot be
  /// stored by then is kept and tried again for as long as the store lives. What can never be stored is logged and
  /// dropped.
  virtual void setValue(const std::string& tag, const std::string& value) = 0;
};

}  // namespace calvero
