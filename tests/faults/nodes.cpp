#include "tests/faults/nodes.h"

#include <fcntl.h>
#include <unistd.h>

namespace faultfs {

namespace {

constexpr std::uint64_t kRoot = 1;  // as the kernel numbers it
// Behind the root's number, so that no mirrored inode is taken for it.
constexpr std::uint64_t kFirstNode = 2;

}  // namespace

Nodes::Nodes(int root) {
  nodes_[kRoot] = {root, 1};
}

std::uint64_t Nodes::lookUp(std::uint64_t parent, const char* name, struct stat& about) {
  const int found = ::openat(descriptor(parent), name, O_PATH | O_NOFOLLOW | O_CLOEXEC);
  if (found < 0) return 0;
  if (::fstat(found, &about) != 0) {
    ::close(found);
    return 0;
  }
  const std::uint64_t number = about.st_ino + kFirstNode;
  Node& node = nodes_[number];
  ++node.lookups;
  if (node.descriptor < 0) {
    node.descriptor = found;
  } else {
    ::close(found);
  }
  return number;
}

void Nodes::forget(std::uint64_t number, std::uint64_t lookups) {
  const auto found = nodes_.find(number);
  if (found == nodes_.end() || number == kRoot) return;
  found->second.lookups -= lookups;
  if (found->second.lookups > 0) return;
  ::close(found->second.descriptor);
  nodes_.erase(found);
}

}  // namespace faultfs
