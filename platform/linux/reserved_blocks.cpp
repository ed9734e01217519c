#include "platform/linux/reserved_blocks.h"

#include <linux/capability.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>

#include "platform/linux/mount_table.h"

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

}  // namespace calvero
