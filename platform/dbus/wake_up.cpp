#include "platform/dbus/wake_up.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <system_error>

namespace calvero {

WakeUp::WakeUp() : descriptor_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
  if (descriptor_ < 0) throw std::system_error(errno, std::generic_category(), "eventfd");
}

WakeUp::~WakeUp() {
  ::close(descriptor_);
}

void WakeUp::wake() const {
  constexpr std::uint64_t kOnce = 1;
  [[maybe_unused]] const ssize_t written = ::write(descriptor_, &kOnce, sizeof kOnce);  // when it is full, it wakes too
}

void WakeUp::waitFor(int descriptor, short events, int timeoutMs) const {
  std::array<pollfd, 2> waited{
      {{.fd = descriptor, .events = events, .revents = 0}, {.fd = descriptor_, .events = POLLIN, .revents = 0}}};
  if (::poll(waited.data(), waited.size(), timeoutMs) < 0 && errno != EINTR) {
    throw std::system_error(errno, std::generic_category(), "poll");
  }
  std::uint64_t count = 0;
  [[maybe_unused]] const ssize_t read = ::read(descriptor_, &count, sizeof count);
}

}  // namespace calvero
