#include "tests/faults/room.h"

#include <algorithm>

namespace faultfs {

std::uint64_t Room::take(ino_t file, std::uint64_t offset, std::uint64_t bytes) {
  std::set<std::uint64_t>& own = files_[file].clusters;
  const std::uint64_t end = offset + bytes;
  for (std::uint64_t at = offset; at < end; at = (at / kClusterBytes + 1) * kClusterBytes) {
    if (own.contains(at / kClusterBytes)) continue;
    if (taken_ == clusters_) return at - offset;
    own.insert(at / kClusterBytes);
    mostTaken_ = std::max(mostTaken_, ++taken_);
  }
  return bytes;
}

void Room::closed(ino_t file, bool hasName) {
  --files_[file].users;
  if (!hasName) giveBack(file);
}

void Room::unlinked(ino_t file) {
  giveBack(file);
}

void Room::giveBack(ino_t file) {
  const auto found = files_.find(file);
  if (found == files_.end() || found->second.users > 0) return;
  taken_ -= found->second.clusters.size();
  files_.erase(found);
}

}  // namespace faultfs
