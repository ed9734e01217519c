#pragma once

#include <dirent.h>

#include <memory>
#include <string>

#include "platform/linux/system/descriptor.h"
#include "platform/linux/system/file_identity.h"
#include "ports/error.h"

namespace calvero {

/// A folder, or what was found in its place, held by a descriptor so that renaming it from outside changes nothing.
struct OpenFolder {
  Descriptor descriptor;
  FileIdentity identity;

  [[nodiscard]] bool isOpen() const { return descriptor.isOpen(); }
  [[nodiscard]] int get() const { return descriptor.get(); }
};

/// Refers to what is under `name` in the folder `parent` without opening it: no link is followed, no device or FIFO is
/// touched, no permission on it is needed. Not open, with `error` filled, on failure; `path` is for the report only.
OpenFolder lookUp(int parent, const char* name, const std::string& path, Error& error);

/// Opens the folder that `lookUp` found, and no other, for reading. Not open, with `error` filled, on failure.
OpenFolder openFound(const OpenFolder& found, const std::string& path, Error& error);

/// Opens a folder in `parent` that is on the same mount and file system; `notOurs` for any other.
OpenFolder openSubfolder(const OpenFolder& parent, const char* name, const std::string& path, Error& error);

/// Reads a folder's entries. Each reader has a position of its own, so that several threads may read one folder.
class FolderReader {
 public:
  explicit FolderReader(int folder);

  /// The next entry other than "." and ".."; null at the end or on failure.
  const dirent* next();
  /// errno of the failure that ended the reading; 0 for none.
  [[nodiscard]] int errnoValue() const { return errnoValue_; }

 private:
  struct Closer {
    void operator()(DIR* stream) const { ::closedir(stream); }
  };
  std::unique_ptr<DIR, Closer> stream_;
  int errnoValue_ = 0;
};

}  // namespace calvero
