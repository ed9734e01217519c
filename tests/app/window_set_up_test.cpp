#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/world.h"

namespace calvero {
namespace {

using testing::Steps;
using testing::World;

class WindowSetUp : public ::testing::Test {
 protected:
  WindowSetUp() {
    world.volume("DATA", 300'000);
    world.create();
    world.journal.clear();
  }

  World world;
};

TEST_F(WindowSetUp, GivesEveryControlItsTextInOrderAndPutsTheCloudButtonAway) {
  world.app().awakeFromNib();
  const Steps steps{
      "setText clickNext \"Click next to continue\"",
      "setText driveName \"Drive Name :\"",
      "setText fileSystem \"File System :\"",
      "setText driveSpace \"Drive Space :\"",
      "setText freeSpace \"Free Space :\"",
      "setText reloadDrivers \"Reload Drives\"",
      "setText selectingWipingMethod \"Select wiping method\"",
      "setText low \"Low\"",
      "setText medium \"Medium\"",
      "setText high \"High\"",
      "setText algorithm_1 \"Fast Zero Write (Wipes data with 0's (Zero))\"",
      "setText algorithm_2 \"Random \"",
      "setText algorithm_3 \"DOD 5220.22.M (US Dept. of Defence Standard) \"",
      "setText algorithm_4 \"N.A.V.S.O.- RLL (US Navy Standard) \"",
      "setText algorithm_5 \"N.A.T.O. (North Atlantic Treaty Organization  Standard)\"",
      "setText algorithm_6 \"V.S.I.T.R.  (German Standard) \"",
      "setText algorithm_7 \"Fast Zero Write (Wipes data with 0's (Zero))\"",
      "setText algorithm_8 \"Peter Guttman Method\"",
      "setText algorithm_9 \"Peter Guttman + (DoD 5220.22-M)\"",
      "setText unSecuredData \"Unsecured Data: \"",
      "setText erasingfreeSpaceData \"Erasing free space data securely\"",
      "setText tfelapsedTime \"Elapsed Time:\"",
      "setText tfelapsedData \"Erased Data:\"",
      "setText tffreeSpace \"Free Space:\"",
      "setText cancelBut \"Cancel\"",
      "setText CloudControl \"Cloud Control \"",
      "setText Settings \"Settings\"",
      "setText Help \"Help\"",
      "setText proceedBtn \"Proceed\"",
      "setText ondrelMore \"Ondrel More\"",
      "setAttributedTitle buttonCloud \"Cloud Control\" 1 1 1 1 11",
      "highlightNothing buttonCloud",
      "hide buttonCloud",
      "hide cloud_img_1",
      "activateApplication",
  };
  EXPECT_EQ(world.journal.all(), steps);
}

TEST_F(WindowSetUp, HidesTheCloudButtonAndItsPictureAndLeavesTheCaption) {
  world.app().awakeFromNib();
  EXPECT_TRUE(world.controls.hidden(Control::buttonCloud));
  EXPECT_TRUE(world.controls.hidden(Control::cloud_img_1));
  EXPECT_FALSE(world.controls.hidden(Control::CloudControl));
}

TEST_F(WindowSetUp, WritesCloudControlWithATrailingBlankInTheCaptionAndWithoutOnTheButton) {
  world.app().awakeFromNib();
  EXPECT_EQ(world.controls.text(Control::CloudControl), "Cloud Control ");
  EXPECT_EQ(world.controls.text(Control::buttonCloud), "Cloud Control");
}

TEST_F(WindowSetUp, LooksEveryTextUpInTheTable) {
  world.localisation.markTexts();
  world.app().awakeFromNib();
  for (const std::string& step : world.journal.only({"setText", "setAttributedTitle"})) {
    EXPECT_NE(step.find("\"<"), std::string::npos) << step;
  }
}

TEST_F(WindowSetUp, ClearsTheMarkOfTheSuitesCancelRequest) {
  world.app().cancelProcess();
  ASSERT_EQ(world.app().order().cloudTerm, 1);
  world.app().awakeFromNib();
  EXPECT_EQ(world.app().order().cloudTerm, 0);
}

}  // namespace
}  // namespace calvero
