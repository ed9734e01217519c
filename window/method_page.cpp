#include "window/method_page.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>

#include "window/label_button.h"
#include "window/selection_button.h"
#include "window/widget_text.h"

namespace calvero {
namespace {

constexpr std::array<const char*, MethodPage::kMethods> kButtonNames{
    "butFastZeroWipe", "butRandomWipe",      "butDOD5220",       "butNAVSO",      "butNATO",
    "butVSITR",        "butFAST_ZERO_WRITE", "butPETER_GUTTMAN", "butNINTH_ALGO",
};

// From the top of the page to its end: the tiers go by the number of passes.
constexpr std::array<std::size_t, MethodPage::kMethods> kOnPage{0, 1, 3, 6, 2, 4, 5, 7, 8};

/// The caption that stands above the method on the page.
const char* tierOf(std::size_t method) {
  constexpr std::ptrdiff_t kMedium = 4;
  constexpr std::ptrdiff_t kHigh = 7;
  const auto place = std::find(kOnPage.begin(), kOnPage.end(), method) - kOnPage.begin();
  if (place < kMedium) return "low";
  return place < kHigh ? "medium" : "high";
}

}  // namespace

void MethodPage::bind() {
  for (std::size_t i = 0; i < kMethods; ++i) {
    buttons_[i] = findChild<SelectionButton*>(kButtonNames[i]);
    labels_[i] = findChild<LabelButton*>(QStringLiteral("algorithm_%1").arg(i + 1));
    const auto press = [this, method = static_cast<int>(i)] {
      if (onMethod) onMethod(method);
    };
    buttons_[i]->installEventFilter(this);
    connect(buttons_[i], &QAbstractButton::clicked, this, press);
    connect(labels_[i], &QAbstractButton::clicked, this, press);
    connect(buttons_[i], &QAbstractButton::toggled, this, [this, button = buttons_[i]](bool on) {
      if (on) letTabReach(button);
    });
  }
}

// As with any group of choices, Tab leads to the one that is on, and the arrow keys to the others.
void MethodPage::letTabReach(const SelectionButton* checked) {
  for (SelectionButton* button : buttons_) button->setFocusPolicy(button == checked ? Qt::StrongFocus : Qt::ClickFocus);
}

void MethodPage::setPasses(const std::array<int, kMethods>& passes) {
  passes_ = passes;
  refresh();
}

void MethodPage::setTexts(const QString& passes, const QString& withoutPasses, const QString& explanation) {
  passesText_ = passes;
  withoutPasses_ = withoutPasses;
  explanation_ = explanation;
  refresh();
}

void MethodPage::refresh() {
  for (std::size_t i = 0; i < kMethods; ++i) {
    const QString number = passesText_.contains(QStringLiteral("%1")) ? passesText_.arg(passes_[i]) : passesText_;
    const QString passes = passes_[i] == 0 ? withoutPasses_ : number;
    const QString explanation = passes_[i] == 0 ? explanation_ : QString();
    findChild<QLabel*>(QStringLiteral("passes_%1").arg(i + 1))->setText(passes);
    buttons_[i]->setAccessibleName(labels_[i]->label() + QStringLiteral(", ") + passes);
    const QString tier = findChild<QLabel*>(tierOf(i))->text();
    const QString description = tier + ", " + passes + (explanation.isEmpty() ? QString() : ". " + explanation);
    for (QWidget* widget : {static_cast<QWidget*>(buttons_[i]), static_cast<QWidget*>(labels_[i])}) {
      widget->setAccessibleDescription(description);
      widget->setToolTip(plainToolTip(explanation));
    }
  }
  makeRoom();
}

// The slots scroll up and down only.
void MethodPage::makeRoom() {
  auto* area = findChild<QScrollArea*>("methodScroll");
  area->setMinimumWidth(area->widget()->layout()->minimumSize().width() +
                        area->verticalScrollBar()->sizeHint().width());
}

void MethodPage::focusCurrent() {
  const auto on = std::find_if(buttons_.begin(), buttons_.end(), [](auto* button) { return button->isChecked(); });
  (on == buttons_.end() ? buttons_.front() : *on)->setFocus(Qt::OtherFocusReason);
}

// Takes the arrow keys before the scroll area does.
bool MethodPage::eventFilter(QObject* watched, QEvent* event) {
  const bool focused = event->type() == QEvent::FocusIn;
  if (focused || event->type() == QEvent::FocusOut) {
    for (std::size_t i = 0; i < kMethods; ++i) labels_[i]->setFramed(focused && buttons_[i] == watched);
  }
  const int step = event->type() == QEvent::KeyPress ? stepFor(static_cast<QKeyEvent*>(event)->key()) : 0;
  if (step == 0) return QWidget::eventFilter(watched, event);
  moveBy(step);
  return true;
}

int MethodPage::stepFor(int key) const {
  const int towardsEnd = layoutDirection() == Qt::RightToLeft ? -1 : 1;
  switch (key) {
    case Qt::Key_Up:
      return -1;
    case Qt::Key_Down:
      return 1;
    case Qt::Key_Left:
      return -towardsEnd;
    case Qt::Key_Right:
      return towardsEnd;
    default:
      return 0;
  }
}

void MethodPage::moveBy(int step) {
  const auto focused = std::find_if(kOnPage.begin(), kOnPage.end(), [&](auto i) { return buttons_[i]->hasFocus(); });
  if (focused == kOnPage.end()) return;
  const auto place = focused - kOnPage.begin() + step;
  if (place < 0 || place >= static_cast<std::ptrdiff_t>(kMethods)) return;
  const std::size_t method = kOnPage[static_cast<std::size_t>(place)];
  buttons_[method]->setFocus(Qt::TabFocusReason);
  findChild<QScrollArea*>("methodScroll")->ensureWidgetVisible(labels_[method]);
  if (onMethod) onMethod(static_cast<int>(method));
}

}  // namespace calvero
