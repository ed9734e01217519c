#pragma once

#include <chrono>

#include "terminal/output.h"
#include "terminal/progress_text.h"

namespace calvero {

enum class ProgressStyle {
  none,
  plain,  ///< a line now and then
  bar,    ///< one line, redrawn in place
};

/// How progress is shown on `output`: as a bar only on a terminal that can redraw a line.
ProgressStyle progressStyleOf(const Output& output, const char* term);

/// Shows a run's progress. Event loop thread.
class ProgressView {
 public:
  ProgressView(const Output& output, ProgressStyle style) : output_(output), style_(style) {}

  /// Shows the figures, unless that is too soon after the last time.
  void update(const ProgressFigures& figures, std::chrono::milliseconds now);
  /// Shows the figures whatever the time, for what must be read before a long wait.
  void updateAtOnce(const ProgressFigures& figures);
  /// Ends the bar's line, so that other text can follow. The next update draws a new one.
  void makeRoom();

 private:
  const Output& output_;
  const ProgressStyle style_;
  PlainPacing pacing_;
  bool isBarDrawn_ = false;
};

}  // namespace calvero
