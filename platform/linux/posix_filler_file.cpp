#include "platform/linux/posix_filler_file.h"

#include <unistd.h>

#include "platform/linux/posix_error.h"

namespace calvero {

WriteResult PosixFillerFile::pwrite(const std::uint8_t* data, std::size_t bytes, std::uint64_t offset) {
  const ssize_t written =
      retryInterrupted([&] { return ::pwrite(descriptor_.get(), data, bytes, static_cast<off_t>(offset)); });
  if (written < 0) return {-1, errorCodeOf(errno)};
  return {written, ErrorCode::none};
}

ErrorCode PosixFillerFile::fsync() {
  const int result = retryInterrupted([&] { return ::fsync(descriptor_.get()); });
  return result == 0 ? ErrorCode::none : errorCodeOf(errno);
}

}  // namespace calvero
