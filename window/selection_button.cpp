#include "window/selection_button.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

#include "window/outline.h"

namespace calvero {

// Qt's own style draws the ring darker than the ground, which nobody sees on a dark one.
void SelectionButton::paintEvent(QPaintEvent* event) {
  QRadioButton::paintEvent(event);
  if (style()->name() != "fusion") return;
  constexpr float kRing = 0.45F;
  QStyleOptionButton option;
  initStyleOption(&option);
  const QRectF indicator = style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, this);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(outlineColour(palette(), kRing));
  painter.drawEllipse(indicator.adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace calvero
