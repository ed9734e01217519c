#pragma once

namespace calvero {

/// Lets assistive technology see a TileGrid as a list and its tiles as the list's items. May be called again.
void installTileAccessibility();

}  // namespace calvero
