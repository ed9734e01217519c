#include "app/app_delegate.h"
#include "ports/controls.h"
#include "ports/event_loop.h"

namespace calvero {

void AppDelegate::positionHUDWindow() {
  EventLoop& loop = ports_.eventLoop;
  if (!loop.isEventLoopThread()) {
    // Which run is the current one, and so whether its volume is gone, is known on the event loop thread only.
    loop.post([this] { run_->volumeEjected != 0 ? pinCompletionWindow() : back(); });
  } else if (run_->volumeEjected != 0) {
    pinCompletionWindow();
  } else {
    loop.post([this] { back(); });
  }
}

void AppDelegate::pinCompletionWindow() {
  Controls& controls = ports_.controls;
  controls.moveToOriginOf(Control::windowCompleted, Control::window);
  controls.attachAbove(Control::windowCompleted, Control::window);
  controls.makeImmovable(Control::windowCompleted);
}

}  // namespace calvero
