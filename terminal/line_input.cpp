#include "terminal/line_input.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <asio/buffer.hpp>
#include <asio/posix/stream_descriptor.hpp>

#include "terminal/asio_event_loop.h"

namespace calvero {

/// One wait for input. The descriptor is a copy, since the loop closes its own; the flag that makes reading it
/// non-blocking is shared with the shell and with our own output, and is put back.
struct LineInput::Reading {
  Reading(AsioEventLoop& loop, int descriptor)
      : original(descriptor),
        flags(::fcntl(descriptor, F_GETFL)),
        input(loop.context(), ::fcntl(descriptor, F_DUPFD_CLOEXEC, 0)) {}
  Reading(const Reading&) = delete;
  Reading& operator=(const Reading&) = delete;
  ~Reading() {
    if (flags != -1) ::fcntl(original, F_SETFL, flags);
  }

  const int original;
  const int flags;
  asio::posix::stream_descriptor input;
  std::array<char, 4096> buffer{};
  bool done = false;
  std::size_t bytes = 0;
};

bool LineInput::isTerminal() const {
  return ::isatty(descriptor_) == 1;
}

std::optional<std::string> LineInput::readLine() {
  struct Mark {
    explicit Mark(bool& set) : mark(set) { mark = true; }
    ~Mark() { mark = false; }
    bool& mark;
  } const reading(isReading_);
  auto line = nextLine();
  loop_.runReady();
  return interrupted_ ? std::nullopt : line;
}

std::optional<std::string> LineInput::nextLine() {
  std::size_t end = typed_.find('\n');
  while (end == std::string::npos) {
    if (!readMore()) return std::nullopt;
    end = typed_.find('\n');
  }
  std::string line = typed_.substr(0, end);
  typed_.erase(0, end + 1);
  return line;
}

bool LineInput::readMore() {
  if (interrupted_) return false;
  const auto reading = std::make_shared<Reading>(loop_, descriptor_);
  reading_ = reading;
  reading->input.async_read_some(asio::buffer(reading->buffer),
                                 [reading](const asio::error_code& error, std::size_t bytes) {
                                   reading->done = true;
                                   reading->bytes = error ? 0 : bytes;
                                 });
  loop_.runUntil([&reading] { return reading->done; });
  reading_.reset();
  if (interrupted_ || !reading->done) return false;
  typed_.append(reading->buffer.data(), reading->bytes);
  return reading->bytes > 0;
}

void LineInput::interrupt() {
  interrupted_ = true;
  if (reading_) reading_->input.cancel();
}

}  // namespace calvero
