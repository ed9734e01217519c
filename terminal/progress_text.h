#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace calvero {

/// What is shown of a run under way, as texts ready to be printed; an empty one is left out.
struct ProgressFigures {
  int percent = 0;
  std::string phase;
  std::string erased;
  std::string total;
  std::string elapsed;
  std::string rate;
  std::string remaining;
};

/// Percent of `totalBytes` that are covered: 100 is kept for a run that has ended.
int percentOf(std::uint64_t coveredBytes, std::uint64_t totalBytes);

/// Time that `bytesLeft` take at that speed; nothing where there is no speed to tell it from.
std::optional<std::chrono::seconds> remainingTime(std::uint64_t bytesLeft, double bytesPerSecond);

/// Mean speed since the first bytes were seen.
class MeanSpeed {
 public:
  void note(std::uint64_t bytes, std::chrono::duration<double> now);
  /// 0 until there is something to tell it from.
  [[nodiscard]] double bytesPerSecond() const;

 private:
  struct Look {
    std::uint64_t bytes;
    std::chrono::duration<double> moment;
  };
  std::optional<Look> first_;
  std::optional<Look> last_;
};

/// One line for a terminal of `columns` columns, with a bar where there is room. It leaves the last column free, since
/// writing there may begin a new line. The least important figures give way first, the percentage never.
std::string barLine(const ProgressFigures& figures, std::size_t columns);

/// One line of all figures, for a file or a pipe.
std::string plainLine(const ProgressFigures& figures);

/// Keeps plain lines few: one at the start, one at each ten percent, one when there was none for half a minute.
class PlainPacing {
 public:
  bool isDue(int percent, std::chrono::milliseconds now);

 private:
  std::optional<std::chrono::milliseconds> lastLine_;
  int lastTenth_ = 0;
};

}  // namespace calvero
