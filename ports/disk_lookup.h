#pragma once

#include <optional>
#include <string>

namespace calvero {

/// From a volume's name to the place where it is mounted now.
class DiskLookup {
 public:
  virtual ~DiskLookup() = default;

  /// The mount path of the volume that was last listed under `name`; nothing when it is not mounted any more, even
  /// when another volume is mounted at its place. Any thread. Throws std::runtime_error when the mount table itself
  /// cannot be read.
  virtual std::optional<std::string> mountPath(const std::string& name) = 0;
};

}  // namespace calvero
