#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "volumes/my_collection_view.h"

namespace calvero {

// What is kept because others depend on it: they find the controller's state under these names, and some of it with
// these values. No rule of the program reads any of it. docs/compatibility.md lists it with what stays in other places.

/// A remembered picker index.
class CurrentSelection {
 public:
  [[nodiscard]] std::size_t getCurrentSelection() const { return currentSelection_; }
  void setCurrentSelection(std::size_t index) { currentSelection_ = index; }

 private:
  std::size_t currentSelection_ = 0;
};

/// Layouts name these two; they have no behaviour.
class Volumes {};
class TableViewController {};

/// Event loop thread.
struct KeptState {
  std::int16_t cancelNumber = 0;  ///< cancellations since launch
  std::uint8_t eraseCompleted = 0;
  std::uint8_t display = 0;        ///< the window is shown
  std::string createFilePath;      ///< "test" until a volume is chosen, then its mount path
  std::string selectedVolumePath;  ///< one blank
  std::map<std::string, std::string> mutdictForArrayController;  ///< the row that was added last
  std::map<std::string, std::string> dictEraseOption;
  MyCollectionView mcv;  ///< a spare one, made anew by every listing
  CurrentSelection curSel;

  // Nothing is ever put into these.
  std::vector<bool> isReadOnlyArray;  ///< whether a volume is read-only is asked when it is needed
  std::vector<std::string> driveVolumeNameMutableArray, responseDriveFinder, finalArrayForVolumes;
  std::string Facebookstring, Googleplusstring, FAQstring, CloudControlstring, Twitterstring, Helpstring, Supportstring;
  std::string status;
};

}  // namespace calvero
