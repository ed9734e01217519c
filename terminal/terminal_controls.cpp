#include "terminal/terminal_controls.h"

namespace calvero {

std::string TerminalControls::text(Control control) const {
  const auto found = texts_.find(control);
  return found == texts_.end() ? "" : found->second;
}

void TerminalControls::setText(Control control, const std::string& text) {
  texts_[control] = text;
  if (onText) onText(control);
}

void TerminalControls::bringToFront(Control window) {
  if (window == Control::windowCompleted && onCompleted) onCompleted();
}

}  // namespace calvero
