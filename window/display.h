#pragma once

namespace calvero {

/// Lets Qt take the session's display, or else none at all: left to itself it ends the process where it finds none of
/// those that it may use. A choice of the user's own stands. Before the QApplication is made.
void chooseDisplay();

/// Whether the QApplication has none but one of Qt's own stand-ins, which show nothing.
bool isWithoutDisplay();

}  // namespace calvero
