#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>

namespace calvero {

/// The window with its frame, as it stands on the screen.
QRect frameOf(const QWidget& window);

/// Moves the lower left corner of the window's frame to `corner`, the lowest pixel on the left.
void moveLowerLeft(QWidget& window, const QPoint& corner);

/// Keeps `child` at its place relative to `parent` while that moves.
class WindowFollower : public QObject {
 public:
  WindowFollower(QWidget& child, QWidget& parent);

  /// Where `child` stands now is its place from now on.
  void keepPlace();
  /// From now on `child` returns to its place whoever moves it, unless the display system insists on another.
  void pin();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void place();
  void returnSoon();

  QPointer<QWidget> child_;
  QPointer<QWidget> parent_;
  QPoint offset_;  // between the frames' lower left corners
  bool pinned_ = false;
  int returnsWithoutEffect_ = 0;
};

}  // namespace calvero
