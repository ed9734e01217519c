#include <exception>

#include "app/app_delegate.h"
#include "ports/controls.h"
#include "ports/disk_lookup.h"
#include "ports/files.h"
#include "ports/mounted_volumes.h"
#include "ports/system_log.h"
#include "wipe/filler_names.h"

namespace calvero {

std::uint64_t AppDelegate::freeSpaceOnDisk() const {
  return selection().freeBytes();
}

std::string AppDelegate::capacityOfDisk() const {
  return getFormattedStringForSize(selection().capacityBytes());
}

std::string AppDelegate::nameSelectedVolume() const {
  return selection().name();
}

std::string AppDelegate::fileSystemSelectedVolume() const {
  return selection().formatDescription().find("Extended") != std::string::npos ? "HFSPlus" : "FAT";
}

std::optional<std::string> AppDelegate::getVolumePath(const std::string& name) {
  return findVolume(*run_, name);
}

std::optional<std::string> AppDelegate::findVolume(WipeRun& run, const std::string& name) {
  try {
    return ports_.diskLookup.mountPath(name);
  } catch (const std::exception& error) {
    ports_.log.line(std::string("disk lookup: ") + error.what());
  }
  run.abortErasing = 1;
  run.volumeEjected = 1;
  reportUnknownError(run);
  return std::nullopt;
}

std::optional<std::string> AppDelegate::getVolumePathForRow(std::size_t row) {
  return getVolumePath(volumes_->volumeNameArray.at(row));
}

std::optional<std::string> AppDelegate::getVolumePathForRow2(std::size_t row) {
  return getVolumePathForRow(row);
}

VolumeSelection AppDelegate::volumeOf(const WipeRun& run) const {
  return run.volume.table ? run.volume : selection();
}

std::optional<std::string> AppDelegate::volumePathOf(WipeRun& run) {
  auto path = findVolume(run, volumeOf(run).name());
  if (path && !ports_.files.exists(*path)) path.reset();
  return path;
}

void AppDelegate::setSelectedVolumeDescription() {
  Controls& controls = ports_.controls;
  controls.setText(Control::tfDriveName, nameSelectedVolume());
  controls.setText(Control::tfFileSystem, fileSystemSelectedVolume());
  controls.setText(Control::tfDriveSpace, capacityOfDisk());
  controls.setText(Control::tfFreeSpace, getFormattedStringForSize(freeSpaceOnDisk()));
}

bool AppDelegate::isReadOnly(const std::string& path) const {
  return ports_.mountedVolumes.isReadOnly(path) == true;
}

Error AppDelegate::checkSelectedVolume() {
  const std::string name = nameSelectedVolume();
  const auto path = getVolumePath(name);
  if (!path) return {ErrorCode::notFound, "look up", name, "it is not mounted any more"};
  // First: nobody could clear away what else is in the way there.
  if (isReadOnly(*path)) {
    return {ErrorCode::readOnly, "statvfs", *path, "it is mounted read-only"};
  }
  Error error = ports_.files.checkFillerDirectory(*path, fillerDirectoryPath(*path));
  // A volume without a size did not answer when it was listed: a run would take its free space for nothing.
  const bool wasListedInFull = selection().capacityBytes() > 0;
  if (!error.failed() && !wasListedInFull) error = {ErrorCode::gone, "statvfs", *path, "its size is not known"};
  return error;
}

void AppDelegate::tableViewSelectionDidChange() {
  setCurrentSelection(ports_.controls.selectedRow());
}

void AppDelegate::collectionViewDidChangeSelection() {
  setCurrentSelection(shell_.currentSelectionG);
}

void AppDelegate::setCurrentSelection(std::size_t row) {
  selectedTableRow_ = row;
  setSelectedVolumeDescription();
}

}  // namespace calvero
