#include "platform/linux/files/filler_claim.h"

#include <sys/file.h>

#include <chrono>
#include <thread>

#include "platform/linux/files/folder_contents.h"
#include "platform/linux/system/posix_error.h"

namespace calvero {

namespace {

/// The run before may remove its directory between our opening and our locking it.
constexpr int kClaimAttempts = 8;

/// Whoever lists the volumes holds the lock for an instant, to see whether a run has it.
constexpr int kLockAttempts = 5;
constexpr std::chrono::milliseconds kLockPause{2};

/// NFS has no lock on what is not open for writing, and other file systems have none at all. There nothing keeps two
/// runs apart, which does no more harm than two programs filling one volume.
bool meansNoLocks(int errnoValue) {
  return errnoValue == EBADF || errnoValue == ENOLCK || errnoValue == EOPNOTSUPP || errnoValue == EINVAL;
}

Error lockFolder(const OpenFolder& folder, const std::string& path) {
  for (int attempt = 0; attempt < kLockAttempts; ++attempt) {
    if (attempt > 0) std::this_thread::sleep_for(kLockPause);
    if (retryInterrupted([&] { return ::flock(folder.get(), LOCK_EX | LOCK_NB); }) == 0) return {};
    if (meansNoLocks(errno)) return {};
    if (errno != EWOULDBLOCK) return posixError("flock", path, errno);
  }
  return {ErrorCode::busy, "flock", path, "another run is using it"};
}

}  // namespace

OpenFolder claimDirectory(const FillerPlace& place, IfAbsent ifAbsent, const FillerMoments& moments, Error& error) {
  for (int attempt = 0; attempt < kClaimAttempts; ++attempt) {
    if (ifAbsent == IfAbsent::make) {
      error = place.makeDirectory();
      if (error.failed() && error.code != ErrorCode::exists) return {};
    }
    OpenFolder directory = place.openDirectory(IfClosed::open, error);
    if (!directory.isOpen()) {
      if (ifAbsent == IfAbsent::make && error.code == ErrorCode::notFound) continue;
      return {};
    }
    pass(moments.directoryOpened);
    error = lockFolder(directory, place.path());
    if (error.failed()) return {};
    if (!place.leadsTo(directory)) continue;
    error = checkLeftContents(directory, place.path());
    return error.failed() ? OpenFolder{} : std::move(directory);
  }
  error = {ErrorCode::other, "flock", place.path(), "it keeps being replaced"};
  return {};
}

OpenFolder openUnclaimed(const FillerPlace& place, Error& error) {
  OpenFolder directory = place.openDirectory(IfClosed::leave, error);
  if (!directory.isOpen()) return {};
  error = lockFolder(directory, place.path());
  if (!error.failed()) {
    ::flock(directory.get(), LOCK_UN);
    error = checkLeftContents(directory, place.path());
  }
  return error.failed() ? OpenFolder{} : std::move(directory);
}

}  // namespace calvero
