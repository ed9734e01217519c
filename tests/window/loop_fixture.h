#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <functional>

#include "tests/fakes/small_fakes.h"
#include "window/event_dispatch.h"
#include "window/qt_event_loop.h"

namespace calvero::testing {

/// Longer than anything that is waited for takes.
constexpr std::chrono::seconds kLongWait{20};

/// An event loop with its log. A test that hangs ends after a while, as a failure.
class LoopFixture : public ::testing::Test {
 protected:
  /// Runs `body` as the loop's first task, and the loop until somebody ends it.
  int runWith(const std::function<void()>& body) {
    loop.startTimer(std::chrono::seconds(20), TimerKind::oneShot, [this] {
      ADD_FAILURE() << "nobody ended the loop";
      loop.terminate();
    });
    bool begun = false;
    loop.post([&] {
      begun = true;
      body();
    });
    const int status = loop.run();
    EXPECT_TRUE(begun) << "a loop runs only once";
    return status;
  }

  /// Runs `body` and ends the loop.
  void runOnly(const std::function<void()>& body) {
    runWith([&] {
      body();
      loop.terminate();
    });
  }

  Journal journal;
  FakeLog log{journal};
  EventDispatch dispatch{log};
  QtEventLoop loop{dispatch};
};

}  // namespace calvero::testing
