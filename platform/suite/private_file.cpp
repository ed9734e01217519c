#include "platform/suite/private_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace calvero {

namespace {

[[noreturn]] void fail(int errnoValue, const std::string& operation, const std::string& path) {
  throw std::system_error(errnoValue, std::generic_category(), operation + ' ' + path);
}

void makePrivateFolders(const std::filesystem::path& folder) {
  if (std::error_code unknown; std::filesystem::is_directory(folder, unknown)) return;
  if (folder.has_relative_path()) makePrivateFolders(folder.parent_path());
  if (::mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST) fail(errno, "making", folder.string());
}

/// A strict mask of the process must not shut out the user as well.
void closeForUser(int descriptor) {
  ::fchmod(descriptor, S_IRUSR | S_IWUSR);
  ::close(descriptor);
}

/// A name that does not outlive the making of the file.
class ScratchFile {
 public:
  explicit ScratchFile(const std::string& path) : name_(path + ".XXXXXX") {
    const int descriptor = ::mkostemp(name_.data(), O_CLOEXEC);
    if (descriptor < 0) fail(errno, "making", name_);
    closeForUser(descriptor);
  }
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;
  ~ScratchFile() { ::unlink(name_.c_str()); }

  [[nodiscard]] const std::string& name() const { return name_; }

 private:
  std::string name_;
};

bool isWithoutHardLinks(int errnoValue) {
  return errnoValue == EPERM || errnoValue == EOPNOTSUPP || errnoValue == ENOSYS;
}

/// Of several makers one is first; its file is as good as that of the others.
void giveName(const ScratchFile& scratch, const std::string& path) {
  if (::link(scratch.name().c_str(), path.c_str()) == 0 || errno == EEXIST) return;
  if (!isWithoutHardLinks(errno)) fail(errno, "making", path);
  // Renaming could replace another maker's file, where the file system cannot be told not to.
  const int descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (descriptor < 0 && errno != EEXIST) fail(errno, "making", path);
  if (descriptor >= 0) closeForUser(descriptor);
}

void syncFolder(const std::filesystem::path& folder) {
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  ::fsync(descriptor);
  ::close(descriptor);
}

}  // namespace

Place placeAt(const std::string& path) {
  struct stat status = {};
  if (::stat(path.c_str(), &status) == 0) return S_ISREG(status.st_mode) ? Place::file : Place::somethingElse;
  return errno == ENOENT || errno == ENOTDIR ? Place::nothing : Place::unknown;
}

std::string withoutLinks(const std::string& path) {
  std::error_code unknown;
  const std::filesystem::path file = std::filesystem::canonical(path, unknown);
  return unknown ? path : file.string();
}

std::uint64_t fileBytes(const std::string& path) {
  std::error_code absent;
  const std::uintmax_t bytes = std::filesystem::file_size(path, absent);
  return absent ? 0 : bytes;
}

void makePrivateFile(const std::string& path, const std::function<void(const std::string&)>& fill) {
  const std::filesystem::path folder = std::filesystem::path(path).parent_path();
  makePrivateFolders(folder);
  {
    const ScratchFile scratch(path);
    fill(scratch.name());
    giveName(scratch, path);
  }
  syncFolder(folder);
}

}  // namespace calvero
