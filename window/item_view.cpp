#include "window/item_view.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include "window/elided_label.h"
#include "window/redisplay_clock.h"

namespace calvero {
namespace {

constexpr int kTitleIndent = 20;  // the tile's own margin beside the label; the check mark stands in it
constexpr int kBelowTitle = 30;
constexpr int kIconSide = 48;
constexpr int kIconMargin = 8;

int titleHeight(int tileHeight) {
  return static_cast<int>(static_cast<float>((static_cast<double>(tileHeight) - kBelowTitle) / 2.0));
}

}  // namespace

ItemView::ItemView(const QRect& frame, RedisplayClock& clock, QWidget* parent) : QWidget(parent), clock_(clock) {
  setGeometry(frame);
  setFocusPolicy(Qt::ClickFocus);
  setAttribute(Qt::WA_Hover);
}

void ItemView::initWithCoder() {
  titleField_ = new ElidedLabel(this);
  titleField_->setObjectName("titleField");
  titleField_->setAlignment(Qt::AlignCenter);
  titleField_->setContentsMargins(0, 0, kTitleIndent, 0);  // centred in the tile, not beside the indent
  titleField_->setAttribute(Qt::WA_TransparentForMouseEvents);
  titleField_->setGeometry(kTitleIndent, y(), width() - kTitleIndent, titleHeight(height()));
  titleField_->show();
  update();
}

QSize ItemView::fittingSize(const QFontMetrics& metrics) {
  constexpr int kCharacters = 17;
  const int forTitle = 2 * (metrics.height() + kIconMargin) + kBelowTitle;
  const int forIcon = 2 * (kIconSide + 2 * kIconMargin) - kBelowTitle;
  return {kCharacters * metrics.averageCharWidth() + 2 * kTitleIndent, std::max(forTitle, forIcon)};
}

void ItemView::setSelected(bool selected) {
  if (selected_ == selected) return;
  selected_ = selected;
  colourTitle();
  update();
  QAccessible::State changed;
  changed.selected = true;
  QAccessibleStateChangeEvent event(this, changed);
  QAccessible::updateAccessibility(&event);
}

void ItemView::setTitle(const QString& title) {
  if (&title == &title_) return;
  title_ = title;
  setAccessibleName(title_);
  if (titleField_ != nullptr) titleField_->setText(title_);
}

void ItemView::setVolString() {
  if (titleField_ != nullptr) titleField_->setText(title_);
  update();
  repaint();
}

void ItemView::setIcon(const QIcon& icon) {
  icon_ = icon;
  update();
}

void ItemView::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  if (selected_) painter.fillRect(event->rect(), palette().highlight());
  const int top = titleHeight(height());
  const QRect below(0, top, width(), height() - top);
  QRect icon(0, 0, kIconSide, kIconSide);
  icon.moveCenter(below.center());
  icon_.paint(&painter, icon);
  paintFrame(painter);
  if (selected_) paintCheckMark(painter);
  clock_.redisplay(this);
}

void ItemView::paintFrame(QPainter& painter) const {
  const bool marked = selected_ || hasFocus();
  QPen pen(palette().color(marked ? QPalette::Highlight : QPalette::Mid), 1.0);
  if (hasFocus()) pen.setColor(palette().color(selected_ ? QPalette::HighlightedText : QPalette::Text));
  if (!marked && underMouse()) pen.setColor(palette().color(QPalette::Dark));
  painter.setPen(pen);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  if (!hasFocus()) return;
  pen.setStyle(Qt::DotLine);
  painter.setPen(pen);
  painter.drawRect(rect().adjusted(3, 3, -4, -4));
}

void ItemView::paintCheckMark(QPainter& painter) const {
  constexpr double kSide = 10.0;
  const bool mirrored = layoutDirection() == Qt::RightToLeft;
  const double left = mirrored ? width() - kTitleIndent + 3.0 : 7.0;
  const double top = (titleHeight(height()) - kSide) / 2.0;
  QPainterPath mark(QPointF(left, top + 0.55 * kSide));
  mark.lineTo(left + 0.35 * kSide, top + 0.9 * kSide);
  mark.lineTo(left + kSide, top + 0.1 * kSide);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(QPalette::HighlightedText), 2.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(mark);
}

// A view that was off the screen asks for nothing any more; coming back, it begins anew.
void ItemView::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  update();
}

void ItemView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return QWidget::mousePressEvent(event);
  if (onPressed) onPressed();
}

void ItemView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) colourTitle();
}

void ItemView::colourTitle() {
  if (titleField_ != nullptr) titleField_->setForegroundRole(selected_ ? QPalette::HighlightedText : QPalette::Text);
}

}  // namespace calvero
