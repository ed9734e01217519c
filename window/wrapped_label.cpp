#include "window/wrapped_label.h"

#include <QPainter>
#include <algorithm>

#include "window/wrapped_text.h"

namespace calvero {

WrappedLabel::WrappedLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

int WrappedLabel::heightForWidth(int width) const {
  return WrappedText(text(), *this, alignment(), width).height();
}

QSize WrappedLabel::sizeHint() const {
  constexpr int kUsualCharacters = 44;
  const int usual = kUsualCharacters * fontMetrics().averageCharWidth();
  const int width = std::max(std::min(usual, fontMetrics().size(0, text()).width() + 2), minimumSizeHint().width());
  return {width, heightForWidth(width)};
}

QSize WrappedLabel::minimumSizeHint() const {
  return {WrappedText::widthOfLongestWord(text(), fontMetrics()), fontMetrics().height()};
}

void WrappedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(foregroundRole()));
  WrappedText(text(), *this, alignment(), width()).draw(painter, rect());
}

}  // namespace calvero
