#include "app/app_delegate.h"
#include "app/home_path.h"
#include "ports/alerts.h"
#include "ports/controls.h"
#include "ports/event_loop.h"
#include "ports/workspace.h"

namespace calvero {
namespace {

constexpr const char* kHomeApplication = "com.PelmarSoftware.PelmarMacCleaner";

}  // namespace

void AppDelegate::next() {
  const auto path = getVolumePath(volumes_->volumeNameArray.at(selectedTableRow_));
  if (path && isReadOnly(*path)) {
    ports_.alerts.runModal({localised("Information"), localised("Read only drive, please select other drives"),
                            localised("Ok"), localised("")});
    return;
  }

  Controls& controls = ports_.controls;
  controls.reloadTable();
  resetMethodChoice();
  const std::string freeSpace = getFormattedStringForSize(freeSpaceOnDisk());
  controls.setText(Control::tfUnsecuredData, freeSpace);
  controls.setText(Control::tfCleanedSize, freeSpace);
  controls.selectPage(Page::method);
  controls.hide(Control::buttonNext);
  controls.show(Control::buttonBack);
  controls.show(Control::buttonProceed);
  shell_.createFilePath = getVolumePathForRow(selectedTableRow_).value_or("");
  allocateAllArrays();
}

void AppDelegate::back() {
  ports_.controls.selectPage(Page::volume);
  ports_.controls.reloadTable();
  setHideIBObjectsAtLaunch();
  run_->volumeEjected = 0;
}

void AppDelegate::setIBObjectsBeforeWipe() {
  Controls& controls = ports_.controls;
  controls.setText(Control::tfFreespaceData, getFormattedStringForSize(freeSpaceOnDisk()));
  controls.show(Control::buttonCancel);
  controls.setText(Control::tfElapsedData, " ");
  controls.setText(Control::tfElapsedTime, "00:00:00");
  controls.setText(Control::tfElapsedData, "0.00 KB");
}

void AppDelegate::goToHome() {
  ports_.workspace.launchApplication(homeApplicationPath(ports_.workspace.bundlePath()));
  ports_.workspace.bringToFront(kHomeApplication);
  ports_.eventLoop.terminate();
}

}  // namespace calvero
