#include "platform/linux/volumes/backing_storage.h"

#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/sysmacros.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <vector>

#include "platform/linux/system/file_identity.h"
#include "platform/linux/volumes/mount_table.h"
#include "platform/linux/volumes/volume_label.h"

namespace calvero {

namespace {

using std::filesystem::path;

/// More than anything that is built on purpose; layers that lead in a circle end here.
constexpr int kMostDevices = 64;

std::string firstLine(const path& file) {
  std::string line;
  std::getline(std::ifstream(file), line);
  return line;
}

std::vector<path> devicesBelow(const path& device) {
  std::vector<path> found;
  std::error_code failed;
  for (const auto& entry : std::filesystem::directory_iterator(device / "slaves", failed)) {
    found.push_back(entry.path());
  }
  return found;
}

/// Thin volumes are built on a device of this kind, and so are those that are compressed or hold equal blocks once.
bool isThinPool(const path& device) {
  const std::string uuid = firstLine(device / "dm" / "uuid");
  return uuid.ends_with("-tpool") || uuid.ends_with("-vpool");
}

/// One walk from a file system down to the disks.
class Descent {
 public:
  explicit Descent(const KernelPaths& paths) : paths_(paths) {}

  std::string below(const Mount& mount, std::uint64_t bytes) {
    const dev_t device = blockDeviceOf(mount.device, mount.source);
    return device == 0 ? std::string() : below(device, bytes);
  }

 private:
  std::string below(dev_t device, std::uint64_t bytes) {
    const std::string number = std::to_string(major(device)) + ':' + std::to_string(minor(device));
    return below(path(paths_.sysfs) / "dev/block" / number, bytes);
  }

  std::string below(const path& entry, std::uint64_t bytes) {
    std::error_code failed;
    path device = std::filesystem::canonical(entry, failed);
    if (failed || ++devices_ > kMostDevices) return {};
    if (std::filesystem::exists(device / "partition", failed)) device = device.parent_path();
    if (isThinPool(device)) return "it is on a thin pool, which may have less room than its volumes show";
    const std::string image = firstLine(device / "loop" / "backing_file");
    if (!image.empty()) return belowImage(image, bytes);
    for (const path& lower : devicesBelow(device)) {
      if (std::string why = below(lower, bytes); !why.empty()) return why;
    }
    return {};
  }

  /// An image that has lost its name reads "... (deleted)" and is not found: how much of it is allocated, and how much
  /// the run would make it grow, cannot be known then. The same goes for one whose path leads elsewhere here than where
  /// it was set up, which mostly shows by there being nothing.
  std::string belowImage(const std::string& image, std::uint64_t bytes) {
    const auto file = identityBehind(image);
    if (!file) return {};
    if (S_ISBLK(file->mode)) return belowBlockDevice(image, bytes);
    if (!file->isRegularFile() || file->allocatedBytes >= file->sizeBytes) return {};
    const std::uint64_t growth = std::min(bytes, file->sizeBytes - file->allocatedBytes);
    const auto free = freeBytesAround(image);
    if (!free) return {};
    if (*free < growth) {
      return "its image " + image + " may grow by " + std::to_string(growth) + " bytes, and only " +
             std::to_string(*free) + " are free where the image is";
    }
    return belowFileSystemOf(image, growth);
  }

  std::string belowBlockDevice(const std::string& image, std::uint64_t bytes) {
    struct stat status = {};
    return ::stat(image.c_str(), &status) == 0 ? below(status.st_rdev, bytes) : std::string();
  }

  /// The kernel writes an image, and may use what is reserved for the administrator.
  static std::optional<std::uint64_t> freeBytesAround(const std::string& image) {
    struct statvfs figures = {};
    const bool isKnown = ::statvfs(image.c_str(), &figures) == 0 && figures.f_blocks != 0;
    return isKnown ? std::optional<std::uint64_t>(figures.f_bfree * figures.f_frsize) : std::nullopt;
  }

  std::string belowFileSystemOf(const std::string& image, std::uint64_t bytes) {
    const std::vector<Mount> table = readMountTable(paths_.mountTable);
    const Mount* mount = MountTree(table).reachedAt(image);
    return mount == nullptr ? std::string() : below(*mount, bytes);
  }

  const KernelPaths& paths_;
  int devices_ = 0;
};

}  // namespace

std::string whyStorageIsTooThin(const Mount& mount, std::uint64_t bytes, const KernelPaths& paths) {
  return Descent(paths).below(mount, bytes);
}

}  // namespace calvero
