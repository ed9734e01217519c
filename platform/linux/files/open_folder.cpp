#include "platform/linux/files/open_folder.h"

#include <fcntl.h>

#include <cstring>

#include "platform/linux/system/posix_error.h"

namespace calvero {

namespace {

Descriptor openAt(int folder, const char* name, int flags) {
  return Descriptor(retryInterrupted([&] { return ::openat(folder, name, flags | O_CLOEXEC); }));
}

bool isDotEntry(const char* name) {
  return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0;
}

}  // namespace

OpenFolder lookUp(int parent, const char* name, const std::string& path, Error& error) {
  Descriptor descriptor = openAt(parent, name, O_PATH | O_NOFOLLOW);
  const auto identity = descriptor.isOpen() ? identityOf(descriptor.get()) : std::nullopt;
  if (!identity) {
    error = posixError("openat", path, errno);
    return {};
  }
  return {std::move(descriptor), *identity};
}

OpenFolder openFound(const OpenFolder& found, const std::string& path, Error& error) {
  // Going through "." of the folder that was looked at leaves no moment in which the name could be given to another.
  Descriptor descriptor = openAt(found.get(), ".", O_RDONLY | O_DIRECTORY);
  if (!descriptor.isOpen()) {
    error = posixError("openat", path, errno);
    return {};
  }
  return {std::move(descriptor), found.identity};
}

OpenFolder openSubfolder(const OpenFolder& parent, const char* name, const std::string& path, Error& error) {
  const OpenFolder found = lookUp(parent.get(), name, path, error);
  if (!found.isOpen()) return {};
  if (!found.identity.isOnSameMount(parent.identity) || found.identity.device != parent.identity.device) {
    error = {ErrorCode::notOurs, "openat", path, "it leads to another volume"};
    return {};
  }
  return openFound(found, path, error);
}

FolderReader::FolderReader(int folder) {
  Descriptor own = openAt(folder, ".", O_RDONLY | O_DIRECTORY);
  if (own.isOpen()) stream_.reset(::fdopendir(own.get()));
  if (!stream_) {
    errnoValue_ = errno;
    return;
  }
  own.release();
}

const dirent* FolderReader::next() {
  if (!stream_) return nullptr;
  for (;;) {
    errno = 0;
    const dirent* entry = ::readdir(stream_.get());
    if (entry == nullptr) {
      errnoValue_ = errno;
      return nullptr;
    }
    if (!isDotEntry(entry->d_name)) return entry;
  }
}

}  // namespace calvero
