#include "app/app_delegate.h"
#include "ports/controls.h"
#include "ports/event_loop.h"

namespace calvero {

void AppDelegate::positionHUDWindow() {
  if (run_->volumeEjected == 0) {
    ports_.eventLoop.post([this] { back(); });
    return;
  }
  Controls& controls = ports_.controls;
  controls.moveToOriginOf(Control::windowCompleted, Control::window);
  controls.attachAbove(Control::windowCompleted, Control::window);
  controls.makeImmovable(Control::windowCompleted);
}

}  // namespace calvero
