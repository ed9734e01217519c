#include "wipe/run_screen.h"

#include <future>
#include <utility>

#include "ports/controls.h"
#include "ports/event_loop.h"

namespace calvero {

RunScreen::RunScreen(EventLoop& eventLoop, Controls& controls, Alerts& alerts)
    : eventLoop_(&eventLoop),
      controls_(&controls),
      alerts_(&alerts),
      standing_(std::make_shared<std::atomic<RunStanding>>(RunStanding::current)) {}

void RunScreen::apply(std::function<void(Controls&)> change) const {
  auto task = [standing = standing_, controls = controls_, change = std::move(change)] {
    if (*standing == RunStanding::current) change(*controls);
  };
  if (eventLoop_->isEventLoopThread()) {
    task();
  } else {
    eventLoop_->post(std::move(task));
  }
}

AlertAnswer RunScreen::runModal(const Alert& alert) const {
  const auto show = [standing = standing_, alerts = alerts_, alert] {
    return *standing == RunStanding::superseded ? AlertAnswer::defaultButton : alerts->runModal(alert);
  };
  if (eventLoop_->isEventLoopThread()) return show();

  auto answer = std::make_shared<std::promise<AlertAnswer>>();
  auto answered = answer->get_future();
  eventLoop_->post([show, answer = std::move(answer)] { answer->set_value(show()); });
  try {
    return answered.get();
  } catch (const std::future_error&) {
    return AlertAnswer::defaultButton;  // the program ended and dropped the question
  }
}

bool RunScreen::mainWindowVisible() const {
  return controls_->mainWindowVisible();
}

}  // namespace calvero
