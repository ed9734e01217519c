#include "platform/linux/process/process_limits.h"

#include <sys/resource.h>

namespace calvero {

void raiseOpenFileLimit() {
  struct rlimit limit = {};
  if (::getrlimit(RLIMIT_NOFILE, &limit) != 0) return;
  limit.rlim_cur = limit.rlim_max;
  ::setrlimit(RLIMIT_NOFILE, &limit);
}

bool isSpareDescriptor(int descriptor) {
  struct rlimit limit = {};
  if (::getrlimit(RLIMIT_NOFILE, &limit) != 0) return false;
  return static_cast<rlim_t>(descriptor) + kSpareDescriptors >= limit.rlim_cur;
}

}  // namespace calvero
