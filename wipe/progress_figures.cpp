#include <array>
#include <charconv>
#include <chrono>
#include <cstdio>

#include "app/app_delegate.h"
#include "ports/clock.h"
#include "ports/controls.h"

namespace calvero {
namespace {

// The figure changes once a second; four looks a second keep it smooth without costing a processor.
constexpr std::chrono::milliseconds kClockPause{250};

std::string sizeText(std::uint64_t bytes, std::uint64_t divisor, const char* unit) {
  // Single precision is part of the format: it decides the last digit of large figures.
  const float quotient = static_cast<float>(bytes) / static_cast<float>(divisor);
  std::array<char, 32> digits{};
  // Not printf, whose decimal point is the locale's.
  const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), static_cast<double>(quotient),
                                     std::chars_format::fixed, 2);
  return std::string(digits.data(), written.ptr) + ' ' + unit;
}

}  // namespace

std::string AppDelegate::getFormattedStringForSize(std::uint64_t bytes) {
  constexpr std::uint64_t kKilo = 1000;
  constexpr std::uint64_t kMega = kKilo * 1000;
  constexpr std::uint64_t kGiga = kMega * 1000;
  if (bytes == 0) return "0.00 KB";
  if (bytes < kMega) return sizeText(bytes, kKilo, "KB");
  if (bytes < kGiga) return sizeText(bytes, kMega, "MB");
  return sizeText(bytes, kGiga, "GB");
}

std::string AppDelegate::getElapsedTimeForInterval(double seconds) {
  const auto elapsed = static_cast<long>(seconds);
  char text[64];
  std::snprintf(text, sizeof text, "%02ld:%02ld:%02ld", elapsed / 3600, (elapsed / 60) % 60, elapsed % 60);
  return text;
}

std::string AppDelegate::getElapsedData(std::uint64_t finishedFiles) const {
  return getFormattedStringForSize(finishedFiles * fixed_.scale.fillerBytes);
}

void AppDelegate::setElapsedTime(WipeRun& run) {
  const Clock::Duration start = run.startedAt.value_or(ports_.clock.now());
  // The flags stay down where the worker ends the application itself.
  while (run.abortErasing == 0 && run.terminateThread == 0 && run.applicationEnding == 0) {
    run.elapsed_time = getElapsedTimeForInterval((ports_.clock.now() - start).count());
    const bool visible = run.screen.mainWindowVisible();
    run.screen.apply([visible, text = run.elapsed_time](Controls& controls) {
      if (visible) controls.setText(Control::tfElapsedTime, text);
      controls.redraw(Control::tfElapsedTime);
    });
    ports_.clock.sleep(kClockPause);
  }
}

void AppDelegate::setElapsedData() {}

}  // namespace calvero
