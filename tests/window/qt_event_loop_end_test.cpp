#include <QCoreApplication>
#include <QDialog>
#include <future>
#include <memory>
#include <thread>

#include "tests/window/loop_fixture.h"

namespace calvero {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

class QtEventLoopEndTest : public testing::LoopFixture {};

TEST_F(QtEventLoopEndTest, TerminateFromAnotherThreadEndsTheWaitsInsideTheLoop) {
  std::thread ender;
  bool outerReturned = false;
  runWith([&] {
    loop.post([&] {
      ender = std::thread([&] { loop.terminate(); });
      EXPECT_FALSE(loop.serveUntil([] { return false; }, testing::kLongWait));
    });
    EXPECT_FALSE(loop.serveUntil([] { return false; }, testing::kLongWait));
    outerReturned = true;
  });
  ender.join();
  EXPECT_TRUE(outerReturned);
}

TEST_F(QtEventLoopEndTest, TerminateFromAnotherThreadEndsModalDialogsInsideEachOther) {
  std::thread ender;
  int returned = 0;
  runWith([&] {
    loop.post([&] {
      QDialog second;
      loop.post([&] { ender = std::thread([&] { loop.terminate(); }); });
      second.exec();
      ++returned;
    });
    QDialog first;
    first.exec();
    ++returned;
  });
  ender.join();
  EXPECT_EQ(returned, 2);
}

TEST_F(QtEventLoopEndTest, AfterTerminateNoTaskAndNoTimerIsRunAndNoWaitIsBegun) {
  bool ran = false;
  runWith([&] {
    loop.post([&] { ran = true; });
    loop.startTimer(milliseconds(0), TimerKind::repeating, [&] { ran = true; });
    loop.terminate();
    EXPECT_FALSE(loop.serveUntil([] { return false; }, testing::kLongWait));
  });
  QCoreApplication::processEvents();
  EXPECT_FALSE(ran);
}

TEST_F(QtEventLoopEndTest, ATerminateBeforeTheLoopRunsMakesItReturnAtOnce) {
  loop.terminate();
  EXPECT_EQ(loop.run(), 0);
}

TEST_F(QtEventLoopEndTest, ATerminateOfAnotherThreadBeforeTheLoopRunsMakesItReturn) {
  std::thread([&] { loop.terminate(); }).join();
  QCoreApplication::processEvents();  // the request is used up before the loop runs
  EXPECT_EQ(loop.run(), 0);
}

TEST_F(QtEventLoopEndTest, DestroysWhatIsPostedAfterItsEndSoThatNobodyWaitsForIt) {
  auto waiting = std::make_shared<std::promise<void>>();
  auto late = std::make_shared<std::promise<void>>();
  auto waitingResult = waiting->get_future();
  auto lateResult = late->get_future();
  runWith([&] {
    loop.terminate();
    loop.post([late] { late->set_value(); });
    late.reset();
    EXPECT_EQ(lateResult.wait_for(seconds(0)), std::future_status::ready);
  });
  loop.post([waiting] { waiting->set_value(); });
  waiting.reset();
  EXPECT_THROW(waitingResult.get(), std::future_error);
  EXPECT_THROW(lateResult.get(), std::future_error);
}

TEST_F(QtEventLoopEndTest, AThreadThatWaitsForADroppedTaskIsWoken) {
  std::promise<void> posted;
  std::thread waiter;
  bool dropped = false;
  runWith([&] {
    waiter = std::thread([&] {
      auto answer = std::make_shared<std::promise<void>>();
      auto result = answer->get_future();
      loop.post([answer] { answer->set_value(); });
      answer.reset();
      posted.set_value();
      try {
        result.get();
      } catch (const std::future_error&) {
        dropped = true;
      }
    });
    posted.get_future().get();
    loop.terminate();
  });
  waiter.join();
  EXPECT_TRUE(dropped);
}

TEST_F(QtEventLoopEndTest, ADroppedTaskMayPostWhileItIsDestroyed) {
  struct PostsAtItsEnd {
    QtEventLoop& eventLoop;
    ~PostsAtItsEnd() {
      eventLoop.post([] {});
    }
  };
  runWith([&] {
    loop.post([last = std::make_shared<PostsAtItsEnd>(loop)] {});
    loop.terminate();
  });
}

}  // namespace
}  // namespace calvero
