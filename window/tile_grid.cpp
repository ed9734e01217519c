#include "window/tile_grid.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollArea>
#include <QStandardItemModel>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "window/accessibility.h"
#include "window/item_view.h"
#include "window/widget_text.h"

namespace calvero {
namespace {

constexpr int kGap = 12;

QIcon iconOf(const MountedVolume& volume) {
  if (!volume.local) return QIcon(":/icons/drive-network.svg");
  return QIcon(volume.removable ? ":/icons/drive-removable.svg" : ":/icons/drive-fixed.svg");
}

MountedVolume volumeOf(const QStandardItem& object) {
  return object.data(TileGrid::kVolumeRole).value<MountedVolume>();
}

QScrollArea* scrollAreaAround(const QWidget* widget) {
  QWidget* viewport = widget->parentWidget();
  return viewport == nullptr ? nullptr : qobject_cast<QScrollArea*>(viewport->parentWidget());
}

}  // namespace

TileGrid::TileGrid(QWidget* parent) : QWidget(parent), tileSize_(ItemView::fittingSize(fontMetrics())) {
  installAccessibility();
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
  setFocusPolicy(Qt::ClickFocus);  // without any, the tiles could not follow it in the tab order
  setBackgroundRole(QPalette::Base);
  setAutoFillBackground(true);
}

void TileGrid::setModel(QStandardItemModel* model) {
  model_ = model;
  connect(model, &QAbstractItemModel::rowsInserted, this,
          [this](const QModelIndex&, int first, int last) { addTiles(first, last); });
  connect(model, &QAbstractItemModel::rowsRemoved, this,
          [this](const QModelIndex&, int first, int last) { dropTiles(first, last); });
  connect(model, &QStandardItemModel::itemChanged, this, [this](QStandardItem* object) {
    const auto index = static_cast<std::size_t>(object->row());
    if (index < tiles_.size()) tiles_[index]->setTitle(object->text());
  });
  if (model->rowCount() > 0) addTiles(0, model->rowCount() - 1);
}

void TileGrid::setDescriber(std::function<std::vector<VolumeDetail>(const MountedVolume&)> describer) {
  describe_ = std::move(describer);
  for (std::size_t index = 0; index < tiles_.size(); ++index) describe(index);
}

void TileGrid::addTiles(int first, int last) {
  for (int row = first; row <= last; ++row) {
    QWidget* before = row == 0 ? static_cast<QWidget*>(this) : tiles_[static_cast<std::size_t>(row - 1)];
    tiles_.insert(tiles_.begin() + row, newItemForRepresentedObject(*model_->item(row)));
    setTabOrder(before, tiles_[static_cast<std::size_t>(row)]);
    describe(static_cast<std::size_t>(row));
  }
  setCurrent(std::min(current_, tiles_.size() - 1));
  placeTiles();
}

void TileGrid::dropTiles(int first, int last) {
  const auto begin = tiles_.begin() + first;
  const auto end = tiles_.begin() + last + 1;
  if (isAncestorOf(window()->focusWidget())) setFocus();  // a tile that goes would pass it on to anything
  for (auto tile = begin; tile != end; ++tile) {
    (*tile)->hide();
    (*tile)->deleteLater();  // its own press may be what empties the list
  }
  tiles_.erase(begin, end);
  current_ = 0;
  setCurrent(0);
  if (hasFocus()) focusCurrent();
  placeTiles();
}

ItemView* TileGrid::newItemForRepresentedObject(const QStandardItem& object) {
  auto* tile = new ItemView(QRect(QPoint(0, 0), tileSize_), clock_, this);
  tile->initWithCoder();
  tile->setTitle(object.text());
  tile->setIcon(iconOf(volumeOf(object)));
  tile->onPressed = [this, tile] {
    const auto found = std::find(tiles_.begin(), tiles_.end(), tile);
    if (found != tiles_.end()) select(static_cast<std::size_t>(found - tiles_.begin()));
  };
  tile->show();
  return tile;
}

void TileGrid::describe(std::size_t index) {
  if (!describe_) return;
  const QStandardItem& object = *model_->item(static_cast<int>(index));
  QStringList tip{isolated(object.text())};
  QStringList spoken;
  for (const VolumeDetail& detail : describe_(volumeOf(object))) {
    const QString before = detail.caption.isEmpty() ? QString() : detail.caption + ' ';
    tip += before + isolated(detail.value);
    spoken += before + detail.value;
  }
  tiles_[index]->setToolTip(plainToolTip(tip.join('\n')));
  tiles_[index]->setAccessibleDescription(spoken.join(QStringLiteral(", ")));
}

void TileGrid::setTileSelected(std::size_t index, bool selected) {
  if (index < tiles_.size()) tiles_[index]->setSelected(selected);
}

void TileGrid::setCurrent(std::size_t index) {
  if (index >= tiles_.size()) return;
  const bool focused = isAncestorOf(window()->focusWidget());
  current_ = index;
  for (std::size_t i = 0; i < tiles_.size(); ++i) {
    tiles_[i]->setFocusPolicy(i == current_ ? Qt::StrongFocus : Qt::ClickFocus);
  }
  if (focused) focusCurrent();
}

void TileGrid::focusCurrent() {
  if (current_ >= tiles_.size()) return;
  tiles_[current_]->setFocus(Qt::OtherFocusReason);
  if (QScrollArea* area = scrollAreaAround(this)) area->ensureWidgetVisible(tiles_[current_], kGap, kGap);
}

void TileGrid::select(std::size_t index) {
  setCurrent(index);
  if (onTilesSelected) onTilesSelected({index});
  // Another one where this was refused: that has the keyboard back.
  const auto selected =
      std::find_if(tiles_.begin(), tiles_.end(), [](const ItemView* tile) { return tile->selected(); });
  if (selected != tiles_.end()) setCurrent(static_cast<std::size_t>(selected - tiles_.begin()));
}

void TileGrid::mousePressEvent(QMouseEvent* event) {
  focusCurrent();
  if (event->button() == Qt::LeftButton && onTilesSelected) onTilesSelected({});
}

void TileGrid::keyPressEvent(QKeyEvent* event) {
  const int step = stepFor(event->key());
  if (tiles_.empty() || event->modifiers().testFlag(Qt::ControlModifier)) return QWidget::keyPressEvent(event);
  if (step == 0 && event->key() != Qt::Key_Space) return QWidget::keyPressEvent(event);
  const int last = static_cast<int>(tiles_.size()) - 1;
  const int target = std::clamp(static_cast<int>(current_) + step, 0, last);
  const bool moves = target != static_cast<int>(current_);
  if (moves || event->key() == Qt::Key_Space) select(static_cast<std::size_t>(target));
}

int TileGrid::stepFor(int key) const {
  const int forward = layoutDirection() == Qt::RightToLeft ? -1 : 1;
  const int columns = columnsFor(width());
  const int all = static_cast<int>(tiles_.size());
  switch (key) {
    case Qt::Key_Left:
      return -forward;
    case Qt::Key_Right:
      return forward;
    case Qt::Key_Up:
      return static_cast<int>(current_) >= columns ? -columns : 0;
    case Qt::Key_Down:
      return columns;
    case Qt::Key_PageUp:
      return -columns * rowsOnPage();
    case Qt::Key_PageDown:
      return columns * rowsOnPage();
    case Qt::Key_Home:
      return -all;
    case Qt::Key_End:
      return all;
    default:
      return 0;
  }
}

void TileGrid::placeTiles() {
  const int columns = columnsFor(width());
  for (std::size_t i = 0; i < tiles_.size(); ++i) {
    const int column = static_cast<int>(i) % columns;
    const int row = static_cast<int>(i) / columns;
    const QRect frame(QPoint(kGap + column * (tileSize_.width() + kGap), kGap + row * (tileSize_.height() + kGap)),
                      tileSize_);
    tiles_[i]->move(QStyle::visualRect(layoutDirection(), rect(), frame).topLeft());
  }
  updateGeometry();
}

int TileGrid::columnsFor(int width) const {
  return std::max(1, (width - kGap) / (tileSize_.width() + kGap));
}

int TileGrid::rowsOnPage() const {
  const QScrollArea* area = scrollAreaAround(this);
  const int visible = area == nullptr ? height() : area->viewport()->height();
  return std::max(1, (visible - kGap) / (tileSize_.height() + kGap));
}

int TileGrid::heightForWidth(int width) const {
  const int columns = columnsFor(width);
  const int rows = (static_cast<int>(tiles_.size()) + columns - 1) / columns;
  return kGap + rows * (tileSize_.height() + kGap);
}

QSize TileGrid::sizeHint() const {
  constexpr int kColumns = 3;
  const int width = kGap + kColumns * (tileSize_.width() + kGap);
  return {width, heightForWidth(width)};
}

QSize TileGrid::minimumSizeHint() const {
  return {tileSize_.width() + 2 * kGap, tileSize_.height() + 2 * kGap};
}

void TileGrid::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  placeTiles();
}

void TileGrid::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LayoutDirectionChange) placeTiles();
}

}  // namespace calvero
