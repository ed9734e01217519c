#pragma once

#include <QMetaType>
#include <QString>
#include <QWidget>
#include <cstddef>
#include <functional>
#include <vector>

#include "ports/mounted_volumes.h"
#include "window/redisplay_clock.h"

class QStandardItem;
class QStandardItemModel;

namespace calvero {

class ItemView;

/// One line of what is told about a volume. A line may come without a caption.
struct VolumeDetail {
  QString caption;
  QString value;
};

/// Equal tiles that fill rows, one for each object of a model. It draws as selected what it is told to draw; what the
/// user points at is handed on.
class TileGrid : public QWidget {
  Q_OBJECT
 public:
  /// Where an object of the model keeps its MountedVolume.
  static constexpr int kVolumeRole = Qt::UserRole + 1;

  explicit TileGrid(QWidget* parent = nullptr);

  /// The user has pointed at a tile, or at the space beside all tiles: then nothing is in the list.
  std::function<void(std::vector<std::size_t>)> onTilesSelected;

  void setModel(QStandardItemModel* model);
  /// What tool tip and accessible description tell about a volume.
  void setDescriber(std::function<std::vector<VolumeDetail>(const MountedVolume&)> describe);

  [[nodiscard]] std::size_t count() const { return tiles_.size(); }
  [[nodiscard]] ItemView* tile(std::size_t index) const { return tiles_[index]; }
  [[nodiscard]] const RedisplayClock& clock() const { return clock_; }
  void setTileSelected(std::size_t index, bool selected);
  /// Makes the tile the one that has, or gets, the keyboard.
  void setCurrent(std::size_t index);
  void focusCurrent();

  [[nodiscard]] bool hasHeightForWidth() const override { return true; }
  [[nodiscard]] int heightForWidth(int width) const override;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void addTiles(int first, int last);
  void dropTiles(int first, int last);
  /// The tile that shows the object; its title follows the object's.
  ItemView* newItemForRepresentedObject(const QStandardItem& object);
  void describe(std::size_t index);
  void select(std::size_t index);
  void placeTiles();
  [[nodiscard]] int columnsFor(int width) const;
  [[nodiscard]] int rowsOnPage() const;
  [[nodiscard]] int stepFor(int key) const;

  RedisplayClock clock_;  // outlives the tiles
  QStandardItemModel* model_ = nullptr;
  std::function<std::vector<VolumeDetail>(const MountedVolume&)> describe_;
  std::vector<ItemView*> tiles_;
  std::size_t current_ = 0;
  QSize tileSize_;
};

}  // namespace calvero

Q_DECLARE_METATYPE(calvero::MountedVolume)
