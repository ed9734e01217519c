#pragma once

#include <QPointer>
#include <QString>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

#include "app/app_delegate.h"
#include "ports/alerts.h"
#include "ports/clock.h"
#include "tests/fakes/fake_files.h"
#include "tests/fakes/fake_tag_store.h"
#include "tests/fakes/fake_volumes.h"
#include "tests/fakes/journal.h"
#include "tests/fakes/small_fakes.h"
#include "window/translations.h"
#include "window/wizard/wizard_ports.h"
#include "window/wizard/wizard_session.h"

class QDialog;

namespace calvero::testing {

/// A point that a thread passes when it is let. Any thread.
class Latch {
 public:
  /// `onArrival` runs on the thread that comes.
  explicit Latch(std::function<void()> onArrival) : onArrival_(std::move(onArrival)) {}

  void wait();
  void release();
  [[nodiscard]] bool isReached() const;

 private:
  const std::function<void()> onArrival_;
  mutable std::mutex mutex_;
  std::condition_variable released_;
  bool isReached_ = false;
  bool isReleased_ = false;
};

/// Time as a scene has it: only `advance` moves it. A sleep lasts a moment, whatever it was meant to last.
class SceneClock : public Clock {
 public:
  void advance(std::chrono::seconds time);
  /// Runs at the beginning of a sleep of at least that length, on the sleeper's thread.
  void atSleepOf(std::chrono::seconds length, std::function<void()> hook);

  Duration now() override;
  void sleep(Duration duration) override;

 private:
  std::mutex mutex_;
  Duration now_{1000.0};
  Duration hookedLength_{0.0};
  std::function<void()> hook_;
};

/// What the window shows when a visitor is called.
struct ShownScreen {
  std::string name;
  QWidget* shown;      ///< the window that the scene is about
  MainWindow* window;  ///< the window behind it
};
using Visitor = std::function<void(const ShownScreen&)>;

/// The window and its controller, with volumes and a disk that exist in memory only. Played once.
class SceneFixture {
 public:
  SceneFixture(const std::string& language, Visitor visitor);
  ~SceneFixture();

  // Before the play.

  /// `availableBytes` is what the window shows; a few blocks of it can be written.
  void volume(MountedVolume volume);
  void order(const std::string& volumeName);
  /// What the administrator would type, whatever machine and user this is; without it there is nothing to type.
  void administratorCommand(const std::string& command) { administratorCommand_ = command; }
  /// Worker threads wait there until `open`.
  Latch& latchBefore(FileCall call, std::size_t nth);
  Latch& newLatch();

  /// Starts the program, runs `scenes` in its event loop, and ends it. Throws what they throw.
  void play(const std::function<void()>& scenes);

  // During the play, in the event loop. What does not come within a time limit is a std::runtime_error.

  void show(const std::string& name, QWidget& shown);
  void showWindow(const std::string& name) { show(name, window()); }
  void click(const char* button);
  void clickTile(std::size_t index);
  /// Visits the next alert under that name and answers it. Alerts that nobody expects end the play.
  void expectAlert(const std::string& name, AlertAnswer answer = AlertAnswer::defaultButton);
  void waitForAlerts();
  void waitFor(const std::string& what, const std::function<bool()>& condition);
  void waitForText(const char* label, const std::string& text);
  /// Runs `action` as soon as `condition` holds, also while the program itself waits.
  void once(std::function<bool()> condition, std::function<void()> action);

  [[nodiscard]] MainWindow& window() const { return ports_->window; }
  [[nodiscard]] PopUpWidget& popUp() const { return ports_->popUp; }
  [[nodiscard]] AppDelegate& app() const { return *app_; }
  template <typename Kind>
  [[nodiscard]] Kind& find(const char* name) const;

  FakeFiles& files() { return files_; }
  FakeVolumes& volumes() { return volumes_; }
  SceneClock& clock() { return clock_; }
  FakeTagStore& tags() { return tags_; }
  [[nodiscard]] std::string localised(const std::string& key) const { return texts_.localised(key); }

 private:
  struct ExpectedAlert {
    std::string name;
    AlertAnswer answer;
  };

  void start();
  void lookForAlert();
  void answer(QDialog& alert, const ExpectedAlert& expected);
  void releaseLatches();
  void wake() const;

  const Visitor visitor_;
  Journal journal_;
  FakeVolumes volumes_{journal_};
  FakeFiles files_{journal_};
  FakeTagStore tags_{journal_};
  FakeDesktop desktop_{journal_};
  FakeLog log_{journal_};
  SceneClock clock_;
  Translations texts_;
  std::deque<Latch> latches_;
  std::deque<ExpectedAlert> expected_;
  std::optional<std::string> administratorCommand_;
  bool isVisiting_ = false;
  std::string failure_;
  // Made when the volumes are known.
  std::unique_ptr<WizardPorts> ports_;
  std::unique_ptr<AppDelegate> app_;
  std::unique_ptr<WizardSession> session_;
};

template <typename Kind>
Kind& SceneFixture::find(const char* name) const {
  auto* found = window().findChild<Kind*>(name);
  if (found == nullptr) throw std::runtime_error(std::string("the window has no ") + name);
  return *found;
}

}  // namespace calvero::testing
