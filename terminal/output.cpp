#include "terminal/output.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <string>
#include <system_error>

#include "platform/linux/process/standard_streams.h"

namespace calvero {
namespace {

std::array<std::atomic<int>, STDERR_FILENO + 1> firstFailures{};

int failureOf(int descriptor) {
  const bool isStandard = descriptor >= 0 && descriptor <= STDERR_FILENO;
  return isStandard ? firstFailures.at(static_cast<std::size_t>(descriptor)).load() : 0;
}

void noteFailure(int descriptor, int failure) {
  if (failure == 0 || descriptor < 0 || descriptor > STDERR_FILENO) return;
  int none = 0;
  firstFailures.at(static_cast<std::size_t>(descriptor)).compare_exchange_strong(none, failure);
}

}  // namespace

void Output::write(std::string_view text) const {
  if (descriptor_ < 0) return;
  const auto timeout = failureOf(descriptor_) == kNobodyReads ? std::chrono::seconds::zero() : kReaderTimeout;
  noteFailure(descriptor_, writeAll(descriptor_, text, timeout));
}

void Output::line(std::string_view text) const {
  write(std::string(text) + '\n');
}

void Output::writeIfReady(std::string_view text) const {
  if (descriptor_ >= 0 && isReadyForText(descriptor_)) write(text);
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

std::string whyOutputIsIncomplete() {
  const int failure = failureOf(STDOUT_FILENO);
  if (failure == 0) return "";
  return failure == kNobodyReads ? "nobody reads it" : std::generic_category().message(failure);
}

}  // namespace calvero
