#pragma once

#include <QIcon>
#include <QWidget>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "window/completed_window.h"

class QAbstractButton;

namespace Ui {
class MainWindow;
}

namespace calvero {

class Localisation;
class MethodPage;
class VolumePage;

/// The main window with its three pages and side bar, and the completion window. It decides nothing: each hook says
/// what the user did. GUI thread, except where noted.
class MainWindow : public QWidget {
  Q_OBJECT
 public:
  MainWindow();
  ~MainWindow() override;

  std::function<void()> onNext;
  std::function<void()> onBack;
  std::function<void()> onProceed;
  std::function<void()> onCancel;
  std::function<void()> onReload;
  std::function<void()> onHome;
  std::function<void()> onHelp;
  std::function<void()> onCloud;     ///< the side bar's hidden button
  std::function<void()> onGetItNow;  ///< the button below "Cloud Control "
  std::function<void()> onFacebook;
  std::function<void()> onTwitter;
  std::function<void()> onGooglePlus;
  std::function<void(int)> onMethod;                              ///< the slot's number, from 0
  std::function<void(std::vector<std::size_t>)> onTilesSelected;  ///< nothing in the list: the space beside the tiles
  std::function<void()> onTableSelectionChanged;
  std::function<void()> onCompletionPageOk;
  std::function<void()> onCompletionOk;  ///< the completion window's button
  /// Whether the window may be closed now; without this hook it may.
  std::function<bool()> onCloseRequest;
  std::function<void()> onClosed;
  std::function<void()> onMiniaturise;
  std::function<void()> onDeminiaturise;

  /// The texts that the controller does not set.
  void setTexts(const Localisation& localisation);
  void setSizeFormatter(std::function<std::string(std::uint64_t)> format);
  void setPasses(const std::vector<int>& passes);
  /// What the completion window and the completion page say.
  void setOutcome(const std::string& text, OutcomeKind kind);

  [[nodiscard]] VolumePage& volumes() const;
  [[nodiscard]] MethodPage& methods() const;
  [[nodiscard]] CompletedWindow& completedWindow() const { return *completed_; }

  void selectPage(int index);
  /// The progress bar has changed.
  void showPercent();
  /// The completion page: the progress page with the outcome, and its button in Cancel's place.
  void showCompletionPage();
  void leaveCompletionPage();
  void bringToFront();
  void leaveTaskBar();

  /// Whether the window is on the screen, neither hidden nor minimised. Any thread.
  [[nodiscard]] bool isOnScreen() const { return onScreen_; }

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void styleCaptions();
  void colourOutlines();
  void connectButtons();
  void connectPages();
  void describeVolumes(const Localisation& localisation);
  void describeControls(const Localisation& localisation);
  void focusPage();
  [[nodiscard]] QAbstractButton* defaultButton() const;
  void noteScreenState();

  struct DriveTexts {
    QString fixed, removable, network;
    QString fileSystem, mountPath, driveSpace, freeSpace;
  };

  std::unique_ptr<Ui::MainWindow> ui_;
  CompletedWindow* completed_;
  std::function<std::string(std::uint64_t)> formatSize_;
  DriveTexts driveTexts_;
  std::atomic<bool> onScreen_{false};
};

}  // namespace calvero
