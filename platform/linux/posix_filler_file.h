#pragma once

#include "platform/linux/descriptor.h"
#include "ports/files.h"

namespace calvero {

class PosixFillerFile : public FillerFile {
 public:
  explicit PosixFillerFile(Descriptor descriptor);

  WriteResult pwrite(const std::uint8_t* data, std::size_t bytes, std::uint64_t offset) override;
  ErrorCode fsync() override;

 private:
  Descriptor descriptor_;
  bool pinsMetadata_ = false;
  int flushes_ = 0;
};

}  // namespace calvero
