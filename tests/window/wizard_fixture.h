#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QStackedWidget>
#include <QTest>
#include <atomic>
#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <set>
#include <string>

#include "app/app_delegate.h"
#include "platform/linux/process/steady_clock.h"
#include "tests/fakes/fake_files.h"
#include "tests/fakes/fake_tag_store.h"
#include "tests/fakes/fake_volumes.h"
#include "tests/fakes/small_fakes.h"
#include "window/elided_label.h"
#include "window/wizard/wizard_ports.h"
#include "window/wizard/wizard_session.h"

namespace calvero::testing {

/// Real time whose pauses are short.
class HurriedClock : public SteadyClock {
 public:
  void sleep(Duration duration) override { SteadyClock::sleep(duration / 50); }
};

/// The window with its controller, event loop, alerts and threads, on a machine with volumes in memory. What a test
/// does runs as tasks of the loop.
class WizardFixture : public ::testing::Test {
 protected:
  ~WizardFixture() override {
    // What a test left running would use what is destroyed now.
    release();
    if (app) app->currentRun()->terminateThread = 1;
    EXPECT_TRUE(ports.threads.waitForAll(std::chrono::seconds(60)));
  }

  void mountVolume(const std::string& name, std::uint64_t freeBytes = 300'000) {
    MountedVolume volume;
    volume.name = name;
    volume.mountPath = "/media/" + name;
    volume.formatDescription = "ext4";
    volume.availableBytes = freeBytes;
    volume.totalBytes = 2 * freeBytes;
    if (!mountedOnce.contains(name)) files.addVolume(volume.mountPath, freeBytes);
    mountedOnce.insert(name);
    volumes.add(volume);
  }
  void unmountVolume(const std::string& name) {
    files.volume("/media/" + name).mounted = false;
    volumes.remove(name);
  }

  /// Launches the program, does what `user` does and ends it.
  void use(const std::function<void()>& user) {
    app = std::make_unique<AppDelegate>(machineOf(), fixed);
    session = std::make_unique<WizardSession>(ports, *app);
    ports.loop.startTimer(longestUse, TimerKind::oneShot, [this] {
      ADD_FAILURE() << "the program never ended";
      ports.loop.terminate();
    });
    ports.loop.post([this] { session->start(); });
    ports.loop.post([this, user] {
      user();
      ports.loop.terminate();
    });
    ports.loop.run();
  }

  /// Serves events until `condition` holds.
  [[nodiscard]] bool comesTrue(const std::function<bool()>& condition) { return QTest::qWaitFor(condition, 60'000); }

  /// Presses a button of the next alert, notes what the alert said, and goes on to do `next`.
  void answerNextAlert(const char* button = "alertDefaultButton", const std::function<void()>& next = {}) {
    ports.loop.startTimer(std::chrono::milliseconds(5), TimerKind::oneShot, [this, button, next] {
      QWidget* alert = QApplication::activeModalWidget();
      auto* pressed = alert == nullptr ? nullptr : alert->findChild<QAbstractButton*>(button);
      if (pressed == nullptr) return answerNextAlert(button, next);
      for (const QLabel* label : alert->findChildren<QLabel*>()) alertText += textOf(*label) + "\n";
      pressed->click();
      if (next) next();
    });
  }

  template <typename Kind>
  [[nodiscard]] Kind* named(const char* name) {
    return ports.window.findChild<Kind*>(name);
  }
  [[nodiscard]] std::string text(const char* label) { return textOf(*named<QLabel>(label)); }
  /// What the completion window says.
  [[nodiscard]] std::string outcome() { return textOf(*completed().findChild<QLabel*>("outcomeText")); }
  /// Whether it warns by its picture.
  [[nodiscard]] bool isWarned() {
    const QLabel* icon = completed().findChild<QLabel*>("outcomeIcon");
    const QSize size = icon->pixmap().deviceIndependentSize().toSize();
    return icon->pixmap().toImage() == iconFor(OutcomeKind::warning).pixmap(size, icon->devicePixelRatio()).toImage();
  }
  [[nodiscard]] int page() { return named<QStackedWidget>("tabView")->currentIndex(); }
  void press(const char* button) { named<QAbstractButton>(button)->click(); }
  static constexpr const char* kYes = "alertDefaultButton";
  /// From the volume page into a run.
  void startRun() {
    press("buttonNext");
    answerNextAlert(kYes, [this] { answerNextAlert(); });  // then the notice
    press("proceedBtn");
  }
  /// Starts a run whose worker waits in the middle of a write until `release`, or the end of the test.
  void startRunAndHoldIt() {
    files.script.before(FileCall::pwrite, 4, [this] {
      isHeld = true;
      released_.wait();
    });
    startRun();
    ASSERT_TRUE(comesTrue([this] { return isHeld.load(); }));
  }
  void release() {
    if (isHeld) release_.set_value();
    isHeld = false;
  }
  [[nodiscard]] CompletedWindow& completed() { return ports.window.completedWindow(); }

  Journal journal;
  FakeVolumes volumes{journal};
  FakeFiles files{journal};
  FakeTagStore tags{journal};
  FakeDesktop desktop{journal};
  FakeLocalisation texts;
  FakeRandom random;
  FakeSystemNotifications systemNotifications{journal};
  HurriedClock clock;
  std::chrono::seconds longestUse{100};
  FixedValues fixed;
  Clock* usedClock = &clock;
  Files* usedFiles = &files;
  MountedVolumes* usedVolumes = &volumes;
  DiskLookup* usedLookup = &volumes;
  std::string alertText;
  std::set<std::string> mountedOnce;
  WizardPorts ports{{tags, desktop, desktop, texts}};
  std::atomic<bool> isHeld{false};
  std::unique_ptr<AppDelegate> app;
  std::unique_ptr<WizardSession> session;

  Ports machineOf() {
    const Ports real = ports.ports();
    return {.alerts = real.alerts,
            .clock = *usedClock,
            .controls = real.controls,
            .diskLookup = *usedLookup,
            .eventLoop = real.eventLoop,
            .files = *usedFiles,
            .informationFile = desktop,
            .localisation = texts,
            .mountedVolumes = *usedVolumes,
            .popUpWindow = real.popUpWindow,
            .random = random,
            .suiteWeb = desktop,
            .log = real.log,
            .systemNotifications = systemNotifications,
            .tagStore = tags,
            .threads = real.threads,
            .workspace = desktop};
  }

 private:
  /// A text without the invisible marks that set a name apart from its surroundings.
  static std::string textOf(const QLabel& label) {
    const auto* elided = qobject_cast<const ElidedLabel*>(&label);
    return (elided != nullptr ? elided->text() : label.text())
        .remove(QChar(0x2068))
        .remove(QChar(0x2069))
        .toStdString();
  }

  std::promise<void> release_;
  std::shared_future<void> released_{release_.get_future()};
};

}  // namespace calvero::testing
