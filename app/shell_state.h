#pragma once

#include <cstddef>
#include <cstdint>

#include "app/kept_names.h"
#include "ports/event_loop.h"
#include "ports/pop_up_window.h"

namespace calvero {

/// What is remembered of the pop-up. Event loop thread.
struct PopUpState {
  TimerId timerForPopUp = kNoTimer;  ///< the pending close check
  TrackingAreaId trackingArea = 0;   ///< the one that was added last
  std::uint8_t mouseHoverForPopUp = 0;
};

/// What the application shell remembers. Event loop thread.
struct ShellState : KeptState {
  std::uint8_t admin = 0;             ///< hides the portal's button; nothing sets it
  std::uint8_t wipingProcessOn = 0;   ///< a run is under way: the window may not be closed
  std::size_t currentSelectionG = 0;  ///< the picker's index, shared by the tiles and the controller
};

}  // namespace calvero
