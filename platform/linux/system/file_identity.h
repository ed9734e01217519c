#pragma once

#include <sys/stat.h>
#include <sys/types.h>

#include <cstdint>
#include <optional>
#include <string>

namespace calvero {

/// What tells one file, folder or link from every other, and what a run must know before it touches it.
struct FileIdentity {
  dev_t device = 0;
  std::uint64_t inode = 0;
  std::uint64_t mountId = 0;  ///< 0 where the kernel does not tell (before Linux 5.8)
  mode_t mode = 0;
  uid_t owner = 0;
  std::uint64_t links = 0;
  std::uint64_t sizeBytes = 0;
  std::uint64_t allocatedBytes = 0;
  std::int64_t bornNanoseconds = 0;  ///< since the epoch; 0 where the file system does not tell
  bool locked = false;               ///< by an attribute that lets nobody change it, or only add to it

  [[nodiscard]] bool isFolder() const { return S_ISDIR(mode); }
  [[nodiscard]] bool isSymbolicLink() const { return S_ISLNK(mode); }
  [[nodiscard]] bool isRegularFile() const { return S_ISREG(mode); }
  /// A new file may get the number of one that was removed a moment ago, but not its time of birth.
  [[nodiscard]] bool isSameFile(const FileIdentity& other) const {
    return inode == other.inode && bornNanoseconds == other.bornNanoseconds && device == other.device &&
           isOnSameMount(other);
  }
  /// Tells a bind mount of the same file system from the file system's own folder, which the device number cannot.
  [[nodiscard]] bool isOnSameMount(const FileIdentity& other) const {
    return mountId != 0 ? mountId == other.mountId : device == other.device;
  }
};

/// The identity of an open file; nothing, with errno set, when it cannot be read.
std::optional<FileIdentity> identityOf(int descriptor);

/// The identity of what is under `name` in the folder `folder`, a symbolic link itself and not its target.
std::optional<FileIdentity> identityAt(int folder, const char* name);

/// The identity of what a path leads to, symbolic links followed.
std::optional<FileIdentity> identityBehind(const std::string& path);

}  // namespace calvero
