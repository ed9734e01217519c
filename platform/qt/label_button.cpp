#include "platform/qt/label_button.h"

#include <QPainter>

#include "platform/qt/wrapped_text.h"

namespace calvero {
namespace {

constexpr int kMargin = 3;
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

int LabelButton::heightForWidth(int width) const {
  return WrappedText(label(), *this, kAlignment, width).height() + 2 * kMargin;
}

QSize LabelButton::sizeHint() const {
  return {fontMetrics().horizontalAdvance(label()) + 2, fontMetrics().height() + 2 * kMargin};
}

QSize LabelButton::minimumSizeHint() const {
  return {WrappedText::widthOfLongestWord(label(), fontMetrics()), fontMetrics().height() + 2 * kMargin};
}

void LabelButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const bool pointedAt = underMouse() && isEnabled();
  painter.setPen(palette().color(pointedAt ? QPalette::Link : QPalette::WindowText));
  WrappedText(label(), *this, kAlignment, width()).draw(painter, rect());
}

}  // namespace calvero
