#include "window/label_button.h"

#include <QPainter>
#include <QStyleOption>

#include "window/wrapped_text.h"

namespace calvero {
namespace {

constexpr int kAboveText = 3;
constexpr int kIndent = 4;
constexpr Qt::Alignment kAlignment = Qt::AlignLeft | Qt::AlignVCenter;

}  // namespace

LabelButton::LabelButton(QWidget* parent) : QPushButton(parent) {
  setFlat(true);
  setFocusPolicy(Qt::NoFocus);
  setCursor(Qt::PointingHandCursor);
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

QString LabelButton::label() const {
  return text().replace(QStringLiteral("&&"), QStringLiteral("&")).trimmed();
}

void LabelButton::setFramed(bool framed) {
  framed_ = framed;
  update();
}

int LabelButton::heightForWidth(int width) const {
  return WrappedText(label(), *this, kAlignment, width - 2 * kIndent).height() + 2 * kAboveText;
}

QSize LabelButton::sizeHint() const {
  return {fontMetrics().horizontalAdvance(label()) + 2 + 2 * kIndent, fontMetrics().height() + 2 * kAboveText};
}

QSize LabelButton::minimumSizeHint() const {
  return {WrappedText::widthOfLongestWord(label(), fontMetrics()) + 2 * kIndent,
          fontMetrics().height() + 2 * kAboveText};
}

void LabelButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const bool pointedAt = underMouse() && isEnabled();
  painter.setPen(palette().color(pointedAt ? QPalette::Link : QPalette::WindowText));
  const QRect room = rect().adjusted(kIndent, 0, -kIndent, 0);
  WrappedText(label(), *this, kAlignment, room.width()).draw(painter, room);
  if (!framed_) return;
  QStyleOptionFocusRect frame;
  frame.initFrom(this);
  frame.state |= QStyle::State_KeyboardFocusChange;  // some styles draw none otherwise
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, this);
}

}  // namespace calvero
