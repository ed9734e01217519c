#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>

namespace calvero {

/// Moves the lower left corner of the window's frame to `corner`, the lowest pixel on the left.
void moveLowerLeft(QWidget& window, const QPoint& corner);

/// Keeps `child` at its place relative to `parent` while that moves.
class WindowFollower : public QObject {
 public:
  WindowFollower(QWidget& child, QWidget& parent);

  /// Where `child` stands now is its place from now on.
  void keepPlace();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QPointer<QWidget> child_;
  QPointer<QWidget> parent_;
  QPoint offset_;  // between the frames' lower left corners
};

}  // namespace calvero
