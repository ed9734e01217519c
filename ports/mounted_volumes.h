#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace calvero {

/// One mounted volume as the system describes it.
struct MountedVolume {
  std::string name;       ///< unique among the volumes of one list; printable, valid UTF-8
  std::string mountPath;  ///< absolute, as in the mount table
  /// The file system's common name, e.g. "ext4", "XFS", "NFS", "Unknown (autofs)", "SMB".
  std::string formatDescription;
  std::uint64_t availableBytes = 0;  ///< what this process can fill, a left filler directory of ours included
  std::uint64_t totalBytes = 0;
  bool removable = false;
  bool local = true;
  bool readOnly = false;
  std::string label;  ///< what it would be named if no other volume had the same label
  std::string uuid;   ///< of the file system, as text; empty where nobody tells
};

/// The system's mounted volumes.
class MountedVolumes {
 public:
  virtual ~MountedVolumes() = default;

  /// Every mounted volume that stores a user's files, each file system once, in the system's order. Values that cannot
  /// be read stay at their defaults. Blocks while the system is asked. Event loop thread.
  virtual std::vector<MountedVolume> mountedVolumes() = 0;

  /// Whether the volume mounted at `mountPath` is read-only now; nothing when that cannot be read. Event loop thread.
  virtual std::optional<bool> isReadOnly(const std::string& mountPath) = 0;
};

}  // namespace calvero
