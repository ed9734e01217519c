#include <gtest/gtest.h>

#include <QEventLoop>
#include <QPixmapCache>
#include <QTimer>
#include <filesystem>

#include "platform/linux/files/linux_files.h"
#include "platform/linux/volumes/linux_volumes.h"
#include "tests/holdings.h"
#include "tests/platform/linux/process/hasty_clock.h"
#include "tests/window/image_mounts.h"
#include "tests/window/wizard_fixture.h"

namespace calvero::testing {
namespace {

/// Without the toolkit's cache of drawn pictures, which has a limit of its own.
Holdings holdingsNow() {
  QPixmapCache::clear();
  return {};
}

/// The volumes that the system has mounted, of which one is offered: the machine's own disks are not to be erased.
class OneVolume : public LinuxVolumes {
 public:
  OneVolume() : LinuxVolumes([](const std::string&) { return std::uint64_t{0}; }) {}

  std::string path;

  std::vector<MountedVolume> mountedVolumes() override {
    std::vector<MountedVolume> volumes = LinuxVolumes::mountedVolumes();
    std::erase_if(volumes, [this](const MountedVolume& volume) { return volume.mountPath != path; });
    return volumes;
  }
};

/// The window, and a real volume that it erases again and again.
class ManyRunsInOneWindow : public WizardFixture {
 protected:
  void SetUp() override {
    mounts_.open();
    if (IsSkipped()) return;
    volume_.path = mounts_.mountNew({"mkfs.ext4", "-q", "-O", "^has_journal", "-L", "many"}, "ext4", 4);
    ASSERT_NE(volume_.path, "");
    usedClock = &clock_;
    usedFiles = &files_;
    usedVolumes = &volume_;
    usedLookup = &volume_;
    longestUse = std::chrono::seconds(550);
  }
  void TearDown() override { mounts_.close(); }

  /// Presses the default button of every alert as soon as it is there.
  void answerAlerts() {
    QObject::connect(&answering_, &QTimer::timeout, [] {
      QWidget* alert = QApplication::activeModalWidget();
      auto* button = alert == nullptr ? nullptr : alert->findChild<QAbstractButton*>("alertDefaultButton");
      if (button != nullptr) button->click();
    });
    answering_.start(std::chrono::milliseconds(1));
  }

  /// As comesTrue, but without its pauses between two rounds of events: each change of the screen is a round.
  [[nodiscard]] static bool comesTrueSoon(const std::function<bool()>& condition) {
    QEventLoop loop;
    QTimer looking;
    QObject::connect(&looking, &QTimer::timeout, &loop, [&] {
      if (condition()) loop.quit();
    });
    looking.start(std::chrono::milliseconds(1));
    QTimer limit;
    QObject::connect(&limit, &QTimer::timeout, &loop, &QEventLoop::quit);
    limit.start(std::chrono::seconds(60));
    loop.exec();
    return condition();
  }

  void wipe() {
    press("buttonNext");
    press("proceedBtn");
    ASSERT_TRUE(comesTrueSoon([this] { return completed().isVisible(); }));
    EXPECT_EQ(app->currentRun()->outcome, RunOutcome::finished);
    EXPECT_EQ(app->currentRun()->faults(), 0U);
    QTest::keyClick(&completed(), Qt::Key_Return);
    waitForFirstPage();
  }

  /// Cancelled as soon as something has been written.
  void wipeAndCancel() {
    press("buttonNext");
    press("butNINTH_ALGO");  // passes enough
    press("proceedBtn");
    EXPECT_TRUE(comesTrueSoon([this] { return app->currentRun()->counters.bytesWritten != 0; }));
    press("cancelBut");
    EXPECT_EQ(app->currentRun()->outcome, RunOutcome::cancelled);
    waitForFirstPage();
  }

  void waitForFirstPage() {
    ASSERT_TRUE(comesTrueSoon([this] { return page() == 0 && app->shell().wipingProcessOn == 0; }));
    ASSERT_TRUE(ports.threads.waitForAll(std::chrono::seconds(60)));
    ASSERT_TRUE(comesTrueSoon([this] { return !completed().isVisible(); }));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);  // as when a program is back in its main loop
    journal.clear();                                                      // it remembers every call
  }

  void runPairs(int count) {
    for (int pair = 0; pair < count && !HasFatalFailure(); ++pair) {
      wipe();
      wipeAndCancel();
    }
  }

  OneVolume volume_;

 private:
  ImageMounts mounts_;
  HastyClock clock_;
  LinuxFiles files_;
  QTimer answering_;
};

TEST_F(ManyRunsInOneWindow, LeaveNoMemoryDescriptorOrThreadBehind) {
  constexpr int kPairsBefore = 25;
  const std::uint64_t freeBytes = std::filesystem::space(volume_.path).free;
  Holdings before;
  Holdings after;
  use([&] {
    answerAlerts();
    runPairs(kPairsBefore);
    before = holdingsNow();
    runPairs(kPairs);
    after = holdingsNow();
  });
  EXPECT_FALSE(std::filesystem::exists(volume_.path + "/.$$XE8AQU"));
  EXPECT_EQ(std::filesystem::space(volume_.path).free, freeBytes);
  // What the toolkit and the stand-ins note down; a table of volumes, a run or a window that stayed would be more.
  constexpr std::size_t kMostBytesForAPair = 2800;
  expectNothingGained(before, after, kMostBytesForAPair);
}

}  // namespace
}  // namespace calvero::testing
