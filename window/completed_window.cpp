#include "window/completed_window.h"

#include <QIcon>
#include <QLayout>
#include <QPainter>

#include "ui_completed_window.h"
#include "window/outline.h"
#include "window/widget_text.h"

namespace calvero {

QIcon iconFor(OutcomeKind kind) {
  return QIcon(kind == OutcomeKind::warning ? ":/icons/warning.svg" : ":/icons/finished.svg");
}

const Qt::WindowFlags kMessageFlags = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                      Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint;

CompletedWindow::CompletedWindow(QWidget* mainWindow)
    : QDialog(mainWindow), ui_(std::make_unique<Ui::CompletedWindow>()) {
  ui_->setupUi(this);
  setWindowFlags(kMessageFlags);
  connect(ui_->completedOk, &QAbstractButton::clicked, this, &QDialog::reject);
}

CompletedWindow::~CompletedWindow() = default;

void CompletedWindow::setOutcome(const QString& text, OutcomeKind kind) {
  constexpr int kIconSide = 48;
  ui_->outcomeText->setText(text);
  ui_->outcomeIcon->setPixmap(iconFor(kind).pixmap(QSize(kIconSide, kIconSide), devicePixelRatio()));
  setAccessibleDescription(text);
  layout()->activate();  // rows inside rows know their new sizes only then
  const QSize fitting = layout()->totalSizeHint();
  setFixedSize(fitting.width(), layout()->totalHeightForWidth(fitting.width()));
}

void CompletedWindow::setOkTexts(const std::string& title, const std::string& description) {
  ui_->completedOk->setText(asTitle(title));
  ui_->completedOk->setAccessibleDescription(toText(description));
}

void CompletedWindow::reject() {
  if (onOk) return onOk();
  QDialog::reject();
}

// Without a frame it would melt into the main window.
void CompletedWindow::paintEvent(QPaintEvent* event) {
  QDialog::paintEvent(event);
  if (!windowFlags().testFlag(Qt::FramelessWindowHint)) return;
  QPainter painter(this);
  painter.setPen(outlineColour(palette()));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace calvero
