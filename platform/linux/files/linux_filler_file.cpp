#include "platform/linux/files/linux_filler_file.h"

#include <linux/magic.h>
#include <cerrno>
#include <utility>

#include "platform/linux/system/posix_error.h"

namespace calvero {

namespace {

// Each flush of a file on Btrfs leaves some metadata blocks that are free again only when the whole file system
// commits. It does so every half a minute. On a volume that is nearly full there is no room for as many as a slow
// machine flushes in between: writes were refused and the file system turned read-only after some 700 flushes.
constexpr int kFlushesBetweenCommits = 128;

bool isOnBtrfs(int descriptor, const FillerFileCalls& calls) {
  struct statfs properties = {};
  return calls.fstatfs(descriptor, &properties) == 0 && properties.f_type == BTRFS_SUPER_MAGIC;
}

}  // namespace

LinuxFillerFile::LinuxFillerFile(Descriptor descriptor, std::string path, std::shared_ptr<VolumeWatch> watch,
                                 FillerFileCalls calls)
    : descriptor_(std::move(descriptor)),
      path_(std::move(path)),
      watch_(std::move(watch)),
      calls_(calls),
      pinsMetadata_(isOnBtrfs(descriptor_.get(), calls_)) {}

WriteResult LinuxFillerFile::pwrite(const std::uint8_t* data, std::size_t bytes, std::uint64_t offset) {
  if (!watch_->wasThereLately()) return {-1, {ErrorCode::gone, "pwrite", path_, "the volume was taken away"}};
  const auto write = [&] { return calls_.pwrite(descriptor_.get(), data, bytes, static_cast<off_t>(offset)); };
  ssize_t written = retryInterrupted(write);
  // Full only until the next commit, perhaps.
  if (written < 0 && errno == ENOSPC && pinsMetadata_ && !commit().failed()) written = retryInterrupted(write);
  if (written < 0) return {-1, posixError("pwrite", path_, errno)};
  return {written, {}};
}

Error LinuxFillerFile::fsync() {
  if (retryInterrupted([&] { return calls_.fsync(descriptor_.get()); }) != 0) return posixError("fsync", path_, errno);
  if (!pinsMetadata_ || ++flushes_ % kFlushesBetweenCommits != 0) return {};
  return commit();
}

Error LinuxFillerFile::commit() const {
  if (retryInterrupted([&] { return calls_.syncfs(descriptor_.get()); }) == 0) return {};
  return posixError("syncfs", path_, errno);
}

}  // namespace calvero
