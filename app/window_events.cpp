#include "app/app_delegate.h"
#include "ports/alerts.h"
#include "ports/event_loop.h"

namespace calvero {

bool AppDelegate::windowShouldClose() {
  if (shell_.wipingProcessOn != 0) {
    ports_.alerts.runModal({localised("Wiping process is On"), localised("Cancel wiping and then quit the application"),
                            localised("OK"), ""});
    return false;
  }
  ports_.eventLoop.terminate();
  return true;
}

void AppDelegate::windowWillClose() {
  ports_.eventLoop.terminate();
}

void AppDelegate::windowWillMiniaturize() {
  shell_.display = 0;
}

void AppDelegate::windowDidDeminiaturize() {
  shell_.display = 1;
}

}  // namespace calvero
