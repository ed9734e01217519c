#include "platform/qt/painting_clock.h"

#include <QApplication>
#include <QThread>
#include <QWidget>

namespace calvero {

void PaintingClock::sleep(Duration duration) {
  if (qApp != nullptr && QThread::currentThread() == qApp->thread()) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->isVisible()) window->repaint();
    }
  }
  SteadyClock::sleep(duration);
}

}  // namespace calvero
