#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/world.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using testing::FakeEventLoop;
using testing::World;

class CompletionWindow : public ::testing::Test {
 protected:
  CompletionWindow() {
    world.volume("DATA", 300'000);
    world.start();
  }

  World world;
};

TEST_F(CompletionWindow, IsPinnedOntoTheMainWindowAfterTheVolumeWasFoundGone) {
  world.app().currentRun()->volumeEjected = 1;
  world.app().positionHUDWindow();
  EXPECT_THAT(world.journal.all(), ElementsAre("moveToOriginOf windowCompleted window",
                                               "attachAbove windowCompleted window", "makeImmovable windowCompleted"));
}

TEST_F(CompletionWindow, WithTheVolumeThereReturnsAtOnceAndTheFirstPageFollowsFromTheQueue) {
  world.loop.setPosts(FakeEventLoop::Posts::queued);
  world.app().positionHUDWindow();
  EXPECT_THAT(world.journal.all(), ElementsAre("post"));
  world.loop.drain();
  EXPECT_EQ(world.controls.page(), 0);
  EXPECT_TRUE(world.controls.shown(Control::buttonNext));
}

}  // namespace
}  // namespace calvero
