#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "ports/pop_up_window.h"

namespace Ui {
class PopUpWidget;
}

namespace calvero {

/// Black or white, whichever can be read better on `ground`.
Colour readableOn(const Colour& ground);

/// The upper left corner, as the display counts, of a window of `size` whose lower left corner is to be at `origin`,
/// counted from the lower left of `screen`.
QPoint upperLeftFor(const ScreenPoint& origin, const QSize& size, const QRect& screen);

/// The message window: a coloured box with round corners that has no entry in the task bar. It becomes the active
/// window only where it stands for the application.
class PopUpWidget : public QWidget, public PopUpWindow {
  Q_OBJECT
 public:
  PopUpWidget();
  ~PopUpWidget() override;

  /// Takes the text instead of a screen that nobody sees; set where there is no display.
  std::function<void(const std::string&)> onUndisplayed;

  /// Makes it the active window, as soon as it is shown.
  void activate();

  void setText(const std::string& text) override;
  void setFillColour(const Colour& colour) override;
  void setStatusWindowLevel() override;
  void setBorderless() override;
  TrackingAreaId addTrackingArea(std::function<void()> entered, std::function<void()> exited) override;
  void setAlertAnimation() override;
  [[nodiscard]] ScreenSize screenSize() const override;
  [[nodiscard]] ScreenSize size() const override;
  void moveTo(const ScreenPoint& origin) override;
  void bringToFront() override;
  void orderOut() override { hide(); }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  using TrackingArea = std::pair<std::function<void()>, std::function<void()>>;

  std::unique_ptr<Ui::PopUpWidget> ui_;
  std::string text_;
  bool activatesWhenShown_ = false;
  std::vector<TrackingArea> trackingAreas_;
};

}  // namespace calvero
