#include "window/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>
#include <algorithm>

#include "window/widget_text.h"

namespace calvero {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
}

QString ElidedLabel::shownText() const {
  return fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
}

QSize ElidedLabel::minimumSizeHint() const {
  const QMargins margins = contentsMargins();
  constexpr int kFewestCharacters = 6;
  // Characters that the font does not have may come from a higher one.
  const int line = std::max(fontMetrics().height(), fontMetrics().size(Qt::TextSingleLine, text()).height());
  return {margins.left() + margins.right() + kFewestCharacters * fontMetrics().averageCharWidth(),
          margins.top() + margins.bottom() + line};
}

QSize ElidedLabel::sizeHint() const {
  const QMargins margins = contentsMargins();
  const int width = margins.left() + margins.right() + fontMetrics().horizontalAdvance(text()) + 1;
  return minimumSizeHint().expandedTo({width, 0});
}

bool ElidedLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || shownText() == text()) return QLabel::event(event);
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), plainToolTip(text()), this);
  return true;
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const int flags = static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment())) | Qt::TextSingleLine;
  style()->drawItemText(&painter, contentsRect(), flags, palette(), isEnabled(), isolated(shownText()),
                        foregroundRole());
}

}  // namespace calvero
