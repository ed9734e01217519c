#include "window/window_follower.h"

#include <QEvent>
#include <QTimer>

namespace calvero {

// The toolkit goes on counting a frame for a while after the window has lost it.
QRect frameOf(const QWidget& window) {
  const bool frameless = window.windowFlags().testFlag(Qt::FramelessWindowHint);
  return frameless ? window.geometry() : window.frameGeometry();
}

void moveLowerLeft(QWidget& window, const QPoint& corner) {
  const QRect frame = frameOf(window);
  const QPoint by = corner - frame.bottomLeft();
  if (frame == window.geometry()) {
    window.setGeometry(frame.translated(by));
  } else {
    window.move(window.pos() + by);
  }
}

WindowFollower::WindowFollower(QWidget& child, QWidget& parent) : QObject(&child), child_(&child), parent_(&parent) {
  keepPlace();
  parent.installEventFilter(this);
  child.installEventFilter(this);
}

void WindowFollower::keepPlace() {
  if (child_ == nullptr || parent_ == nullptr) return;
  offset_ = frameOf(*child_).bottomLeft() - frameOf(*parent_).bottomLeft();
}

void WindowFollower::pin() {
  pinned_ = true;
  returnSoon();
}

void WindowFollower::place() {
  if (child_ != nullptr && parent_ != nullptr) {
    moveLowerLeft(*child_, frameOf(*parent_).bottomLeft() + offset_);
  }
}

// Later than the event that moved the window; not for ever against a display system that places windows itself.
void WindowFollower::returnSoon() {
  constexpr int kMostReturnsWithoutEffect = 8;
  const QPoint wanted = frameOf(*parent_).bottomLeft() + offset_;
  if (frameOf(*child_).bottomLeft() == wanted) {
    returnsWithoutEffect_ = 0;
  } else if (++returnsWithoutEffect_ <= kMostReturnsWithoutEffect) {
    QTimer::singleShot(0, this, [this] { place(); });
  }
}

bool WindowFollower::eventFilter(QObject* watched, QEvent* event) {
  const bool moved = event->type() == QEvent::Move || event->type() == QEvent::Resize;
  if (!moved || child_ == nullptr || parent_ == nullptr) return false;
  if (watched == parent_) {
    returnsWithoutEffect_ = 0;
    place();
  } else if (pinned_) {
    returnSoon();
  }
  return false;
}

}  // namespace calvero
