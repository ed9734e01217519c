#include "window/pop_up_widget.h"

#include <QAccessible>
#include <QBitmap>
#include <QColor>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <algorithm>
#include <cmath>
#include <utility>

#include "ui_pop_up_window.h"
#include "window/widget_text.h"

namespace calvero {
namespace {

constexpr int kCornerRadius = 10;
constexpr int kWidth = 300;
constexpr int kHeight = 90;

double linear(double component) {
  return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

double luminance(const Colour& colour) {
  return 0.2126 * linear(colour.red) + 0.7152 * linear(colour.green) + 0.0722 * linear(colour.blue);
}

QString nameOf(const Colour& colour) {
  return QColor::fromRgbF(static_cast<float>(colour.red), static_cast<float>(colour.green),
                          static_cast<float>(colour.blue), static_cast<float>(colour.alpha))
      .name(QColor::HexArgb);
}

}  // namespace

Colour readableOn(const Colour& ground) {
  constexpr double kFlare = 0.05;
  const double onWhite = (1.0 + kFlare) / (luminance(ground) + kFlare);
  const double onBlack = (luminance(ground) + kFlare) / kFlare;
  return onWhite > onBlack ? Colour{1.0, 1.0, 1.0, 1.0} : Colour{0.0, 0.0, 0.0, 1.0};
}

QPoint upperLeftFor(const ScreenPoint& origin, const QSize& size, const QRect& screen) {
  return {screen.x() + static_cast<int>(std::lround(origin.x)),
          screen.y() + screen.height() - size.height() - static_cast<int>(std::lround(origin.y))};
}

PopUpWidget::PopUpWidget() : ui_(std::make_unique<Ui::PopUpWidget>()) {
  setWindowFlags(Qt::ToolTip);
  setAttribute(Qt::WA_ShowWithoutActivating);
  ui_->setupUi(this);
  ui_->popUpBox->installEventFilter(this);
  resize(kWidth, kHeight);
}

PopUpWidget::~PopUpWidget() = default;

void PopUpWidget::activate() {
  activatesWhenShown_ = !isVisible();
  if (isVisible()) activateWindow();
}

void PopUpWidget::setText(const std::string& text) {
  text_ = text;
  ui_->popUpText->setText(toText(text));
  setAccessibleName(toText(text));
  ui_->popUpBox->layout()->activate();
  layout()->activate();
  resize(kWidth, std::max(kHeight, layout()->totalHeightForWidth(kWidth)));
}

void PopUpWidget::setFillColour(const Colour& colour) {
  ui_->popUpBox->setStyleSheet(
      QStringLiteral("#popUpBox { background: %1; border-radius: %2px; } #popUpText { color: %3; }")
          .arg(nameOf(colour))
          .arg(kCornerRadius)
          .arg(nameOf(readableOn(colour))));
}

void PopUpWidget::setStatusWindowLevel() {
  setWindowFlag(Qt::WindowStaysOnTopHint);
}

void PopUpWidget::setBorderless() {
  setWindowFlag(Qt::FramelessWindowHint);
}

TrackingAreaId PopUpWidget::addTrackingArea(std::function<void()> entered, std::function<void()> exited) {
  trackingAreas_.emplace_back(std::move(entered), std::move(exited));
  return trackingAreas_.size();
}

// How a notification appears is the desktop's affair.
void PopUpWidget::setAlertAnimation() {
  setAttribute(Qt::WA_X11NetWmWindowTypeNotification);
}

ScreenSize PopUpWidget::screenSize() const {
  const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
  return {static_cast<double>(screen.width()), static_cast<double>(screen.height())};
}

ScreenSize PopUpWidget::size() const {
  return {static_cast<double>(width()), static_cast<double>(height())};
}

void PopUpWidget::moveTo(const ScreenPoint& origin) {
  move(upperLeftFor(origin, QWidget::size(), QGuiApplication::primaryScreen()->geometry()));
}

void PopUpWidget::bringToFront() {
  if (onUndisplayed) return onUndisplayed(text_);
  show();
  raise();
  if (std::exchange(activatesWhenShown_, false)) activateWindow();
  QAccessibleEvent event(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

// The corners are cut from the window itself: a display without compositing would show them black.
void PopUpWidget::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  QBitmap shape(QWidget::size());
  shape.clear();
  QPainter painter(&shape);
  painter.setBrush(Qt::color1);
  painter.setPen(Qt::NoPen);
  painter.drawRoundedRect(rect(), kCornerRadius, kCornerRadius);
  painter.end();
  setMask(shape);
}

bool PopUpWidget::eventFilter(QObject* watched, QEvent* event) {
  const bool enters = event->type() == QEvent::Enter;
  if (enters || event->type() == QEvent::Leave) {
    const auto areas = trackingAreas_;
    for (const auto& [entered, exited] : areas) (enters ? entered : exited)();
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace calvero
