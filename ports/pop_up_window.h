#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "ports/colour.h"

namespace calvero {

/// Width and height, or a place, in the display's logical pixels. Places count from the lower left.
struct ScreenSize {
  double width = 0.0;
  double height = 0.0;
};
struct ScreenPoint {
  double x = 0.0;
  double y = 0.0;

  bool operator==(const ScreenPoint&) const = default;
};

using TrackingAreaId = std::uint64_t;

/// The small message window near the corner of the screen: a box with a text. Event loop thread. Without a display
/// nothing is shown, and `bringToFront` hands the text to the log.
class PopUpWindow {
 public:
  virtual ~PopUpWindow() = default;

  /// Shows `text` as it is, whatever characters it holds.
  virtual void setText(const std::string& text) = 0;
  virtual void setFillColour(const Colour& colour) = 0;
  /// Above the ordinary windows.
  virtual void setStatusWindowLevel() = 0;
  virtual void setBorderless() = 0;
  /// From now on `entered` and `exited` are called when the pointer enters or leaves the box. Earlier pairs stay. Never
  /// returns 0.
  virtual TrackingAreaId addTrackingArea(std::function<void()> entered, std::function<void()> exited) = 0;
  /// Appears as an alert does.
  virtual void setAlertAnimation() = 0;

  /// The screen's frame, without its own origin.
  [[nodiscard]] virtual ScreenSize screenSize() const = 0;
  [[nodiscard]] virtual ScreenSize size() const = 0;
  /// Moves the lower left corner to `origin`. Where the display system places windows itself, its place is accepted.
  virtual void moveTo(const ScreenPoint& origin) = 0;

  /// Shows the window in front of all others.
  virtual void bringToFront() = 0;
  virtual void orderOut() = 0;
};

}  // namespace calvero
