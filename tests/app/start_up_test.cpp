#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/world.h"

namespace calvero {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;
using testing::Steps;
using testing::World;

const Steps kFirstPageButtons{"hide buttonBack",   "redraw buttonBack",   "hide buttonProceed", "redraw buttonProceed",
                              "hide buttonCancel", "redraw buttonCancel", "show buttonHome",    "redraw buttonHome",
                              "show buttonNext",   "redraw buttonNext"};

Steps joined(std::initializer_list<Steps> parts) {
  Steps all;
  for (const Steps& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

class StartUp : public ::testing::Test {
 protected:
  StartUp() { world.volume("DATA", 300'000'000); }

  void expectOneObserverOfTheTiles(AppDelegate& app) {
    world.journal.clear();
    app.notifications().post(kSelectionChanged);
    EXPECT_EQ(world.journal.only({"setText tfDriveName"}).size(), 1U);
  }

  World world;
};

TEST_F(StartUp, GivesTheControllerItsFirstState) {
  const AppDelegate& app = world.create();
  EXPECT_EQ(app.methodChoice().numPassSelected, 1);
  EXPECT_EQ(app.methodChoice().eraseMethodSelected, 0);
  EXPECT_EQ(app.selectedTableRow(), 0U);
  EXPECT_EQ(app.CDriveName(), "");
  EXPECT_EQ(app.order().cloudInitiation, 0);
  EXPECT_EQ(app.order().cloudTerm, 0);
  EXPECT_EQ(app.order().cvrTimer, kNoTimer);
  const ShellState& shell = app.shell();
  EXPECT_EQ(shell.createFilePath, "test");
  EXPECT_EQ(shell.selectedVolumePath, " ");
  EXPECT_EQ(shell.cancelNumber, 0);
  EXPECT_EQ(shell.admin, 0);
  EXPECT_EQ(shell.currentSelectionG, 0U);
  EXPECT_EQ(shell.curSel.getCurrentSelection(), 0U);
  EXPECT_EQ(shell.mcv.currentSelection(), 0U);
  EXPECT_EQ(shell.mcv.previousSelection(), 0U);
  EXPECT_THAT(shell.dictEraseOption, IsEmpty());
}

TEST_F(StartUp, ClearsAllRunFlags) {
  const AppDelegate& app = world.create();
  const RunPtr run = app.currentRun();
  EXPECT_FALSE(app.abortErasing());
  EXPECT_EQ(run->terminateThread, 0);
  EXPECT_EQ(run->volumeEjected, 0);
  EXPECT_EQ(run->numTempFiles, 0U);
  EXPECT_THAT(run->filePathsArray, IsEmpty());
  EXPECT_EQ(run->outcome, RunOutcome::none);
  EXPECT_EQ(app.shell().eraseCompleted, 0);
  EXPECT_EQ(app.shell().wipingProcessOn, 0);
}

TEST_F(StartUp, ClearsTheMarkOfARunThatIsUnderWayWhenItBeginsAnew) {
  AppDelegate& app = world.start();
  ASSERT_EQ(app.shell().wipingProcessOn, 1);
  app.init();
  EXPECT_EQ(app.shell().wipingProcessOn, 0);
}

TEST_F(StartUp, LogsInitReadsTheOrderAndThenListsTheVolumes) {
  world.create();
  EXPECT_THAT(world.journal.all(), ElementsAre("log init", "clearVolumes", "readTag cvrOnline", "mountedVolumes",
                                               "addTableRow DATA", "addTile DATA", "setText volLabel \"DATA\""));
}

TEST_F(StartUp, KeepsTheFlagWithItsPlainAccessors) {
  AppDelegate& app = world.create();
  app.setAbortErasing(true);
  EXPECT_TRUE(app.abortErasing());
  app.setAbortErasing(false);
  EXPECT_FALSE(app.abortErasing());
}

TEST_F(StartUp, PutsTheFirstPagesButtonsInPlaceEachDrawnAtOnce) {
  AppDelegate& app = world.launch();
  app.setHideIBObjectsAtLaunch();
  EXPECT_EQ(world.journal.all(), kFirstPageButtons);
}

TEST_F(StartUp, ClearsTheFlagsOfTheLastRunWithTheFirstPagesButtons) {
  AppDelegate& app = world.start();
  app.currentRun()->volumeEjected = 1;
  app.currentRun()->abortErasing = 1;
  ASSERT_EQ(app.shell().wipingProcessOn, 1);
  app.setHideIBObjectsAtLaunch();
  EXPECT_EQ(app.shell().wipingProcessOn, 0);
  EXPECT_EQ(app.currentRun()->volumeEjected, 0);
  EXPECT_EQ(app.currentRun()->abortErasing, 1) << "the other stop flags stay";
}

TEST_F(StartUp, CompletesTheLaunchStepByStep) {
  AppDelegate& app = world.create();
  world.journal.clear();
  app.applicationDidFinishLaunching();
  EXPECT_EQ(world.journal.all(), joined({{"observe \"cancel wipe\" \"cancel\""},
                                         kFirstPageButtons,
                                         {"setText tfDriveName \"DATA\"", "setText tfFileSystem \"FAT\"",
                                          "setText tfDriveSpace \"600.00 MB\"", "setText tfFreeSpace \"300.00 MB\""}}));
}

TEST_F(StartUp, CompletesTheLaunchOfAnOrderedWipeByStartingItBeforeTheCancelPoll) {
  world.order("DATA", "1");
  AppDelegate& app = world.create();
  world.journal.clear();
  app.applicationDidFinishLaunching();
  EXPECT_EQ(world.steps(),
            joined({{"observe \"cancel wipe\" \"cancel\""},
                    kFirstPageButtons,
                    {"setText tfDriveName \"DATA\"", "setText tfFileSystem \"FAT\"",
                     "setText tfDriveSpace \"600.00 MB\"", "setText tfFreeSpace \"300.00 MB\""},
                    {"orderOut window", "leaveTaskBar", "hide buttonBack", "hide buttonHome",
                     "setText tfFreespaceData \"300.00 MB\"", "show buttonCancel", "setText tfElapsedData \" \"",
                     "setText tfElapsedTime \"00:00:00\"", "setText tfElapsedData \"0.00 KB\"", "sleep 1", "detach",
                     "detach", "startTimer 60000 repeating"}}));
}

TEST_F(StartUp, AddsExactlyTwoObserversWhenTheLaunchCompletes) {
  AppDelegate& app = world.create();
  const std::size_t before = app.notifications().observerCount();
  app.applicationDidFinishLaunching();
  EXPECT_EQ(world.systemNotifications.observerCount(), 1U);
  EXPECT_EQ(app.notifications().observerCount(), before + 1);
  expectOneObserverOfTheTiles(app);
  EXPECT_TRUE(world.loop.timers().empty());
}

TEST_F(StartUp, AddsOneTimerMoreInRemoteMode) {
  world.order("DATA", "1");
  AppDelegate& app = world.create();
  const std::size_t before = app.notifications().observerCount();
  app.applicationDidFinishLaunching();
  EXPECT_EQ(world.systemNotifications.observerCount(), 1U);
  EXPECT_EQ(app.notifications().observerCount(), before + 1);
  expectOneObserverOfTheTiles(app);
  ASSERT_EQ(world.loop.timers().size(), 1U);
  EXPECT_EQ(world.loop.timers().begin()->first, app.order().cvrTimer);
  EXPECT_EQ(world.loop.timers().begin()->second.interval, std::chrono::seconds(60));
  EXPECT_EQ(world.loop.timers().begin()->second.kind, TimerKind::repeating);
}

TEST_F(StartUp, ClearsTheStopFlagAndTheCancelCountWhenTheLaunchCompletes) {
  AppDelegate& app = world.create();
  app.currentRun()->terminateThread = 1;
  app.cancelWipe();
  ASSERT_EQ(app.shell().cancelNumber, 1);
  app.applicationDidFinishLaunching();
  EXPECT_EQ(app.shell().cancelNumber, 0);
  EXPECT_EQ(app.currentRun()->terminateThread, 0);
  EXPECT_EQ(app.shell().display, 1);
}

TEST_F(StartUp, FollowsTheTilesSelectionOnceLaunched) {
  world.volume("MORE", 500'000'000);
  AppDelegate& app = world.launch();
  app.setCurrentSelection(1);
  world.journal.clear();
  app.notifications().post(kSelectionChanged);
  EXPECT_EQ(app.selectedTableRow(), 0U) << "the picker's own index";
  EXPECT_EQ(world.controls.text(Control::tfDriveName), "DATA");
}

TEST(StartUpWithoutVolumes, LaunchesWithAnEmptyPicker) {
  World world;
  AppDelegate& app = world.create();
  app.applicationDidFinishLaunching();
  EXPECT_THAT(app.volumes().volumeNameArray, IsEmpty());
  EXPECT_THAT(world.journal.only({"log"}), Contains(StartsWith("log no volume to describe: ")));
  EXPECT_EQ(world.loop.terminations(), 0);
  EXPECT_TRUE(world.controls.shown(Control::buttonNext));
}

}  // namespace
}  // namespace calvero
