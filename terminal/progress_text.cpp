#include "terminal/progress_text.h"

#include <algorithm>
#include <vector>

#include "terminal/text.h"

namespace calvero {
namespace {

constexpr int kMostWhileRunning = 99;
constexpr std::size_t kLeastBarColumns = 12;  // brackets included
constexpr std::size_t kMostBarColumns = 42;
constexpr const char* kGap = "  ";
constexpr std::size_t kGapColumns = 2;

struct Field {
  std::string text;
  int importance;  ///< 0 is never left out
};

std::string percentText(int percent) {
  const std::string digits = std::to_string(percent);
  return std::string(digits.size() < 3 ? 3 - digits.size() : 0, ' ') + digits + " %";
}

std::vector<Field> fieldsOf(const ProgressFigures& figures) {
  const std::string amount = figures.total.empty() ? figures.erased : figures.erased + " of " + figures.total;
  const std::string remaining = figures.remaining.empty() ? "" : figures.remaining + " left";
  std::vector<Field> fields{{figures.phase, 5}, {percentText(figures.percent), 0},
                            {amount, 2},        {figures.elapsed, 3},
                            {figures.rate, 4},  {remaining, 1}};
  std::erase_if(fields, [](const Field& field) { return field.text.empty(); });
  return fields;
}

std::size_t totalColumns(const std::vector<Field>& fields) {
  std::size_t columns = 0;
  for (const Field& field : fields) columns += columnsOf(field.text) + kGapColumns;
  return columns - kGapColumns;
}

std::string joined(const std::vector<Field>& fields) {
  std::string line;
  for (const Field& field : fields) line += (line.empty() ? "" : kGap) + field.text;
  return line;
}

std::string bar(int percent, std::size_t columns) {
  const std::size_t inside = columns - 2;
  const std::size_t filled = inside * static_cast<std::size_t>(percent) / 100;
  return "[" + std::string(filled, '#') + std::string(inside - filled, '-') + "]";
}

}  // namespace

int percentOf(std::uint64_t coveredBytes, std::uint64_t totalBytes) {
  if (totalBytes == 0) return 0;
  const double percent = 100.0 * static_cast<double>(coveredBytes) / static_cast<double>(totalBytes);
  return percent >= kMostWhileRunning ? kMostWhileRunning : static_cast<int>(percent);
}

std::optional<std::chrono::seconds> remainingTime(std::uint64_t bytesLeft, double bytesPerSecond) {
  constexpr double kLongestTold = 1e9;  // seconds: beyond it the figure means nothing
  const double seconds = static_cast<double>(bytesLeft) / bytesPerSecond;
  if (bytesPerSecond <= 0 || seconds > kLongestTold) return std::nullopt;
  return std::chrono::round<std::chrono::seconds>(std::chrono::duration<double>(seconds));
}

void MeanSpeed::note(std::uint64_t bytes, std::chrono::duration<double> now) {
  if (bytes == 0) return;
  last_ = Look{bytes, now};
  if (!first_) first_ = last_;
}

double MeanSpeed::bytesPerSecond() const {
  if (!first_ || last_->moment <= first_->moment || last_->bytes <= first_->bytes) return 0;
  return static_cast<double>(last_->bytes - first_->bytes) / (last_->moment - first_->moment).count();
}

std::string barLine(const ProgressFigures& figures, std::size_t columns) {
  const std::size_t usable = columns > 1 ? columns - 1 : 1;
  std::vector<Field> fields = fieldsOf(figures);
  while (totalColumns(fields) > usable && fields.size() > 1) {
    fields.erase(std::max_element(fields.begin(), fields.end(), [](const Field& left, const Field& right) {
      return left.importance < right.importance;
    }));
  }
  const std::size_t taken = totalColumns(fields) + kGapColumns;
  if (usable >= taken + kLeastBarColumns) {
    const auto percent = std::find_if(fields.begin(), fields.end(), [](const Field& f) { return f.importance == 0; });
    fields.insert(percent + 1, {bar(figures.percent, std::min(usable - taken, kMostBarColumns)), 0});
  }
  return joined(fields).substr(0, usable);
}

std::string plainLine(const ProgressFigures& figures) {
  const std::string line = joined(fieldsOf(figures));
  return line.substr(line.find_first_not_of(' '));
}

bool PlainPacing::isDue(int percent, std::chrono::milliseconds now) {
  constexpr std::chrono::seconds kLongestSilence{30};
  const int tenth = percent / 10;
  if (lastLine_ && tenth <= lastTenth_ && now - *lastLine_ < kLongestSilence) return false;
  lastLine_ = now;
  lastTenth_ = tenth;
  return true;
}

}  // namespace calvero
