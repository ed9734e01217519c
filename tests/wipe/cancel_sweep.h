#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "tests/wipe/swept_run.h"

namespace calvero::testing {

inline std::size_t positionOf(const Steps& calls, const std::string& call) {
  return static_cast<std::size_t>(std::find(calls.begin(), calls.end(), call) - calls.begin()) + 1;
}

/// A write without its pattern: the file, the bytes and the offset.
inline std::string placeOf(const std::string& write) {
  return write.substr(0, write.rfind(' '));
}

class CancelSweep : public ::testing::Test {
 public:
  /// Every call of the worker of a run that nobody disturbs.
  static Steps undisturbed(SweptRun::Ordered ordered) {
    SweptRun swept(ordered, SweptRun::kNowhere);
    swept.end();
    EXPECT_EQ(swept.run->outcome, RunOutcome::finished);
    EXPECT_EQ(swept.volume().disk.coveredBlocks(), swept.volume().disk.blockCount());
    EXPECT_EQ(swept.volume().writesWithoutName, 0U);
    EXPECT_TRUE(swept.leftNothing());
    Steps calls = swept.points.calls(CallPoints::kWorker);
    EXPECT_FALSE(calls.empty());
    return calls;
  }

  /// Goes through a whole run on the event loop's thread; the calls of it.
  static Steps wipeAgain(SweptRun& swept) {
    const std::size_t before = swept.points.count(CallPoints::kEventLoop);
    swept.world.threads.setMode(FakeThreads::Mode::byHand);
    swept.world.app().next();
    swept.world.app().fastZeroWipe();
    swept.world.proceed();
    swept.world.runWorker();
    swept.world.runElapsedClock();
    EXPECT_EQ(swept.world.app().currentRun()->outcome, RunOutcome::finished);
    const Steps calls = swept.points.calls(CallPoints::kEventLoop);
    return {calls.begin() + static_cast<Steps::difference_type>(before), calls.end()};
  }
  /// What `wipeAgain` gives after a run that nobody disturbed.
  static Steps undisturbedAgain() {
    SweptRun swept(SweptRun::Ordered::byPerson, SweptRun::kNowhere);
    swept.end();
    swept.world.app().OKBtn();
    swept.world.loop.drain();
    return wipeAgain(swept);
  }

  /// The worker was told to stop at its call number `stop`: it begins nothing new, neither file nor block.
  static void expectBeganNothingAfter(const Steps& calls, std::size_t stop) {
    std::string place = "none";
    std::size_t writesThere = 0;
    for (std::size_t call = 1; call <= calls.size(); ++call) {
      const std::string& text = calls[call - 1];
      if (text.starts_with("pwrite ")) {
        EXPECT_TRUE(call <= stop || placeOf(text) == place) << "a block was begun: " << text;
        writesThere = place == placeOf(text) ? writesThere + 1 : 1;
        place = placeOf(text);
        EXPECT_LE(writesThere, SweptRun::kPasses);
      } else if (call > stop) {
        for (const char* begun : {"create ", "open "}) EXPECT_FALSE(text.starts_with(begun)) << text;
      }
    }
  }

  static void expectStopped(SweptRun& swept, std::size_t stop) {
    EXPECT_TRUE(swept.leftNothing());
    EXPECT_EQ(swept.run->workerEnded, 1);
    EXPECT_EQ(swept.run->directory(), nullptr);
    EXPECT_LT(swept.volume().writesWithoutName, SweptRun::kPasses + 1);
    EXPECT_EQ(swept.run->faults(), 0U);
    expectBeganNothingAfter(swept.points.calls(CallPoints::kWorker), stop);
    if (swept.run->outcome == RunOutcome::finished) {
      EXPECT_EQ(swept.volume().disk.coveredBlocks(), swept.volume().disk.blockCount());
    } else {
      EXPECT_EQ(swept.run->outcome, RunOutcome::cancelled);
    }
  }
  /// The same of a run that no other one has followed.
  static void expectStoppedForGood(SweptRun& swept, std::size_t stop) {
    expectStopped(swept, stop);
    const bool isCompletionShown = swept.world.controls.shown(Control::windowCompleted);
    EXPECT_TRUE(!isCompletionShown || swept.run->outcome == RunOutcome::finished);
  }

  /// How many calls the clean-up makes while the worker is held at its call number `stop`.
  static std::size_t callsOfCancel(std::size_t stop) {
    SweptRun swept(SweptRun::Ordered::byPerson, stop);
    swept.world.app().cancelWipe();
    swept.end();
    return swept.points.count(CallPoints::kCancel);
  }

  /// The first and the last call of each kind, whatever file, block and pattern it is about: for what is gone through
  /// at many points for each stop.
  static std::vector<std::size_t> tellingStops(const Steps& calls) {
    std::map<std::string, std::pair<std::size_t, std::size_t>> kinds;
    for (std::size_t stop = 1; stop <= calls.size(); ++stop) {
      const std::string kind = calls[stop - 1].substr(0, calls[stop - 1].find(' '));
      kinds.try_emplace(kind, stop, stop).first->second.second = stop;
    }
    std::vector<std::size_t> stops;
    for (const auto& [kind, ends] : kinds) {
      stops.push_back(ends.first);
      if (ends.second != ends.first) stops.push_back(ends.second);
    }
    return stops;
  }

  /// A cancel ends the application from the worker's first look at its flag until phase 2 begins.
  static bool endsTheApplication(const Steps& calls, std::size_t stop) {
    const std::size_t firstLook = positionOf(calls, "sleep 0");
    const std::size_t beginOfPhaseTwo = positionOf(calls, "sleep 1") + 2;  // the bar, the button
    return firstLook < stop && stop <= beginOfPhaseTwo;
  }

  /// Says how many points a sweep has been through.
  static void report(const char* sweep, std::size_t points) {
    RecordProperty("points", static_cast<int>(points));
    std::cout << sweep << ": " << points << " points\n";
  }
};

}  // namespace calvero::testing
