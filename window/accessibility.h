#pragma once

namespace calvero {

/// Lets assistive technology see the main window as a window, a TileGrid as a list and its tiles as the list's items.
/// May be called again.
void installAccessibility();

}  // namespace calvero
