#include <utility>

#include "app/app_delegate.h"
#include "app/pop_up_place.h"
#include "ports/controls.h"
#include "ports/event_loop.h"
#include "ports/pop_up_window.h"

namespace calvero {
namespace {

/// How long the pop-up stays before it is looked whether it may close, and between two looks.
constexpr std::chrono::seconds kPopUpStays{7};

}  // namespace

void AppDelegate::popUp(const Colour& colour, const std::string& text) {
  if (ports_.eventLoop.isEventLoopThread()) {
    showPopUp(colour, text, PopUpCloses::byItself);
  } else {
    // The close check belongs to the calling thread, and a worker serves no timers: it waits and ends the application.
    ports_.eventLoop.post([this, colour, text] { showPopUp(colour, text, PopUpCloses::withTheApplication); });
  }
}

void AppDelegate::showPopUp(const Colour& colour, const std::string& text, PopUpCloses closes) {
  PopUpWindow& window = ports_.popUpWindow;
  window.setText(text);
  window.setStatusWindowLevel();
  window.setBorderless();
  // Those of earlier showings stay; each showing adds one more.
  popUp_.trackingArea = window.addTrackingArea([this] { mouseEntered(); }, [this] { mouseExited(); });
  window.setFillColour(colour);
  if (closes == PopUpCloses::byItself) schedulePopUpCheck();
  window.moveTo(popUpOrigin(window.screenSize(), window.size()));
  window.setAlertAnimation();
  ports_.controls.activateApplication();
  window.bringToFront();  // last, so that nothing of the application is above it
}

// A check that is still pending from an earlier showing is not cancelled.
void AppDelegate::schedulePopUpCheck() {
  popUp_.timerForPopUp = ports_.eventLoop.startTimer(kPopUpStays, TimerKind::oneShot, [this] { allPopupsVisibilty(); });
}

void AppDelegate::allPopupsVisibilty() {
  ports_.eventLoop.stopTimer(std::exchange(popUp_.timerForPopUp, kNoTimer));
  if (popUp_.mouseHoverForPopUp != 0) {
    schedulePopUpCheck();
    return;
  }
  ports_.popUpWindow.orderOut();
  popUp_.mouseHoverForPopUp = 0;
}

void AppDelegate::popUpClose() {
  ports_.popUpWindow.orderOut();
}

void AppDelegate::mouseEntered() {
  popUp_.mouseHoverForPopUp = 1;
}

void AppDelegate::mouseExited() {
  popUp_.mouseHoverForPopUp = 0;
}

}  // namespace calvero
