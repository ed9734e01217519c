#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "ports/mounted_volumes.h"
#include "volumes/item.h"

namespace calvero {

/// The volumes that may be wiped: parallel arrays, one entry per accepted volume, in the system's order. The position
/// is the volume index. Built once by `loadVolumes` and never changed afterwards, so that a worker may read its own
/// while the event loop lists the volumes anew.
struct VolumeTable {
  std::vector<MountedVolume> urls;  ///< every mounted volume as it was reported, not filtered
  std::vector<std::string> volumeNameArray;
  std::vector<std::uint64_t> freeSpaceOfSelectedVolumeArray;  ///< available capacity, bytes
  std::vector<std::uint64_t> capacityOfSelectedVolumeArray;   ///< total capacity, bytes
  std::vector<std::string> fileSystemOfSelectedVolumeArray;   ///< format descriptions
  std::vector<Item> items;
};

/// One row of a table, held together with the table it indexes. The index is not checked until it is used: a query
/// beyond the table throws std::out_of_range.
struct VolumeSelection {
  std::shared_ptr<const VolumeTable> table;
  std::size_t row = 0;

  [[nodiscard]] const std::string& name() const { return table->volumeNameArray.at(row); }
  [[nodiscard]] std::uint64_t freeBytes() const { return table->freeSpaceOfSelectedVolumeArray.at(row); }
  [[nodiscard]] std::uint64_t capacityBytes() const { return table->capacityOfSelectedVolumeArray.at(row); }
  [[nodiscard]] const std::string& formatDescription() const { return table->fileSystemOfSelectedVolumeArray.at(row); }
};

}  // namespace calvero
