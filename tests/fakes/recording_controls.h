#pragma once

#include <atomic>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "ports/controls.h"
#include "tests/fakes/journal.h"

namespace calvero::testing {

/// A control's name, as the window's layout spells it.
const char* nameOf(Control control);

/// Writes every change down and remembers the last one of each control. Any thread.
class RecordingControls : public Controls {
 public:
  explicit RecordingControls(Journal& journal) : journal_(journal) {}

  void setMainWindowVisible(bool visible) { visible_ = visible; }
  void selectRow(std::size_t row) { selectedRow_ = row; }

  [[nodiscard]] std::string text(Control control) const;
  [[nodiscard]] bool shown(Control control) const;
  [[nodiscard]] bool hidden(Control control) const;
  [[nodiscard]] bool isOn(Control button) const;
  /// The page that was selected last; -1 before the first.
  [[nodiscard]] int page() const { return page_; }
  [[nodiscard]] int progress() const { return progress_; }

  void setText(Control control, const std::string& text) override;
  void show(Control control) override;
  void hide(Control control) override;
  void turnOn(Control button) override;
  void turnOff(Control button) override;
  void redraw(Control control) override;
  void selectPage(Page page) override;
  void reloadTable() override;
  [[nodiscard]] std::size_t selectedRow() const override { return selectedRow_; }
  void addTableRow(const std::string& driveName) override;
  void removeTiles(const std::vector<std::string>& objects) override;
  void setProgress(int percent) override;
  void setProgressDeterminate() override;
  void setProgressIndeterminate() override;
  void startProgressAnimation() override;
  [[nodiscard]] bool mainWindowVisible() const override { return visible_; }
  void bringToFront(Control window) override;
  void orderOut(Control window) override;
  void leaveTaskBar() override;

 private:
  template <typename Value>
  void remember(std::map<Control, Value>& values, Control control, Value value, const std::string& entry);

  Journal& journal_;
  mutable std::mutex mutex_;  // guards the maps
  std::map<Control, std::string> texts_;
  std::map<Control, bool> shown_;
  std::map<Control, bool> on_;
  std::atomic<int> page_{-1};
  std::atomic<int> progress_{0};
  std::atomic<bool> visible_{true};
  std::atomic<std::size_t> selectedRow_{0};
};

}  // namespace calvero::testing
