#include "platform/linux/held_files.h"

namespace calvero {

void HeldFiles::keep(Descriptor file) {
  const std::lock_guard lock(mutex_);
  // When refused, `file` is closed with the parameters, after the mutex has been given back.
  if (!closed_) files_.push_back(std::move(file));
}

void HeldFiles::release() {
  std::vector<Descriptor> released;  // outlives the lock, so that the closing happens without it
  const std::lock_guard lock(mutex_);
  released.swap(files_);
}

void HeldFiles::releaseForGood() {
  std::vector<Descriptor> released;
  const std::lock_guard lock(mutex_);
  closed_ = true;
  released.swap(files_);
}

}  // namespace calvero
