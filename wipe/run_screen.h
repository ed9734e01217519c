#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>

#include "ports/alerts.h"

namespace calvero {

class Controls;
class EventLoop;

/// Whose run it is. A run only ever moves down this list.
enum class RunStanding : std::uint8_t {
  current,     ///< the controller's run
  replaced,    ///< the controller has taken up a fresh, idle run: this one no longer touches the screen
  superseded,  ///< a newer run has started: this one ends without a word
};

/// The screen as the threads of one run may use it: every change is carried out on the event loop thread, in the order
/// in which it was asked for, and dropped if the run is no longer the current one by then. Any thread.
class RunScreen {
 public:
  RunScreen(EventLoop& eventLoop, Controls& controls, Alerts& alerts);

  /// Runs `change` at once on the event loop thread, else posts it.
  void apply(std::function<void(Controls&)> change) const;

  /// Shows an alert and waits for its answer. When the program ends meanwhile, or a newer run has started, the answer
  /// is the default button.
  AlertAnswer runModal(const Alert& alert) const;

  [[nodiscard]] bool mainWindowVisible() const;

  [[nodiscard]] RunStanding standing() const { return *standing_; }
  /// Event loop thread.
  void setStanding(RunStanding standing) { *standing_ = standing; }

 private:
  EventLoop* eventLoop_;
  Controls* controls_;
  Alerts* alerts_;
  // Shared with what is posted, which may be carried out after the run is gone.
  std::shared_ptr<std::atomic<RunStanding>> standing_;
};

}  // namespace calvero
