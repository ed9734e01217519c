#include "platform/linux/files/folder_contents.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <string_view>

#include "platform/linux/system/posix_error.h"
#include "ports/files.h"

namespace calvero {

namespace {

/// A run's directory has no folders; a hostile tree must not use up the stack or the descriptors.
constexpr int kMaxDepth = 64;

/// Some file systems skip entries when others are removed under the reader, and some keep an open file visible under
/// a new name for each removal: many passes may be needed, and they may never end.
constexpr int kMaxPasses = 64;

/// The tree that is being removed.
struct Removal {
  std::atomic<std::uint64_t>& steps;
  int depth = 0;
};

Error emptyFolderAtDepth(const OpenFolder& folder, const std::string& path, Removal removal);

int removeAt(int folder, const char* name, int flags) {
  return retryInterrupted([&] { return ::unlinkat(folder, name, flags); });
}

Error removeSubfolder(const OpenFolder& parent, const char* name, const std::string& path, Removal removal) {
  if (removal.depth == kMaxDepth) return {ErrorCode::other, "unlinkat", path, "the folders are nested too deeply"};
  Error error;
  const OpenFolder folder = openSubfolder(parent, name, path, error);
  if (!folder.isOpen()) return error;
  error = emptyFolderAtDepth(folder, path, {removal.steps, removal.depth + 1});
  if (error.failed()) return error;
  return removeAt(parent.get(), name, AT_REMOVEDIR) == 0 ? Error{} : posixError("unlinkat", path, errno);
}

Error removeEntry(const OpenFolder& folder, const dirent& entry, const std::string& path, Removal removal) {
  if (entry.d_type != DT_DIR) {
    if (removeAt(folder.get(), entry.d_name, 0) == 0 || errno == ENOENT) return {};
    if (errno != EISDIR) return posixError("unlinkat", path + '/' + entry.d_name, errno);
  }
  return removeSubfolder(folder, entry.d_name, path + '/' + entry.d_name, removal);
}

Error emptyFolderAtDepth(const OpenFolder& folder, const std::string& path, Removal removal) {
  Error firstFailure;
  bool removedAny = true;
  for (int pass = 0; pass < kMaxPasses && removedAny; ++pass) {
    firstFailure = {};
    removedAny = false;
    FolderReader reader(folder.get());
    while (const dirent* entry = reader.next()) {
      Error failure = removeEntry(folder, *entry, path, removal);
      if (!failure.failed()) {
        removedAny = true;
        ++removal.steps;
      } else if (!firstFailure.failed()) {
        firstFailure = std::move(failure);
      }
    }
    if (reader.errnoValue() != 0) return posixError("readdir", path, reader.errnoValue());
  }
  return firstFailure;
}

bool isFolderEntry(const OpenFolder& folder, const dirent& entry) {
  if (entry.d_type != DT_UNKNOWN) return entry.d_type == DT_DIR;
  const auto identity = identityAt(folder.get(), entry.d_name);
  return identity && identity->isFolder();
}

/// What is open while it is removed stays under such a name where the file system needs one.
bool isNameOfRemovedFile(std::string_view name) {
  return name.starts_with(".fuse_hidden") || name.starts_with(".nfs");
}

bool mayBeLeftByARun(std::string_view name) {
  if (!name.starts_with(kFillerFilePrefix)) return isNameOfRemovedFile(name);
  const std::string_view number = name.substr(kFillerFilePrefix.size());
  return !number.empty() && std::all_of(number.begin(), number.end(), [](char c) { return c >= '0' && c <= '9'; });
}

Error checkLeftFolder(const OpenFolder& parent, const char* name, const std::string& path) {
  Error error;
  const OpenFolder folder = openSubfolder(parent, name, path, error);
  if (!folder.isOpen()) return error;
  FolderReader reader(folder.get());
  if (reader.next() != nullptr) return {ErrorCode::notOurs, "readdir", path, "it holds a folder with files"};
  return reader.errnoValue() == 0 ? Error{} : posixError("readdir", path, reader.errnoValue());
}

}  // namespace

Error emptyFolder(const OpenFolder& folder, const std::string& path, std::atomic<std::uint64_t>& steps) {
  return emptyFolderAtDepth(folder, path, {steps});
}

Error checkLeftContents(const OpenFolder& folder, const std::string& path) {
  FolderReader reader(folder.get());
  while (const dirent* entry = reader.next()) {
    if (isFolderEntry(folder, *entry)) {
      Error error = checkLeftFolder(folder, entry->d_name, path);
      if (error.failed()) return error;
    } else if (!mayBeLeftByARun(entry->d_name)) {
      return {ErrorCode::notOurs, "readdir", path, "it holds other files"};
    }
  }
  return reader.errnoValue() == 0 ? Error{} : posixError("readdir", path, reader.errnoValue());
}

std::uint64_t allocatedBytesOfFiles(const OpenFolder& folder) {
  std::uint64_t bytes = 0;
  FolderReader reader(folder.get());
  while (const dirent* entry = reader.next()) {
    const auto identity = identityAt(folder.get(), entry->d_name);
    if (identity && identity->isRegularFile() && identity->links == 1) bytes += identity->allocatedBytes;
  }
  return bytes;
}

}  // namespace calvero
