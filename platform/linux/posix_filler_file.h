#pragma once

#include <memory>

#include "platform/linux/descriptor.h"
#include "platform/linux/volume_watch.h"
#include "ports/files.h"

namespace calvero {

class PosixFillerFile : public FillerFile {
 public:
  PosixFillerFile(Descriptor descriptor, std::shared_ptr<VolumeWatch> watch);

  WriteResult pwrite(const std::uint8_t* data, std::size_t bytes, std::uint64_t offset) override;
  ErrorCode fsync() override;

 private:
  /// Writes out the whole file system.
  [[nodiscard]] ErrorCode commit() const;

  Descriptor descriptor_;
  const std::shared_ptr<VolumeWatch> watch_;
  bool pinsMetadata_ = false;
  int flushes_ = 0;
};

}  // namespace calvero
