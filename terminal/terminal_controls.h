#pragma once

#include <functional>
#include <map>
#include <string>

#include "ports/controls.h"

namespace calvero {

/// The controls that a terminal has: the current page, the texts, and word of the run's end. The rest is ignored.
class TerminalControls : public Controls {
 public:
  /// A caption or figure has a new text.
  std::function<void(Control)> onText;
  /// The run has finished and asks for its completion window.
  std::function<void()> onCompleted;

  [[nodiscard]] Page page() const { return page_; }
  /// Empty until it is set.
  [[nodiscard]] std::string text(Control control) const;

  void setText(Control control, const std::string& text) override;
  void setAttributedTitle(Control, const AttributedTitle&) override {}
  void highlightNothing(Control) override {}
  void show(Control) override {}
  void hide(Control) override {}
  void turnOn(Control) override {}
  void turnOff(Control) override {}
  void redraw(Control) override {}
  void selectPage(Page page) override { page_ = page; }
  void reloadTable() override {}
  [[nodiscard]] std::size_t selectedRow() const override { return 0; }
  void addTableRow(const std::string&) override {}
  void clearVolumes() override {}
  void addTile(const MountedVolume&) override {}
  void removeTiles(const std::vector<std::string>&) override {}
  [[nodiscard]] std::size_t tileCount() const override { return 0; }
  void setTileSelection(const std::vector<std::size_t>&) override {}
  void setTileSelected(std::size_t, bool) override {}
  void setProgress(int) override {}
  void setProgressDeterminate() override {}
  void setProgressIndeterminate() override {}
  void startProgressAnimation() override {}
  /// The terminal counts as visible, so that the clock shows its time.
  bool mainWindowVisible() const override { return true; }
  void bringToFront(Control window) override;
  void orderOut(Control) override {}
  void activateApplication() override {}
  void leaveTaskBar() override {}
  void moveToOriginOf(Control, Control) override {}
  void attachAbove(Control, Control) override {}
  void makeImmovable(Control) override {}

 private:
  Page page_ = Page::volume;
  std::map<Control, std::string> texts_;
};

}  // namespace calvero
