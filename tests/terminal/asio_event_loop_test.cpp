#include "terminal/asio_event_loop.h"

#include <gtest/gtest.h>

#include <csignal>
#include <future>
#include <thread>
#include <vector>

#include "terminal/stop_signals.h"

namespace calvero {
namespace {

using std::chrono::milliseconds;

TEST(AsioEventLoop, RunsTasksInTheOrderOfPosting) {
  AsioEventLoop loop;
  std::vector<int> order;
  for (int i = 0; i < 100; ++i) loop.post([&order, i] { order.push_back(i); });
  loop.post([&] { loop.terminate(); });
  loop.run();
  ASSERT_EQ(order.size(), 100U);
  for (int i = 0; i < 100; ++i) EXPECT_EQ(order[static_cast<std::size_t>(i)], i);
}

TEST(AsioEventLoop, RunsTasksOfOtherThreadsOnItsOwnThreadAndInTheirOrder) {
  AsioEventLoop loop;
  std::vector<int> order;
  std::thread poster([&] {
    EXPECT_FALSE(loop.isEventLoopThread());
    for (int i = 0; i < 1000; ++i) {
      loop.post([&, i] {
        EXPECT_TRUE(loop.isEventLoopThread());
        order.push_back(i);
      });
    }
    loop.post([&] { loop.terminate(); });
  });
  loop.run();
  poster.join();
  ASSERT_EQ(order.size(), 1000U);
  for (int i = 0; i < 1000; ++i) EXPECT_EQ(order[static_cast<std::size_t>(i)], i);
}

TEST(AsioEventLoop, ServesOtherEventsInsideATaskThatWaits) {
  AsioEventLoop loop;
  std::vector<int> order;
  bool answered = false;
  loop.post([&] {
    loop.runUntil([&] { return answered; });
    order.push_back(3);
    loop.terminate();
  });
  loop.post([&] { order.push_back(1); });
  loop.post([&] {
    order.push_back(2);
    answered = true;
  });
  loop.run();
  EXPECT_EQ(order, (std::vector<int>{1, 2, 3}));
}

TEST(AsioEventLoop, AOneShotTimerFiresOnceAndARepeatingOneUntilItIsStopped) {
  AsioEventLoop loop;
  int once = 0;
  int repeated = 0;
  TimerId repeating = kNoTimer;
  loop.startTimer(milliseconds(1), TimerKind::oneShot, [&] { ++once; });
  repeating = loop.startTimer(milliseconds(2), TimerKind::repeating, [&] {
    if (++repeated != 3) return;
    loop.stopTimer(repeating);
    // Had the stop no effect, the repeating one would fire again before this.
    loop.startTimer(milliseconds(20), TimerKind::oneShot, [&] { loop.terminate(); });
  });
  EXPECT_NE(repeating, kNoTimer);
  loop.run();
  EXPECT_EQ(once, 1);
  EXPECT_EQ(repeated, 3);
}

TEST(AsioEventLoop, AStoppedTimerNeverFires) {
  AsioEventLoop loop;
  bool fired = false;
  const TimerId stopped = loop.startTimer(milliseconds(0), TimerKind::oneShot, [&] { fired = true; });
  loop.stopTimer(stopped);
  loop.stopTimer(stopped + 100);
  loop.startTimer(milliseconds(5), TimerKind::oneShot, [&] { loop.terminate(); });
  loop.run();
  EXPECT_FALSE(fired);
}

TEST(AsioEventLoop, TerminateFromAnyThreadEndsTheLoopAndTheWaitsInsideIt) {
  AsioEventLoop loop;
  bool waitReturned = false;
  std::thread ender;
  loop.post([&] {
    ender = std::thread([&] { loop.terminate(); });
    loop.runUntil([] { return false; });
    waitReturned = true;
  });
  loop.run();
  ender.join();
  EXPECT_TRUE(waitReturned);
}

TEST(AsioEventLoop, DestroysWhatIsPostedAfterItsEndSoThatNobodyWaitsForIt) {
  AsioEventLoop loop;
  auto waiting = std::make_shared<std::promise<void>>();
  auto late = std::make_shared<std::promise<void>>();
  auto waitingResult = waiting->get_future();
  auto lateResult = late->get_future();
  loop.post([&] { loop.terminate(); });
  loop.post([waiting] { waiting->set_value(); });
  waiting.reset();
  loop.run();
  loop.post([late] { late->set_value(); });
  late.reset();
  EXPECT_THROW(waitingResult.get(), std::future_error);
  EXPECT_THROW(lateResult.get(), std::future_error);
}

TEST(AsioEventLoop, ServesEventsUntilWhatIsWaitedForIsDone) {
  AsioEventLoop loop;
  bool done = false;
  int served = 0;
  loop.post([&] { ++served; });
  loop.post([&] { done = true; });
  EXPECT_TRUE(loop.serveUntil([&] { return done; }, std::chrono::seconds(20)));
  EXPECT_EQ(served, 1);
}

TEST(AsioEventLoop, ServesEventsNoLongerThanTheLimit) {
  AsioEventLoop loop;
  EXPECT_FALSE(loop.serveUntil([] { return false; }, std::chrono::milliseconds(20)));
}

TEST(AsioEventLoop, StopsServingWhenTheApplicationEnds) {
  AsioEventLoop loop;
  loop.post([&] { loop.terminate(); });
  EXPECT_FALSE(loop.serveUntil([] { return false; }, std::chrono::seconds(20)));
}

TEST(StopSignals, RunTheirActionOnTheLoopForEverySignal) {
  AsioEventLoop loop;
  int signals = 0;
  const StopSignals stop(loop, [&] {
    EXPECT_TRUE(loop.isEventLoopThread());
    if (++signals == 4) loop.terminate();
  });
  for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT}) loop.post([signal] { std::raise(signal); });
  loop.run();
  EXPECT_EQ(signals, 4);
}

TEST(StopSignals, LeaveASignalIgnoredThatWasIgnoredBefore) {
  const auto before = std::signal(SIGHUP, SIG_IGN);
  AsioEventLoop loop;
  int signals = 0;
  const StopSignals stop(loop, [&] {
    ++signals;
    loop.terminate();
  });
  loop.post([] { std::raise(SIGHUP); });
  loop.post([] { std::raise(SIGINT); });
  loop.run();
  std::signal(SIGHUP, before);
  EXPECT_EQ(signals, 1);
}

}  // namespace
}  // namespace calvero
