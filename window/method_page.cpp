#include "window/method_page.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>
#include <array>
#include <iterator>
#include <numeric>
#include <utility>

#include "window/elided_label.h"
#include "window/label_button.h"
#include "window/selection_button.h"
#include "window/widget_text.h"

namespace calvero {
namespace {

constexpr std::array kButtonNames{
    "butFastZeroWipe", "butRandomWipe",      "butDOD5220",       "butNAVSO",      "butNATO",
    "butVSITR",        "butFAST_ZERO_WRITE", "butPETER_GUTTMAN", "butNINTH_ALGO",
};

/// Moves everything from `row` on down by one.
void openRow(QGridLayout& grid, int row) {
  struct Place {
    int row, column, rows, columns;
  };
  std::vector<std::pair<QLayoutItem*, Place>> moved;
  for (int i = grid.count() - 1; i >= 0; --i) {
    Place place{};
    grid.getItemPosition(i, &place.row, &place.column, &place.rows, &place.columns);
    if (place.row >= row) moved.emplace_back(grid.takeAt(i), place);
  }
  // From the first to the last, so that the order of the items stays.
  std::reverse(moved.begin(), moved.end());
  for (const auto& [item, at] : moved)
    grid.addItem(item, at.row + 1, at.column, at.rows, at.columns, item->alignment());
}

int rowOf(QGridLayout& grid, QWidget* widget) {
  int row = 0, column = 0, rows = 0, columns = 0;
  grid.getItemPosition(grid.indexOf(widget), &row, &column, &rows, &columns);
  return row;
}

}  // namespace

void MethodPage::bind() {
  for (std::size_t i = 0; i < kButtonNames.size(); ++i) {
    addSlot({findChild<SelectionButton*>(kButtonNames[i]),
             findChild<LabelButton*>(QStringLiteral("algorithm_%1").arg(i + 1)),
             findChild<ElidedLabel*>(QStringLiteral("passes_%1").arg(i + 1))});
  }
  order();
}

void MethodPage::addSlot(const Slot& slot) {
  const auto press = [this, method = static_cast<int>(slots_.size())] {
    if (onMethod) onMethod(method);
  };
  slot.button->installEventFilter(this);
  connect(slot.button, &QAbstractButton::clicked, this, press);
  connect(slot.label, &QAbstractButton::clicked, this, press);
  connect(slot.button, &QAbstractButton::toggled, this, [this, button = slot.button](bool on) {
    if (on) letTabReach(button);
  });
  slots_.push_back(slot);
}

MethodPage::Tier MethodPage::tierOf(const Slot& slot) {
  constexpr int kMostOfLow = 1;
  constexpr int kMostOfMedium = 7;
  if (slot.passes <= kMostOfLow) return Tier::low;
  return slot.passes <= kMostOfMedium ? Tier::medium : Tier::high;
}

// Below the last one of its tier.
void MethodPage::makeSlot(int passes) {
  auto* grid = findChild<QGridLayout*>("methodGrid");
  QWidget* list = grid->parentWidget();
  const Slot slot{new SelectionButton(list), new LabelButton(list), new ElidedLabel(list), passes};
  const QString number = QString::number(slots_.size() + 1);
  slot.button->setObjectName("butMethod_" + number);
  slot.label->setObjectName("algorithm_" + number);
  slot.passesLabel->setObjectName("passes_" + number);
  const QLabel* alike = slots_.front().passesLabel;
  slot.passesLabel->setTextFormat(alike->textFormat());
  slot.passesLabel->setSizePolicy(alike->sizePolicy());
  slot.passesLabel->setAlignment(alike->alignment());
  const auto isAbove = [&](std::size_t method) { return tierOf(slots_[method]) <= tierOf(slot); };
  SelectionButton* above = slots_[*std::find_if(onPage_.rbegin(), onPage_.rend(), isAbove)].button;
  const int row = rowOf(*grid, above) + 1;
  openRow(*grid, row);
  int column = 1;
  for (QWidget* widget : {static_cast<QWidget*>(slot.button), static_cast<QWidget*>(slot.label),
                          static_cast<QWidget*>(slot.passesLabel)}) {
    grid->addWidget(widget, row, column++);
  }
  setTabOrder(above, slot.button);
  addSlot(slot);
}

void MethodPage::order() {
  onPage_.resize(slots_.size());
  std::iota(onPage_.begin(), onPage_.end(), 0U);
  std::stable_sort(onPage_.begin(), onPage_.end(),
                   [this](std::size_t a, std::size_t b) { return tierOf(slots_[a]) < tierOf(slots_[b]); });
}

// As with any group of choices, Tab leads to the one that is on, and the arrow keys to the others.
void MethodPage::letTabReach(const SelectionButton* checked) {
  for (const Slot& slot : slots_)
    slot.button->setFocusPolicy(slot.button == checked ? Qt::StrongFocus : Qt::ClickFocus);
}

void MethodPage::setPasses(const std::vector<int>& passes) {
  for (std::size_t i = 0; i < passes.size(); ++i) {
    if (i < slots_.size()) {
      slots_[i].passes = passes[i];
    } else {
      makeSlot(passes[i]);
    }
    order();
  }
  refresh();
}

void MethodPage::setLabel(std::size_t method, const QString& label) {
  slots_.at(method).label->setText(label);
  refresh();
}

void MethodPage::turn(std::size_t method, bool on) {
  slots_.at(method).button->setChecked(on);
}

void MethodPage::setTexts(const QString& passes, const QString& withoutPasses, const QString& explanation) {
  passesText_ = passes;
  withoutPasses_ = withoutPasses;
  explanation_ = explanation;
  refresh();
}

void MethodPage::refresh() {
  constexpr std::array kCaptions{"low", "medium", "high"};
  for (const Slot& slot : slots_) {
    const QString number = passesText_.contains(QStringLiteral("%1")) ? passesText_.arg(slot.passes) : passesText_;
    const QString passes = slot.passes == 0 ? withoutPasses_ : number;
    const QString explanation = slot.passes == 0 ? explanation_ : QString();
    slot.passesLabel->setText(passes);
    slot.button->setAccessibleName(slot.label->label() + QStringLiteral(", ") + passes);
    const QString tier = findChild<QLabel*>(kCaptions[static_cast<std::size_t>(tierOf(slot))])->text();
    const QString description = tier + ", " + passes + (explanation.isEmpty() ? QString() : ". " + explanation);
    for (QWidget* widget : {static_cast<QWidget*>(slot.button), static_cast<QWidget*>(slot.label)}) {
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
  const auto on = std::find_if(slots_.begin(), slots_.end(), [](const Slot& slot) { return slot.button->isChecked(); });
  (on == slots_.end() ? slots_.front() : *on).button->setFocus(Qt::OtherFocusReason);
}

// Takes the arrow keys before the scroll area does.
bool MethodPage::eventFilter(QObject* watched, QEvent* event) {
  const bool focused = event->type() == QEvent::FocusIn;
  if (focused || event->type() == QEvent::FocusOut) {
    for (const Slot& slot : slots_) slot.label->setFramed(focused && slot.button == watched);
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
  const auto focused =
      std::find_if(onPage_.begin(), onPage_.end(), [&](auto i) { return slots_[i].button->hasFocus(); });
  if (focused == onPage_.end()) return;
  const auto place = focused - onPage_.begin() + step;
  if (place < 0 || place >= std::ssize(onPage_)) return;
  const std::size_t method = onPage_[static_cast<std::size_t>(place)];
  slots_[method].button->setFocus(Qt::TabFocusReason);
  findChild<QScrollArea*>("methodScroll")->ensureWidgetVisible(slots_[method].label);
  if (onMethod) onMethod(static_cast<int>(method));
}

}  // namespace calvero
