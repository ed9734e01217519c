#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/fakes/world.h"

namespace calvero {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using testing::FileCall;
using ::testing::IsEmpty;
using ::testing::Not;
using testing::Steps;
using testing::World;

class RemoteMode : public ::testing::Test {
 protected:
  RemoteMode() { world.volume("DATA", 300'000); }

  /// Makes the poll's timer fire.
  void minutePasses() { world.loop.fire(world.app().order().cvrTimer); }

  World world;
};

TEST_F(RemoteMode, IsOffUnlessTheOnlineTagReads1) {
  for (const char* value : {"0", "", " 1", "1 ", "01", "true", "2"}) {
    world.order("DATA", "3");
    world.tags.put("cvrOnline", value);
    EXPECT_EQ(world.create().order().cloudInitiation, 0) << value;
  }
}

TEST_F(RemoteMode, IsLeftByAReloadOnceTheOrderIsNoLongerThere) {
  world.volume("MORE", 500'000);
  for (const char* value : {"0", ""}) {
    world.order("DATA", "3");
    AppDelegate& app = world.create();
    ASSERT_EQ(app.order().cloudInitiation, 1);
    world.tags.put("cvrOnline", value);
    app.reloadVolumes();
    EXPECT_EQ(app.order().cloudInitiation, 0) << '"' << value << '"';
    EXPECT_THAT(app.volumes().volumeNameArray, ElementsAre("DATA", "MORE"));
  }
}

TEST_F(RemoteMode, ReadsDriveAndMethodOnlyWhenAnOrderIsPending) {
  world.create();
  EXPECT_THAT(world.journal.only({"readTag"}), ElementsAre("readTag cvrOnline"));
  world.journal.clear();
  world.order("DATA", "3");
  const AppDelegate& app = world.create();
  EXPECT_THAT(world.journal.only({"readTag"}),
              ElementsAre("readTag cvrOnline", "readTag cvrDrive", "readTag cvrAlgo", "readTag cvrNamed"));
  EXPECT_EQ(app.order().cloudInitiation, 1);
  EXPECT_EQ(app.CDriveName(), "DATA");
  EXPECT_EQ(app.order().algo, "3");
}

TEST_F(RemoteMode, UsesTheOrderedMethodWithoutAnyPanel) {
  world.order("DATA", "8");
  const AppDelegate& app = world.launch();
  world.runWorker();
  EXPECT_EQ(app.methodChoice().eraseMethodSelected, 7);
  EXPECT_EQ(app.methodChoice().numPassSelected, 35);
  EXPECT_TRUE(world.controls.isOn(Control::butPETER_GUTTMAN));
  EXPECT_THAT(world.alerts.shown(), IsEmpty());
  EXPECT_THAT(world.journal.only({"create", "removeItem"}), ElementsAre("create .temp0", "removeItem .temp0"));
}

TEST_F(RemoteMode, FillsWithZerosOnceWhenTheOrderedMethodIsNone) {
  for (const char* value : {"0", "abc"}) {
    World other;
    other.volume("DATA", 40'000);
    other.order("DATA", value);
    const AppDelegate& app = other.launch();
    other.runWorker();
    EXPECT_EQ(app.methodChoice().eraseMethodSelected, 0);
    EXPECT_EQ(app.methodChoice().numPassSelected, 1);
    EXPECT_EQ(other.journal.only({"pwrite"}).front(), "pwrite .temp0 32768@0 0x00");
  }
}

TEST_F(RemoteMode, HidesTheWindowAndStartsTheRunWithoutAsking) {
  world.order("DATA", "1");
  AppDelegate& app = world.launch();
  app.myCloud();
  EXPECT_THAT(world.steps(), ElementsAre("orderOut window", "leaveTaskBar", "hide buttonBack", "hide buttonHome",
                                         "setText tfFreespaceData \"300.00 KB\"", "show buttonCancel",
                                         "setText tfElapsedData \" \"", "setText tfElapsedTime \"00:00:00\"",
                                         "setText tfElapsedData \"0.00 KB\"", "sleep 1", "detach", "detach"));
  EXPECT_EQ(app.shell().display, 0);
}

/// An order that says more of its volume than the name.
class PinnedOrder : public ::testing::Test {
 protected:
  PinnedOrder() {
    MountedVolume volume;
    volume.name = "DATA";
    volume.uuid = "12-34";
    volume.mountPath = "/media/DATA";
    volume.formatDescription = "ext4";
    volume.availableBytes = 40'000;
    volume.totalBytes = 80'000;
    world.volume(volume);
    world.order("DATA", "1");
  }
  void pin(const std::string& named, const std::string& mountPath, const std::string& uuid) {
    world.tags.put("cvrNamed", named);
    world.tags.put("cvrMountPath", mountPath);
    world.tags.put("cvrVolumeUuid", uuid);
  }
  bool isCarriedOut() {
    world.tags.put("cvrStatus", "");
    const bool isListed = !world.create().volumes().volumeNameArray.empty();
    EXPECT_EQ(world.tags.peek("cvrStatus"), isListed ? "" : "3");
    return isListed;
  }

  World world;
};

TEST_F(PinnedOrder, IsRefusedForAnotherVolumeOfTheSameNameAndSaysWhy) {
  for (const auto& [path, uuid] : {std::pair("/media/DATA", "56-78"), std::pair("/media/OTHER", "12-34"),
                                   std::pair("/media/OTHER", ""), std::pair("", "56-78")}) {
    pin("DATA", path, uuid);
    world.journal.clear();
    EXPECT_FALSE(isCarriedOut()) << path << ' ' << uuid;
    EXPECT_THAT(world.journal.only({"log"}), Contains(::testing::HasSubstr("is not the one that was ordered")));
    EXPECT_GE(world.loop.terminations(), 1);
  }
}

TEST_F(PinnedOrder, IsCarriedOutOnItsVolumeAndComparesNothingThatItDoesNotSay) {
  for (const auto& [path, uuid] :
       {std::pair("/media/DATA", "12-34"), std::pair("/media/DATA", ""), std::pair("", "12-34"), std::pair("", "")}) {
    pin("DATA", path, uuid);
    EXPECT_TRUE(isCarriedOut()) << path << ' ' << uuid;
  }
}

TEST_F(PinnedOrder, LeavesAnotherProgramsOrderAlone) {
  pin("BACKUP", "/media/BACKUP", "56-78");
  EXPECT_TRUE(isCarriedOut()) << "it has been replaced by one that says the name alone";
}

/// A volume that did not answer when it was listed.
class RemoteModeWithoutASize : public RemoteMode {
 protected:
  RemoteModeWithoutASize() {
    world.order("SLOW", "1");
    world.loop.letLimitsPass();
    list(0);
  }

  void list(std::uint64_t bytes) {
    world.volumes.remove("SLOW");
    MountedVolume slow;
    slow.name = "SLOW";
    slow.mountPath = "/media/SLOW";
    slow.formatDescription = "ext4";
    slow.availableBytes = bytes;
    slow.totalBytes = bytes;
    world.volume(slow);
  }
};

TEST_F(RemoteModeWithoutASize, ListsAgainUntilItIsKnownAndRuns) {
  int listings = 0;
  world.loop.whenLimitPasses([&] {
    if (++listings == 3) list(40'000);
  });
  const AppDelegate& app = world.launch();
  EXPECT_EQ(listings, 3);
  EXPECT_EQ(world.controls.tileCount(), 1U) << "each list takes the place of the one before";
  EXPECT_EQ(app.volumes().volumeNameArray, std::vector<std::string>{"SLOW"});
  EXPECT_EQ(app.freeSpaceOnDisk(), 40'000U);
  world.runWorker();
  EXPECT_THAT(world.journal.only({"create"}), ElementsAre("create .temp0"));
  EXPECT_EQ(world.tags.peek("cvrStatus"), "2");
}

TEST_F(RemoteModeWithoutASize, ListensToTheTableOnceHoweverOftenItIsListedAgain) {
  int listings = 0;
  world.loop.whenLimitPasses([&] {
    if (++listings == 3) list(40'000);
  });
  world.launch().notifications().post(kTableSelectionDidChange);
  EXPECT_EQ(listings, 3);
  EXPECT_EQ(world.journal.only({"setText tfDriveName"}).size(), 1U);
}

TEST_F(RemoteModeWithoutASize, EndsAsALostVolumeWhenItNeverIsKnown) {
  AppDelegate& app = world.create();
  world.journal.clear();
  app.applicationDidFinishLaunching();
  EXPECT_EQ(world.journal.only({"mountedVolumes"}).size(), 5U);
  EXPECT_EQ(world.journal.only({"limit"}), Steps(5, "limit 2000"));
  EXPECT_THAT(world.journal.only({"notice"}),
              ElementsAre("notice the volume does not tell its size; nothing is wiped"));
  EXPECT_EQ(world.tags.peek("cvrStatus"), "3");
  EXPECT_EQ(world.loop.terminations(), 1);
  EXPECT_EQ(world.app().currentRun()->outcome, RunOutcome::failed);
  EXPECT_THAT(world.threads.names(), IsEmpty());
  EXPECT_THAT(world.alerts.shown(), IsEmpty());
}

TEST_F(RemoteModeWithoutASize, EndsAsAMissingVolumeWhenItIsTakenOut) {
  world.loop.whenLimitPasses([this] { world.volumes.remove("SLOW"); });
  world.launch();
  EXPECT_EQ(world.tags.peek("cvrStatus"), "3");
  EXPECT_EQ(world.loop.terminations(), 1);
  EXPECT_THAT(world.threads.names(), IsEmpty());
}

TEST_F(RemoteModeWithoutASize, IsCancelledWhileItIsListedAgain) {
  int waits = 0;
  world.loop.whenLimitPasses([&] {
    if (++waits == 2) world.systemNotifications.send("cancel wipe", "cancel");
  });
  AppDelegate& app = world.create();
  world.journal.clear();
  app.applicationDidFinishLaunching();
  EXPECT_EQ(world.journal.only({"mountedVolumes"}).size(), 1U) << "not listed once more after the cancel";
  EXPECT_THAT(world.journal.only({"setTag cvrStatus"}), ElementsAre("setTag cvrStatus \"3\""));
  EXPECT_EQ(world.loop.terminations(), 1);
  EXPECT_EQ(app.currentRun()->outcome, RunOutcome::cancelled);
  EXPECT_THAT(world.threads.names(), Not(Contains("calvero-wipe")));
}

TEST_F(RemoteMode, LeavesTheOnlineTagAfterAFinishedRun) {
  world.order("DATA", "1");
  world.launch();
  world.runWorker();
  EXPECT_EQ(world.tags.peek("cvrStatus"), "2");
  EXPECT_EQ(world.tags.peek("cvrOnline"), "1");
  EXPECT_EQ(world.create().order().cloudInitiation, 1) << "the next launch is an order again";
}

TEST_F(RemoteMode, PollsWithoutEndAndReplacesTheTimerEachTime) {
  world.order("DATA", "1");
  world.launch();
  minutePasses();
  EXPECT_THAT(world.journal.all(), ElementsAre("stopTimer", "readTag CVRCANCEL", "startTimer 60000 repeating"));
  minutePasses();
  minutePasses();
  EXPECT_EQ(world.loop.timers().size(), 1U);
  EXPECT_EQ(world.journal.only({"readTag"}).size(), 3U);
}

TEST_F(RemoteMode, ActsOnlyOnACancelTagOf1) {
  world.order("DATA", "1");
  const AppDelegate& app = world.launch();
  for (const char* value : {"0", "", "2", "11", " 1"}) {
    world.tags.put("CVRCANCEL", value);
    minutePasses();
    EXPECT_EQ(world.tags.peek("CVRCANCEL"), value);
  }
  EXPECT_EQ(app.shell().cancelNumber, 0);
}

TEST_F(RemoteMode, ActsOnTheCancelTagAtTheNextPollResetsItAndKeepsPolling) {
  world.order("DATA", "1");
  const AppDelegate& app = world.launch();
  world.tags.put("CVRCANCEL", "1");
  minutePasses();
  EXPECT_EQ(world.tags.peek("CVRCANCEL"), "0");
  EXPECT_EQ(app.order().cloudTerm, 1);
  EXPECT_EQ(app.shell().cancelNumber, 1);
  EXPECT_EQ(world.tags.peek("cvrStatus"), "3");
  world.journal.clear();
  minutePasses();
  EXPECT_THAT(world.journal.all(), ElementsAre("stopTimer", "readTag CVRCANCEL", "startTimer 60000 repeating"));
}

TEST_F(RemoteMode, ResetsTheCancelTagBeforeItCancels) {
  world.order("DATA", "1");
  world.launch();
  world.tags.put("CVRCANCEL", "1");
  minutePasses();
  EXPECT_THAT(
      world.steps(),
      ElementsAre("stopTimer", "setTag CVRCANCEL \"0\"", "hide proceedBtn",
                  "setText labelPhase \"Please wait, finishing current process..\"", "setProgressIndeterminate",
                  "detach", "removeLeftDirectory /media/DATA/.$$XE8AQU", "setText tfCleanedSize \"300.00 KB\"",
                  "startTimer 7000 once", "activateApplication",
                  "popUp 1 0.466667 0.203922 1 \"Remote Wiping Process has been aborted.\"",
                  "setTag cvrResult \"cancelled free=0 covered=0 not-held=0 faults=0\"", "setTag cvrStatus \"3\"",
                  "selectPage 0", "sleep 3", "terminate", "startTimer 60000 repeating"));
}

TEST_F(RemoteMode, IsCancelledByTheSystemWideNotification) {
  world.order("DATA", "1");
  world.launch();
  world.systemNotifications.send("cancel wipe", "cancel");
  EXPECT_EQ(world.tags.peek("cvrStatus"), "3");
  EXPECT_EQ(world.loop.terminations(), 1);
}

TEST_F(RemoteMode, IsCancelledByTheNotificationInOrdinaryModeToo) {
  const AppDelegate& app = world.start();
  world.systemNotifications.send("cancel wipe", "cancel");
  EXPECT_EQ(app.order().cloudTerm, 1);
  EXPECT_EQ(app.currentRun()->terminateThread, 1);
  EXPECT_EQ(world.loop.terminations(), 1);
}

TEST_F(RemoteMode, CancelledAgainWhileTheAbortIsReadEndsNoLater) {
  world.order("DATA", "1");
  const AppDelegate& app = world.launch();
  world.clock.whenSlept([this](Clock::Duration slept) {
    const bool isRead = slept == std::chrono::seconds(3);
    if (isRead && world.app().shell().cancelNumber < 3) world.systemNotifications.send("cancel wipe", "cancel");
  });
  world.systemNotifications.send("cancel wipe", "cancel");
  EXPECT_THAT(world.journal.only({"sleep", "terminate", "setTag cvrStatus", "popUp"}),
              ElementsAre("popUp 1 0.466667 0.203922 1 \"Remote Wiping Process has been aborted.\"",
                          "setTag cvrStatus \"3\"", "sleep 3", "terminate"));
  EXPECT_EQ(app.shell().cancelNumber, 2);
}

TEST_F(RemoteMode, CancelledWhileTheMessageOfAFinishedRunIsReadReportsTheCancelAlone) {
  world.order("DATA", "7");
  const AppDelegate& app = world.launch();
  world.clock.whenSlept([this](Clock::Duration slept) {
    if (slept == std::chrono::seconds(7)) world.systemNotifications.send("cancel wipe", "cancel");
  });
  world.runWorker();
  EXPECT_THAT(
      world.journal.only({"popUp", "setTag cvrStatus", "bringToFront"}),
      ElementsAre("popUp 0 1 0 1 \"Your admin successfuly completed\n Calvero on:DATA\"",
                  "popUp 1 0.466667 0.203922 1 \"Remote Wiping Process has been aborted.\"", "setTag cvrStatus \"3\""));
  EXPECT_EQ(world.loop.terminations(), 1);
  EXPECT_EQ(app.currentRun()->outcome, RunOutcome::cancelled);
}

TEST_F(RemoteMode, CancelledOnceItsSuccessIsToldLeavesThat) {
  world.order("DATA", "7");
  world.launch();
  world.runWorker();
  world.systemNotifications.send("cancel wipe", "cancel");
  EXPECT_THAT(world.journal.only({"setTag cvrStatus"}), ElementsAre("setTag cvrStatus \"2\""));
  EXPECT_EQ(world.app().currentRun()->outcome, RunOutcome::finished);
}

TEST_F(RemoteMode, IgnoresTheNotificationWithAnotherObjectOrName) {
  const AppDelegate& app = world.start();
  world.systemNotifications.send("cancel wipe", "other");
  world.systemNotifications.send("cancel wipe", "");
  world.systemNotifications.send("cancel", "cancel");
  EXPECT_EQ(app.shell().cancelNumber, 0);
  EXPECT_FALSE(app.abortErasing());
}

TEST_F(RemoteMode, CancelledWhileTheFilesAreLaidOutEndsWithStatus3AndWithoutAnyPanel) {
  world.order("DATA", "7");
  world.launch();
  world.tags.put("CVRCANCEL", "1");
  world.files.script.before(FileCall::createFile, 1, [this] { minutePasses(); });
  world.runWorker();
  EXPECT_EQ(world.tags.peek("cvrStatus"), "3");
  EXPECT_THAT(world.alerts.shown(), IsEmpty());
  EXPECT_THAT(world.journal.only({"setTag cvrStatus \"2\""}), IsEmpty());
  EXPECT_GE(world.loop.terminations(), 1);
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
}

TEST_F(RemoteMode, CancelledByTheNotificationLeavesTheCancelTagAsItIs) {
  world.order("DATA", "1");
  world.launch();
  world.tags.put("CVRCANCEL", "1");
  world.systemNotifications.send("cancel wipe", "cancel");
  EXPECT_EQ(world.tags.peek("CVRCANCEL"), "1");
  EXPECT_THAT(
      world.journal.only({"setTag"}),
      ElementsAre("setTag cvrResult \"cancelled free=0 covered=0 not-held=0 faults=0\"", "setTag cvrStatus \"3\""));
}

TEST_F(RemoteMode, StopsTheWorkerThatIsWritingWhenTheCancelTagIsSeen) {
  world.order("DATA", "3");
  world.launch();
  world.tags.put("CVRCANCEL", "1");
  world.files.script.before(FileCall::pwrite, 4, [this] { minutePasses(); });
  world.runWorker();
  EXPECT_EQ(world.files.script.count(FileCall::pwrite), 6U) << "the block's passes are finished";
  EXPECT_EQ(world.tags.peek("cvrStatus"), "3");
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
  EXPECT_EQ(world.journal.only({"setTag cvrStatus"}).size(), 1U);
}

}  // namespace
}  // namespace calvero
