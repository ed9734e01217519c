#include "window/painting_clock.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QThread>
#include <QWidget>
#include <QWindow>

namespace calvero {
namespace {

constexpr int kLongestWaitMilliseconds = 500;  // for the display system to make room for a new window

/// A window that was shown just now can be painted only once the display system says so.
void waitUntilExposed(const QWidget& window) {
  QElapsedTimer waited;
  waited.start();
  while (window.windowHandle() != nullptr && !window.windowHandle()->isExposed() && !window.isMinimized() &&
         !waited.hasExpired(kLongestWaitMilliseconds)) {
    constexpr int kSliceMilliseconds = 10;
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, kSliceMilliseconds);
  }
}

}  // namespace

void PaintingClock::sleep(Duration duration) {
  if (qApp != nullptr && QThread::currentThread() == qApp->thread()) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (!window->isVisible()) continue;
      waitUntilExposed(*window);
      window->repaint();
    }
  }
  SteadyClock::sleep(duration);
}

}  // namespace calvero
