#include "window/widget_controls.h"

#include <QAbstractButton>
#include <QLabel>
#include <QProgressBar>
#include <QStackedWidget>
#include <QStandardItemModel>
#include <QTableView>
#include <stdexcept>

#include "window/cloud_button.h"
#include "window/main_window.h"
#include "window/method_page.h"
#include "window/pop_up_widget.h"
#include "window/selection_button.h"
#include "window/tile_grid.h"
#include "window/volume_page.h"
#include "window/widget_text.h"
#include "window/window_follower.h"

namespace calvero {
namespace {

QObject* find(QWidget& window, const char* name) {
  return window.objectName() == QLatin1String(name) ? &window : window.findChild<QObject*>(name);
}

template <typename Kind>
bool is(const QObject* object) {
  return qobject_cast<const Kind*>(object) != nullptr;
}

struct CaptionedField {
  Control caption;
  Control field;
};

constexpr std::array kCaptionedFields{
    CaptionedField{Control::driveName, Control::tfDriveName},
    CaptionedField{Control::fileSystem, Control::tfFileSystem},
    CaptionedField{Control::driveSpace, Control::tfDriveSpace},
    CaptionedField{Control::freeSpace, Control::tfFreeSpace},
    CaptionedField{Control::unSecuredData, Control::tfUnsecuredData},
    CaptionedField{Control::tfelapsedTime, Control::tfElapsedTime},
    CaptionedField{Control::tfelapsedData, Control::tfElapsedData},
    CaptionedField{Control::tffreeSpace, Control::tfFreespaceData},
};

bool isLabel(Control control) {
  return control >= Control::algorithm_1 && control <= Control::algorithm_9;
}

bool isTier(Control control) {
  return control == Control::low || control == Control::medium || control == Control::high;
}

bool isSelectionButton(Control control) {
  return control >= Control::butFastZeroWipe && control <= Control::butNINTH_ALGO;
}

bool fits(Control control, const QObject* object) {
  if (isSelectionButton(control)) return is<SelectionButton>(object);
  if (isLabel(control)) return is<QAbstractButton>(object);
  switch (control) {
    case Control::tabView:
      return is<QStackedWidget>(object);
    case Control::tableview:
      return is<QTableView>(object);
    case Control::piDataWipe:
      return is<QProgressBar>(object);
    case Control::collectionView:
      return is<TileGrid>(object);
    case Control::buttonCloud:
      return is<CloudButton>(object);
    case Control::arrayController:
    case Control::arraycontroller2:
      return is<QStandardItemModel>(object);
    case Control::buttonNext:
    case Control::buttonBack:
    case Control::buttonHome:
    case Control::proceedBtn:
    case Control::cancelBut:
    case Control::reloadDrivers:
      return is<QAbstractButton>(object);
    case Control::buttonProceed:
    case Control::buttonCancel:
    case Control::boxSelVolDesc:
    case Control::window:
    case Control::windowCompleted:
    case Control::popUpWindow:
    case Control::popUpBox:
      return is<QWidget>(object);
    default:
      return is<QLabel>(object);
  }
}

}  // namespace

WidgetControls::WidgetControls(MainWindow& window, PopUpWidget& popUp) : window_(window), popUp_(popUp) {
  for (const NamedControl& named : kNamedControls) {
    QObject* object = find(window, named.name);
    if (object == nullptr) object = find(popUp, named.name);
    const std::string name = named.name;
    if (object == nullptr) throw std::runtime_error("the window has no " + name);
    if (!fits(named.control, object)) throw std::runtime_error("the window's " + name + " is of another kind");
    objects_[static_cast<std::size_t>(named.control)] = object;
  }
}

template <typename Kind>
Kind* WidgetControls::as(Control control) const {
  return qobject_cast<Kind*>(objects_[static_cast<std::size_t>(control)]);
}

void WidgetControls::setText(Control control, const std::string& text) {
  if (auto* label = as<QLabel>(control)) label->setText(toText(text));
  if (auto* button = as<QAbstractButton>(control)) button->setText(asTitle(text));
  if (isLabel(control) || isTier(control)) window_.methods().refresh();
  for (const CaptionedField& pair : kCaptionedFields) {
    if (pair.caption == control) as<QWidget>(pair.field)->setAccessibleDescription(toText(text).trimmed());
  }
}

void WidgetControls::setAttributedTitle(Control button, const AttributedTitle& title) {
  if (auto* cloud = as<CloudButton>(button)) cloud->setAttributedTitle(title);
}

void WidgetControls::highlightNothing(Control button) {
  if (auto* cloud = as<CloudButton>(button)) cloud->highlightNothing();
}

void WidgetControls::show(Control control) {
  if (control == Control::buttonProceed) as<QWidget>(Control::proceedBtn)->show();
  if (control == Control::buttonCancel) startRunsPage();
  if (auto* widget = as<QWidget>(control)) widget->show();
}

void WidgetControls::hide(Control control) {
  if (auto* widget = as<QWidget>(control)) widget->hide();
}

void WidgetControls::turnOn(Control button) {
  if (auto* selection = as<SelectionButton>(button)) selection->setChecked(true);
}

void WidgetControls::turnOff(Control button) {
  if (auto* selection = as<SelectionButton>(button)) selection->setChecked(false);
}

void WidgetControls::setMethodText(std::int32_t method, const std::string& text) {
  window_.methods().setLabel(static_cast<std::size_t>(method), asTitle(text));
}

void WidgetControls::turnMethod(std::int32_t method, bool on) {
  window_.methods().turn(static_cast<std::size_t>(method), on);
}

void WidgetControls::redraw(Control control) {
  if (auto* widget = as<QWidget>(control)) widget->repaint();
}

void WidgetControls::selectPage(Page page) {
  window_.selectPage(static_cast<int>(page));
}

void WidgetControls::reloadTable() {
  as<QTableView>(Control::tableview)->viewport()->update();
}

std::size_t WidgetControls::selectedRow() const {
  return window_.volumes().selectedRow();
}

void WidgetControls::addTableRow(const std::string& driveName) {
  window_.volumes().addTableRow(driveName);
}

void WidgetControls::clearVolumes() {
  window_.volumes().clear();
}

void WidgetControls::addTile(const MountedVolume& volume) {
  window_.volumes().addTile(volume);
}

void WidgetControls::removeTiles(const std::vector<std::string>& objects) {
  for (const std::string& object : objects) window_.volumes().removeTile(object);
}

std::size_t WidgetControls::tileCount() const {
  return window_.volumes().tiles().count();
}

void WidgetControls::setTileSelection(const std::vector<std::size_t>& indexes) {
  if (!indexes.empty()) window_.volumes().tiles().setCurrent(indexes.front());
}

void WidgetControls::setTileSelected(std::size_t index, bool selected) {
  window_.volumes().tiles().setTileSelected(index, selected);
}

void WidgetControls::setProgress(int percent) {
  percent_ = percent;
  as<QProgressBar>(Control::piDataWipe)->setValue(percent);
  window_.showPercent();
}

void WidgetControls::setProgressDeterminate() {
  as<QProgressBar>(Control::piDataWipe)->setRange(0, 100);
  setProgress(percent_);
}

void WidgetControls::setProgressIndeterminate() {
  as<QProgressBar>(Control::piDataWipe)->setRange(0, 0);
  window_.showPercent();
}

// A bar without a range moves by itself while it is seen.
void WidgetControls::startProgressAnimation() {
  setProgressIndeterminate();
}

// The bar is still as the run before has left it.
void WidgetControls::startRunsPage() {
  window_.leaveCompletionPage();
  setProgressIndeterminate();
}

bool WidgetControls::mainWindowVisible() const {
  return window_.isOnScreen();
}

void WidgetControls::bringToFront(Control window) {
  if (window == Control::window) return window_.bringToFront();
  if (window == Control::popUpWindow) return popUp_.bringToFront();
  if (window == Control::windowCompleted) window_.showCompletionPage();
  if (auto* widget = as<QWidget>(window)) {
    widget->show();
    widget->raise();
    widget->activateWindow();
  }
}

void WidgetControls::orderOut(Control window) {
  hide(window);
  if (follower_ != nullptr && follower_->parent() == as<QWidget>(window)) letGo(*as<QWidget>(window));
}

// The next time it is shown it stands on its own again, where the toolkit places a new one.
void WidgetControls::letGo(QWidget& window) {
  delete follower_;
  window.setWindowFlags(followersFlags_);
  window.setAttribute(Qt::WA_Moved, false);
}

void WidgetControls::activateApplication() {
  if (!window_.isVisible()) return popUp_.activate();  // all that is seen of a hidden application
  window_.raise();
  window_.activateWindow();
}

void WidgetControls::leaveTaskBar() {
  window_.leaveTaskBar();
}

void WidgetControls::moveToOriginOf(Control child, Control parent) {
  moveLowerLeft(*as<QWidget>(child), frameOf(*as<QWidget>(parent)).bottomLeft());
  if (follower_ != nullptr) follower_->keepPlace();
}

void WidgetControls::attachAbove(Control child, Control parent) {
  if (follower_ == nullptr) followersFlags_ = as<QWidget>(child)->windowFlags();
  delete follower_;
  follower_ = new WindowFollower(*as<QWidget>(child), *as<QWidget>(parent));
}

void WidgetControls::makeImmovable(Control window) {
  auto* widget = as<QWidget>(window);
  const bool shown = widget->isVisible();
  const QPoint corner = frameOf(*widget).bottomLeft();
  // Nothing to take hold of: a wish for a title would bring the frame back. Hides the window.
  widget->setWindowFlags((widget->windowFlags() & Qt::WindowType_Mask) | Qt::FramelessWindowHint);
  moveLowerLeft(*widget, corner);
  widget->setVisible(shown);
  if (follower_ != nullptr && follower_->parent() == widget) follower_->pin();
}

}  // namespace calvero
