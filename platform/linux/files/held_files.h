#pragma once

#include <atomic>
#include <cstdint>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "platform/linux/system/descriptor.h"
#include "platform/linux/system/file_identity.h"

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

/// Written files that hold their space by their names, since no descriptor could be had for them. Any thread.
class HeldNames {
 public:
  using Names = std::map<std::string, FileIdentity>;

  void note(const std::string& name, const FileIdentity& file);
  void forget(const std::string& name);
  /// Every name that was noted, each with the file that it led to; none is noted any more.
  Names takeAll();

 private:
  std::mutex mutex_;
  Names names_;
};

}  // namespace calvero
