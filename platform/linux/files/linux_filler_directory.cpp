#include "platform/linux/files/linux_filler_directory.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <system_error>

#include "platform/linux/files/folder_contents.h"
#include "platform/linux/files/linux_filler_file.h"
#include "platform/linux/process/process_limits.h"
#include "platform/linux/system/last_part.h"
#include "platform/linux/system/posix_error.h"
#include "platform/linux/volumes/mount_table.h"
#include "platform/linux/volumes/reserved_blocks.h"

namespace calvero {

namespace {

/// Each attempt ends at the latest when somebody has taken the freed name again.
constexpr int kCreateAttempts = 8;

/// A worker that is in the middle of one call when the directory is removed may still add one entry, and a file system
/// that needs room to remove something may need a moment to find what has just been given back.
constexpr int kRemoveAttempts = 16;

constexpr mode_t kOwnerOnly = S_IRUSR | S_IWUSR;

int openIn(const OpenFolder& folder, const char* name, int flags) {
  return retryInterrupted([&] { return ::openat(folder.get(), name, flags | O_NOFOLLOW | O_CLOEXEC, kOwnerOnly); });
}

int unlinkIn(const OpenFolder& folder, const char* name) {
  return retryInterrupted([&] { return ::unlinkat(folder.get(), name, 0); });
}

const char* whyNoFillerFile(const FileIdentity& found, const FileIdentity& directory) {
  if (!found.isRegularFile()) return "it is not a regular file";
  if (!found.isOnSameMount(directory)) return "it is a mount point";
  if (found.links > 1) return "it has a second name";
  if (found.sizeBytes != 0) return "it is not empty";
  return nullptr;
}

}  // namespace

LinuxFillerDirectory::LinuxFillerDirectory(FillerPlace place, OpenFolder directory, FillerMoments moments)
    : place_(std::move(place)),
      moments_(std::move(moments)),
      watch_(std::make_shared<VolumeWatch>(place_.volumePath(), place_.device())),
      directory_(std::move(directory)) {}

Error LinuxFillerDirectory::createEmptyFile(const std::string& path) {
  if (!watch_->wasThereLately()) return {ErrorCode::gone, "openat", path, "the volume was taken away"};
  const char* name = lastPart(path);
  int failure = EEXIST;
  for (int attempt = 0; attempt < kCreateAttempts; ++attempt) {
    if (closed_) return {ErrorCode::closed, "openat", path, "the run is over"};
    const int descriptor = openIn(directory_, name, O_CREAT | O_EXCL | O_WRONLY);
    if (descriptor >= 0) {
      // The caller's umask may have taken even the owner's rights. Where modes cannot be set it could not.
      ::fchmod(descriptor, kOwnerOnly);
      ::close(descriptor);
      return {};
    }
    failure = errno;
    if (failure != EEXIST) break;
    if (unlinkIn(directory_, name) != 0 && errno != ENOENT) {
      if (errno != EISDIR) failure = errno;
      break;
    }
  }
  if (closed_) return {ErrorCode::closed, "openat", path, "the run is over"};
  return posixError("openat", path, failure);
}

bool LinuxFillerDirectory::exists(const std::string& path) {
  return watch_->isThere() && place_.leadsTo(directory_) && identityAt(directory_.get(), lastPart(path)).has_value();
}

Error LinuxFillerDirectory::readAttributes(const std::string& path) {
  return identityAt(directory_.get(), lastPart(path)) ? Error{} : posixError("statx", path, errno);
}

std::unique_ptr<FillerFile> LinuxFillerDirectory::openForWriting(const std::string& path, Error& error) {
  const char* name = lastPart(path);
  // Looked at twice: the first look keeps devices and FIFOs from being opened, the second one binds.
  auto found = identityAt(directory_.get(), name);
  const char* reason = found ? whyNoFillerFile(*found, directory_.identity) : nullptr;
  Descriptor descriptor;
  if (found && reason == nullptr) {
    pass(moments_.fileSeen);
    descriptor = Descriptor(openIn(directory_, name, O_WRONLY | O_NONBLOCK));
    found = descriptor.isOpen() ? identityOf(descriptor.get()) : std::nullopt;
    reason = found ? whyNoFillerFile(*found, directory_.identity) : nullptr;
  }
  if (found && reason == nullptr) return std::make_unique<LinuxFillerFile>(std::move(descriptor), path, watch_);
  error = found ? Error{ErrorCode::notOurs, "openat", path, reason} : posixError("openat", path, errno);
  return nullptr;
}

Error LinuxFillerDirectory::removeItem(const std::string& path) {
  const char* name = lastPart(path);
  const auto found = identityAt(directory_.get(), name);
  if (!found) return posixError("statx", path, errno);

  // A second descriptor, for reading, and not the one that wrote: closing the latter makes XFS give back what it
  // reserved behind the end of the file, while any open descriptor keeps the file's own blocks. O_PATH would not do:
  // a FUSE file system keeps a file without a name only for those who really opened it. A file that cannot be opened,
  // or only with a descriptor that the run needs, holds its space by its name until the clean-up.
  const bool takesSpace = found->isRegularFile() && (found->allocatedBytes != 0 || found->sizeBytes != 0);
  Descriptor file;
  if (takesSpace && !closed_) {
    file = Descriptor(openIn(directory_, name, O_RDONLY | O_NONBLOCK));
    const Error error = file.isOpen() ? Error{} : posixError("openat", path, errno);
    if (error.failed() || isSpareDescriptor(file.get())) {
      heldNames_.note(name, *found);
      return error.code == ErrorCode::noHandles ? Error{} : error;
    }
  }

  if (unlinkIn(directory_, name) != 0) return posixError("unlinkat", path, errno);
  heldNames_.forget(name);
  if (file.isOpen()) held_.keep(std::move(file));
  return {};
}

void LinuxFillerDirectory::releaseSpace() {
  held_.release(cleanUpSteps_);
  releaseNames();
}

void LinuxFillerDirectory::releaseNames() {
  for (const auto& [name, noted] : heldNames_.takeAll()) {
    if (stillHolds(name, noted)) {
      unlinkIn(directory_, name.c_str());  // a failure is told by the removal of the directory
    } else {
      bytesNotKept_ += noted.allocatedBytes;
    }
    ++cleanUpSteps_;
  }
}

bool LinuxFillerDirectory::stillHolds(const std::string& name, const FileIdentity& noted) const {
  const auto found = identityAt(directory_.get(), name.c_str());
  if (!found || !found->isRegularFile() || found->sizeBytes < noted.sizeBytes) return false;
  // Where files have no owners they have no lasting inode numbers either.
  return place_.showsNoOwners() || found->isSameFile(noted);
}

std::optional<std::uint64_t> LinuxFillerDirectory::availableBytes() {
  struct statvfs statistics = {};
  if (retryInterrupted([&] { return ::fstatvfs(directory_.get(), &statistics); }) != 0) return {};
  try {
    const std::vector<Mount> table = readMountTable(kMountTable);
    const Mount* mount = MountTree(table).reachedAt(place_.volumePath());
    if (mount == nullptr) return {};
    const std::uint64_t fillable = fillableBytes(*mount, statistics);
    return fillable - std::min(fillable, bytesKeptByFileSystem(*mount, statistics));
  } catch (const std::system_error&) {
    return {};
  }
}

Error LinuxFillerDirectory::remove() {
  closed_ = true;
  held_.releaseForGood(cleanUpSteps_);
  releaseNames();
  const std::lock_guard lock(removalMutex_);
  Error error;
  for (int attempt = 0; attempt < kRemoveAttempts; ++attempt) {
    error = emptyFolder(directory_, place_.path(), cleanUpSteps_);
    if (!error.failed()) error = removeName();
    const bool mayPass = error.code == ErrorCode::exists || error.code == ErrorCode::full;
    if (!mayPass && error.code != ErrorCode::overQuota) return error;
  }
  return error;
}

Error LinuxFillerDirectory::removeName() {
  if (nameRemoved_) return posixError("unlinkat", place_.path(), ENOENT);
  Error error = place_.removeDirectory(directory_);
  nameRemoved_ = !error.failed();
  return error;
}

}  // namespace calvero
