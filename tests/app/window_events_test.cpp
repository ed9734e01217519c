#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/world.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::World;

class WindowEvents : public ::testing::Test {
 protected:
  WindowEvents() { world.volume("DATA", 300'000); }

  World world;
};

TEST_F(WindowEvents, ClosingDuringARunIsRefusedWithAnAlertAndTheRunContinues) {
  AppDelegate& app = world.start();
  EXPECT_FALSE(app.windowShouldClose());
  EXPECT_THAT(world.journal.all(), ElementsAre("alert \"Wiping process is On\" \"Cancel wiping and then quit the "
                                               "application\" \"OK\" \"\""));
  EXPECT_FALSE(app.currentRun()->stopRequested());
  EXPECT_EQ(app.shell().wipingProcessOn, 1);
  EXPECT_EQ(world.loop.terminations(), 0);
}

TEST_F(WindowEvents, TheRefusalsTextsAreLocalised) {
  world.start();
  world.localisation.markTexts();
  world.app().windowShouldClose();
  EXPECT_THAT(world.journal.only({"alert"}), ElementsAre("alert \"<Wiping process is On>\" \"<Cancel wiping and then "
                                                         "quit the application>\" \"<OK>\" \"\""));
}

TEST_F(WindowEvents, ClosingWithoutARunQuitsAtOnceWithoutAQuestion) {
  EXPECT_TRUE(world.launch().windowShouldClose());
  EXPECT_THAT(world.journal.all(), ElementsAre("terminate"));
}

TEST_F(WindowEvents, TheWindowMayBeClosedAgainAfterACancel) {
  AppDelegate& app = world.start();
  app.cancelWipe();
  EXPECT_TRUE(app.windowShouldClose());
}

TEST_F(WindowEvents, ACloseThatWasNotAskedForEndsTheApplicationToo) {
  world.start();
  world.app().windowWillClose();
  EXPECT_THAT(world.journal.all(), ElementsAre("terminate"));
}

TEST_F(WindowEvents, MiniaturisingAndRestoringTogglesDisplayAndNothingElse) {
  AppDelegate& app = world.launch();
  ASSERT_EQ(app.shell().display, 1);
  app.windowWillMiniaturize();
  EXPECT_EQ(app.shell().display, 0);
  app.windowDidDeminiaturize();
  EXPECT_EQ(app.shell().display, 1);
  EXPECT_THAT(world.journal.all(), IsEmpty());
}

}  // namespace
}  // namespace calvero
