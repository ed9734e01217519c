#pragma once

#include <string>

namespace calvero {

/// Components from 0.0 to 1.0.
struct Colour {
  double red = 0.0;
  double green = 0.0;
  double blue = 0.0;
  double alpha = 1.0;

  bool operator==(const Colour&) const = default;
};

/// The small message window near the corner of the screen.
class PopUpWindow {
 public:
  virtual ~PopUpWindow() = default;

  /// Shows `text`, as it is, on a box of `colour`; without a display the text goes to the log. Any thread.
  virtual void show(const Colour& colour, const std::string& text) = 0;
};

}  // namespace calvero
