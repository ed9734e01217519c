#include "platform/linux/system/posix_error.h"

#include <array>
#include <cstring>

namespace calvero {

ErrorCode errorCodeOf(int errnoValue) {
  switch (errnoValue) {
    case 0:
      return ErrorCode::none;
    case ENOENT:
    case ENOTDIR:
      return ErrorCode::notFound;
    case EEXIST:
    case ENOTEMPTY:  // POSIX lets a file system give either for a directory that still holds something
      return ErrorCode::exists;
    case EACCES:
    case EPERM:
      return ErrorCode::notPermitted;
    case EROFS:
      return ErrorCode::readOnly;
    case ENOSPC:
      return ErrorCode::full;
    case EDQUOT:
      return ErrorCode::overQuota;
    case EMFILE:
    case ENFILE:
      return ErrorCode::noHandles;
    case EIO:
    case ENODEV:
    case ENXIO:
    case ENOMEDIUM:
    case EUCLEAN:  // the file system found itself damaged
    case ESTALE:
    case ENOTCONN:
    case ECONNABORTED:
    case ETIMEDOUT:
      return ErrorCode::gone;
    default:
      // EBUSY is among these: `busy` means another run, and the kernel never says EBUSY about one.
      return ErrorCode::other;
  }
}

Error posixError(const char* operation, const std::string& path, int errnoValue) {
  std::array<char, 128> buffer{};
  return Error{errorCodeOf(errnoValue), operation, path, ::strerror_r(errnoValue, buffer.data(), buffer.size())};
}

}  // namespace calvero
