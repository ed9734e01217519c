#pragma once

#include <QObject>
#include <QPointer>
#include <array>

#include "ports/control_names.h"

class QWidget;

namespace calvero {

class MainWindow;
class PopUpWidget;
class WindowFollower;

/// The window's controls, found by their names. GUI thread, except `mainWindowVisible`.
class WidgetControls : public Controls {
 public:
  /// Throws std::runtime_error naming a control that is missing or of the wrong kind. The windows outlive this.
  WidgetControls(MainWindow& window, PopUpWidget& popUp);

  void setText(Control control, const std::string& text) override;
  void setAttributedTitle(Control button, const AttributedTitle& title) override;
  void highlightNothing(Control button) override;
  void show(Control control) override;
  void hide(Control control) override;
  void turnOn(Control button) override;
  void turnOff(Control button) override;
  void setMethodText(std::int32_t method, const std::string& text) override;
  void turnMethod(std::int32_t method, bool on) override;
  void redraw(Control control) override;

  void selectPage(Page page) override;
  void reloadTable() override;
  [[nodiscard]] std::size_t selectedRow() const override;
  void addTableRow(const std::string& driveName) override;
  void clearVolumes() override;
  void addTile(const MountedVolume& volume) override;
  void removeTiles(const std::vector<std::string>& objects) override;
  [[nodiscard]] std::size_t tileCount() const override;
  void setTileSelection(const std::vector<std::size_t>& indexes) override;
  void setTileSelected(std::size_t index, bool selected) override;

  void setProgress(int percent) override;
  void setProgressDeterminate() override;
  void setProgressIndeterminate() override;
  void startProgressAnimation() override;

  [[nodiscard]] bool mainWindowVisible() const override;
  void bringToFront(Control window) override;
  void orderOut(Control window) override;
  void activateApplication() override;
  void leaveTaskBar() override;
  void moveToOriginOf(Control child, Control parent) override;
  void attachAbove(Control child, Control parent) override;
  void makeImmovable(Control window) override;

 private:
  /// The progress page as a run begins with it.
  void startRunsPage();
  void letGo(QWidget& window);
  template <typename Kind>
  [[nodiscard]] Kind* as(Control control) const;

  MainWindow& window_;
  PopUpWidget& popUp_;
  std::array<QObject*, kNamedControls.size()> objects_{};
  QPointer<WindowFollower> follower_;
  Qt::WindowFlags followersFlags_;  // of the window that follows, as it was before
  int percent_ = 0;
};

}  // namespace calvero
