#pragma once

#include <QColor>
#include <QPalette>

namespace calvero {

/// The colour of frames and lines: between ground and text, so that it is seen on light and on dark ground. A palette's
/// own Mid is darker than its ground, whatever that is.
inline QColor outlineColour(const QPalette& palette, float textShare = 0.25F) {
  const QColor ground = palette.color(QPalette::Window);
  const QColor text = palette.color(QPalette::WindowText);
  const auto between = [textShare](float from, float to) { return from + (to - from) * textShare; };
  return QColor::fromRgbF(between(ground.redF(), text.redF()), between(ground.greenF(), text.greenF()),
                          between(ground.blueF(), text.blueF()));
}

}  // namespace calvero
