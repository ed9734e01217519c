#include "platform/linux/system/file_identity.h"

#include <fcntl.h>
#include <sys/sysmacros.h>

#include "platform/linux/system/posix_error.h"

namespace calvero {

namespace {

constexpr std::uint64_t kStatBlockBytes = 512;
constexpr std::int64_t kNanosecondsASecond = 1'000'000'000;

std::optional<FileIdentity> readIdentity(int folder, const char* name, int flags) {
  struct statx found = {};
  const unsigned mask = STATX_BASIC_STATS | STATX_BTIME | STATX_MNT_ID;
  if (retryInterrupted([&] { return ::statx(folder, name, flags | AT_NO_AUTOMOUNT, mask, &found); }) != 0) return {};
  FileIdentity identity;
  identity.device = makedev(found.stx_dev_major, found.stx_dev_minor);
  identity.inode = found.stx_ino;
  identity.mountId = (found.stx_mask & STATX_MNT_ID) != 0 ? found.stx_mnt_id : 0;
  identity.mode = found.stx_mode;
  identity.owner = found.stx_uid;
  identity.links = found.stx_nlink;
  identity.sizeBytes = found.stx_size;
  identity.allocatedBytes = found.stx_blocks * kStatBlockBytes;
  if ((found.stx_mask & STATX_BTIME) != 0) {
    identity.bornNanoseconds = found.stx_btime.tv_sec * kNanosecondsASecond + found.stx_btime.tv_nsec;
  }
  identity.locked = (found.stx_attributes & (STATX_ATTR_IMMUTABLE | STATX_ATTR_APPEND)) != 0;
  return identity;
}

}  // namespace

std::optional<FileIdentity> identityOf(int descriptor) {
  return readIdentity(descriptor, "", AT_EMPTY_PATH);
}

std::optional<FileIdentity> identityAt(int folder, const char* name) {
  return readIdentity(folder, name, AT_SYMLINK_NOFOLLOW);
}

std::optional<FileIdentity> identityBehind(const std::string& path) {
  constexpr int kNoFlags = 0;
  return readIdentity(AT_FDCWD, path.c_str(), kNoFlags);
}

}  // namespace calvero
