#include "platform/linux/files/linux_files.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <linux/magic.h>
#include <sys/ioctl.h>
#include <sys/statvfs.h>
#include <sys/vfs.h>

#include "platform/linux/files/filler_claim.h"
#include "platform/linux/files/folder_contents.h"
#include "platform/linux/files/linux_filler_directory.h"
#include "platform/linux/system/call_with_deadline.h"
#include "platform/linux/system/posix_error.h"
#include "platform/linux/volumes/volume_knowledge.h"

namespace calvero {

namespace {

/// With copy-on-write each pass would land on other blocks, zeros would be compressed away, and a full volume would
/// refuse the second pass. New files inherit the attribute; it excludes those about compression, which the folder may
/// have inherited itself. A Btrfs that refuses it is wiped all the same.
void switchOffCopyOnWrite(const OpenFolder& directory) {
  struct statfs properties = {};
  if (::fstatfs(directory.get(), &properties) != 0 || properties.f_type != BTRFS_SUPER_MAGIC) return;
  int flags = 0;
  if (::ioctl(directory.get(), FS_IOC_GETFLAGS, &flags) != 0) return;
  // In two steps: no one call may trade one attribute for the other.
  flags &= ~(FS_COMPR_FL | FS_NOCOMP_FL);
  ::ioctl(directory.get(), FS_IOC_SETFLAGS, &flags);
  flags |= FS_NOCOW_FL;
  ::ioctl(directory.get(), FS_IOC_SETFLAGS, &flags);
}

/// Closes the directory to others: somebody may have changed the mode of one that was left.
Error makePrivate(const FillerPlace& place, const OpenFolder& directory) {
  if (retryInterrupted([&] { return ::fchmod(directory.get(), S_IRWXU); }) == 0) return {};
  Error error = posixError("fchmod", place.path(), errno);
  const bool keepsNoModes = error.code == ErrorCode::notPermitted || error.code == ErrorCode::other;
  return keepsNoModes && place.showsNoOwners() ? Error{} : error;
}

/// What the system forbids in a directory that is ours is not a matter of the volume's root.
Error asLocked(Error error) {
  if (error.code == ErrorCode::notPermitted) error.code = ErrorCode::locked;
  return error;
}

Error prepare(const FillerPlace& place, const OpenFolder& directory, const FillerMoments& moments) {
  pass(moments.contentsSeen);
  Error error = makePrivate(place, directory);
  // Again, for until now somebody may have moved something in.
  if (!error.failed()) error = checkLeftContents(directory, place.path());
  if (error.failed()) return asLocked(error);
  std::atomic<std::uint64_t> steps{0};  // nobody waits for these
  error = emptyFolder(directory, place.path(), steps);
  if (!error.failed()) switchOffCopyOnWrite(directory);
  return asLocked(error);
}

Error whyNoFillerDirectory(const FillerPlace& place) {
  Error error;
  const OpenFolder directory = openUnclaimed(place, error);
  if (directory.isOpen()) {
    // Its mode does not matter: taking it over sets it.
    struct statvfs properties = {};
    if (::fstatvfs(directory.get(), &properties) != 0) return posixError("fstatvfs", place.path(), errno);
    if ((properties.f_flag & ST_RDONLY) != 0) return posixError("fstatvfs", place.path(), EROFS);
    return directory.identity.locked ? asLocked(posixError("statx", place.path(), EPERM)) : Error{};
  }
  Error writable = place.checkWritable();
  if (error.code == ErrorCode::notPermitted && place.isClosedToUs()) return writable;
  if (error.code == ErrorCode::notFound) return writable;
  // Whoever may not write there can neither clear away what is in the way nor have a run of his own there.
  const bool isOutOfReach = error.code == ErrorCode::notOurs && writable.code == ErrorCode::notPermitted;
  return isOutOfReach ? writable : error;
}

struct VolumeLook {
  Error error;
  std::optional<FileIdentity> root;  ///< of what the path leads to, if it could be opened
};

VolumeLook lookAt(const std::string& volumePath, const std::string& directoryPath) {
  VolumeLook look;
  const auto place = FillerPlace::open(volumePath, directoryPath, look.error);
  if (!place) return look;
  look.root = place->root();
  look.error = whyNoFillerDirectory(*place);
  return look;
}

}  // namespace

bool LinuxFiles::exists(const std::string& path) {
  struct stat ignored = {};
  return retryInterrupted([&] { return ::stat(path.c_str(), &ignored); }) == 0;
}

Error LinuxFiles::checkFillerDirectory(const std::string& volumePath, const std::string& directoryPath) {
  CallWithDeadline<VolumeLook> call([volumePath, directoryPath] { return lookAt(volumePath, directoryPath); });
  const auto look = call.resultBy(volumeDeadline());
  if (!look) return {ErrorCode::gone, "open", volumePath, "it does not answer"};
  Error error = look->root ? whyNotListed(volumePath, *look->root) : Error{};
  if (!error.failed()) error = look->error;
  return error.failed() ? error : whyTooThin(volumePath);
}

Error LinuxFiles::whyNotListed(const std::string& volumePath, const FileIdentity& root) const {
  return volumes_ == nullptr ? Error{} : volumes_->whyNotListed(volumePath, root);
}

Error LinuxFiles::whyTooThin(const std::string& volumePath) const {
  return volumes_ == nullptr ? Error{} : volumes_->whyTooThin(volumePath);
}

std::unique_ptr<FillerDirectory> LinuxFiles::createFillerDirectory(const std::string& volumePath,
                                                                   const std::string& directoryPath, Error& error) {
  auto place = FillerPlace::open(volumePath, directoryPath, error);
  if (!place) return nullptr;
  error = whyNotListed(volumePath, place->root());
  if (!error.failed()) error = whyTooThin(volumePath);
  if (error.failed()) return nullptr;
  const bool isNew = place->isFree();
  OpenFolder directory = claimDirectory(*place, IfAbsent::make, moments_, error);
  if (directory.isOpen()) error = prepare(*place, directory, moments_);
  if (!error.failed()) return std::make_unique<LinuxFillerDirectory>(std::move(*place), std::move(directory), moments_);
  directory = OpenFolder{};  // gives up the lock
  if (isNew) removeFillerDirectory(volumePath, directoryPath);
  return nullptr;
}

Error LinuxFiles::removeFillerDirectory(const std::string& volumePath, const std::string& directoryPath) {
  Error error;
  auto place = FillerPlace::open(volumePath, directoryPath, error);
  if (!place) return error;
  error = whyNotListed(volumePath, place->root());
  if (error.failed()) return error;
  OpenFolder directory = claimDirectory(*place, IfAbsent::report, moments_, error);
  if (!directory.isOpen()) return error;
  return LinuxFillerDirectory(std::move(*place), std::move(directory)).remove();
}

std::uint64_t LinuxFiles::bytesInLeftDirectory(const std::string& volumePath, const std::string& directoryPath) {
  const auto found = identityAt(AT_FDCWD, directoryPath.c_str());
  if (!found || !found->isFolder()) return 0;
  Error error;
  const auto place = FillerPlace::open(volumePath, directoryPath, error);
  const OpenFolder directory = place ? openUnclaimed(*place, error) : OpenFolder{};
  return directory.isOpen() ? allocatedBytesOfFiles(directory) : 0;
}

}  // namespace calvero
