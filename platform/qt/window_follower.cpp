#include "platform/qt/window_follower.h"

#include <QEvent>

namespace calvero {

void moveLowerLeft(QWidget& window, const QPoint& corner) {
  window.move(corner.x(), corner.y() + 1 - window.frameGeometry().height());
}

WindowFollower::WindowFollower(QWidget& child, QWidget& parent) : QObject(&child), child_(&child), parent_(&parent) {
  keepPlace();
  parent.installEventFilter(this);
}

void WindowFollower::keepPlace() {
  if (child_ == nullptr || parent_ == nullptr) return;
  offset_ = child_->frameGeometry().bottomLeft() - parent_->frameGeometry().bottomLeft();
}

bool WindowFollower::eventFilter(QObject* watched, QEvent* event) {
  const bool moved = event->type() == QEvent::Move || event->type() == QEvent::Resize;
  if (watched == parent_ && moved && child_ != nullptr) {
    moveLowerLeft(*child_, parent_->frameGeometry().bottomLeft() + offset_);
  }
  return false;
}

}  // namespace calvero
