#pragma once

#include <cstdint>
#include <string>

#include "platform/linux/volumes/kernel_paths.h"

namespace calvero {

struct Mount;

/// Why the storage below a mounted file system cannot take `bytes` more: the file system is in an image with holes, on
/// a file system with less room than filling them takes, or on a thin pool, whose room nothing here tells. Follows
/// partitions, device mapper, md and loop devices down to the disks. Empty where it can, and where that cannot be
/// known. Needs no rights. May block where an image's own file system hangs.
std::string whyStorageIsTooThin(const Mount& mount, std::uint64_t bytes, const KernelPaths& paths);

}  // namespace calvero
