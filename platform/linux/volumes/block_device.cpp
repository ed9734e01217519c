#include "platform/linux/volumes/block_device.h"

#include <sys/sysmacros.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace calvero {

namespace {

/// The device's entry in the device tree, a link to its folder there.
std::filesystem::path entryOf(dev_t device, const std::string& sysfs) {
  return sysfs + "/dev/block/" + std::to_string(major(device)) + ':' + std::to_string(minor(device));
}

/// A file of the whole disk. A partition's folder is inside its disk's.
std::filesystem::path fileOfDisk(const std::filesystem::path& entry, const char* name) {
  std::error_code failed;
  return std::filesystem::exists(entry / "partition", failed) ? entry / ".." / name : entry / name;
}

std::string firstWord(const std::filesystem::path& file) {
  std::string word;
  std::ifstream(file) >> word;
  return word;
}

bool isUsbController(const std::filesystem::path& part) {
  const std::string name = part.string();
  return name.size() > 3 && name.starts_with("usb") && name.find_first_not_of("0123456789", 3) == std::string::npos;
}

}  // namespace

bool isOnRemovableDisk(dev_t device, const std::string& sysfs) {
  const auto entry = entryOf(device, sysfs);
  if (firstWord(fileOfDisk(entry, "removable")) == "1") return true;
  std::error_code failed;
  const auto folder = std::filesystem::read_symlink(entry, failed);
  return std::any_of(folder.begin(), folder.end(), isUsbController);
}

std::string diskSequence(dev_t device, const std::string& sysfs) {
  return firstWord(fileOfDisk(entryOf(device, sysfs), "diskseq"));
}

}  // namespace calvero
