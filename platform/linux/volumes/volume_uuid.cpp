#include "platform/linux/volumes/volume_uuid.h"

#include <fcntl.h>
#include <linux/btrfs.h>
#include <sys/ioctl.h>

#include <array>
#include <cstdint>
#include <optional>

#include "platform/linux/system/descriptor.h"

namespace calvero {

namespace {

using Uuid = std::array<std::uint8_t, 16>;

// What the exported headers of older kernels and those of the file systems' own tools do not have here.

struct AnyUuid {
  std::uint8_t bytes;
  Uuid uuid;
};
constexpr unsigned long kAnyUuid = _IOR(0x15, 0, AnyUuid);  // since Linux 6.9

struct Ext4Uuid {
  std::uint32_t bytes;
  std::uint32_t flags;
  Uuid uuid;
};
struct Ext4UuidHeader {
  std::uint32_t bytes;
  std::uint32_t flags;
};
constexpr unsigned long kExt4Uuid = _IOR('f', 44, Ext4UuidHeader);  // since Linux 6.0

struct XfsGeometry {
  std::array<std::uint32_t, 8> before;
  std::array<std::uint64_t, 4> blocks;
  Uuid uuid;
  std::array<std::uint32_t, 7> after;
};
constexpr unsigned long kXfsGeometry = _IOR('X', 100, XfsGeometry);

std::optional<Uuid> ofAny(int folder) {
  AnyUuid answer = {};
  if (::ioctl(folder, kAnyUuid, &answer) != 0 || answer.bytes != answer.uuid.size()) return {};
  return answer.uuid;
}

std::optional<Uuid> ofExt4(int folder) {
  Ext4Uuid answer = {.bytes = sizeof answer.uuid, .flags = 0, .uuid = {}};
  if (::ioctl(folder, kExt4Uuid, &answer) != 0 || answer.bytes != answer.uuid.size()) return {};
  return answer.uuid;
}

std::optional<Uuid> ofXfs(int folder) {
  XfsGeometry answer = {};
  if (::ioctl(folder, kXfsGeometry, &answer) != 0) return {};
  return answer.uuid;
}

std::optional<Uuid> ofBtrfs(int folder) {
  btrfs_ioctl_fs_info_args answer = {};
  if (::ioctl(folder, BTRFS_IOC_FS_INFO, &answer) != 0) return {};
  return std::to_array(answer.fsid);
}

std::string textOf(const Uuid& uuid) {
  constexpr const char* kDigits = "0123456789abcdef";
  std::string text;
  for (std::size_t i = 0; i < uuid.size(); ++i) {
    if (i == 4 || i == 6 || i == 8 || i == 10) text += '-';
    text += kDigits[uuid[i] >> 4U];
    text += kDigits[uuid[i] & 15U];
  }
  return text;
}

}  // namespace

std::string uuidFromFileSystem(const std::string& mountPath) {
  const Descriptor folder(::open(mountPath.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  if (!folder.isOpen()) return {};
  for (const auto ask : {ofAny, ofExt4, ofXfs, ofBtrfs}) {
    const auto uuid = ask(folder.get());
    if (uuid && *uuid != Uuid{}) return textOf(*uuid);
  }
  return {};
}

}  // namespace calvero
