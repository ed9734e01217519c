#pragma once

#include "ports/pop_up_window.h"

namespace calvero {

/// Where the pop-up's lower left corner goes: at the right edge, a ninth of the way up. The screen's own origin is not
/// added.
constexpr ScreenPoint popUpOrigin(const ScreenSize& screen, const ScreenSize& popUp) {
  return {screen.width - popUp.width, screen.height / 9 - popUp.height / 9};
}

}  // namespace calvero
