#pragma once

#include <sys/types.h>

#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

namespace calvero {

/// One entry of the kernel's mount table.
struct Mount {
  int id = 0;
  int parentId = 0;
  dev_t device = 0;      ///< the table's own major:minor, one per file system; stat shows others on Btrfs
  std::string root;      ///< the folder of the file system that the mount shows; "/" is all of it
  std::string path;      ///< where it is mounted, raw: any byte but zero
  std::string type;      ///< e.g. "ext4", "fuse.sshfs"
  std::string source;    ///< e.g. "/dev/sda1", "server:/export"
  bool pseudo = false;   ///< as libmount knows the type
  bool network = false;  ///< likewise
  /// The file system has met an error and takes nothing any more; it is still told as writable elsewhere.
  bool emergencyReadOnly = false;
  uid_t reservedFor = 0;  ///< the user who may fill the blocks that the file system keeps back
};

/// The mount table of this process.
inline constexpr const char* kMountTable = "/proc/self/mountinfo";

/// Reads the mount table at `tablePath`, in the format of /proc/self/mountinfo and in its order. Lines that are no
/// entry are passed over. Throws std::system_error when the table cannot be read.
std::vector<Mount> readMountTable(const std::string& tablePath);

/// The mounts of one table as a path passes through them. The table must outlive the tree and stay as it is.
class MountTree {
 public:
  explicit MountTree(const std::vector<Mount>& table);

  /// The mount in which an absolute path without links ends; null when the table has none for it.
  [[nodiscard]] const Mount* reachedAt(const std::string& path) const;
  /// Whether the mount's own path leads to it, and not to another mount that hides it.
  [[nodiscard]] bool isReachable(const Mount& mount) const { return reachedAt(mount.path) == &mount; }

 private:
  using Children = std::vector<const Mount*>;

  static const Mount* nearest(const Children& children, const std::string& path);

  std::size_t entries_;
  Children outermost_;  // those whose parent is outside of what the process sees
  std::unordered_map<int, Children> childrenOf_;
};

/// Whether a mount that counts may show a file and no folder. Containers get single files of their host as mounts
/// (/etc/hosts): a part of a file system need not be a folder.
bool mayBeAFile(const Mount& mount);

/// Tells a folder from a file; asked at most once about each path, and only where `mayBeAFile`.
using IsFolder = std::function<bool(const std::string& path)>;

/// The entries that count as volumes: those that store a user's files and can be reached, each file system once, in
/// the table's order. Where a file system is mounted several times (a second mount, a bind mount, another subvolume),
/// the first mount that shows all of it stands for it, else the first that shows a folder of it.
std::vector<Mount> volumesAmong(const std::vector<Mount>& table, const IsFolder& isFolder);

}  // namespace calvero
