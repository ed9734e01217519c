#include "wipe/wipe_run.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/fakes/world.h"

namespace calvero {
namespace {

TEST(WipeRun, IsCancelledWithItsOutcomeFirstThenTheAbortThenTheEndOfTheThread) {
  testing::World world;
  WipeRun run(world.loop, world.controls, world.alerts);
  std::vector<std::string> seen;
  run.cancel([&] {
    std::string flags = run.outcome == RunOutcome::cancelled ? "cancelled" : "under way";
    if (run.abortErasing != 0) flags += ", abort";
    if (run.terminateThread != 0) flags += ", terminate";
    seen.push_back(flags);
  });
  EXPECT_THAT(seen, ::testing::ElementsAre("cancelled", "cancelled, abort", "cancelled, abort, terminate"));
}

}  // namespace
}  // namespace calvero
