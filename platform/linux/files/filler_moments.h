#pragma once

#include <functional>

namespace calvero {

/// The moments between a look at a hostile volume and the use of what was seen. What is set is called then, so that
/// the volume can be changed in just that moment; nothing is set outside tests.
struct FillerMoments {
  std::function<void()> directoryOpened;  ///< before the filler directory is locked
  std::function<void()> contentsSeen;     ///< before the filler directory is closed to others
  std::function<void()> fileSeen;         ///< before a filler file is opened for writing
};

inline void pass(const std::function<void()>& moment) {
  if (moment) moment();
}

}  // namespace calvero
