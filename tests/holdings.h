#pragma once

#include <malloc.h>

#include <cstddef>
#include <filesystem>
#include <iterator>

namespace calvero::testing {

inline std::ptrdiff_t entriesOf(const char* folder) {
  return std::distance(std::filesystem::directory_iterator(folder), std::filesystem::directory_iterator());
}

/// What this process holds at the moment.
struct Holdings {
  std::size_t bytes = ::mallinfo2().uordblks;
  std::ptrdiff_t descriptors = entriesOf("/proc/self/fd");
  std::ptrdiff_t threads = entriesOf("/proc/self/task");
};

}  // namespace calvero::testing
