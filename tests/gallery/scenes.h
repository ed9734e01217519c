#pragma once

#include <string>

#include "tests/gallery/scene_fixture.h"

namespace calvero::testing {

/// Takes the program through everything that it can show in one language, by its own buttons, and calls `visitor` at
/// each screen. Needs a QApplication whose event loop does not run yet. Throws std::runtime_error when a screen does
/// not come.
void playAllScenes(const std::string& language, const Visitor& visitor);

}  // namespace calvero::testing
