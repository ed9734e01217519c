#pragma once

#include <sys/vfs.h>
#include <unistd.h>

#include <memory>
#include <string>

#include "platform/linux/files/volume_watch.h"
#include "platform/linux/system/descriptor.h"
#include "ports/files.h"

namespace calvero {

/// The system calls that a filler file is written with; others than the system's own in tests only.
struct FillerFileCalls {
  ssize_t (*pwrite)(int descriptor, const void* data, std::size_t bytes, off_t offset) = ::pwrite;
  int (*fsync)(int descriptor) = ::fsync;
  int (*syncfs)(int descriptor) = ::syncfs;
  int (*fstatfs)(int descriptor, struct statfs* properties) = ::fstatfs;
};

class LinuxFillerFile : public FillerFile {
 public:
  /// `path` is for reports only.
  LinuxFillerFile(Descriptor descriptor, std::string path, std::shared_ptr<VolumeWatch> watch,
                  FillerFileCalls calls = {});

  WriteResult pwrite(const std::uint8_t* data, std::size_t bytes, std::uint64_t offset) override;
  Error fsync() override;

 private:
  /// Writes out the whole file system.
  [[nodiscard]] Error commit() const;

  Descriptor descriptor_;
  const std::string path_;
  const std::shared_ptr<VolumeWatch> watch_;
  const FillerFileCalls calls_;
  bool pinsMetadata_ = false;
  int flushes_ = 0;
};

}  // namespace calvero
