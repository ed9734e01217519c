#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "ports/event_loop.h"
#include "ports/pop_up_window.h"
#include "volumes/item.h"
#include "volumes/my_collection_view.h"

namespace calvero {

/// What is remembered of the pop-up. Event loop thread.
struct PopUpState {
  TimerId timerForPopUp = kNoTimer;  ///< the pending close check
  TrackingAreaId trackingArea = 0;   ///< the one that was added last
  std::uint8_t mouseHoverForPopUp = 0;
};

/// What the application shell remembers. Event loop thread.
struct ShellState {
  std::int16_t cancelNumber = 0;  ///< cancellations since launch; kept as a count only
  std::uint8_t admin = 0;         ///< nothing sets it
  std::uint8_t eraseCompleted = 0;
  std::uint8_t wipingProcessOn = 0;  ///< a run is under way: the window may not be closed
  std::uint8_t display = 0;          ///< the window is shown; nothing reads it
  std::string createFilePath;        ///< "test" until a volume is chosen, then its mount path
  std::string selectedVolumePath;    ///< one blank; nothing else reads or writes it
  std::map<std::string, std::string> mutdictForArrayController;  ///< the row that was added last
  std::map<std::string, std::string> dictEraseOption;
  MyCollectionView mcv;
  CurrentSelection curSel;
  std::size_t currentSelectionG = 0;  ///< the picker's index, shared by the tiles and the controller

  // Part of the declared state, used by no operation.
  std::string Facebookstring, Googleplusstring, FAQstring, CloudControlstring, Twitterstring, Helpstring, Supportstring;
  std::string status;
  std::vector<std::string> responseDriveFinder, finalArrayForVolumes;
};

}  // namespace calvero
