#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "app/app_delegate.h"
#include "ports/controls.h"
#include "ports/ports.h"
#include "tests/fakes/fake_alerts.h"
#include "tests/fakes/fake_clock.h"
#include "tests/fakes/fake_event_loop.h"
#include "tests/fakes/fake_files.h"
#include "tests/fakes/fake_tag_store.h"
#include "tests/fakes/fake_threads.h"
#include "tests/fakes/fake_volumes.h"
#include "tests/fakes/journal.h"
#include "tests/fakes/recording_controls.h"
#include "tests/fakes/small_fakes.h"

namespace calvero::testing {

/// A machine with volumes, and the program on it. Told in the order in which things happen: volumes and orders first,
/// then the launch, then what the user does.
class World {
 public:
  static constexpr const char* kDirectory = "/media/DATA/.$$XE8AQU";

  // --- Before the launch ---

  /// Mounts an empty ext4 volume at "/media/NAME" with that much free space.
  void volume(const std::string& name, std::uint64_t freeBytes);
  void volume(MountedVolume volume);
  /// The suite orders a wipe.
  void order(const std::string& driveName, const std::string& method);

  // --- The program ---

  /// Makes the controller; no window is used yet.
  AppDelegate& create();
  /// Makes the controller and completes the launch. The journal starts afterwards.
  AppDelegate& launch();
  /// Launches, steps to the method page and proceeds to the point where the threads have been started. The journal
  /// starts afterwards.
  AppDelegate& start();
  /// Presses Proceed; `runWorker` and `runElapsedClock` are about the run that this starts.
  void proceed();
  AppDelegate& app() { return *app_; }

  /// The body of the worker, and of the clock, of the run started last; each can be run once.
  void runWorker() { threads.run(firstThreadOfRun_); }
  void runElapsedClock() { threads.run(firstThreadOfRun_ + 1); }

  /// Pulls the medium: the volume stays in the program's list.
  void eject(const std::string& name);

  /// What was done, without diagnostics and the questions to the outside that change nothing.
  [[nodiscard]] Steps steps() const;

  Journal journal;
  FakeAlerts alerts{journal};
  FakeClock clock{journal};
  RecordingControls controls{journal};
  FakeVolumes volumes{journal};
  FakeEventLoop loop{journal};
  FakeFiles files{journal};
  FakeLocalisation localisation;
  FakePopUp popUp{journal};
  FakeDesktop desktop{journal};
  FakeRandom random;
  FakeLog log{journal};
  FakeSystemNotifications systemNotifications{journal};
  FakeTagStore tags{journal};
  FakeThreads threads{journal};
  FixedValues fixed;  ///< set before the launch

 private:
  std::size_t firstThreadOfRun_ = 0;
  std::unique_ptr<AppDelegate> app_;
};

}  // namespace calvero::testing
