#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace calvero {

/// The on-screen controls, under the names that the window's layout gives them.
enum class Control {
  // The wizard's pages and buttons.
  tabView,
  tableview,
  buttonNext,
  buttonBack,
  buttonHome,
  buttonProceed,
  buttonCancel,
  proceedBtn,
  // The selected volume's description.
  volLabel,
  tfDriveName,
  tfFileSystem,
  tfDriveSpace,
  tfFreeSpace,
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
  tfUnsecuredData,
  tfCleanedSize,
  // The progress page.
  piDataWipe,
  labelPhase,
  tfElapsedTime,
  tfElapsedData,
  tfFreespaceData,
  // The picker's models.
  arrayController,
  arraycontroller2,
  // Windows.
  window,
  windowCompleted,
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
  virtual void show(Control control) = 0;
  virtual void hide(Control control) = 0;
  /// State of a selection button.
  virtual void turnOn(Control button) = 0;
  virtual void turnOff(Control button) = 0;
  /// Draws the control now rather than at the next opportunity.
  virtual void redraw(Control control) = 0;

  virtual void selectPage(Page page) = 0;
  virtual void reloadTable() = 0;
  /// The table's selected row.
  [[nodiscard]] virtual std::size_t selectedRow() const = 0;
  /// Adds a row to the table of names, under the column "Drives".
  virtual void addTableRow(const std::string& driveName) = 0;
  /// Asks the tiles' model to remove these objects; those it does not hold are ignored.
  virtual void removeTiles(const std::vector<std::string>& objects) = 0;

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
  /// Hidden mode: no entry in the task bar from now on.
  virtual void leaveTaskBar() = 0;
};

}  // namespace calvero
