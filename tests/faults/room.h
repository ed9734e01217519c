#pragma once

#include <sys/types.h>

#include <cstdint>
#include <map>
#include <set>

namespace faultfs {

inline constexpr std::uint64_t kClusterBytes = 4096;

/// The space of the volume: so many clusters, taken by what is written and free again when a file has neither a name
/// nor a user. The files that were there before take none of it.
class Room {
 public:
  explicit Room(std::uint64_t clusters) : clusters_(clusters) {}

  /// How many of the `bytes` bytes at `offset` there is room for; takes it.
  std::uint64_t take(ino_t file, std::uint64_t offset, std::uint64_t bytes);

  void opened(ino_t file) { ++files_[file].users; }
  void closed(ino_t file, bool hasName);
  void unlinked(ino_t file);

  [[nodiscard]] std::uint64_t clusters() const { return clusters_; }
  [[nodiscard]] std::uint64_t freeClusters() const { return clusters_ - taken_; }
  [[nodiscard]] std::uint64_t fewestFree() const { return clusters_ - mostTaken_; }

 private:
  struct File {
    std::set<std::uint64_t> clusters;
    int users = 0;
  };
  void giveBack(ino_t file);

  const std::uint64_t clusters_;
  std::uint64_t taken_ = 0;
  std::uint64_t mostTaken_ = 0;
  std::map<ino_t, File> files_;
};

}  // namespace faultfs
