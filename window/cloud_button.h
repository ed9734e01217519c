#pragma once

#include <QPushButton>

#include "ports/controls.h"

namespace calvero {

/// A button with a ground of its own, on which a title of any light colour can be read.
class CloudButton : public QPushButton {
  Q_OBJECT
 public:
  explicit CloudButton(QWidget* parent = nullptr);

  void setAttributedTitle(const AttributedTitle& title);
  /// The button looks the same while it is pressed.
  void highlightNothing();

 private:
  void applyLook();

  Colour colour_{1.0, 1.0, 1.0, 1.0};
  bool highlights_ = true;
};

}  // namespace calvero
