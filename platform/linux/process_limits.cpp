#include "platform/linux/process_limits.h"

#include <sys/resource.h>

namespace calvero {

void raiseOpenFileLimit() {
  struct rlimit limit = {};
  if (::getrlimit(RLIMIT_NOFILE, &limit) != 0) return;
  limit.rlim_cur = limit.rlim_max;
  ::setrlimit(RLIMIT_NOFILE, &limit);
}

}  // namespace calvero
