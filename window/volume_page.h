#pragma once

#include <QWidget>
#include <cstddef>
#include <functional>
#include <string>

#include "ports/mounted_volumes.h"

class QStandardItemModel;
class QTableView;

namespace calvero {

class TileGrid;

/// The volume page: the volumes as tiles and as a table, over one model each.
class VolumePage : public QWidget {
  Q_OBJECT
 public:
  explicit VolumePage(QWidget* parent = nullptr) : QWidget(parent) {}

  /// The user has selected another row of the table.
  std::function<void()> onTableSelectionChanged;

  /// Finds the views among the page's children and gives them their models; once, when they are there.
  void bind();

  [[nodiscard]] TileGrid& tiles() const { return *tiles_; }
  void setTableHeading(const QString& heading);

  void addTile(const MountedVolume& volume);
  void removeTile(const std::string& title);
  void addTableRow(const std::string& name);
  void clear();
  /// Row 0 while none is selected.
  [[nodiscard]] std::size_t selectedRow() const;
  /// As the program selects a row: nobody is told.
  void selectRow(std::size_t row);

 private:
  void showWhatThereIs();

  QTableView* table_ = nullptr;
  TileGrid* tiles_ = nullptr;
  QStandardItemModel* tileModel_ = nullptr;
  QStandardItemModel* tableModel_ = nullptr;
  bool tells_ = true;  // whether the user changes the table's selection
};

}  // namespace calvero
