#include "platform/linux/volumes/mount_table.h"

#include <libmount/libmount.h>

#include <cerrno>
#include <charconv>
#include <memory>
#include <new>
#include <string_view>
#include <system_error>

#include "platform/linux/volumes/format_description.h"

namespace calvero {

namespace {

struct TableDeleter {
  void operator()(libmnt_table* table) const { mnt_unref_table(table); }
};
struct IteratorDeleter {
  void operator()(libmnt_iter* iterator) const { mnt_free_iter(iterator); }
};

std::string textOrNone(const char* text) {
  return text == nullptr ? std::string() : std::string(text);
}

bool hasOption(const char* options, const char* name) {
  char* value = nullptr;
  std::size_t bytes = 0;
  return options != nullptr && mnt_optstr_get_option(options, name, &value, &bytes) == 0;
}

uid_t reservedForIn(const char* options) {
  char* value = nullptr;
  std::size_t bytes = 0;
  uid_t user = 0;
  if (options == nullptr || mnt_optstr_get_option(options, "resuid", &value, &bytes) != 0) return user;
  std::from_chars(value, value + bytes, user);
  return user;
}

Mount mountFrom(libmnt_fs* entry) {
  return {.id = mnt_fs_get_id(entry),
          .parentId = mnt_fs_get_parent_id(entry),
          .device = mnt_fs_get_devno(entry),
          .root = textOrNone(mnt_fs_get_root(entry)),
          .path = textOrNone(mnt_fs_get_target(entry)),
          .type = textOrNone(mnt_fs_get_fstype(entry)),
          .source = textOrNone(mnt_fs_get_source(entry)),
          .pseudo = mnt_fs_is_pseudofs(entry) != 0,
          .network = mnt_fs_is_netfs(entry) != 0,
          .emergencyReadOnly = hasOption(mnt_fs_get_fs_options(entry), "emergency_ro"),
          .reservedFor = reservedForIn(mnt_fs_get_fs_options(entry))};
}

bool leadsThrough(std::string_view path, std::string_view folder) {
  if (folder == "/") return true;
  return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

bool showsAll(const Mount& mount) {
  return mount.root == "/";
}

bool countsAsVolume(const Mount& mount, const MountTree& tree, const IsFolder& isFolder) {
  if (!storesUserFiles(mount) || !tree.isReachable(mount)) return false;
  return !mayBeAFile(mount) || isFolder(mount.path);
}

}  // namespace

std::vector<Mount> readMountTable(const std::string& tablePath) {
  const std::unique_ptr<libmnt_table, TableDeleter> table(mnt_new_table());
  const std::unique_ptr<libmnt_iter, IteratorDeleter> iterator(mnt_new_iter(MNT_ITER_FORWARD));
  if (!table || !iterator) throw std::bad_alloc();
  mnt_table_set_parser_errcb(table.get(), [](libmnt_table*, const char*, int) { return 1; });
  if (const int result = mnt_table_parse_file(table.get(), tablePath.c_str()); result != 0) {
    throw std::system_error(result < 0 ? -result : EIO, std::generic_category(), "reading " + tablePath);
  }
  std::vector<Mount> mounts;
  for (libmnt_fs* entry = nullptr; mnt_table_next_fs(table.get(), iterator.get(), &entry) == 0;) {
    mounts.push_back(mountFrom(entry));
  }
  return mounts;
}

MountTree::MountTree(const std::vector<Mount>& table) : entries_(table.size()) {
  for (const Mount& mount : table) childrenOf_[mount.id];
  for (const Mount& mount : table) {
    const auto parent = childrenOf_.find(mount.parentId);
    const bool hasParent = parent != childrenOf_.end() && mount.parentId != mount.id;
    (hasParent ? parent->second : outermost_).push_back(&mount);
  }
}

const Mount* MountTree::reachedAt(const std::string& path) const {
  const Mount* reached = nullptr;
  const Mount* next = nearest(outermost_, path);
  // A table that changed while it was read may hold one id twice, so that the way down would never end.
  for (std::size_t level = 0; next != nullptr && level < entries_; ++level) {
    reached = next;
    next = nearest(childrenOf_.at(reached->id), path);
  }
  return reached;
}

const Mount* MountTree::nearest(const Children& children, const std::string& path) {
  const Mount* found = nullptr;
  for (const Mount* child : children) {
    if (!leadsThrough(path, child->path)) continue;
    // Of two at one place the later one is on top.
    if (found == nullptr || child->path.size() <= found->path.size()) found = child;
  }
  return found;
}

bool mayBeAFile(const Mount& mount) {
  return storesUserFiles(mount) && !showsAll(mount) && !isNetworkFileSystem(mount);
}

std::vector<Mount> volumesAmong(const std::vector<Mount>& table, const IsFolder& isFolder) {
  const MountTree tree(table);
  std::vector<Mount> volumes;
  std::unordered_map<dev_t, std::size_t> placeOf;
  for (const Mount& mount : table) {
    const auto known = placeOf.find(mount.device);
    if (known != placeOf.end() && (showsAll(volumes[known->second]) || !showsAll(mount))) continue;
    if (!countsAsVolume(mount, tree, isFolder)) continue;
    if (known != placeOf.end()) {
      volumes[known->second] = mount;
    } else {
      placeOf.emplace(mount.device, volumes.size());
      volumes.push_back(mount);
    }
  }
  return volumes;
}

}  // namespace calvero
