#include "platform/linux/volumes/reserved_blocks.h"

#include <linux/capability.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

#include "platform/linux/volumes/mount_table.h"

namespace calvero {

namespace {

bool hasReservedBlocks(const Mount& mount) {
  return mount.type == "ext4" || mount.type == "ext3" || mount.type == "ext2" || mount.type == "f2fs";
}

bool isInInitialUserNamespace() {
  constexpr ino_t kInitialUserNamespace = 0xEFFFFFFD;  // the same on every kernel
  struct stat status = {};
  return ::stat("/proc/self/ns/user", &status) == 0 && status.st_ino == kInitialUserNamespace;
}

bool hasResourceCapability() {
  struct __user_cap_header_struct header = {.version = _LINUX_CAPABILITY_VERSION_3, .pid = 0};
  std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> sets = {};
  if (::syscall(SYS_capget, &header, sets.data()) != 0) return false;
  return (sets[CAP_TO_INDEX(CAP_SYS_RESOURCE)].effective & CAP_TO_MASK(CAP_SYS_RESOURCE)) != 0;
}

}  // namespace

bool mayUseReservedBlocks(const Mount& mount) {
  // Users and capabilities count as the whole system knows them: a user namespace's root has neither.
  if (!hasReservedBlocks(mount) || !isInInitialUserNamespace()) return false;
  return ::geteuid() == mount.reservedFor || hasResourceCapability();
}

std::uint64_t bytesKeptByFileSystem(const Mount& mount, const struct statvfs& statistics) {
  if (!mount.type.starts_with("ext") || !mayUseReservedBlocks(mount)) return 0;  // for others it is not told as free
  const std::string number = std::to_string(major(mount.device)) + ':' + std::to_string(minor(mount.device));
  std::error_code unknown;
  const auto device = std::filesystem::read_symlink("/sys/dev/block/" + number, unknown).filename().string();
  std::ifstream file("/sys/fs/ext4/" + device + "/reserved_clusters");
  std::uint64_t clusters = 0;
  return file >> clusters ? clusters * statistics.f_frsize : 0;
}

std::uint64_t fillableBytes(const Mount& mount, const struct statvfs& statistics) {
  return (mayUseReservedBlocks(mount) ? statistics.f_bfree : statistics.f_bavail) * statistics.f_frsize;
}

}  // namespace calvero
