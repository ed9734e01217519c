#include <utility>

#include "app/app_delegate.h"
#include "ports/controls.h"

namespace calvero {
namespace {

constexpr Colour kWhite{1.0, 1.0, 1.0, 1.0};
constexpr double kSideBarPoints = 11.0;

using CaptionKey = std::pair<Control, const char*>;

constexpr CaptionKey kVolumePageKeys[] = {
    {Control::clickNext, "Click next to continue"}, {Control::driveName, "Drive Name :"},
    {Control::fileSystem, "File System :"},         {Control::driveSpace, "Drive Space :"},
    {Control::freeSpace, "Free Space :"},           {Control::reloadDrivers, "Reload Drives"},
};

// "Free Space :" and "Free Space:" are two keys; "Cloud Control " here and "Cloud Control" on the button are two more.
constexpr CaptionKey kFurtherKeys[] = {
    {Control::unSecuredData, "Unsecured Data: "},
    {Control::erasingfreeSpaceData, "Erasing free space data securely"},
    {Control::tfelapsedTime, "Elapsed Time:"},
    {Control::tfelapsedData, "Erased Data:"},
    {Control::tffreeSpace, "Free Space:"},
    {Control::cancelBut, "Cancel"},
    {Control::CloudControl, "Cloud Control "},
    {Control::Settings, "Settings"},
    {Control::Help, "Help"},
    {Control::proceedBtn, "Proceed"},
    {Control::ondrelMore, "Ondrel More"},
};

}  // namespace

void AppDelegate::awakeFromNib() {
  order_.cloudTerm = 0;
  Controls& controls = ports_.controls;
  for (const auto& [control, key] : kVolumePageKeys) controls.setText(control, localised(key));
  setMethodTexts();
  for (const auto& [control, key] : kFurtherKeys) controls.setText(control, localised(key));

  controls.setAttributedTitle(Control::buttonCloud, {localised("Cloud Control"), kWhite, kSideBarPoints});
  controls.highlightNothing(Control::buttonCloud);
  if (shell_.admin == 0) {
    controls.hide(Control::buttonCloud);
    controls.hide(Control::cloud_img_1);
  }
  controls.activateApplication();
}

}  // namespace calvero
