#pragma once

#include <string>

namespace calvero {

/// A modal question or notice. All texts are already localised. An empty default button reads "OK"; an empty
/// alternate button is not drawn.
struct Alert {
  std::string title;
  std::string message;
  std::string defaultButton;
  std::string alternateButton;
};

enum class AlertAnswer { defaultButton, alternateButton };

class Alerts {
 public:
  virtual ~Alerts() = default;

  /// Shows the alert and waits for the answer; other events go on being served meanwhile. Event loop thread. Leaving
  /// the alert without a button (Escape, end of input, the program ending) gives the alternate button if it is drawn,
  /// else the default one. A face may also give up a notice that comes before a run by an exception of its own, which
  /// passes through `proceed`; then no run is started.
  virtual AlertAnswer runModal(const Alert& alert) = 0;
};

}  // namespace calvero
