#include "window/main_window.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLocale>
#include <QScreen>

#include "ui_main_window.h"
#include "window/outline.h"
#include "window/widget_text.h"

namespace calvero {
namespace {

void scaleFont(QWidget* widget, double factor, QFont::Weight weight) {
  QFont font = widget->font();
  font.setPointSizeF(font.pointSizeF() * factor);
  font.setWeight(weight);
  widget->setFont(font);
}

void setPicture(QLabel* label, const QIcon& icon, int side) {
  label->setPixmap(icon.pixmap(QSize(side, side), label->devicePixelRatio()));
}

}  // namespace

MainWindow::MainWindow() : ui_(std::make_unique<Ui::MainWindow>()), completed_(new CompletedWindow(this)) {
  ui_->setupUi(this);
  ui_->volumePage->bind();
  ui_->methodPage->bind();
  setWindowIcon(QIcon(":/icons/calvero.svg"));
  styleCaptions();
  connectButtons();
  connectPages();
  ui_->volLabel->hide();
  leaveCompletionPage();
}

MainWindow::~MainWindow() = default;

VolumePage& MainWindow::volumes() const {
  return *ui_->volumePage;
}

MethodPage& MainWindow::methods() const {
  return *ui_->methodPage;
}

void MainWindow::styleCaptions() {
  constexpr double kHeading = 1.5;
  constexpr int kAppIconSide = 64;
  constexpr int kPictureSide = 32;
  for (QLabel* heading : {ui_->volumeHeading, ui_->selectingWipingMethod, ui_->erasingfreeSpaceData}) {
    scaleFont(heading, kHeading, QFont::DemiBold);
  }
  const std::initializer_list<QLabel*> captions{ui_->Settings, ui_->Help, ui_->ondrelMore,    ui_->low,
                                                ui_->medium,   ui_->high, ui_->noDrivesTitle, ui_->labelPhase};
  for (QLabel* caption : captions) scaleFont(caption, 1.0, QFont::DemiBold);
  setPicture(ui_->appIcon, windowIcon(), kAppIconSide);
  setPicture(ui_->cloud_img_1, QIcon(":/icons/cloud.svg"), kPictureSide);
  ui_->sideBar->setBackgroundRole(QPalette::AlternateBase);
  const std::initializer_list<QFrame*> outlined{ui_->sideLine,   ui_->lineAbove_medium, ui_->lineAbove_high,
                                                ui_->tileScroll, ui_->noDrives,         ui_->boxSelVolDesc,
                                                ui_->figuresBox, ui_->progressFigures,  ui_->completedBox};
  for (QFrame* frame : outlined) {
    if (frame->frameShape() == QFrame::StyledPanel) frame->setFrameStyle(QFrame::Box | QFrame::Plain);
    frame->setForegroundRole(QPalette::Mid);
  }
  ui_->piDataWipe->setLocale(QLocale::c());  // digits as in the other figures
  colourOutlines();
}

void MainWindow::colourOutlines() {
  const QColor outline = outlineColour(QGuiApplication::palette());
  if (palette().color(QPalette::Mid) == outline) return;
  QPalette own;
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    own.setColor(group, QPalette::Mid, outline);
  }
  setPalette(own);
}

void MainWindow::connectButtons() {
  const auto run = [this](QAbstractButton* button, std::function<void()> MainWindow::*hook) {
    connect(button, &QAbstractButton::clicked, this, [this, hook] {
      if (this->*hook) (this->*hook)();
    });
  };
  run(ui_->buttonNext, &MainWindow::onNext);
  run(ui_->buttonBack, &MainWindow::onBack);
  run(ui_->proceedBtn, &MainWindow::onProceed);
  run(ui_->cancelBut, &MainWindow::onCancel);
  run(ui_->reloadDrivers, &MainWindow::onReload);
  run(ui_->buttonHome, &MainWindow::onHome);
  run(ui_->helpButton, &MainWindow::onHelp);
  run(ui_->buttonCloud, &MainWindow::onCloud);
  run(ui_->getItNow, &MainWindow::onGetItNow);
  run(ui_->facebookButton, &MainWindow::onFacebook);
  run(ui_->twitterButton, &MainWindow::onTwitter);
  run(ui_->googlePlusButton, &MainWindow::onGooglePlus);
  run(ui_->completionPageOk, &MainWindow::onCompletionPageOk);
}

void MainWindow::connectPages() {
  ui_->methodPage->onMethod = [this](int method) {
    if (onMethod) onMethod(method);
  };
  ui_->volumePage->onTableSelectionChanged = [this] {
    if (onTableSelectionChanged) onTableSelectionChanged();
  };
  ui_->collectionView->onTilesSelected = [this](std::vector<std::size_t> indexes) {
    if (onTilesSelected) onTilesSelected(std::move(indexes));
  };
  completed_->onOk = [this] { onCompletionOk ? onCompletionOk() : completed_->hide(); };
  connect(ui_->tabView, &QStackedWidget::currentChanged, this, [this] { focusPage(); });
}

void MainWindow::setOutcome(const std::string& text, OutcomeKind kind) {
  constexpr int kIconSide = 32;
  completed_->setOutcome(toText(text), kind);
  ui_->completedText->setText(toText(text));
  setPicture(ui_->completedIcon, iconFor(kind), kIconSide);
}

// Beside the bar: some styles lose the text in a mirrored bar.
void MainWindow::showPercent() {
  ui_->percentLabel->setText(ui_->piDataWipe->text());
}

void MainWindow::selectPage(int index) {
  if (ui_->tabView->widget(index) != ui_->progressPage) leaveCompletionPage();
  ui_->tabView->setCurrentIndex(index);
}

void MainWindow::showCompletionPage() {
  ui_->completedBox->show();
  ui_->cancelPlace->hide();
  ui_->completionPageOk->show();
}

void MainWindow::leaveCompletionPage() {
  ui_->completedBox->hide();
  ui_->completionPageOk->hide();
  ui_->cancelPlace->show();
}

void MainWindow::bringToFront() {
  setWindowState((windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
  show();
  raise();
  activateWindow();
}

void MainWindow::leaveTaskBar() {
  const bool shown = isVisible();
  setWindowFlags((windowFlags() & ~Qt::WindowType_Mask) | Qt::Tool);  // hides it
  if (shown) show();
}

// On the progress page nothing has the keyboard at first: a key meant for the question must not cancel the run.
void MainWindow::focusPage() {
  const QWidget* page = ui_->tabView->currentWidget();
  const bool hasTiles = ui_->collectionView->count() != 0;
  if (page == ui_->volumePage && hasTiles) ui_->collectionView->focusCurrent();
  if (page == ui_->volumePage && !hasTiles) ui_->reloadDrivers->setFocus(Qt::OtherFocusReason);
  if (page == ui_->methodPage) ui_->methodPage->focusCurrent();
  if (page == ui_->progressPage) ui_->progressPage->setFocus(Qt::OtherFocusReason);
}

QAbstractButton* MainWindow::defaultButton() const {
  const QWidget* page = ui_->tabView->currentWidget();
  if (page == ui_->volumePage) return ui_->buttonNext;
  return page == ui_->methodPage ? ui_->proceedBtn : ui_->completionPageOk;
}

// A key that is still held down from the page before must not start anything.
void MainWindow::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!enter || event->isAutoRepeat()) return QWidget::keyPressEvent(event);
  QAbstractButton* button = defaultButton();
  if (button->isVisible() && button->isEnabled()) button->click();
}

void MainWindow::noteScreenState() {
  onScreen_ = isVisible() && !isMinimized();
}

void MainWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  noteScreenState();
  if (!event->spontaneous()) focusPage();
}

void MainWindow::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  onScreen_ = false;
}

void MainWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) colourOutlines();
  if (event->type() != QEvent::WindowStateChange) return;
  noteScreenState();
  const bool was = static_cast<QWindowStateChangeEvent*>(event)->oldState().testFlag(Qt::WindowMinimized);
  if (was == isMinimized()) return;
  const auto& hook = isMinimized() ? onMiniaturise : onDeminiaturise;
  if (hook) hook();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (onCloseRequest && !onCloseRequest()) return event->ignore();
  QWidget::closeEvent(event);
  if (onClosed) onClosed();
}

}  // namespace calvero
