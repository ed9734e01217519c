#include "tests/gallery/scene_fixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <memory>
#include <stdexcept>
#include <thread>

#include "window/item_view.h"
#include "window/tile_grid.h"
#include "window/volume_page.h"

namespace calvero::testing {
namespace {

constexpr std::chrono::seconds kLimit{20};
constexpr std::chrono::milliseconds kLookInterval{5};
constexpr std::chrono::milliseconds kMoment{5};
constexpr std::uint64_t kWritableBytes = 256 * 1024;

}  // namespace

void Latch::wait() {
  std::unique_lock lock(mutex_);
  if (isReleased_) return;
  isReached_ = true;
  onArrival_();
  released_.wait(lock, [this] { return isReleased_; });
}

void Latch::release() {
  const std::scoped_lock lock(mutex_);
  isReleased_ = true;
  released_.notify_all();
}

bool Latch::isReached() const {
  const std::scoped_lock lock(mutex_);
  return isReached_;
}

void SceneClock::advance(std::chrono::seconds time) {
  const std::scoped_lock lock(mutex_);
  now_ += time;
}

void SceneClock::atSleepOf(std::chrono::seconds length, std::function<void()> hook) {
  const std::scoped_lock lock(mutex_);
  hookedLength_ = length;
  hook_ = std::move(hook);
}

Clock::Duration SceneClock::now() {
  const std::scoped_lock lock(mutex_);
  return now_;
}

void SceneClock::sleep(Duration duration) {
  std::function<void()> hook;
  {
    const std::scoped_lock lock(mutex_);
    if (duration >= hookedLength_) hook = hook_;
  }
  if (hook) hook();
  std::this_thread::sleep_for(kMoment);
}

SceneFixture::SceneFixture(const std::string& language, Visitor visitor)
    : visitor_(std::move(visitor)), texts_(language) {
  texts_.install();
}

// The threads of a run use the controller to their end. Some would go on until the process ends.
SceneFixture::~SceneFixture() {
  releaseLatches();
  if (app_) app_->currentRun()->terminateThread = 1;
  session_.reset();
  if (ports_ && !ports_->threads.waitForAll(kLimit)) std::terminate();
}

void SceneFixture::volume(MountedVolume volume) {
  files_.addVolume(volume.mountPath, kWritableBytes).readOnly = volume.readOnly;
  volumes_.add(std::move(volume));
}

void SceneFixture::order(const std::string& volumeName) {
  tags_.put("cvrOnline", "1");
  tags_.put("cvrDrive", volumeName);
  tags_.put("cvrAlgo", "1");
}

Latch& SceneFixture::newLatch() {
  return latches_.emplace_back([this] { wake(); });
}

Latch& SceneFixture::latchBefore(FileCall call, std::size_t nth) {
  Latch& latch = newLatch();
  files_.script.before(call, nth, [&latch] { latch.wait(); });
  return latch;
}

void SceneFixture::releaseLatches() {
  for (Latch& latch : latches_) latch.release();
}

/// Waiting conditions are looked at again.
void SceneFixture::wake() const {
  ports_->loop.post([] {});
}

void SceneFixture::play(const std::function<void()>& scenes) {
  ports_ = std::make_unique<WizardPorts>(SuiteServices{tags_, desktop_, desktop_, texts_});
  ports_->popUp.onUndisplayed = nullptr;  // a picture is taken of it, even without a screen
  ports_->commandForAdministrator = [this](const std::string&) { return administratorCommand_; };
  const Ports ports = ports_->ports();
  app_ = std::make_unique<AppDelegate>(Ports{.alerts = ports.alerts,
                                             .clock = clock_,
                                             .controls = ports.controls,
                                             .diskLookup = volumes_,
                                             .eventLoop = ports.eventLoop,
                                             .files = files_,
                                             .informationFile = desktop_,
                                             .localisation = texts_,
                                             .mountedVolumes = volumes_,
                                             .popUpWindow = ports.popUpWindow,
                                             .random = ports.random,
                                             .suiteWeb = desktop_,
                                             .log = log_,
                                             .systemNotifications = ports.systemNotifications,
                                             .tagStore = tags_,
                                             .threads = ports.threads,
                                             .workspace = desktop_});
  session_ = std::make_unique<WizardSession>(*ports_, *app_);
  ports_->loop.startTimer(kLookInterval, TimerKind::repeating, [this] { lookForAlert(); });
  ports_->loop.post([this, &scenes] {
    try {
      session_->start();
      scenes();
    } catch (const std::exception& error) {
      failure_ = error.what();
    }
    releaseLatches();
    ports_->loop.terminate();
  });
  ports_->loop.run();
  if (!failure_.empty()) throw std::runtime_error(failure_);
}

void SceneFixture::show(const std::string& name, QWidget& shown) {
  waitFor("the window of " + name, [&shown] { return shown.isVisible(); });
  QApplication::processEvents();  // laid out as it will stay
  visitor_({name, &shown, &window()});
}

void SceneFixture::click(const char* button) {
  auto& clicked = find<QAbstractButton>(button);
  if (!clicked.isVisible() || !clicked.isEnabled()) throw std::runtime_error(std::string("nobody can press ") + button);
  clicked.click();
}

void SceneFixture::clickTile(std::size_t index) {
  window().volumes().tiles().tile(index)->onPressed();
}

void SceneFixture::expectAlert(const std::string& name, AlertAnswer answer) {
  expected_.push_back({name, answer});
}

void SceneFixture::waitForAlerts() {
  waitFor("alert " + (expected_.empty() ? "" : expected_.front().name),
          [this] { return expected_.empty() && QApplication::activeModalWidget() == nullptr; });
}

void SceneFixture::waitFor(const std::string& what, const std::function<bool()>& condition) {
  if (!ports_->loop.serveUntil([&] { return !failure_.empty() || condition(); }, kLimit)) {
    throw std::runtime_error("in vain: " + what);
  }
  if (!failure_.empty()) throw std::runtime_error(failure_);
}

void SceneFixture::waitForText(const char* label, const std::string& text) {
  const auto& waiting = find<QLabel>(label);
  waitFor(label, [&] { return waiting.text().toStdString() == text; });
}

void SceneFixture::once(std::function<bool()> condition, std::function<void()> action) {
  const auto timer = std::make_shared<TimerId>(kNoTimer);
  const auto look = [this, timer, condition = std::move(condition), action = std::move(action)] {
    if (!condition()) return;
    ports_->loop.stopTimer(*timer);
    action();
  };
  *timer = ports_->loop.startTimer(kLookInterval, TimerKind::repeating, look);
}

void SceneFixture::lookForAlert() {
  auto* alert = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (alert == nullptr || !alert->isVisible() || isVisiting_) return;
  isVisiting_ = true;
  ExpectedAlert expected{"", AlertAnswer::defaultButton};
  if (expected_.empty()) {
    failure_ = "nobody expected " + alert->accessibleName().toStdString();
  } else {
    expected = expected_.front();
    expected_.pop_front();
  }
  answer(*alert, expected);
  isVisiting_ = false;
}

void SceneFixture::answer(QDialog& alert, const ExpectedAlert& expected) {
  try {
    if (!expected.name.empty()) show(expected.name, alert);
  } catch (const std::exception& error) {
    failure_ = error.what();
  }
  const bool isDefault = expected.answer == AlertAnswer::defaultButton;
  auto* button = alert.findChild<QAbstractButton*>(isDefault ? "alertDefaultButton" : "alertAlternateButton");
  if (button != nullptr) return button->click();
  failure_ = expected.name + " has no such button";
  alert.reject();
}

}  // namespace calvero::testing
