#include "window/volume_page.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QStandardItemModel>
#include <QTableView>

#include "window/tile_grid.h"
#include "window/widget_text.h"

namespace calvero {

void VolumePage::bind() {
  tiles_ = findChild<TileGrid*>("collectionView");
  table_ = findChild<QTableView*>("tableview");
  tileModel_ = new QStandardItemModel(this);
  tileModel_->setObjectName("arrayController");
  tableModel_ = new QStandardItemModel(0, 1, this);
  tableModel_->setObjectName("arraycontroller2");
  tiles_->setModel(tileModel_);
  table_->setModel(tableModel_);
  table_->horizontalHeader()->setStretchLastSection(true);
  table_->verticalHeader()->hide();
  connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
    if (tells_ && onTableSelectionChanged) onTableSelectionChanged();
  });
  showWhatThereIs();
}

void VolumePage::setTableHeading(const QString& heading) {
  tableModel_->setHorizontalHeaderLabels({heading});
}

void VolumePage::addTile(const MountedVolume& volume) {
  auto* object = new QStandardItem(toText(volume.name));
  object->setData(QVariant::fromValue(volume), TileGrid::kVolumeRole);
  tileModel_->appendRow(object);
  showWhatThereIs();
}

void VolumePage::removeTile(const std::string& title) {
  for (const QStandardItem* object : tileModel_->findItems(toText(title))) tileModel_->removeRow(object->row());
  showWhatThereIs();
}

void VolumePage::addTableRow(const std::string& name) {
  const QScopedValueRollback<bool> silence(tells_, false);
  tableModel_->appendRow(new QStandardItem(toText(name)));
}

void VolumePage::clear() {
  const QScopedValueRollback<bool> silence(tells_, false);
  tableModel_->setRowCount(0);
  tileModel_->setRowCount(0);
  showWhatThereIs();
}

std::size_t VolumePage::selectedRow() const {
  const QModelIndexList rows = table_->selectionModel()->selectedRows();
  return rows.isEmpty() ? 0 : static_cast<std::size_t>(rows.first().row());
}

void VolumePage::selectRow(std::size_t row) {
  const QScopedValueRollback<bool> silence(tells_, false);
  table_->selectRow(static_cast<int>(row));
}

void VolumePage::showWhatThereIs() {
  const bool empty = tileModel_->rowCount() == 0;
  if (empty && tiles_->hasFocus()) setFocus();  // held for the tiles of the next list
  findChild<QWidget*>("tileScroll")->setVisible(!empty);
  findChild<QWidget*>("noDrives")->setVisible(empty);
  if (!empty && hasFocus()) tiles_->focusCurrent();
}

}  // namespace calvero
