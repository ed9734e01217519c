#include "platform/linux/process/standard_streams.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstddef>

namespace calvero {
namespace {

bool hasRoom(int descriptor, int timeout) {
  pollfd waited{descriptor, POLLOUT, 0};
  return ::poll(&waited, 1, timeout) > 0;
}

bool getsRoom(int descriptor, std::chrono::milliseconds timeout) {
  constexpr int kForever = -1;
  if (::isatty(descriptor) == 1) {
    while (!hasRoom(descriptor, kForever)) {
    }
    return true;
  }
  const auto end = std::chrono::steady_clock::now() + timeout;
  do {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
    if (hasRoom(descriptor, static_cast<int>(std::max<std::chrono::milliseconds::rep>(left.count(), 0)))) return true;
  } while (std::chrono::steady_clock::now() < end);  // a signal ends the wait, too
  return false;
}

}  // namespace

void occupyStandardStreams() {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (::fcntl(stream, F_GETFD) != -1 || errno != EBADF) continue;
    // The lowest free number, and that is this one.
    ::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
  }
}

int writeAll(int descriptor, std::string_view text, std::chrono::milliseconds timeout) {
  while (!text.empty()) {
    if (!getsRoom(descriptor, timeout)) return kNobodyReads;
    // A pipe with room takes so much without making its writer wait.
    const ssize_t bytes = ::write(descriptor, text.data(), std::min<std::size_t>(text.size(), PIPE_BUF));
    if (bytes < 0 && errno != EINTR && errno != EAGAIN) return errno;
    if (bytes > 0) text.remove_prefix(static_cast<std::size_t>(bytes));
  }
  return 0;
}

bool isReadyForText(int descriptor) {
  constexpr int kNow = 0;
  return hasRoom(descriptor, kNow);
}

}  // namespace calvero
