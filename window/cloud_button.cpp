#include "window/cloud_button.h"

#include <QColor>

#include "window/widget_text.h"

namespace calvero {

CloudButton::CloudButton(QWidget* parent) : QPushButton(parent) {
  applyLook();
}

void CloudButton::setAttributedTitle(const AttributedTitle& title) {
  setText(asTitle(title.text));
  QFont systemFont = font();
  systemFont.setPointSizeF(title.points);
  setFont(systemFont);
  colour_ = title.colour;
  applyLook();
}

void CloudButton::highlightNothing() {
  highlights_ = false;
  applyLook();
}

void CloudButton::applyLook() {
  const QColor text = QColor::fromRgbF(static_cast<float>(colour_.red), static_cast<float>(colour_.green),
                                       static_cast<float>(colour_.blue), static_cast<float>(colour_.alpha));
  QString look = QStringLiteral(
      "QPushButton { color: %1; background: #1f4e79; border: 1px solid #16395a; border-radius: 4px; padding: 4px 8px;"
      " text-align: center; }"
      "QPushButton:focus { border: 2px solid %1; padding: 3px 7px; }");
  if (highlights_) look += QStringLiteral("QPushButton:pressed { background: #16395a; }");
  setStyleSheet(look.arg(text.name(QColor::HexArgb)));
}

}  // namespace calvero
