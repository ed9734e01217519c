#pragma once

#include <string>
#include <vector>

#include "ports/mounted_volumes.h"

namespace calvero {

/// The volumes as a table, each row led by its number for choosing one.
std::string numberedVolumes(const std::vector<MountedVolume>& volumes);
std::string volumesTable(const std::vector<MountedVolume>& volumes);
std::string volumesJson(const std::vector<MountedVolume>& volumes);

}  // namespace calvero
