#include "tests/fakes/recording_controls.h"

#include <sstream>
#include <utility>

#include "ports/control_names.h"

namespace calvero::testing {
namespace {

bool valueOr(const std::map<Control, bool>& values, Control control, bool otherwise) {
  const auto found = values.find(control);
  return found == values.end() ? otherwise : found->second;
}

}  // namespace

template <typename Value>
void RecordingControls::remember(std::map<Control, Value>& values, Control control, Value value,
                                 const std::string& entry) {
  journal_.add(entry);
  const std::scoped_lock lock(mutex_);
  values[control] = std::move(value);
}

std::string RecordingControls::text(Control control) const {
  const std::scoped_lock lock(mutex_);
  const auto found = texts_.find(control);
  return found == texts_.end() ? "" : found->second;
}

bool RecordingControls::shown(Control control) const {
  const std::scoped_lock lock(mutex_);
  return valueOr(shown_, control, false);
}

bool RecordingControls::hidden(Control control) const {
  const std::scoped_lock lock(mutex_);
  return !valueOr(shown_, control, true);
}

bool RecordingControls::isOn(Control button) const {
  const std::scoped_lock lock(mutex_);
  return valueOr(on_, button, false);
}

void RecordingControls::setText(Control control, const std::string& text) {
  remember(texts_, control, text, std::string("setText ") + nameOf(control) + ' ' + quoted(text));
}

void RecordingControls::setAttributedTitle(Control button, const AttributedTitle& title) {
  std::ostringstream entry;
  entry << "setAttributedTitle " << nameOf(button) << ' ' << quoted(title.text) << ' ' << title.colour.red << ' '
        << title.colour.green << ' ' << title.colour.blue << ' ' << title.colour.alpha << ' ' << title.points;
  remember(texts_, button, title.text, entry.str());
}

void RecordingControls::highlightNothing(Control button) {
  journal_.add(std::string("highlightNothing ") + nameOf(button));
}

void RecordingControls::show(Control control) {
  remember(shown_, control, true, std::string("show ") + nameOf(control));
}

void RecordingControls::hide(Control control) {
  remember(shown_, control, false, std::string("hide ") + nameOf(control));
}

void RecordingControls::turnOn(Control button) {
  remember(on_, button, true, std::string("turnOn ") + nameOf(button));
}

void RecordingControls::turnOff(Control button) {
  remember(on_, button, false, std::string("turnOff ") + nameOf(button));
}

void RecordingControls::setMethodText(std::int32_t method, const std::string& text) {
  journal_.add("setMethodText " + std::to_string(method) + ' ' + quoted(text));
}

void RecordingControls::turnMethod(std::int32_t method, bool on) {
  journal_.add("turnMethod " + std::to_string(method) + (on ? " on" : " off"));
}

void RecordingControls::redraw(Control control) {
  journal_.add(std::string("redraw ") + nameOf(control));
}

void RecordingControls::selectPage(Page page) {
  page_ = static_cast<int>(page);
  journal_.add("selectPage " + std::to_string(page_));
}

void RecordingControls::reloadTable() {
  journal_.add("reloadTable");
}

void RecordingControls::addTableRow(const std::string& driveName) {
  journal_.add("addTableRow " + driveName);
}

void RecordingControls::clearVolumes() {
  journal_.add("clearVolumes");
  tiles_ = 0;
}

void RecordingControls::addTile(const MountedVolume& volume) {
  journal_.add("addTile " + volume.name);
  ++tiles_;
}

void RecordingControls::setTileSelection(const std::vector<std::size_t>& indexes) {
  std::string entry = "setTileSelection";
  for (const std::size_t index : indexes) entry += ' ' + std::to_string(index);
  journal_.add(entry);
}

void RecordingControls::setTileSelected(std::size_t index, bool selected) {
  journal_.add((selected ? "selectTile " : "deselectTile ") + std::to_string(index));
  const std::scoped_lock lock(mutex_);
  if (selected) {
    selectedTiles_.insert(index);
  } else {
    selectedTiles_.erase(index);
  }
}

std::set<std::size_t> RecordingControls::selectedTiles() const {
  const std::scoped_lock lock(mutex_);
  return selectedTiles_;
}

void RecordingControls::removeTiles(const std::vector<std::string>& objects) {
  std::string entry = "removeTiles";
  for (const std::string& object : objects) entry += ' ' + object;
  journal_.add(entry);
}

void RecordingControls::setProgress(int percent) {
  progress_ = percent;
  journal_.add("setProgress " + std::to_string(percent));
}

void RecordingControls::setProgressDeterminate() {
  journal_.add("setProgressDeterminate");
}
void RecordingControls::setProgressIndeterminate() {
  journal_.add("setProgressIndeterminate");
}
void RecordingControls::startProgressAnimation() {
  journal_.add("startProgressAnimation");
}

void RecordingControls::bringToFront(Control window) {
  remember(shown_, window, true, std::string("bringToFront ") + nameOf(window));
}

void RecordingControls::orderOut(Control window) {
  remember(shown_, window, false, std::string("orderOut ") + nameOf(window));
}

void RecordingControls::activateApplication() {
  journal_.add("activateApplication");
}

void RecordingControls::moveToOriginOf(Control child, Control parent) {
  journal_.add(std::string("moveToOriginOf ") + nameOf(child) + ' ' + nameOf(parent));
}

void RecordingControls::attachAbove(Control child, Control parent) {
  journal_.add(std::string("attachAbove ") + nameOf(child) + ' ' + nameOf(parent));
}

void RecordingControls::makeImmovable(Control window) {
  journal_.add(std::string("makeImmovable ") + nameOf(window));
}

void RecordingControls::leaveTaskBar() {
  journal_.add("leaveTaskBar");
}

}  // namespace calvero::testing
