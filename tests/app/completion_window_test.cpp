#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

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

TEST_F(CompletionWindow, AskedForByAnotherThreadIsLeftToTheEventLoop) {
  world.loop.setPosts(FakeEventLoop::Posts::queued);
  world.loop.setLoopThread(FakeEventLoop::LoopThread::thisThreadOnly);
  for (const bool ejected : {false, true}) {
    std::thread other([this] { world.app().positionHUDWindow(); });
    world.app().allocateAllArrays();  // another run takes the current one's place meanwhile
    other.join();
    EXPECT_THAT(world.journal.all(), ElementsAre("post"));
    world.app().currentRun()->volumeEjected = ejected ? 1 : 0;
    world.journal.clear();
    world.loop.drain();
    EXPECT_EQ(world.journal.all().front(), ejected ? "moveToOriginOf windowCompleted window" : "selectPage 0");
    world.journal.clear();
  }
}

}  // namespace
}  // namespace calvero
