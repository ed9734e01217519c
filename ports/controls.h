#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "ports/colour.h"
#include "ports/mounted_volumes.h"

namespace calvero {

/// The on-screen controls, under the names that the window's layout gives them.
enum class Control {
  // The wizard's pages and buttons. `proceedBtn` and `cancelBut` carry the titles of `buttonProceed` and
  // `buttonCancel`; a cancel hides the first, and showing its `buttonProceed` again brings it back.
  tabView,
  tableview,
  buttonNext,
  buttonBack,
  buttonHome,
  buttonProceed,
  buttonCancel,
  proceedBtn,
  cancelBut,
  reloadDrivers,
  // The selected volume's description.
  boxSelVolDesc,
  volLabel,
  tfDriveName,
  tfFileSystem,
  tfDriveSpace,
  tfFreeSpace,
  clickNext,
  driveName,
  fileSystem,
  driveSpace,
  freeSpace,
  // The method page.
  butFastZeroWipe,
  butRandomWipe,
  butDOD5220,
  butNAVSO,
  butNATO,
  butVSITR,
  butFAST_ZERO_WRITE,
  butPETER_GUTTMAN,
  butNINTH_ALGO,
  algorithm_1,
  algorithm_2,
  algorithm_3,
  algorithm_4,
  algorithm_5,
  algorithm_6,
  algorithm_7,
  algorithm_8,
  algorithm_9,
  selectingWipingMethod,
  low,
  medium,
  high,
  highly_secured,
  unSecuredData,
  tfUnsecuredData,
  tfCleanedSize,
  // The progress page.
  piDataWipe,
  labelPhase,
  tfElapsedTime,
  tfElapsedData,
  tfFreespaceData,
  erasingfreeSpaceData,
  tfelapsedTime,
  tfelapsedData,
  tffreeSpace,
  // The side bar.
  buttonCloud,
  cloud_img_1,
  CloudControl,
  Settings,
  Help,
  ondrelMore,
  // The picker: the tiles' view, and the models of the tiles and of the table.
  collectionView,
  arrayController,
  arraycontroller2,
  // Windows, and the pop-up's contents.
  window,
  windowCompleted,
  popUpWindow,
  popUpBox,
  popUpText,
};

/// A button title with a look of its own, centred.
struct AttributedTitle {
  std::string text;
  Colour colour;
  double points = 0.0;  ///< size of the system font

  bool operator==(const AttributedTitle&) const = default;
};

/// The wizard's pages, by their index in `tabView`.
enum class Page { volume = 0, method = 1, progress = 2 };

/// What the controller does to the screen. A face without a control ignores the call. All calls on the event loop
/// thread, except where noted; none blocks, none fails.
class Controls {
 public:
  virtual ~Controls() = default;

  /// A caption's or text field's text, or a button's title.
  virtual void setText(Control control, const std::string& text) = 0;
  virtual void setAttributedTitle(Control button, const AttributedTitle& title) = 0;
  /// The button looks the same while it is pressed.
  virtual void highlightNothing(Control button) = 0;
  virtual void show(Control control) = 0;
  virtual void hide(Control control) = 0;
  /// State of a selection button.
  virtual void turnOn(Control button) = 0;
  virtual void turnOff(Control button) = 0;
  /// Label and state of the row that a method without controls of its own name has on the method page, by its
  /// zero-based number.
  virtual void setMethodText(std::int32_t /*method*/, const std::string& /*text*/) {}
  virtual void turnMethod(std::int32_t /*method*/, bool /*on*/) {}
  /// Draws the control now rather than at the next opportunity.
  virtual void redraw(Control control) = 0;

  virtual void selectPage(Page page) = 0;
  virtual void reloadTable() = 0;
  /// The table's selected row.
  [[nodiscard]] virtual std::size_t selectedRow() const = 0;
  /// Adds a row to the table of names, under the column "Drives".
  virtual void addTableRow(const std::string& driveName) = 0;
  /// A new list of volumes begins: table and tiles are emptied.
  virtual void clearVolumes() = 0;
  /// Adds a tile that shows the volume's name.
  virtual void addTile(const MountedVolume& volume) = 0;
  /// Asks the tiles' model to remove these objects; those it does not hold are ignored.
  virtual void removeTiles(const std::vector<std::string>& objects) = 0;
  [[nodiscard]] virtual std::size_t tileCount() const = 0;
  /// What the tiles' view itself does with a new selection (ascending indexes): keyboard focus and the like. Which
  /// tile is drawn as selected is decided by `setTileSelected` alone.
  virtual void setTileSelection(const std::vector<std::size_t>& indexes) = 0;
  /// Draws the tile as selected or plain. An index beyond the tiles is ignored.
  virtual void setTileSelected(std::size_t index, bool selected) = 0;

  /// `piDataWipe`: percent from 0 to 100.
  virtual void setProgress(int percent) = 0;
  virtual void setProgressDeterminate() = 0;
  virtual void setProgressIndeterminate() = 0;
  virtual void startProgressAnimation() = 0;

  /// Whether `window` is on the screen, neither hidden nor minimised. Any thread.
  virtual bool mainWindowVisible() const = 0;
  /// Shows a window in front of the others, with the keyboard.
  virtual void bringToFront(Control window) = 0;
  /// Takes a window off the screen.
  virtual void orderOut(Control window) = 0;
  /// Brings the application in front of the others.
  virtual void activateApplication() = 0;
  /// Hidden mode: no entry in the task bar from now on.
  virtual void leaveTaskBar() = 0;

  /// Moves `child`'s lower left corner onto `parent`'s; its size is kept. Where the display system places windows
  /// itself, its place is accepted.
  virtual void moveToOriginOf(Control child, Control parent) = 0;
  /// From now on `child` stays above `parent` and moves with it.
  virtual void attachAbove(Control child, Control parent) = 0;
  /// The user cannot move the window any more.
  virtual void makeImmovable(Control window) = 0;
};

}  // namespace calvero
