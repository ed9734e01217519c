#include "app/app_delegate.h"
#include "ports/controls.h"

namespace calvero {
namespace {

constexpr Colour kWhite{1.0, 1.0, 1.0, 1.0};
constexpr double kSideBarPoints = 11.0;

}  // namespace

void AppDelegate::awakeFromNib() {
  order_.cloudTerm = 0;
  setVolumePageTexts();
  setMethodTexts();
  setProgressPageAndSideBarTexts();

  Controls& controls = ports_.controls;
  controls.setAttributedTitle(Control::buttonCloud, {localised("Cloud Control"), kWhite, kSideBarPoints});
  controls.highlightNothing(Control::buttonCloud);
  if (shell_.admin == 0) {
    controls.hide(Control::buttonCloud);
    controls.hide(Control::cloud_img_1);
  }
  controls.activateApplication();
}

void AppDelegate::setVolumePageTexts() {
  Controls& controls = ports_.controls;
  controls.setText(Control::clickNext, localised("Click next to continue"));
  controls.setText(Control::driveName, localised("Drive Name :"));
  controls.setText(Control::fileSystem, localised("File System :"));
  controls.setText(Control::driveSpace, localised("Drive Space :"));
  controls.setText(Control::freeSpace, localised("Free Space :"));
  controls.setText(Control::reloadDrivers, localised("Reload Drives"));
}

// "Free Space:" here and "Free Space :" above are two keys; "Cloud Control " here and "Cloud Control" are two more.
void AppDelegate::setProgressPageAndSideBarTexts() {
  Controls& controls = ports_.controls;
  controls.setText(Control::unSecuredData, localised("Unsecured Data: "));
  controls.setText(Control::erasingfreeSpaceData, localised("Erasing free space data securely"));
  controls.setText(Control::tfelapsedTime, localised("Elapsed Time:"));
  controls.setText(Control::tfelapsedData, localised("Erased Data:"));
  controls.setText(Control::tffreeSpace, localised("Free Space:"));
  controls.setText(Control::cancelBut, localised("Cancel"));
  controls.setText(Control::CloudControl, localised("Cloud Control "));
  controls.setText(Control::Settings, localised("Settings"));
  controls.setText(Control::Help, localised("Help"));
  controls.setText(Control::proceedBtn, localised("Proceed"));
  controls.setText(Control::ondrelMore, localised("Ondrel More"));
}

}  // namespace calvero
