#pragma once

#include <functional>

#include "window/widget_controls.h"

namespace calvero {

/// The window's controls, which tell the session of the two changes that it has its own part in.
class WizardControls : public WidgetControls {
 public:
  using WidgetControls::WidgetControls;

  /// The volumes are about to be listed anew; the controller still has the old list.
  std::function<void()> onListingVolumes;
  /// The completion window is about to appear.
  std::function<void()> onCompleted;

  void clearVolumes() override {
    if (onListingVolumes) onListingVolumes();
    WidgetControls::clearVolumes();
  }
  void bringToFront(Control window) override {
    if (window == Control::windowCompleted && onCompleted) onCompleted();
    WidgetControls::bringToFront(window);
  }
};

}  // namespace calvero
