#pragma once

#include <sys/types.h>

#include <atomic>
#include <chrono>
#include <string>

namespace calvero {

/// Sees that a volume has been taken out of the tree. The kernel does not tell: what is open on it can be written for
/// as long as it stays open. Any thread.
class VolumeWatch {
 public:
  /// `device` is that of the volume's root.
  VolumeWatch(std::string volumePath, dev_t device);

  /// Whether the volume is still at its path. Looks now, which may block while the volume does not answer. One that
  /// has been away is never there again: whoever used it meanwhile is unknown.
  bool isThere();

  /// What `isThere` said last, at most one second ago.
  bool wasThereLately();

 private:
  const std::string volumePath_;
  const dev_t device_;
  std::atomic<bool> wasAway_{false};
  std::atomic<std::chrono::steady_clock::time_point> nextLook_{};
};

}  // namespace calvero
