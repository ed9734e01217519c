#pragma once

#include <string>

namespace calvero {

/// Where the kernel tells about mounts and devices.
struct KernelPaths {
  std::string mountTable = "/proc/self/mountinfo";
  std::string sysfs = "/sys";
};

}  // namespace calvero
