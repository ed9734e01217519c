#include "platform/linux/volumes/volume_label.h"

#include <blkid/blkid.h>
#include <fcntl.h>
#include <libudev.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <array>
#include <charconv>
#include <memory>

#include "platform/linux/system/descriptor.h"

namespace calvero {

namespace {

struct UdevDeleter {
  void operator()(udev* context) const { udev_unref(context); }
};
struct UdevDeviceDeleter {
  void operator()(udev_device* device) const { udev_device_unref(device); }
};
struct ProbeDeleter {
  void operator()(blkid_struct_probe* probe) const { blkid_free_probe(probe); }
};

std::string property(udev_device* device, const char* key) {
  const char* value = udev_device_get_property_value(device, key);
  return value == nullptr ? std::string() : std::string(value);
}

std::string found(blkid_probe probe, const char* key) {
  const char* value = nullptr;
  return blkid_probe_lookup_value(probe, key, &value, nullptr) == 0 && value != nullptr ? value : std::string();
}

constexpr std::size_t kEscapeLength = 4;

/// The byte that the escape at the start of `text` stands for; nothing when there is none.
std::optional<char> escapedByte(std::string_view text) {
  if (text.size() < kEscapeLength || !text.starts_with("\\x")) return {};
  const std::string_view digits = text.substr(2, 2);
  unsigned char byte = 0;
  const auto end = std::from_chars(digits.begin(), digits.end(), byte, 16).ptr;
  if (end != digits.end()) return {};
  return static_cast<char>(byte);
}

DeviceContent fromDatabase(dev_t device) {
  // A context of its own for each question: the library's are not to be shared between threads.
  const std::unique_ptr<udev, UdevDeleter> context(udev_new());
  if (!context) return {};
  const std::unique_ptr<udev_device, UdevDeviceDeleter> entry(udev_device_new_from_devnum(context.get(), 'b', device));
  if (!entry) return {};
  const std::string encoded = property(entry.get(), "ID_FS_LABEL_ENC");
  return {.label = encoded.empty() ? property(entry.get(), "ID_FS_LABEL") : decodeUdevText(encoded),
          .type = property(entry.get(), "ID_FS_TYPE"),
          .version = property(entry.get(), "ID_FS_VERSION"),
          .uuid = property(entry.get(), "ID_FS_UUID")};
}

bool isDevice(int descriptor, dev_t device) {
  struct stat status = {};
  return ::fstat(descriptor, &status) == 0 && S_ISBLK(status.st_mode) && status.st_rdev == device;
}

DeviceContent fromDeviceItself(dev_t device, const std::string& devicePath) {
  const Descriptor opened(::open(devicePath.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  if (!opened.isOpen() || !isDevice(opened.get(), device)) return {};
  const std::unique_ptr<blkid_struct_probe, ProbeDeleter> probe(blkid_new_probe());
  if (!probe || blkid_probe_set_device(probe.get(), opened.get(), 0, 0) != 0) return {};
  blkid_probe_enable_superblocks(probe.get(), 1);
  blkid_probe_set_superblocks_flags(probe.get(),
                                    BLKID_SUBLKS_LABEL | BLKID_SUBLKS_TYPE | BLKID_SUBLKS_VERSION | BLKID_SUBLKS_UUID);
  if (blkid_do_safeprobe(probe.get()) != 0) return {};
  return {.label = found(probe.get(), "LABEL"),
          .type = found(probe.get(), "TYPE"),
          .version = found(probe.get(), "VERSION"),
          .uuid = found(probe.get(), "UUID")};
}

}  // namespace

std::optional<std::string> labelFromFileSystem(const std::string& mountPath) {
  const Descriptor folder(::open(mountPath.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  if (!folder.isOpen()) return {};
  std::array<char, FSLABEL_MAX + 1> label = {};
  if (::ioctl(folder.get(), FS_IOC_GETFSLABEL, label.data()) != 0) return {};
  return std::string(label.data());
}

dev_t blockDeviceOf(dev_t device, const std::string& source) {
  if (major(device) != 0) return device;
  struct stat status = {};
  if (!source.starts_with("/dev/") || ::stat(source.c_str(), &status) != 0) return 0;
  return S_ISBLK(status.st_mode) ? status.st_rdev : 0;
}

DeviceContent contentOf(dev_t device, const std::string& devicePath) {
  DeviceContent content = fromDatabase(device);
  return content.type.empty() ? fromDeviceItself(device, devicePath) : content;
}

std::string decodeUdevText(std::string_view encoded) {
  std::string decoded;
  while (!encoded.empty()) {
    const std::optional<char> byte = escapedByte(encoded);
    decoded += byte.value_or(encoded.front());
    encoded.remove_prefix(byte ? kEscapeLength : 1);
  }
  return decoded;
}

}  // namespace calvero
