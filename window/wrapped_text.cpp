#include "window/wrapped_text.h"

#include <QPainter>
#include <QStyle>
#include <QWidget>
#include <algorithm>
#include <cmath>

namespace calvero {

WrappedText::WrappedText(const QString& text, const QWidget& widget, Qt::Alignment alignment, int width)
    : alignment_(QStyle::visualAlignment(widget.layoutDirection(), alignment)) {
  QTextOption option(alignment_ | Qt::AlignAbsolute);
  option.setTextDirection(widget.layoutDirection());
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  for (const QString& paragraph : text.split('\n')) {
    auto layout = std::make_unique<QTextLayout>(paragraph, widget.font(), &widget);
    layout->setTextOption(option);
    layout->beginLayout();
    for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
      line.setLineWidth(width);
      line.setPosition({0.0, height_});
      height_ += line.height();
    }
    layout->endLayout();
    paragraphs_.push_back(std::move(layout));
  }
}

int WrappedText::height() const {
  return static_cast<int>(std::ceil(height_));
}

void WrappedText::draw(QPainter& painter, const QRect& room) const {
  double top = room.top();
  if (alignment_.testFlag(Qt::AlignVCenter)) top += std::max(0.0, (room.height() - height_) / 2.0);
  for (const auto& paragraph : paragraphs_) paragraph->draw(&painter, {static_cast<double>(room.left()), top});
}

int WrappedText::widthOfLongestWord(const QString& text, const QFontMetrics& metrics) {
  constexpr int kUsualWord = 30;
  int width = 0;
  for (const QString& word : text.simplified().split(' ')) width = std::max(width, metrics.horizontalAdvance(word));
  return std::min(width, kUsualWord * metrics.averageCharWidth()) + 2;
}

}  // namespace calvero
