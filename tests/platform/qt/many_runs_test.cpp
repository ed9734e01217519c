#include <gtest/gtest.h>

#include <QEventLoop>
#include <QPixmapCache>
#include <QTimer>
#include <atomic>

#include "tests/holdings.h"
#include "tests/platform/linux/hasty_clock.h"
#include "tests/platform/qt/wizard_fixture.h"

namespace calvero::testing {
namespace {

/// Without the toolkit's cache of drawn pictures, which has a limit of its own.
Holdings holdingsNow() {
  QPixmapCache::clear();
  return {};
}

class ManyRunsInOneWindow : public WizardFixture {
 protected:
  ManyRunsInOneWindow() {
    usedClock = &clock_;
    longestUse = std::chrono::seconds(250);
  }

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
    limit.start(std::chrono::seconds(20));
    loop.exec();
    return condition();
  }

  void wipe() {
    press("buttonNext");
    press("proceedBtn");
    ASSERT_TRUE(comesTrueSoon([this] { return completed().isVisible(); }));
    QTest::keyClick(&completed(), Qt::Key_Return);
    waitForFirstPage();
  }

  void wipeAndCancel() {
    std::atomic<bool> isWriting{false};
    std::promise<void> cancelled;
    const std::shared_future<void> isCancelled = cancelled.get_future().share();
    const auto write = files.script.count(FileCall::pwrite) + 2;
    files.script.before(FileCall::pwrite, write, [&isWriting, isCancelled] {
      isWriting = true;
      isCancelled.wait();
    });
    press("buttonNext");
    press("proceedBtn");
    EXPECT_TRUE(comesTrueSoon([&] { return isWriting.load(); }));
    press("cancelBut");
    cancelled.set_value();
    waitForFirstPage();
  }

  void waitForFirstPage() {
    ASSERT_TRUE(comesTrueSoon([this] { return page() == 0 && app->shell().wipingProcessOn == 0; }));
    ASSERT_TRUE(ports.threads.waitForAll(std::chrono::seconds(20)));
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

 private:
  HastyClock clock_;
  QTimer answering_;
};

TEST_F(ManyRunsInOneWindow, LeaveNoMemoryDescriptorOrThreadBehind) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
  constexpr int kPairs = 20;  // which take as long as all do otherwise
#else
  constexpr int kPairs = 250;
#endif
  constexpr int kPairsBefore = 25;
  mountVolume("DATA", 100'000);
  Holdings before;
  Holdings after;
  use([&] {
    answerAlerts();
    runPairs(kPairsBefore);
    before = holdingsNow();
    runPairs(kPairs);
    after = holdingsNow();
  });
  EXPECT_EQ(after.descriptors, before.descriptors);
  EXPECT_EQ(after.threads, before.threads);
  EXPECT_FALSE(files.directoryExists("/media/DATA/.$$XE8AQU"));
  EXPECT_EQ(files.volume("/media/DATA").disk.takenBlocks(), 0U);
  RecordProperty("bytesForAPair", static_cast<int>((after.bytes - before.bytes) / kPairs));
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)  // they keep what was freed
  // What the toolkit and the stand-ins note down; a table of volumes, a run or a window that stayed would be more.
  constexpr std::size_t kMostBytesForAPair = 4096;
  EXPECT_LT(after.bytes, before.bytes + kPairs * kMostBytesForAPair);
#endif
}

}  // namespace
}  // namespace calvero::testing
