#pragma once

#include <cerrno>
#include <string>

#include "ports/error.h"

namespace calvero {

/// The kind of failure that `errnoValue` stands for, as the controller tells them apart: the one translation of errno.
ErrorCode errorCodeOf(int errnoValue);

/// A report about the failed system call `operation` on `path`.
Error posixError(const char* operation, const std::string& path, int errnoValue);

/// Makes a system call again for as long as a signal interrupts it.
template <typename Call>
auto retryInterrupted(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

}  // namespace calvero
