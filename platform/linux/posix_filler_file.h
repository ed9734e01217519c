#pragma once

#include "platform/linux/descriptor.h"
#include "ports/files.h"

namespace calvero {

class PosixFillerFile : public FillerFile {
 public:
  explicit PosixFillerFile(Descriptor descriptor) : descriptor_(std::move(descriptor)) {}

  WriteResult pwrite(const std::uint8_t* data, std::size_t bytes, std::uint64_t offset) override;
  ErrorCode fsync() override;

 private:
  Descriptor descriptor_;
};

}  // namespace calvero
