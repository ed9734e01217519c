#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

#include "app/pop_up_place.h"
#include "tests/fakes/world.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using testing::FakeEventLoop;
using testing::World;

class PopUp : public ::testing::Test {
 protected:
  PopUp() {
    world.volume("DATA", 300'000);
    world.launch();
  }

  void show() { world.app().popUp({0.25, 0.5, 0.75, 1.0}, "text"); }
  /// The close check that is pending now comes due.
  void sevenSecondsPass() { world.loop.fire(world.app().popUpState().timerForPopUp); }

  World world;
};

TEST_F(PopUp, IsPreparedPlacedAndShownInOrder) {
  show();
  EXPECT_THAT(world.journal.all(),
              ElementsAre("popUpWindow setText", "popUpWindow setStatusWindowLevel", "popUpWindow setBorderless",
                          "popUpWindow addTrackingArea", "popUpWindow setFillColour", "startTimer 7000 once",
                          "popUpWindow moveTo 1140 90", "popUpWindow setAlertAnimation", "activateApplication",
                          "popUp 0.25 0.5 0.75 1 \"text\""));
  EXPECT_TRUE(world.popUp.shown());
}

TEST_F(PopUp, OnAScreenOf1440By900APopUpOf300By90IsPlacedAt1140And90) {
  EXPECT_EQ(popUpOrigin({1440, 900}, {300, 90}), (ScreenPoint{1140, 90}));
}

TEST_F(PopUp, ShowsAMessageWithAPercentSignLiterally) {
  world.app().popUp({1.0, 1.0, 1.0, 1.0}, "100 %d and %@ of %s");
  EXPECT_THAT(world.journal.only({"popUp"}), ElementsAre("popUp 1 1 1 1 \"100 %d and %@ of %s\""));
}

TEST_F(PopUp, ClosesByItselfAfterSevenSeconds) {
  show();
  sevenSecondsPass();
  EXPECT_FALSE(world.popUp.shown());
  EXPECT_EQ(world.app().popUpState().timerForPopUp, kNoTimer);
  EXPECT_TRUE(world.loop.timers().empty());
}

TEST_F(PopUp, StaysWhileThePointerRestsOnItAndIsCheckedAgainSevenSecondsLater) {
  show();
  world.popUp.pointerEnters();
  sevenSecondsPass();
  EXPECT_TRUE(world.popUp.shown());
  ASSERT_EQ(world.loop.timers().size(), 1U);
  EXPECT_EQ(world.loop.timers().begin()->second.interval, std::chrono::seconds(7));
  sevenSecondsPass();
  EXPECT_TRUE(world.popUp.shown());
  world.popUp.pointerLeaves();
  EXPECT_TRUE(world.popUp.shown()) << "until the next check";
  sevenSecondsPass();
  EXPECT_FALSE(world.popUp.shown());
}

TEST_F(PopUp, HidesAtOnceWhenItIsClosedAndKeepsTheTimerAndTheHoverFlag) {
  show();
  world.popUp.pointerEnters();
  world.app().popUpClose();
  EXPECT_FALSE(world.popUp.shown());
  EXPECT_EQ(world.loop.timers().size(), 1U);
  EXPECT_EQ(world.app().popUpState().mouseHoverForPopUp, 1);
}

TEST_F(PopUp, ShownAgainReplacesTheTextAndAddsOneMoreTimerAndTrackingArea) {
  show();
  world.app().popUp({0.0, 0.0, 0.0, 1.0}, "second");
  EXPECT_EQ(world.loop.timers().size(), 2U);
  EXPECT_EQ(world.popUp.trackingAreas(), 2U);
  EXPECT_EQ(world.app().popUpState().trackingArea, 2U);
  EXPECT_EQ(world.journal.only({"popUp"}).back(), "popUp 0 0 0 1 \"second\"");
}

TEST_F(PopUp, ForgetsTheHoverWhenItCloses) {
  show();
  // The pointer comes in the very moment in which the window goes, and never leaves what is no longer there.
  world.journal.whenAdded([this](const std::string& entry) {
    if (entry == "popUpWindow orderOut") world.popUp.pointerEnters();
  });
  sevenSecondsPass();
  EXPECT_FALSE(world.popUp.shown());
  EXPECT_EQ(world.app().popUpState().mouseHoverForPopUp, 0) << "the next showing would stay for good";
}

TEST_F(PopUp, TakesThePendingCheckBackWhenItIsCheckedEarlier) {
  show();
  world.app().allPopupsVisibilty();
  EXPECT_FALSE(world.popUp.shown());
  EXPECT_THAT(world.journal.only({"stopTimer"}), ElementsAre("stopTimer"));
  EXPECT_TRUE(world.loop.timers().empty());
  EXPECT_EQ(world.app().popUpState().timerForPopUp, kNoTimer);
}

TEST_F(PopUp, HasOnePendingCheckThoughItIsCheckedEarlierUnderThePointer) {
  show();
  const TimerId first = world.app().popUpState().timerForPopUp;
  world.popUp.pointerEnters();
  world.app().allPopupsVisibilty();
  ASSERT_EQ(world.loop.timers().size(), 1U);
  EXPECT_NE(world.loop.timers().begin()->first, first);
  EXPECT_EQ(world.loop.timers().begin()->first, world.app().popUpState().timerForPopUp);
}

TEST_F(PopUp, OfAWorkerIsShownByTheEventLoopAndStaysUntilTheApplicationEnds) {
  world.loop.setPosts(FakeEventLoop::Posts::queued);
  world.loop.setLoopThread(FakeEventLoop::LoopThread::thisThreadOnly);
  std::thread([this] { show(); }).join();
  EXPECT_FALSE(world.popUp.shown());
  world.loop.drain();
  EXPECT_TRUE(world.popUp.shown());
  EXPECT_TRUE(world.loop.timers().empty());
}

}  // namespace
}  // namespace calvero
