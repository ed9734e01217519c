#include "terminal/progress_view.h"

#include <string_view>

namespace calvero {

ProgressStyle progressStyleOf(const Output& output, const char* term) {
  const bool isDumb = term != nullptr && std::string_view(term) == "dumb";
  return output.isTerminal() && !isDumb ? ProgressStyle::bar : ProgressStyle::plain;
}

void ProgressView::update(const ProgressFigures& figures, std::chrono::milliseconds now) {
  if (style_ == ProgressStyle::bar || (style_ == ProgressStyle::plain && pacing_.isDue(figures.percent, now))) {
    updateAtOnce(figures);
  }
}

void ProgressView::updateAtOnce(const ProgressFigures& figures) {
  constexpr const char* kEraseToEndOfLine = "\033[K";
  if (style_ == ProgressStyle::plain) output_.writeIfReady(plainLine(figures) + '\n');
  if (style_ != ProgressStyle::bar) return;
  output_.writeIfReady('\r' + barLine(figures, output_.columns()) + kEraseToEndOfLine);
  isBarDrawn_ = true;
}

void ProgressView::makeRoom() {
  if (isBarDrawn_) output_.line("");
  isBarDrawn_ = false;
}

}  // namespace calvero
