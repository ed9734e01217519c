#pragma once

#include <atomic>
#include <cstdint>
#include <mutex>
#include <vector>

#include "platform/linux/descriptor.h"

namespace calvero {

/// Open descriptors of removed files: the kernel frees a file's space only when its last descriptor is closed. Any
/// thread.
class HeldFiles {
 public:
  /// Holds the file, or closes it at once after `releaseForGood`.
  void keep(Descriptor file);
  /// Closes every held file, counting them. Blocks while the file system frees their space.
  void release(std::atomic<std::uint64_t>& steps);
  void releaseForGood(std::atomic<std::uint64_t>& steps);

 private:
  std::mutex mutex_;  // never held while a descriptor is closed, since that can block for seconds
  std::vector<Descriptor> files_;
  bool closed_ = false;
};

}  // namespace calvero
