#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/app_delegate.h"
#include "terminal/commands/command_ports.h"
#include "tests/holdings.h"
#include "tests/platform/linux/process/hasty_clock.h"
#include "tests/platform/linux/volumes/mounted_images.h"

namespace calvero::testing {
namespace {

/// One controller that wipes a real volume again and again, with all that the terminal gives it.
class ManyRunsOnAVolume : public MountedImages {
 protected:
  void SetUp() override {
    MountedImages::SetUp();
    if (IsSkipped()) return;
    path_ = makeFolder("volume");
    device_ = makeFileSystem({"mkfs.ext4", "-q", "-O", "^has_journal", "-L", "many"}, 4);
    ASSERT_TRUE(device_ && mount(device_->path(), path_, "ext4"));
    app_.emplace(portsWithHastyClock());
    app_->applicationDidFinishLaunching();
    ports_.controls.onCompleted = [this] { app_->OKBtn(); };
  }

  RunOutcome wipe() {
    start(kOnePass);
    return end();
  }
  /// Cancelled as soon as something has been written.
  RunOutcome wipeAndCancel() {
    start(kManyPasses);
    const RunPtr run = app_->currentRun();
    serveUntil([&] { return run->counters.bytesWritten != 0; });
    app_->cancelWipe();
    return end();
  }

  void runPairs(int count) {
    for (int pair = 0; pair < count && !HasFailure(); ++pair) {
      EXPECT_EQ(wipe(), RunOutcome::finished);
      EXPECT_EQ(wipeAndCancel(), RunOutcome::cancelled);
      EXPECT_FALSE(std::filesystem::exists(path_ + "/.$$XE8AQU"));
    }
    const auto held = std::count_if(runs_.begin(), runs_.end(), [](const auto& run) { return !run.expired(); });
    EXPECT_LE(held, 1) << "the controller's own";
    runs_.clear();  // even those that are gone keep their memory for as long as somebody may ask
  }

  std::string path_;

 private:
  static constexpr std::int32_t kOnePass = 0;
  static constexpr std::int32_t kManyPasses = 7;
  static constexpr std::chrono::seconds kLongestRun{60};

  Ports portsWithHastyClock() {
    const Ports real = ports_.ports();
    return {.alerts = real.alerts,
            .clock = clock_,
            .controls = real.controls,
            .diskLookup = real.diskLookup,
            .eventLoop = real.eventLoop,
            .files = real.files,
            .informationFile = real.informationFile,
            .localisation = real.localisation,
            .mountedVolumes = real.mountedVolumes,
            .popUpWindow = real.popUpWindow,
            .random = real.random,
            .suiteWeb = real.suiteWeb,
            .log = real.log,
            .systemNotifications = real.systemNotifications,
            .tagStore = real.tagStore,
            .threads = real.threads,
            .workspace = real.workspace};
  }

  void start(std::int32_t method) {
    const auto volumes = offeredVolumes(*app_);
    const auto isIt = [this](const MountedVolume& volume) { return volume.mountPath == path_; };
    const auto it = std::find_if(volumes.begin(), volumes.end(), isIt);
    ASSERT_NE(it, volumes.end());
    app_->setCurrentSelection(static_cast<std::size_t>(it - volumes.begin()));
    app_->next();
    app_->chooseMethod(method);
    app_->proceed();
    runs_.push_back(app_->currentRun());
  }
  /// Serves until every thread of the run has ended; how it ended.
  RunOutcome end() {
    const RunPtr run = runs_.back().lock();
    serveUntil([&] { return run->workerEnded != 0 && app_->shell().wipingProcessOn == 0; });
    EXPECT_TRUE(ports_.threads.waitForAll(kLongestRun));
    ports_.loop.runReady();
    EXPECT_EQ(run->faults(), 0U);
    return run->outcome;
  }
  /// Looks every millisecond.
  void serveUntil(const std::function<bool()>& done) {
    const auto limit = std::chrono::steady_clock::now() + kLongestRun;
    const TimerId looking = ports_.loop.startTimer(std::chrono::milliseconds(1), TimerKind::repeating, [] {});
    ports_.loop.runUntil([&] { return done() || std::chrono::steady_clock::now() > limit; });
    ports_.loop.stopTimer(looking);
    EXPECT_TRUE(done());
  }

  HastyClock clock_;
  CommandPorts ports_{Output::nowhere(), Answering::defaultButtons};
  std::unique_ptr<LoopDevice> device_;
  std::optional<AppDelegate> app_;
  std::vector<std::weak_ptr<WipeRun>> runs_;
};

TEST_F(ManyRunsOnAVolume, LeaveNoRunMemoryDescriptorThreadOrSpaceBehind) {
  constexpr int kPairsBefore = 25;
  runPairs(kPairsBefore);
  const std::uint64_t freeBytes = std::filesystem::space(path_).free;
  const Holdings before;
  runPairs(kPairs);
  const Holdings after;
  EXPECT_EQ(std::filesystem::space(path_).free, freeBytes);
  // What grows by design is an observer for each list of volumes.
  constexpr std::size_t kMostBytesForAPair = 1024;
  expectNothingGained(before, after, kMostBytesForAPair);
}

}  // namespace
}  // namespace calvero::testing
