#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "ports/mounted_volumes.h"

namespace calvero {

/// The volume that a person's word stands for, or one line that says why there is none and what to do.
struct VolumeChoice {
  std::optional<std::size_t> index;
  std::string refusal;
};

/// Finds `given` among the volumes: a name, or a mount path as it may be typed (relative, with slashes at its end).
VolumeChoice chooseVolume(const std::string& given, const std::vector<MountedVolume>& volumes);

/// Why `given`, a word for `chosen`, may stand for another volume once the list is read anew: names that begin alike
/// depend on what else is mounted. Empty for a mount path, and where no other volume has that label.
std::string ambiguityOf(const std::string& given, const MountedVolume& chosen,
                        const std::vector<MountedVolume>& volumes);

/// The number from 1 to `count` that was typed; nothing for anything else.
std::optional<std::size_t> numberUpTo(std::size_t count, const std::string& typed);

}  // namespace calvero
