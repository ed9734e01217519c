#include "wipe/run_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

#include "tests/fakes/world.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using testing::FakeEventLoop;
using ::testing::IsEmpty;
using testing::World;

/// The fixture's thread is the event loop thread.
class RunScreenOnThreads : public ::testing::Test {
 protected:
  RunScreenOnThreads() {
    world.loop.setPosts(FakeEventLoop::Posts::queued);
    world.loop.setLoopThread(FakeEventLoop::LoopThread::thisThreadOnly);
  }

  void setProgress(int percent) {
    screen.apply([percent](Controls& controls) { controls.setProgress(percent); });
  }

  World world;
  RunScreen screen{world.loop, world.controls, world.alerts};
};

TEST_F(RunScreenOnThreads, ChangesTheScreenAtOnceOnTheEventLoopThread) {
  setProgress(7);
  EXPECT_THAT(world.journal.all(), ElementsAre("setProgress 7"));
}

TEST_F(RunScreenOnThreads, CarriesAWorkersChangesOutOnTheEventLoopInOrder) {
  std::thread([this] {
    for (int percent = 1; percent <= 3; ++percent) setProgress(percent);
  }).join();
  EXPECT_THAT(world.journal.only({"setProgress"}), IsEmpty());
  EXPECT_EQ(world.loop.drain(), 3U);
  EXPECT_THAT(world.journal.only({"setProgress"}), ElementsAre("setProgress 1", "setProgress 2", "setProgress 3"));
}

TEST_F(RunScreenOnThreads, DropsAPostedChangeOfARunThatIsNoLongerTheCurrentOne) {
  std::thread([this] { setProgress(42); }).join();
  screen.setStanding(RunStanding::replaced);
  EXPECT_EQ(world.loop.drain(), 1U);
  EXPECT_THAT(world.journal.only({"setProgress"}), IsEmpty());
}

TEST_F(RunScreenOnThreads, DropsAChangeOfARunThatIsNoLongerTheCurrentOne) {
  screen.setStanding(RunStanding::superseded);
  setProgress(42);
  EXPECT_THAT(world.journal.all(), IsEmpty());
}

TEST_F(RunScreenOnThreads, LetsAWorkerWaitForTheAnswerToItsAlert) {
  world.alerts.willAnswer(AlertAnswer::alternateButton);
  AlertAnswer answer = AlertAnswer::defaultButton;
  std::thread worker([&] { answer = screen.runModal({"title", "message", "yes", "no"}); });
  world.loop.waitForPosts(1);
  world.loop.drain();
  worker.join();
  EXPECT_EQ(answer, AlertAnswer::alternateButton);
  EXPECT_THAT(world.journal.only({"alert"}), ElementsAre("alert \"title\" \"message\" \"yes\" \"no\""));
}

TEST_F(RunScreenOnThreads, FreesAWorkerThatWaitsForAnAnswerWhenTheProgramEnds) {
  world.alerts.willAnswer(AlertAnswer::alternateButton);
  AlertAnswer answer = AlertAnswer::alternateButton;
  std::thread worker([&] { answer = screen.runModal({"title", "message", "yes", "no"}); });
  world.loop.waitForPosts(1);
  world.loop.dropPosts();
  worker.join();
  EXPECT_EQ(answer, AlertAnswer::defaultButton);
  EXPECT_THAT(world.journal.only({"alert"}), IsEmpty());
}

TEST_F(RunScreenOnThreads, AsksNothingForARunThatANewerOneHasSuperseded) {
  world.alerts.willAnswer(AlertAnswer::alternateButton);
  screen.setStanding(RunStanding::superseded);
  EXPECT_EQ(screen.runModal({"title", "", "", ""}), AlertAnswer::defaultButton);
  EXPECT_THAT(world.journal.all(), IsEmpty());
}

TEST_F(RunScreenOnThreads, StillAsksForARunThatWasOnlyReplaced) {
  screen.setStanding(RunStanding::replaced);
  screen.runModal({"title", "", "", ""});
  EXPECT_EQ(world.journal.only({"alert"}).size(), 1U);
}

}  // namespace
}  // namespace calvero
