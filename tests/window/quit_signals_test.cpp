#include "window/quit_signals.h"

#include <csignal>
#include <stdexcept>
#include <thread>

#include "tests/window/loop_fixture.h"

namespace calvero {
namespace {

using std::chrono::seconds;

class QuitSignalsTest : public testing::LoopFixture {};

TEST_F(QuitSignalsTest, RunTheirActionOnTheLoopForEverySignal) {
  int signals = 0;
  const QuitSignals quit(dispatch, [&] {
    EXPECT_TRUE(loop.isEventLoopThread());
    if (++signals == 4) loop.terminate();
  });
  runWith([] {
    std::raise(SIGINT);
    std::raise(SIGTERM);
    std::raise(SIGHUP);
    std::raise(SIGQUIT);
  });
  EXPECT_EQ(signals, 4);
}

TEST_F(QuitSignalsTest, ASignalThatReachesAnotherThreadRunsTheActionOnTheLoop) {
  const QuitSignals quit(dispatch, [&] {
    EXPECT_TRUE(loop.isEventLoopThread());
    loop.terminate();
  });
  std::thread receiver;
  runWith([&] { receiver = std::thread([] { std::raise(SIGTERM); }); });
  receiver.join();
}

TEST_F(QuitSignalsTest, ASignalIsServedWhileTheActionOfAnEarlierOneWaits) {
  int begun = 0;
  const QuitSignals quit(dispatch, [&] {
    if (++begun == 1) {
      std::raise(SIGINT);
      EXPECT_TRUE(loop.serveUntil([&] { return begun == 2; }, seconds(10)));
      loop.terminate();
    }
  });
  runWith([] { std::raise(SIGINT); });
  EXPECT_EQ(begun, 2);
}

TEST_F(QuitSignalsTest, AnExceptionOfTheActionIsLogged) {
  const QuitSignals quit(dispatch, [&] {
    loop.terminate();
    throw std::runtime_error("quit");
  });
  runWith([] { std::raise(SIGINT); });
  EXPECT_EQ(journal.all(), testing::Steps{"log Unexpected failure: quit"});
}

TEST_F(QuitSignalsTest, LeaveASignalIgnoredThatWasIgnoredBefore) {
  const auto before = std::signal(SIGHUP, SIG_IGN);
  int signals = 0;
  {
    const QuitSignals quit(dispatch, [&] {
      ++signals;
      loop.terminate();
    });
    runWith([] {
      std::raise(SIGHUP);
      std::raise(SIGINT);
    });
  }
  EXPECT_EQ(std::signal(SIGHUP, before), SIG_IGN);
  EXPECT_EQ(signals, 1);
}

TEST_F(QuitSignalsTest, PutBackAtTheirEndWhatWasThereBefore) {
  const auto before = std::signal(SIGINT, SIG_DFL);
  {
    const QuitSignals quit(dispatch, [] {});
  }
  EXPECT_EQ(std::signal(SIGINT, before), SIG_DFL);
}

}  // namespace
}  // namespace calvero
