#include "platform/linux/files/held_files.h"

#include <utility>

namespace calvero {

void HeldFiles::keep(Descriptor file) {
  const std::lock_guard lock(mutex_);
  // When refused, `file` is closed with the parameters, after the mutex has been given back.
  if (!closed_) files_.push_back(std::move(file));
}

namespace {

// Called without the mutex.
void closeAll(std::vector<Descriptor> files, std::atomic<std::uint64_t>& steps) {
  for (Descriptor& file : files) {
    file = Descriptor();
    ++steps;
  }
}

}  // namespace

void HeldFiles::release(std::atomic<std::uint64_t>& steps) {
  std::vector<Descriptor> released;
  {
    const std::lock_guard lock(mutex_);
    released.swap(files_);
  }
  closeAll(std::move(released), steps);
}

void HeldFiles::releaseForGood(std::atomic<std::uint64_t>& steps) {
  {
    const std::lock_guard lock(mutex_);
    closed_ = true;
  }
  release(steps);
}

void HeldNames::note(const std::string& name, const FileIdentity& file) {
  const std::lock_guard lock(mutex_);
  names_[name] = file;
}

void HeldNames::forget(const std::string& name) {
  const std::lock_guard lock(mutex_);
  names_.erase(name);
}

HeldNames::Names HeldNames::takeAll() {
  const std::lock_guard lock(mutex_);
  return std::exchange(names_, {});
}

}  // namespace calvero
