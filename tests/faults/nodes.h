#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <map>

namespace faultfs {

/// What the kernel knows of the mirrored folder: one descriptor (O_PATH) for each inode, for as long as the kernel
/// remembers it. So a file without a name is still reached.
class Nodes {
 public:
  /// `root` stays open.
  explicit Nodes(int root);

  [[nodiscard]] int descriptor(std::uint64_t node) const { return nodes_.at(node).descriptor; }

  /// Looks `name` up below `parent` and counts the lookup. 0 with errno set on failure.
  std::uint64_t lookUp(std::uint64_t parent, const char* name, struct stat& about);

  void forget(std::uint64_t node, std::uint64_t lookups);

 private:
  struct Node {
    int descriptor = -1;
    std::uint64_t lookups = 0;
  };
  std::map<std::uint64_t, Node> nodes_;
};

}  // namespace faultfs
