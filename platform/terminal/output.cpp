#include "platform/terminal/output.h"

#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>
#include <string>

namespace calvero {
namespace {

constexpr int kForever = -1;
constexpr int kNow = 0;  // milliseconds

bool isReady(int descriptor, int milliseconds) {
  pollfd waited{descriptor, POLLOUT, 0};
  return ::poll(&waited, 1, milliseconds) > 0;
}

}  // namespace

void Output::write(std::string_view text) const {
  while (descriptor_ >= 0 && !text.empty()) {
    const ssize_t bytes = ::write(descriptor_, text.data(), text.size());
    if (bytes >= 0) {
      text.remove_prefix(static_cast<std::size_t>(bytes));
    } else if (errno == EAGAIN) {
      // Whoever shares the terminal may have made it non-blocking.
      isReady(descriptor_, kForever);
    } else if (errno != EINTR) {
      return;
    }
  }
}

void Output::line(std::string_view text) const {
  write(std::string(text) + '\n');
}

void Output::writeIfReady(std::string_view text) const {
  if (descriptor_ >= 0 && isReady(descriptor_, kNow)) write(text);
}

bool Output::isTerminal() const {
  return descriptor_ >= 0 && ::isatty(descriptor_) == 1;
}

std::size_t Output::columns() const {
  constexpr std::size_t kUsualColumns = 80;
  winsize size{};
  if (::ioctl(descriptor_, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) return kUsualColumns;
  return size.ws_col;
}

}  // namespace calvero
