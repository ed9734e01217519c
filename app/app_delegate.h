#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/fixed_values.h"
#include "app/notification_centre.h"
#include "app/shell_state.h"
#include "methods/method_choice.h"
#include "methods/pattern_buffers.h"
#include "ports/error.h"
#include "ports/ports.h"
#include "remote/authentication.h"
#include "remote/remote_order.h"
#include "volumes/volume_table.h"
#include "wipe/run_scale.h"
#include "wipe/wipe_run.h"

namespace calvero {

struct Colour;

/// The one controller. Both faces call its methods and look at its state; all rules of the wipe are behind it.
///
/// Unless a group says otherwise its methods run on the event loop thread. Methods that take a `WipeRun` are steps of
/// that run and are called on its threads; where a step also serves a cancel it may run on either. A query beyond the
/// volume table throws std::out_of_range. The controller must outlive every thread that it started.
class AppDelegate {
 public:
  /// Creates the controller and calls `init`.
  explicit AppDelegate(const Ports& ports, const FixedValues& fixed = {});
  ~AppDelegate();
  AppDelegate(const AppDelegate&) = delete;
  AppDelegate& operator=(const AppDelegate&) = delete;

  // --- Start-up: app/start_up.cpp, app/window_set_up.cpp ---

  /// Gives all state its first values, reads the remote order and lists the volumes. Called again by every reload.
  void init();
  /// Gives every caption and button its text, once, when the window's contents are there.
  void awakeFromNib();
  /// Launch completion: registers the observers, resets the wizard, prepares the pattern buffers, describes the
  /// selected volume, and starts an ordered wipe.
  void applicationDidFinishLaunching();
  /// The wizard's buttons as the first page needs them; clears the flags of the last run.
  void setHideIBObjectsAtLaunch();

  // --- The wizard: app/wizard.cpp ---

  /// Volume page to method page; refuses a read-only volume.
  void next();
  /// To the volume page, from anywhere.
  void back();
  /// The progress page's figures, just before a run.
  void setIBObjectsBeforeWipe();
  /// Hands over to the suite's home application and ends this one.
  void goToHome();

  // --- The window: app/window_events.cpp, app/completion_window.cpp, app/pop_up.cpp ---

  /// Whether the main window may close, which ends the application; refused with an alert during a run.
  bool windowShouldClose();
  void windowWillClose();
  void windowWillMiniaturize();
  void windowDidDeminiaturize();
  /// Pins the completion window onto the main window once the volume was found gone; else the event loop returns to the
  /// first page. Any thread: on another than the event loop's, all of it is left to that.
  void positionHUDWindow();
  /// Shows a message in a box of that colour near the corner of the screen. On the event loop thread it closes by
  /// itself; otherwise the caller ends the application. Any thread.
  void popUp(const Colour& colour, const std::string& text);
  void popUpClose();
  void allPopupsVisibilty();  ///< closes the pop-up unless the pointer rests on it
  void mouseEntered();
  void mouseExited();

  // --- Links: app/links.cpp ---

  void openFacebookPage();
  void openTwitterPage();
  void openGooglePlusPage();
  void openHelpPage();
  /// Opens the portal's page for this user and device.
  void cloudControl();
  void getItNow();

  // --- Methods: app/method_selection.cpp ---

  void fastZeroWipe();
  void randomWipe();
  void dODWipe();
  void fourth_NAVSO();
  void fifth_NATO();
  void sixth_VSITR_GERMAN();
  void seventh_FAST_ZERO_WRITE();
  void eight_PETER_GUTTMAN();
  void ninth_ALGORITHM();
  /// The erase methods to choose from.
  [[nodiscard]] MethodCatalogue methods() const { return fixed_.methods; }
  /// Chooses the erase method of that number, as if its button had been pressed: by its handler, where it has one.
  /// Throws std::out_of_range where there is no such method.
  void chooseMethod(std::int32_t number);
  /// Applies the remote order's method; a value outside "1" to "9" leaves the choice as it is. Worker thread.
  void redirectToAlog();
  /// The texts of the method page.
  void setMethodTexts();

  /// Prepares the six pattern buffers. Once, before any run.
  void createBuffersForErasing();
  /// The buffer that zero-based pass `numPass` of `method` writes; null where the plan has none. The first two
  /// arguments never change the result. Any thread.
  const std::uint8_t* fillBuffer(const std::uint8_t* current, std::int32_t size, std::int32_t method,
                                 std::int32_t numPass) const;

  // --- Volumes: volumes/enumeration.cpp, volumes/selected_volume.cpp, volumes/my_collection_view.cpp ---

  /// Appends the mounted volumes to the table, and listens to the table's selection once more. In remote mode it ends
  /// the application when there is none.
  void loadVolumes();
  /// A new empty list of filler files; no volume array is touched.
  void allocateAllArrays();
  void reloadVolumes();

  [[nodiscard]] std::uint64_t freeSpaceOnDisk() const;  ///< bytes, as listed
  [[nodiscard]] std::string capacityOfDisk() const;     ///< a size text
  [[nodiscard]] std::string nameSelectedVolume() const;
  [[nodiscard]] std::string fileSystemSelectedVolume() const;  ///< "HFSPlus" or "FAT", nothing else
  /// The mount path of the volume of that name; nothing when it is not mounted.
  std::optional<std::string> getVolumePath(const std::string& name);
  std::optional<std::string> getVolumePathForRow(std::size_t row);
  std::optional<std::string> getVolumePathForRow2(std::size_t row);
  void setSelectedVolumeDescription();

  /// Whether the selected volume can be wiped now: mounted, writable, its filler directory ours to make and not in use
  /// by another run. Creates and changes nothing. For a face to ask before it starts anything.
  Error checkSelectedVolume();
  /// The tiles that the volume page shows.
  MyCollectionView& collectionView() { return collectionView_; }
  void tableViewSelectionDidChange();
  void collectionViewDidChangeSelection();
  /// Selects a volume by its index and describes it.
  void setCurrentSelection(std::size_t row);

  // --- The run: wipe/ ---

  /// Asks for confirmation, unless the wipe was ordered remotely, and starts the run.
  void proceed();

  // Steps of a run, on its worker thread.
  void startPhaseOne(WipeRun& run);
  void startPhaseTwo(WipeRun& run);
  void wipeFreeSpace(WipeRun& run);
  void createFile(WipeRun& run);
  [[nodiscard]] std::uint64_t getNumbOfFiles(const WipeRun& run) const;
  FillEnd fillFilePath(WipeRun& run, const std::string& path, std::uint64_t size);
  void deleteByFiles(WipeRun& run, std::uint64_t index);
  /// Gives back all space and removes the filler directory; ends a finished remote run. Worker thread at the end of a
  /// run, a thread of its own on a cancel.
  void deleteFiles(WipeRun& run);

  // Bodies of the run's other threads.
  void setElapsedTime(WipeRun& run);
  void setElapsedData();

  void cancelWipe();
  void OKBtn();             ///< the completion window's button
  void eraseCompletedOK();  ///< the completion page's button

  /// Any thread.
  [[nodiscard]] static std::string getElapsedTimeForInterval(double seconds);
  [[nodiscard]] std::string getElapsedData(std::uint64_t finishedFiles) const;
  [[nodiscard]] static std::string getFormattedStringForSize(std::uint64_t bytes);

  // --- Remote orders: remote/remote_mode.cpp ---

  void myCloud();
  void checkForTermination();
  void cancelProcess();

  // --- Looking in ---

  [[nodiscard]] bool abortErasing() const { return run_->abortErasing != 0; }
  void setAbortErasing(bool abort) { run_->abortErasing = abort ? 1 : 0; }
  [[nodiscard]] const std::string& CDriveName() const { return order_.CDriveName; }
  /// The run that is under way, or the idle one that the next start will take.
  [[nodiscard]] RunPtr currentRun() const { return run_; }
  /// Whether a cancel waits for its clean-up, or for its message to be read.
  [[nodiscard]] bool cancelWaits() const { return cancelWait_ != CancelWait::none; }
  [[nodiscard]] const VolumeTable& volumes() const { return *volumes_; }
  [[nodiscard]] const MethodChoice& methodChoice() const { return choice_; }
  [[nodiscard]] const ShellState& shell() const { return shell_; }
  [[nodiscard]] const PopUpState& popUpState() const { return popUp_; }
  [[nodiscard]] const RemoteOrder& order() const { return order_; }
  [[nodiscard]] std::size_t selectedTableRow() const { return selectedTableRow_; }
  NotificationCentre& notifications() { return notifications_; }

 private:
  enum class PopUpCloses { byItself, withTheApplication };
  /// What a cancel waits for, and what follows once the filler files are removed. `tellingTheAbort`: the abort of a
  /// remote run is on the screen, and the application ends once it has been read.
  enum class CancelWait : std::uint8_t { none, waiting, endsTheApplication, tellingTheAbort };

  void showPopUp(const Colour& colour, const std::string& text, PopUpCloses closes);
  void schedulePopUpCheck();
  void pinCompletionWindow();
  void setVolumePageTexts();
  void setProgressPageAndSideBarTexts();
  void readRemoteOrder();
  /// Whether the order is for this volume; logged when only the name says so.
  [[nodiscard]] bool isOrdered(const MountedVolume& volume) const;
  /// Lists the ordered volume again until its size is known. False when the order has ended without that.
  bool learnsSize();
  void listVolumes();
  void endOrderWithoutVolume();
  void appendVolume(VolumeTable& table, const MountedVolume& volume);
  void selectMethod(std::int32_t number);
  void resetMethodChoice();

  [[nodiscard]] bool wipeConfirmed();
  /// Puts a fresh run with the same flags in the current one's place, and tells the old one to stop.
  void replaceRun();
  /// From now on no earlier run may touch the screen or end the application.
  void supersedeEarlierRuns();
  void startRunThreads();
  void startDataThread();
  void runWorker(WipeRun& run);
  /// Ends a run that the program itself cannot go on with.
  void giveUp(WipeRun& run, const std::exception& error);
  void makeFillerDirectory(WipeRun& run, const std::string& volumePath);
  /// Whether the file was made; otherwise the reason is noted.
  bool makeFillerFile(WipeRun& run, FillerDirectory* directory, const std::string& path);
  /// One more file behind the last one, where that has found room to its end and more is left: somebody has freed space
  /// meanwhile.
  void followLastFile(WipeRun& run, FillEnd lastEnd);
  void finishRun(WipeRun& run);
  void removeFillerDirectory(WipeRun& run, const std::string& volumePath);
  void reportRemoteCompletion(WipeRun& run);
  /// For the log: a face that is looked at tells a person in its own words.
  void logFaults(const WipeRun& run) const;
  void logGrade(const WipeRun& run) const;
  /// Tells whoever ordered the run how it has ended.
  void reportToOrderer(const WipeRun& run, RunOutcome outcome);
  void setPhase(WipeRun& run, const std::string& key);
  /// Removes the filler files on a thread of its own, while events are served.
  void removeFilesAside(const RunPtr& run);
  /// Returns once they are removed, or the volume has not answered for long. The directory may be null.
  void waitForRemoval(const std::atomic<bool>& removed, const std::shared_ptr<FillerDirectory>& directory);
  void returnToFirstPageAfterCancel();
  void endCancelledRemoteRun();

  [[nodiscard]] VolumeSelection selection() const { return {volumes_, selectedTableRow_}; }
  [[nodiscard]] VolumeSelection volumeOf(const WipeRun& run) const;
  /// The mount path of the run's volume; nothing, once the volume is gone.
  std::optional<std::string> volumePathOf(WipeRun& run);
  std::optional<std::string> findVolume(WipeRun& run, const std::string& name);
  /// The one rule for it. A volume that gives no answer counts as writable.
  [[nodiscard]] bool isReadOnly(const std::string& path) const;

  /// Tells that the state is lost, and ends the application. The run takes no further step.
  void reportUnknownError(WipeRun& run);
  void endApplication(WipeRun& run);
  [[nodiscard]] std::string localised(const std::string& key) const;

  Ports ports_;
  FixedValues fixed_;
  ShellState shell_;
  PopUpState popUp_;
  NotificationCentre notifications_;
  Authentication authentication_;
  MyCollectionView collectionView_;
  RemoteOrder order_;
  MethodChoice choice_;
  PatternBuffers buffers_;
  std::shared_ptr<const VolumeTable> volumes_;
  std::size_t selectedTableRow_ = 0;
  RunPtr run_;
  std::vector<std::weak_ptr<WipeRun>> earlierRuns_;  ///< those whose threads may still be on their way out
  std::atomic<CancelWait> cancelWait_{CancelWait::none};
};

}  // namespace calvero
