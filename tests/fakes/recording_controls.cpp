#include "tests/fakes/recording_controls.h"

#include <utility>

namespace calvero::testing {
namespace {

const std::map<Control, const char*> kNames{
    {Control::tabView, "tabView"},
    {Control::tableview, "tableview"},
    {Control::buttonNext, "buttonNext"},
    {Control::buttonBack, "buttonBack"},
    {Control::buttonHome, "buttonHome"},
    {Control::buttonProceed, "buttonProceed"},
    {Control::buttonCancel, "buttonCancel"},
    {Control::proceedBtn, "proceedBtn"},
    {Control::volLabel, "volLabel"},
    {Control::tfDriveName, "tfDriveName"},
    {Control::tfFileSystem, "tfFileSystem"},
    {Control::tfDriveSpace, "tfDriveSpace"},
    {Control::tfFreeSpace, "tfFreeSpace"},
    {Control::butFastZeroWipe, "butFastZeroWipe"},
    {Control::butRandomWipe, "butRandomWipe"},
    {Control::butDOD5220, "butDOD5220"},
    {Control::butNAVSO, "butNAVSO"},
    {Control::butNATO, "butNATO"},
    {Control::butVSITR, "butVSITR"},
    {Control::butFAST_ZERO_WRITE, "butFAST_ZERO_WRITE"},
    {Control::butPETER_GUTTMAN, "butPETER_GUTTMAN"},
    {Control::butNINTH_ALGO, "butNINTH_ALGO"},
    {Control::algorithm_1, "algorithm_1"},
    {Control::algorithm_2, "algorithm_2"},
    {Control::algorithm_3, "algorithm_3"},
    {Control::algorithm_4, "algorithm_4"},
    {Control::algorithm_5, "algorithm_5"},
    {Control::algorithm_6, "algorithm_6"},
    {Control::algorithm_7, "algorithm_7"},
    {Control::algorithm_8, "algorithm_8"},
    {Control::algorithm_9, "algorithm_9"},
    {Control::selectingWipingMethod, "selectingWipingMethod"},
    {Control::low, "low"},
    {Control::medium, "medium"},
    {Control::high, "high"},
    {Control::tfUnsecuredData, "tfUnsecuredData"},
    {Control::tfCleanedSize, "tfCleanedSize"},
    {Control::piDataWipe, "piDataWipe"},
    {Control::labelPhase, "labelPhase"},
    {Control::tfElapsedTime, "tfElapsedTime"},
    {Control::tfElapsedData, "tfElapsedData"},
    {Control::tfFreespaceData, "tfFreespaceData"},
    {Control::arrayController, "arrayController"},
    {Control::arraycontroller2, "arraycontroller2"},
    {Control::window, "window"},
    {Control::windowCompleted, "windowCompleted"},
};

bool valueOr(const std::map<Control, bool>& values, Control control, bool otherwise) {
  const auto found = values.find(control);
  return found == values.end() ? otherwise : found->second;
}

}  // namespace

const char* nameOf(Control control) {
  return kNames.at(control);
}

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

void RecordingControls::leaveTaskBar() {
  journal_.add("leaveTaskBar");
}

}  // namespace calvero::testing
