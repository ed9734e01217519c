#pragma once

#include <array>

#include "ports/controls.h"

namespace calvero {

struct NamedControl {
  Control control;
  const char* name;
};

/// Every control with the name that a window's layout must give it.
inline constexpr std::array kNamedControls{
    NamedControl{Control::tabView, "tabView"},
    NamedControl{Control::tableview, "tableview"},
    NamedControl{Control::buttonNext, "buttonNext"},
    NamedControl{Control::buttonBack, "buttonBack"},
    NamedControl{Control::buttonHome, "buttonHome"},
    NamedControl{Control::buttonProceed, "buttonProceed"},
    NamedControl{Control::buttonCancel, "buttonCancel"},
    NamedControl{Control::proceedBtn, "proceedBtn"},
    NamedControl{Control::cancelBut, "cancelBut"},
    NamedControl{Control::reloadDrivers, "reloadDrivers"},
    NamedControl{Control::boxSelVolDesc, "boxSelVolDesc"},
    NamedControl{Control::volLabel, "volLabel"},
    NamedControl{Control::tfDriveName, "tfDriveName"},
    NamedControl{Control::tfFileSystem, "tfFileSystem"},
    NamedControl{Control::tfDriveSpace, "tfDriveSpace"},
    NamedControl{Control::tfFreeSpace, "tfFreeSpace"},
    NamedControl{Control::clickNext, "clickNext"},
    NamedControl{Control::driveName, "driveName"},
    NamedControl{Control::fileSystem, "fileSystem"},
    NamedControl{Control::driveSpace, "driveSpace"},
    NamedControl{Control::freeSpace, "freeSpace"},
    NamedControl{Control::butFastZeroWipe, "butFastZeroWipe"},
    NamedControl{Control::butRandomWipe, "butRandomWipe"},
    NamedControl{Control::butDOD5220, "butDOD5220"},
    NamedControl{Control::butNAVSO, "butNAVSO"},
    NamedControl{Control::butNATO, "butNATO"},
    NamedControl{Control::butVSITR, "butVSITR"},
    NamedControl{Control::butFAST_ZERO_WRITE, "butFAST_ZERO_WRITE"},
    NamedControl{Control::butPETER_GUTTMAN, "butPETER_GUTTMAN"},
    NamedControl{Control::butNINTH_ALGO, "butNINTH_ALGO"},
    NamedControl{Control::algorithm_1, "algorithm_1"},
    NamedControl{Control::algorithm_2, "algorithm_2"},
    NamedControl{Control::algorithm_3, "algorithm_3"},
    NamedControl{Control::algorithm_4, "algorithm_4"},
    NamedControl{Control::algorithm_5, "algorithm_5"},
    NamedControl{Control::algorithm_6, "algorithm_6"},
    NamedControl{Control::algorithm_7, "algorithm_7"},
    NamedControl{Control::algorithm_8, "algorithm_8"},
    NamedControl{Control::algorithm_9, "algorithm_9"},
    NamedControl{Control::selectingWipingMethod, "selectingWipingMethod"},
    NamedControl{Control::low, "low"},
    NamedControl{Control::medium, "medium"},
    NamedControl{Control::high, "high"},
    NamedControl{Control::highly_secured, "highly_secured"},
    NamedControl{Control::unSecuredData, "unSecuredData"},
    NamedControl{Control::tfUnsecuredData, "tfUnsecuredData"},
    NamedControl{Control::tfCleanedSize, "tfCleanedSize"},
    NamedControl{Control::piDataWipe, "piDataWipe"},
    NamedControl{Control::labelPhase, "labelPhase"},
    NamedControl{Control::tfElapsedTime, "tfElapsedTime"},
    NamedControl{Control::tfElapsedData, "tfElapsedData"},
    NamedControl{Control::tfFreespaceData, "tfFreespaceData"},
    NamedControl{Control::erasingfreeSpaceData, "erasingfreeSpaceData"},
    NamedControl{Control::tfelapsedTime, "tfelapsedTime"},
    NamedControl{Control::tfelapsedData, "tfelapsedData"},
    NamedControl{Control::tffreeSpace, "tffreeSpace"},
    NamedControl{Control::buttonCloud, "buttonCloud"},
    NamedControl{Control::cloud_img_1, "cloud_img_1"},
    NamedControl{Control::CloudControl, "CloudControl"},
    NamedControl{Control::Settings, "Settings"},
    NamedControl{Control::Help, "Help"},
    NamedControl{Control::ondrelMore, "ondrelMore"},
    NamedControl{Control::collectionView, "collectionView"},
    NamedControl{Control::arrayController, "arrayController"},
    NamedControl{Control::arraycontroller2, "arraycontroller2"},
    NamedControl{Control::window, "window"},
    NamedControl{Control::windowCompleted, "windowCompleted"},
    NamedControl{Control::popUpWindow, "popUpWindow"},
    NamedControl{Control::popUpBox, "popUpBox"},
    NamedControl{Control::popUpText, "popUpText"},
};

static_assert(kNamedControls.size() == static_cast<std::size_t>(Control::popUpText) + 1, "a control has no name");

/// The control's name, as a window's layout spells it.
constexpr const char* nameOf(Control control) {
  return kNamedControls[static_cast<std::size_t>(control)].name;
}

}  // namespace calvero
