#include "platform/linux/volumes/mount_table.h"

#include <set>
#include <system_error>

#include "tests/fuzz/fuzzing.h"

namespace calvero::fuzzing {
namespace {

bool isSometimesAFolder(const std::string& path) {
  return path.size() % 2 == 0;
}

bool isIn(const std::string& folder, const std::string& path) {
  return path == folder || path.starts_with(folder.ends_with('/') ? folder : folder + '/');
}

void readTable(const std::string& path) {
  std::vector<Mount> table;
  try {
    table = readMountTable(path);
  } catch (const std::system_error&) {
    return;
  }
  const std::vector<Mount> volumes = volumesAmong(table, isSometimesAFolder);
  require(volumes.size() <= table.size(), "each volume is a mount");
  std::set<dev_t> devices;
  for (const Mount& volume : volumes) devices.insert(volume.device);
  require(devices.size() == volumes.size(), "each file system is there once");
  const MountTree tree(table);
  for (const Mount& mount : table) {
    if (!mount.path.starts_with('/')) continue;  // the tree answers for absolute paths only
    const Mount* reached = tree.reachedAt(mount.path);
    require(reached == nullptr || isIn(reached->path, mount.path), "a path leads through what it reaches");
  }
}

}  // namespace
}  // namespace calvero::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t bytes) {
  using namespace calvero::fuzzing;
  static const calvero::testing::ScopedFolder folder;
  const std::string path = folder.path() + "/mountinfo";
  putBytes(path, textOf(data, bytes));
  readTable(path);
  return 0;
}
