#include "app/app_delegate.h"
#include "ports/controls.h"
#include "ports/event_loop.h"
#include "ports/mounted_volumes.h"

namespace calvero {
namespace {

bool contains(const std::string& text, const char* part) {
  return text.find(part) != std::string::npos;
}

// The test for equality is covered by the one that follows; others depend on both, in this order.
bool isOffered(const std::string& formatDescription) {
  constexpr const char* kAutomounter = "Unknown (autofs)";
  if (formatDescription == kAutomounter) return false;
  if (contains(formatDescription, kAutomounter)) return false;
  return !contains(formatDescription, "SMB");
}

}  // namespace

void AppDelegate::loadVolumes() {
  listVolumes();
  // Added at every call: after reloads the controller is told once for each.
  notifications_.addObserver(kTableSelectionDidChange, [this] { tableViewSelectionDidChange(); });
  endOrderWithoutVolume();
}

void AppDelegate::listVolumes() {
  auto table = std::make_shared<VolumeTable>(*volumes_);
  table->urls = ports_.mountedVolumes.mountedVolumes();
  const bool remote = order_.cloudInitiation != 0;
  for (const MountedVolume& volume : table->urls) {
    if (!isOffered(volume.formatDescription)) continue;
    if (remote && !isOrdered(volume)) continue;
    appendVolume(*table, volume);
  }
  volumes_ = std::move(table);
}

void AppDelegate::endOrderWithoutVolume() {
  if (order_.cloudInitiation == 0 || !volumes_->volumeNameArray.empty()) return;
  reportToOrderer(*run_, RunOutcome::failed);
  ports_.eventLoop.terminate();
}

void AppDelegate::appendVolume(VolumeTable& table, const MountedVolume& volume) {
  shell_.mutdictForArrayController = {{"Drives", volume.name}};
  table.freeSpaceOfSelectedVolumeArray.push_back(volume.availableBytes);
  table.capacityOfSelectedVolumeArray.push_back(volume.totalBytes);
  table.fileSystemOfSelectedVolumeArray.push_back(volume.formatDescription);
  ports_.controls.addTableRow(volume.name);
  table.volumeNameArray.push_back(volume.name);
  table.items.emplace_back(volume.name);
  ports_.controls.addTile(volume);
  ports_.controls.setText(Control::volLabel, volume.name);
}

void AppDelegate::allocateAllArrays() {
  replaceRun();
}

void AppDelegate::reloadVolumes() {
  ports_.controls.removeTiles(volumes_->volumeNameArray);
  shell_.currentSelectionG = volumes_->volumeNameArray.size() - 1;  // an empty list wraps round; `init` sets it anew
  shell_.mcv = MyCollectionView();
  init();
}

}  // namespace calvero
