#include "platform/linux/files/filler_place.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/statvfs.h>
#include <sys/vfs.h>
#include <unistd.h>

#include "platform/linux/system/last_part.h"
#include "platform/linux/system/posix_error.h"

namespace calvero {

namespace {

constexpr auto kExfatMagic = 0x2011BAB0U;  // not in the kernel's exported headers
constexpr auto kNtfs3Magic = 0x7366746EU;

bool fileSystemShowsNoOwners(int descriptor) {
  struct statfs properties = {};
  if (::fstatfs(descriptor, &properties) != 0) return false;
  switch (static_cast<std::uint32_t>(properties.f_type)) {
    case MSDOS_SUPER_MAGIC:
    case kExfatMagic:
    case kNtfs3Magic:
    case FUSE_SUPER_MAGIC:
      return true;
    default:
      return false;
  }
}

/// The umask of whoever started the run that left it may have taken the owner's rights.
bool isClosed(const FileIdentity& folder) {
  return (folder.mode & S_IRWXU) != S_IRWXU;
}

/// Opening fails where this did.
void openToOwner(int found) {
  // Through the descriptor that was looked at, which as an O_PATH one takes no fchmod.
  ::chmod(("/proc/self/fd/" + std::to_string(found)).c_str(), S_IRWXU);
}

}  // namespace

std::optional<FillerPlace> FillerPlace::open(const std::string& volumePath, const std::string& directoryPath,
                                             Error& error) {
  // O_PATH: a volume whose root may be written but not listed is as good as any other.
  OpenFolder root;
  root.descriptor =
      Descriptor(retryInterrupted([&] { return ::open(volumePath.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC); }));
  const auto identity = root.isOpen() ? identityOf(root.get()) : std::nullopt;
  if (!identity) {
    error = posixError("open", volumePath, errno);
    return {};
  }
  root.identity = *identity;
  return FillerPlace(std::move(root), volumePath, directoryPath);
}

FillerPlace::FillerPlace(OpenFolder root, std::string volumePath, std::string path)
    : root_(std::move(root)),
      volumePath_(std::move(volumePath)),
      path_(std::move(path)),
      name_(lastPart(path_)),
      showsNoOwners_(fileSystemShowsNoOwners(root_.get())) {}

bool FillerPlace::isFree() const {
  return !identityAt(root_.get(), name_.c_str()) && errno == ENOENT;
}

Error FillerPlace::checkWritable() const {
  // First, since no right helps against it: a file system that is mounted read-only only here shows that last.
  struct statvfs properties = {};
  if (::fstatvfs(root_.get(), &properties) == 0 && (properties.f_flag & ST_RDONLY) != 0) {
    return posixError("fstatvfs", path_, EROFS);
  }
  if (::faccessat(root_.get(), ".", W_OK | X_OK, AT_EACCESS) == 0) return {};
  return posixError("faccessat", path_, errno);
}

Error FillerPlace::makeDirectory() const {
  if (retryInterrupted([&] { return ::mkdirat(root_.get(), name_.c_str(), S_IRWXU); }) == 0) return {};
  return posixError("mkdirat", path_, errno);
}

const char* FillerPlace::whyNotOurs(const FileIdentity& found) const {
  if (found.isSymbolicLink()) return "it is a symbolic link";
  if (!found.isFolder()) return "it is not a folder";
  if (!found.isOnSameMount(root_.identity)) return "it is a mount point";
  // Btrfs gives each subvolume a device number of its own.
  if (found.device != root_.identity.device) return "it is on another file system";
  if (found.owner == ::geteuid()) return nullptr;
  if (showsNoOwners_ && found.owner == root_.identity.owner) return nullptr;
  return "it belongs to another user";
}

OpenFolder FillerPlace::openDirectory(IfClosed ifClosed, Error& error) const {
  const OpenFolder found = lookUp(root_.get(), name_.c_str(), path_, error);
  if (!found.isOpen()) return {};
  if (const char* reason = whyNotOurs(found.identity)) {
    error = {ErrorCode::notOurs, "openat", path_, reason};
    return {};
  }
  if (ifClosed == IfClosed::open && isClosed(found.identity)) openToOwner(found.get());
  return openFound(found, path_, error);
}

bool FillerPlace::isClosedToUs() const {
  const auto found = identityAt(root_.get(), name_.c_str());
  return found && whyNotOurs(*found) == nullptr && isClosed(*found);
}

bool FillerPlace::leadsTo(const OpenFolder& directory) const {
  const auto found = identityAt(root_.get(), name_.c_str());
  return found && found->isSameFile(directory.identity);
}

Error FillerPlace::removeDirectory(const OpenFolder& directory) const {
  const auto found = identityAt(root_.get(), name_.c_str());
  if (!found && errno != ENOENT) return posixError("statx", path_, errno);
  if (!found) {
    const auto left = identityOf(directory.get());
    if (!left || left->links == 0) return posixError("unlinkat", path_, ENOENT);
  }
  if (!found || !found->isSameFile(directory.identity)) {
    if (removeFromWhereItIs(directory)) return {};
    return {ErrorCode::notOurs, "unlinkat", path_, "the folder was moved away"};
  }
  if (retryInterrupted([&] { return ::unlinkat(root_.get(), name_.c_str(), AT_REMOVEDIR); }) == 0) return {};
  return posixError("unlinkat", path_, errno);
}

bool FillerPlace::removeFromWhereItIs(const OpenFolder& directory) const {
  Error error;
  const OpenFolder parent = lookUp(directory.get(), "..", path_, error);
  if (!parent.isOpen() || !parent.identity.isSameFile(root_.identity)) return false;
  FolderReader reader(root_.get());
  while (const dirent* entry = reader.next()) {
    if (entry->d_type != DT_DIR && entry->d_type != DT_UNKNOWN) continue;
    const auto found = identityAt(root_.get(), entry->d_name);
    if (!found || !found->isSameFile(directory.identity)) continue;
    return retryInterrupted([&] { return ::unlinkat(root_.get(), entry->d_name, AT_REMOVEDIR); }) == 0;
  }
  return false;
}

}  // namespace calvero
