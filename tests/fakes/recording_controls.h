#pragma once

#include <atomic>
#include <map>
#include <mutex>
#include <set>
#include <string>
#include <vector>

#include "ports/controls.h"
#include "tests/fakes/journal.h"

namespace calvero::testing {

/// Writes every change down and remembers the last one of each control. Any thread.
class RecordingControls : public Controls {
 public:
  explicit RecordingControls(Journal& journal) : journal_(journal) {}

  void setMainWindowVisible(bool visible) { visible_ = visible; }
  void selectRow(std::size_t row) { selectedRow_ = row; }
  /// The tiles' content changes without the controller.
  void setTileCount(std::size_t tiles) { tiles_ = tiles; }

  [[nodiscard]] std::string text(Control control) const;
  [[nodiscard]] bool shown(Control control) const;
  [[nodiscard]] bool hidden(Control control) const;
  [[nodiscard]] bool isOn(Control button) const;
  /// The page that was selected last; -1 before the first.
  [[nodiscard]] int page() const { return page_; }
  [[nodiscard]] int progress() const { return progress_; }
  /// The tiles that are drawn as selected.
  [[nodiscard]] std::set<std::size_t> selectedTiles() const;

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
  [[nodiscard]] std::size_t selectedRow() const override { return selectedRow_; }
  void addTableRow(const std::string& driveName) override;
  void clearVolumes() override;
  void addTile(const MountedVolume& volume) override;
  [[nodiscard]] std::size_t tileCount() const override { return tiles_; }
  void setTileSelection(const std::vector<std::size_t>& indexes) override;
  void setTileSelected(std::size_t index, bool selected) override;
  void removeTiles(const std::vector<std::string>& objects) override;
  void setProgress(int percent) override;
  void setProgressDeterminate() override;
  void setProgressIndeterminate() override;
  void startProgressAnimation() override;
  [[nodiscard]] bool mainWindowVisible() const override { return visible_; }
  void bringToFront(Control window) override;
  void orderOut(Control window) override;
  void activateApplication() override;
  void leaveTaskBar() override;
  void moveToOriginOf(Control child, Control parent) override;
  void attachAbove(Control child, Control parent) override;
  void makeImmovable(Control window) override;

 private:
  template <typename Value>
  void remember(std::map<Control, Value>& values, Control control, Value value, const std::string& entry);

  Journal& journal_;
  mutable std::mutex mutex_;  // guards the maps
  std::map<Control, std::string> texts_;
  std::map<Control, bool> shown_;
  std::map<Control, bool> on_;
  std::set<std::size_t> selectedTiles_;
  std::atomic<std::size_t> tiles_{0};
  std::atomic<int> page_{-1};
  std::atomic<int> progress_{0};
  std::atomic<bool> visible_{true};
  std::atomic<std::size_t> selectedRow_{0};
};

}  // namespace calvero::testing
