#pragma once

#include <unistd.h>

#include <utility>

namespace calvero {

/// Owns an open file descriptor, or none.
class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int descriptor) : descriptor_(descriptor) {}
  Descriptor(Descriptor&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    Descriptor old(std::exchange(descriptor_, std::exchange(other.descriptor_, -1)));
    return *this;
  }
  ~Descriptor() {
    if (isOpen()) ::close(descriptor_);
  }

  [[nodiscard]] bool isOpen() const { return descriptor_ >= 0; }
  [[nodiscard]] int get() const { return descriptor_; }
  /// Gives the ownership to the caller.
  int release() { return std::exchange(descriptor_, -1); }

 private:
  int descriptor_ = -1;
};

}  // namespace calvero
