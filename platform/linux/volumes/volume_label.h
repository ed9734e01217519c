#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <string_view>

namespace calvero {

/// What a block device holds. Texts are empty where nobody knows.
struct DeviceContent {
  std::string label;    ///< raw: hostile text
  std::string type;     ///< e.g. "vfat", "ntfs"
  std::string version;  ///< e.g. "FAT32"
  std::string uuid;
};

/// The label that the file system mounted at `mountPath` tells, raw; empty when it has none; nothing when it does not
/// answer. Needs no privileges. Opens the folder: not for network file systems.
std::optional<std::string> labelFromFileSystem(const std::string& mountPath);

/// The device number of the block device behind a mount, 0 when there is none. A file system of several devices has a
/// number of its own, behind which only its source tells one of them.
dev_t blockDeviceOf(dev_t device, const std::string& source);

/// Asks udev's database and, where that knows nothing, the device itself if it may be opened.
DeviceContent contentOf(dev_t device, const std::string& devicePath);

/// Decodes the database's escapes: "\x20" is one byte. Anything else stays as it is.
std::string decodeUdevText(std::string_view encoded);

}  // namespace calvero
