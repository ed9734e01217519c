#pragma once

#include <memory>
#include <string>

#include "platform/linux/descriptor.h"
#include "platform/linux/volume_watch.h"
#include "ports/files.h"

namespace calvero {

class PosixFillerFile : public FillerFile {
 public:
  /// `path` is for reports only.
  PosixFillerFile(Descriptor descriptor, std::string path, std::shared_ptr<VolumeWatch> watch);

  WriteResult pwrite(const std::uint8_t* data, std::size_t bytes, std::uint64_t offset) override;
  Error fsync() override;

 private:
  /// Writes out the whole file system.
  [[nodiscard]] Error commit() const;

  Descriptor descriptor_;
  const std::string path_;
  const std::shared_ptr<VolumeWatch> watch_;
  bool pinsMetadata_ = false;
  int flushes_ = 0;
};

}  // namespace calvero
