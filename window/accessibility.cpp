#include "window/accessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "window/item_view.h"
#include "window/main_window.h"
#include "window/tile_grid.h"

namespace calvero {
namespace {

class AccessibleTile : public QAccessibleWidget {
 public:
  explicit AccessibleTile(ItemView* tile) : QAccessibleWidget(tile, QAccessible::ListItem), tile_(tile) {}

  // The label only repeats the name.
  [[nodiscard]] int childCount() const override { return 0; }
  [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }

  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.selectable = true;
    state.selected = tile_->selected();
    state.focusable = true;
    return state;
  }

  [[nodiscard]] QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }

  void doAction(const QString& name) override {
    if (name == setFocusAction()) tile_->setFocus(Qt::OtherFocusReason);
    if (name == pressAction() && tile_->onPressed) tile_->onPressed();
  }

 private:
  ItemView* tile_;
};

// The tiles in their order; a view below them only scrolls.
class AccessibleGrid : public QAccessibleWidget {
 public:
  explicit AccessibleGrid(TileGrid* grid) : QAccessibleWidget(grid, QAccessible::List), grid_(grid) {}

  [[nodiscard]] int childCount() const override { return static_cast<int>(grid_->count()); }

  [[nodiscard]] QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    return QAccessible::queryAccessibleInterface(grid_->tile(static_cast<std::size_t>(index)));
  }

  [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
    for (int index = 0; index < childCount(); ++index) {
      if (grid_->tile(static_cast<std::size_t>(index)) == child->object()) return index;
    }
    return -1;
  }

 private:
  TileGrid* grid_;
};

QAccessibleInterface* interfaceFor(const QString&, QObject* object) {
  // Without a role of its own a plain widget counts as filling, even when it is a window.
  if (auto* window = qobject_cast<MainWindow*>(object)) return new QAccessibleWidget(window, QAccessible::Window);
  if (auto* tile = qobject_cast<ItemView*>(object)) return new AccessibleTile(tile);
  if (auto* grid = qobject_cast<TileGrid*>(object)) return new AccessibleGrid(grid);
  return nullptr;
}

}  // namespace

void installAccessibility() {
  QAccessible::installFactory(interfaceFor);  // kept once, however often it is given
}

}  // namespace calvero
