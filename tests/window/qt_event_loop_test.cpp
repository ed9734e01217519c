#include "window/qt_event_loop.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QWidget>
#include <functional>
#include <memory>
#include <stdexcept>
#include <thread>
#include <vector>

#include "tests/window/loop_fixture.h"

namespace calvero {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

class QtEventLoopTest : public testing::LoopFixture {};

std::vector<int> numbersBelow(int end) {
  std::vector<int> numbers;
  for (int i = 0; i < end; ++i) numbers.push_back(i);
  return numbers;
}

TEST_F(QtEventLoopTest, RunsTasksInTheOrderOfPosting) {
  std::vector<int> order;
  for (int i = 0; i < 100; ++i) loop.post([&order, i] { order.push_back(i); });
  EXPECT_EQ(runWith([&] { loop.terminate(); }), 0);
  EXPECT_EQ(order, numbersBelow(100));
}

TEST_F(QtEventLoopTest, RunsTasksOfOtherThreadsOnItsOwnThreadAndInTheirOrder) {
  std::vector<int> order;
  std::thread poster;
  const auto postAll = [&] {
    EXPECT_FALSE(loop.isEventLoopThread());
    for (int i = 0; i < 1000; ++i) {
      loop.post([&, i] {
        EXPECT_TRUE(loop.isEventLoopThread());
        order.push_back(i);
      });
    }
    loop.post([&] { loop.terminate(); });
  };
  runWith([&] { poster = std::thread(postAll); });
  poster.join();
  EXPECT_EQ(order, numbersBelow(1000));
}

/// A widget that counts the events that are posted to it.
class CountingWidget : public QWidget {
 public:
  int seen = 0;

 protected:
  bool event(QEvent* event) override {
    if (event->type() == QEvent::User) ++seen;
    return QWidget::event(event);
  }
};

TEST_F(QtEventLoopTest, OtherEventsComeBetweenTasksThatWaitTogether) {
  CountingWidget widget;
  int seenBeforeTheLast = 0;
  runWith([&] {
    for (int i = 0; i < 101; ++i) loop.post([] {});
    loop.post([&] {
      seenBeforeTheLast = widget.seen;
      loop.terminate();
    });
    QCoreApplication::postEvent(&widget, new QEvent(QEvent::User), Qt::LowEventPriority);
  });
  EXPECT_EQ(seenBeforeTheLast, 1);
}

TEST_F(QtEventLoopTest, ATaskThatPostsItselfForeverDoesNotHoldUpATimer) {
  std::function<void()> again = [&] { loop.post(again); };
  runWith([&] {
    again();
    loop.startTimer(milliseconds(5), TimerKind::oneShot, [&] { loop.terminate(); });
  });
  EXPECT_EQ(journal.all(), testing::Steps{});
}

TEST_F(QtEventLoopTest, AnExceptionOfATaskOrATimerIsLoggedAndTheLoopGoesOn) {
  runWith([&] {
    loop.post([&] {
      loop.startTimer(milliseconds(0), TimerKind::oneShot, [&] {
        loop.post([&] { loop.terminate(); });
        throw std::runtime_error("timer");
      });
      throw std::runtime_error("task");
    });
  });
  EXPECT_EQ(journal.all(), (testing::Steps{"log Unexpected failure: task", "log Unexpected failure: timer"}));
}

TEST_F(QtEventLoopTest, AOneShotTimerFiresOnceAndARepeatingOneUntilItIsStopped) {
  int once = 0;
  int repeated = 0;
  TimerId repeating = kNoTimer;
  runWith([&] {
    EXPECT_NE(loop.startTimer(milliseconds(1), TimerKind::oneShot, [&] { ++once; }), kNoTimer);
    repeating = loop.startTimer(milliseconds(2), TimerKind::repeating, [&] {
      if (++repeated != 3) return;
      loop.stopTimer(repeating);
      // Had the stop no effect, the repeating one would fire again before this.
      loop.startTimer(milliseconds(20), TimerKind::oneShot, [&] { loop.terminate(); });
    });
  });
  EXPECT_EQ(once, 1);
  EXPECT_EQ(repeated, 3);
}

TEST_F(QtEventLoopTest, AnActionMayStopItsOwnTimerAndGoOnUsingWhatItHolds) {
  TimerId own = kNoTimer;
  const auto held = std::make_shared<int>(7);
  int seen = 0;
  runWith([&, held = held] {
    own = loop.startTimer(milliseconds(1), TimerKind::repeating, [&, held] {
      loop.stopTimer(own);
      seen = *held;
      loop.terminate();
    });
  });
  EXPECT_EQ(seen, 7);
}

TEST_F(QtEventLoopTest, AnActionMayStopItsOwnTimerAndStartTheNextOneAgainAndAgain) {
  constexpr int kLooks = 3;
  TimerId own = kNoTimer;
  int looks = 0;
  std::function<void()> look = [&] {
    loop.stopTimer(own);
    if (++looks == kLooks) return loop.terminate();
    own = loop.startTimer(milliseconds(1), TimerKind::repeating, look);
  };
  runWith([&] { own = loop.startTimer(milliseconds(1), TimerKind::repeating, look); });
  EXPECT_EQ(looks, kLooks);
}

TEST_F(QtEventLoopTest, AStoppedTimerNeverFiresAndStoppingAnEndedOneHarmsNoOther) {
  bool stoppedFired = false;
  TimerId ended = kNoTimer;
  runWith([&] {
    const TimerId stopped = loop.startTimer(milliseconds(0), TimerKind::oneShot, [&] { stoppedFired = true; });
    loop.stopTimer(stopped);
    loop.stopTimer(stopped + 100);
    ended = loop.startTimer(milliseconds(1), TimerKind::oneShot, [&] {
      loop.startTimer(milliseconds(5), TimerKind::oneShot, [&] { loop.terminate(); });
      loop.stopTimer(ended);
    });
  });
  EXPECT_FALSE(stoppedFired);
}

TEST_F(QtEventLoopTest, ATimerKeepsItsInterval) {
  constexpr int kTimes = 10;
  constexpr milliseconds kInterval{20};
  int fired = 0;
  QElapsedTimer elapsed;
  runWith([&] {
    elapsed.start();
    loop.startTimer(kInterval, TimerKind::repeating, [&] {
      if (++fired == kTimes) loop.terminate();
    });
  });
  EXPECT_GE(elapsed.elapsed(), (kTimes * kInterval).count() * 95 / 100);
}

TEST_F(QtEventLoopTest, ServesOtherEventsUntilTheConditionHolds) {
  std::vector<int> order;
  bool answered = false;
  runOnly([&] {
    loop.post([&] { order.push_back(1); });
    loop.post([&] {
      order.push_back(2);
      answered = true;
    });
    loop.post([&] { order.push_back(4); });
    EXPECT_TRUE(loop.serveUntil([&] { return answered; }, testing::kLongWait));
    order.push_back(3);
  });
  EXPECT_EQ(order, (std::vector<int>{1, 2, 3}));
}

TEST_F(QtEventLoopTest, AConditionThatHoldsAlreadyServesNothing) {
  bool served = false;
  runOnly([&] {
    loop.post([&] { served = true; });
    EXPECT_TRUE(loop.serveUntil([] { return true; }, testing::kLongWait));
    EXPECT_FALSE(loop.serveUntil([] { return false; }, milliseconds(0)));
    EXPECT_FALSE(served);
  });
}

TEST_F(QtEventLoopTest, ServesUserInputWhileItWaitsAndAsksAfterIt) {
  CountingWidget widget;
  runOnly([&] {
    QCoreApplication::postEvent(&widget, new QEvent(QEvent::User));
    EXPECT_TRUE(loop.serveUntil([&] { return widget.seen == 1; }, testing::kLongWait));
  });
}

TEST_F(QtEventLoopTest, AWaitEndsAtItsLimit) {
  runOnly([&] {
    QElapsedTimer elapsed;
    elapsed.start();
    EXPECT_FALSE(loop.serveUntil([] { return false; }, milliseconds(30)));
    EXPECT_GE(elapsed.elapsed(), 28);
  });
}

TEST_F(QtEventLoopTest, AWaitInsideAWaitLeavesTheOuterOneInForce) {
  bool inner = false;
  bool outer = false;
  runOnly([&] {
    loop.post([&] {
      loop.post([&] { outer = true; });
      loop.post([&] { inner = true; });
      EXPECT_TRUE(loop.serveUntil([&] { return inner; }, testing::kLongWait));
      EXPECT_TRUE(outer);
    });
    EXPECT_TRUE(loop.serveUntil([&] { return outer; }, testing::kLongWait));
    EXPECT_TRUE(inner);
  });
}

TEST_F(QtEventLoopTest, AnExceptionOfAConditionIsLoggedAndTheWaitGoesOn) {
  int asked = 0;
  runOnly([&] {
    loop.post([] {});
    EXPECT_TRUE(loop.serveUntil(
        [&] {
          if (++asked == 2) throw std::runtime_error("condition");
          if (asked == 2) loop.post([] {});
          return asked > 2;
        },
        seconds(1)));
  });
  EXPECT_EQ(journal.all(), testing::Steps{"log Unexpected failure: condition"});
}

}  // namespace
}  // namespace calvero
