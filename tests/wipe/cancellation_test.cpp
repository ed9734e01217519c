#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/world.h"
#include "tests/wipe/alert_texts.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using testing::FakeEventLoop;
using testing::FileCall;
using ::testing::IsEmpty;
using testing::Steps;
using testing::World;

class Cancellation : public ::testing::Test {
 protected:
  Cancellation() {
    world.volume("DATA", 300'000'000);
    world.loop.setPosts(FakeEventLoop::Posts::queued);
  }

  void layOut() {
    world.start();
    world.app().createFile(*world.app().currentRun());
    world.journal.clear();
  }
  /// One that is written, and removed but for its space.
  std::shared_ptr<FillerDirectory> holdAFile() {
    const std::string path = std::string(World::kDirectory) + "/.temp0";
    const auto directory = world.app().currentRun()->directory();
    world.app().fillFilePath(*world.app().currentRun(), path, 32768);
    directory->removeItem(path);
    return directory;
  }

  World world;
};

TEST_F(Cancellation, StopsTheRunRemovesItsFilesAndTellsTheUserInOrder) {
  layOut();
  world.app().cancelWipe();
  EXPECT_THAT(world.steps(),
              ElementsAre("hide proceedBtn", "setText labelPhase \"Please wait, finishing current process..\"",
                          "setProgressIndeterminate", "detach", "releaseSpace", "removeDirectory /media/DATA/.$$XE8AQU",
                          "setText tfCleanedSize \"300.00 MB\"", "post", kAbortedAlert, "post", "post", "post",
                          "setText labelPhase \"Phase 1: Analyzing Data..\"", "redraw labelPhase"));
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
}

TEST_F(Cancellation, RaisesBothFlagsBeforeAnythingElse) {
  layOut();
  const RunPtr run = world.app().currentRun();
  world.files.script.before(FileCall::volumeExists, world.files.script.count(FileCall::volumeExists) + 1, [&] {
    EXPECT_EQ(run->abortErasing, 1);
    EXPECT_EQ(run->terminateThread, 1);
    EXPECT_EQ(world.app().shell().cancelNumber, 1);
  });
  world.app().cancelWipe();
  EXPECT_EQ(run->outcome, RunOutcome::cancelled);
  EXPECT_EQ(run->abortErasing, 1);
}

TEST_F(Cancellation, ListsTheVolumesTwiceAndShowsTheFirstPageAfterTheAlertsOk) {
  layOut();
  world.alerts.whileShown([this] {
    EXPECT_THAT(world.journal.only({"removeTiles", "selectPage", "mountedVolumes"}), IsEmpty());
  });
  world.app().cancelWipe();
  EXPECT_THAT(world.journal.only({"removeTiles", "selectPage", "mountedVolumes"}), IsEmpty()) << "before it returned";
  world.journal.clear();
  EXPECT_EQ(world.loop.drain(), 4U) << "the end of the waiting, two lists, the way back";
  EXPECT_THAT(world.journal.only({"removeTiles", "mountedVolumes", "selectPage", "reloadTable"}),
              ElementsAre("removeTiles DATA", "mountedVolumes", "removeTiles DATA", "mountedVolumes", "selectPage 0",
                          "reloadTable"));
  EXPECT_EQ(world.app().shell().wipingProcessOn, 0);
}

TEST_F(Cancellation, LocalisesItsTexts) {
  layOut();
  world.localisation.markTexts();
  world.app().cancelWipe();
  EXPECT_THAT(world.journal.only({"setText labelPhase", "alert"}),
              ElementsAre("setText labelPhase \"<Please wait, finishing current process..>\"",
                          "alert \"<Information>\" \"<Wiping process aborted>\" \"<OK>\" \"\"",
                          "setText labelPhase \"<Phase 1: Analyzing Data..>\""));
}

TEST_F(Cancellation, CountsTwoCancelsAndChangesNothingElse) {
  world.launch();
  world.app().cancelWipe();
  world.loop.drain();
  world.journal.clear();
  world.app().cancelWipe();
  const Steps second = world.steps();
  world.loop.drain();
  EXPECT_EQ(world.app().shell().cancelNumber, 2);

  World once;
  once.loop.setPosts(FakeEventLoop::Posts::queued);
  once.volume("DATA", 300'000'000);
  once.launch();
  once.app().cancelWipe();
  EXPECT_EQ(second, once.steps());
  EXPECT_EQ(world.loop.terminations(), 0);
}

TEST_F(Cancellation, WithoutARunDeletesWhatIsThereAndShowsTheSameAlert) {
  world.files.addDirectory("/media/DATA", World::kDirectory);
  AppDelegate& app = world.launch();
  app.cancelWipe();
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
  EXPECT_THAT(world.journal.only({"alert"}), ElementsAre(kAbortedAlert));
  EXPECT_TRUE(app.abortErasing());
  EXPECT_EQ(app.currentRun()->terminateThread, 1);
}

TEST_F(Cancellation, FromTheSuiteInLocalModeEndsTheApplicationWithoutTheAlert) {
  layOut();
  world.app().cancelProcess();
  EXPECT_THAT(world.steps(),
              ElementsAre("hide proceedBtn", "setText labelPhase \"Please wait, finishing current process..\"",
                          "setProgressIndeterminate", "detach", "releaseSpace", "removeDirectory /media/DATA/.$$XE8AQU",
                          "setText tfCleanedSize \"300.00 MB\"", "post", "terminate"));
  EXPECT_EQ(world.app().order().cloudTerm, 1);
}

TEST_F(Cancellation, InRemoteModeReportsTheAbortAndEndsTheApplicationThreeSecondsAfterThePopUp) {
  world.order("DATA", "1");
  world.launch();
  world.app().createFile(*world.app().currentRun());
  world.journal.clear();
  world.app().cancelWipe();
  EXPECT_THAT(world.steps(),
              ElementsAre("hide proceedBtn", "setText labelPhase \"Please wait, finishing current process..\"",
                          "setProgressIndeterminate", "detach", "releaseSpace", "removeDirectory /media/DATA/.$$XE8AQU",
                          "setText tfCleanedSize \"300.00 MB\"", "post", "startTimer 7000 once", "activateApplication",
                          "popUp 1 0.466667 0.203922 1 \"Remote Wiping Process has been aborted.\"",
                          "setTag cvrResult \"cancelled free=299999232 covered=0 not-held=0 faults=0\"",
                          "setTag cvrStatus \"3\"", "selectPage 0", "sleep 3", "terminate"));
}

TEST_F(Cancellation, DoesNotLocaliseTheRemoteAbortText) {
  world.localisation.markTexts();
  world.order("DATA", "1");
  world.launch().cancelWipe();
  EXPECT_THAT(world.journal.only({"popUp"}),
              ElementsAre("popUp 1 0.466667 0.203922 1 \"Remote Wiping Process has been aborted.\""));
}

TEST_F(Cancellation, GoesOnTellingTheUserWhenTheVolumeIsGone) {
  layOut();
  world.eject("DATA");
  world.app().cancelWipe();
  EXPECT_THAT(world.journal.only({"alert", "removeDirectory", "setText tfCleanedSize"}), ElementsAre(kAbortedAlert));
}

TEST_F(Cancellation, StopsAWorkerThatIsWritingAfterItsBlock) {
  world.start();
  world.app().dODWipe();
  world.files.script.before(FileCall::pwrite, 7, [this] { world.app().cancelWipe(); });
  world.runWorker();
  EXPECT_EQ(world.files.script.count(FileCall::pwrite), 9U);
  EXPECT_THAT(world.journal.only({"terminate", "bringToFront"}), IsEmpty());
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
  EXPECT_EQ(world.files.volume("/media/DATA").disk.takenBlocks(), 0U) << "the file that was open is gone as well";
}

TEST_F(Cancellation, WhileTheDirectoryIsBeingMadeLeavesNoDirectory) {
  world.start();
  world.files.script.before(FileCall::createDirectory, 1, [this] { world.app().cancelWipe(); });
  world.runWorker();
  world.loop.drain();
  EXPECT_EQ(world.files.script.count(FileCall::createDirectory), 1U);
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
  EXPECT_EQ(world.files.volume("/media/DATA").disk.takenBlocks(), 0U);
}

TEST_F(Cancellation, WhileTheDirectoryIsBeingMadeDoesNotWaitForTheWorkersEndToRemoveIt) {
  AppDelegate& app = world.start();
  world.files.script.before(FileCall::createDirectory, 1, [&] { app.cancelWipe(); });
  app.createFile(*app.currentRun());
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
}

TEST_F(Cancellation, IsNoFaultForTheWriterWhoseFileIsTakenAway) {
  world.start();
  const RunPtr run = world.app().currentRun();
  world.files.script.before(FileCall::pwrite, 3, [this] { world.app().cancelWipe(); });
  world.files.script.failFrom(FileCall::pwrite, 3, ErrorCode::gone);
  world.runWorker();
  EXPECT_EQ(run->faults(), 0U);
  EXPECT_EQ(run->outcome, RunOutcome::cancelled);
}

TEST_F(Cancellation, WhileTheNextFileIsLookedForIsNoLostVolume) {
  world.start();
  world.files.script.before(FileCall::exists, 2, [this] { world.app().cancelWipe(); });
  world.runWorker();
  EXPECT_THAT(world.journal.only({"alert", "terminate"}), ElementsAre(kAbortedAlert));
  EXPECT_EQ(world.app().currentRun()->volumeEjected, 0);
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
}

TEST_F(Cancellation, LeavesADirectoryThatCannotBeRemovedYetToTheWorkerWithoutANotice) {
  world.start();
  world.files.script.before(FileCall::pwrite, 3, [this] { world.app().cancelWipe(); });
  world.files.script.failAt(FileCall::removeDirectory, 1, ErrorCode::other);
  world.runWorker();
  EXPECT_THAT(world.journal.only({"notice"}), IsEmpty());
  EXPECT_THAT(world.journal.only({"log unlinkat"}),
              ElementsAre("log unlinkat /media/DATA/.$$XE8AQU: as the test has it"));
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
}

TEST(CancellationWithoutVolumes, StillTellsTheUser) {
  World world;
  world.launch().cancelWipe();
  EXPECT_EQ(world.journal.only({"log cancel:"}).size(), 1U);
  EXPECT_THAT(world.journal.only({"alert"}), ElementsAre(kAbortedAlert));
}

class Completion : public Cancellation {};

TEST_F(Completion, OkGoesBackAndThenHidesTheWindowOnceTheActionHasReturned) {
  world.start();
  world.app().OKBtn();
  EXPECT_THAT(world.journal.all(), ElementsAre("post"));
  world.journal.clear();
  world.loop.drain();
  const Steps steps = world.journal.all();
  ASSERT_GE(steps.size(), 3U);
  EXPECT_EQ(steps.front(), "selectPage 0");
  EXPECT_EQ(steps[1], "reloadTable");
  EXPECT_EQ(steps.back(), "orderOut windowCompleted");
  EXPECT_EQ(world.app().shell().wipingProcessOn, 0);
}

TEST_F(Completion, OkOfThePageResetsThePageInOrder) {
  world.start();
  ASSERT_EQ(world.app().shell().wipingProcessOn, 1);
  world.app().eraseCompletedOK();
  EXPECT_THAT(world.journal.all(), ElementsAre("selectPage 0", "hide buttonCancel", "setProgressIndeterminate",
                                               "show buttonNext", "hide buttonProceed"));
  EXPECT_TRUE(world.app().abortErasing());
  EXPECT_EQ(world.app().shell().wipingProcessOn, 0);
  EXPECT_TRUE(world.controls.shown(Control::buttonNext));
  EXPECT_TRUE(world.controls.hidden(Control::buttonCancel));
  EXPECT_TRUE(world.controls.hidden(Control::buttonProceed));
}

TEST_F(Completion, LeavesTheAbortSetUntilTheNextRunClearsIt) {
  world.start();
  world.app().seventh_FAST_ZERO_WRITE();
  world.runWorker();
  world.app().OKBtn();
  world.loop.drain();
  EXPECT_TRUE(world.app().abortErasing());
  world.app().next();
  EXPECT_TRUE(world.app().abortErasing());
  world.proceed();
  EXPECT_FALSE(world.app().abortErasing());
}

TEST_F(Cancellation, OfAVolumeThatDoesNotAnswerGoesOnWithoutItAndRemovesTheFilesLater) {
  layOut();
  world.loop.letLimitsPass();
  world.app().cancelWipe();
  EXPECT_THAT(world.journal.only({"limit", "alert"}), ElementsAre("limit 4000", "limit 4000", kAbortedAlert));
  EXPECT_TRUE(world.files.directoryExists(World::kDirectory));
  world.loop.drain();
  EXPECT_EQ(world.controls.page(), 0);
  world.threads.runWaiting("calvero-cancel");
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
}

TEST_F(Cancellation, WaitsOnWhileTheCleanUpGetsOn) {
  layOut();
  const auto directory = holdAFile();
  world.loop.letLimitsPass();
  int limits = 0;
  world.loop.whenLimitPasses([&] {
    if (++limits == 1) directory->releaseSpace();
  });
  world.app().cancelWipe();
  EXPECT_EQ(limits, 3) << "two more after the sign of life";
}

TEST_F(Cancellation, WaitsOnWhenAHaltOfTheProgramHasTakenTheTimeOfALook) {
  layOut();
  holdAFile();
  world.loop.letLimitsPass();
  int limits = 0;
  world.loop.whenLimitPasses([&] {
    if (++limits == 2) world.threads.runWaiting("calvero-cancel");
  });
  world.app().cancelWipe();
  EXPECT_EQ(limits, 2);
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
}

TEST_F(Cancellation, OfARunThatEndsTheApplicationMeanwhileEndsItOnceTheFilesAreRemoved) {
  layOut();
  const RunPtr run = world.app().currentRun();
  world.loop.whenServed([&] {
    world.app().startPhaseTwo(*run);
    world.app().cancelWipe();
    EXPECT_EQ(world.loop.terminations(), 0);
    world.threads.runWaiting("calvero-cancel");
  });
  world.app().cancelWipe();
  EXPECT_THAT(world.journal.only({"alert", "removeDirectory", "notice", "terminate"}),
              ElementsAre(kUnknownErrorAlert, "removeDirectory /media/DATA/.$$XE8AQU", "terminate"));
}

TEST_F(Cancellation, OfAVolumeThatDoesNotAnswerEndsTheApplicationForARunThatAsksForItMeanwhile) {
  layOut();
  world.loop.letLimitsPass();
  int limits = 0;
  world.loop.whenLimitPasses([&] {
    if (++limits == 1) world.app().startPhaseTwo(*world.app().currentRun());
  });
  world.app().cancelWipe();
  EXPECT_EQ(limits, 2);
  EXPECT_THAT(world.journal.only({"alert", "terminate"}), ElementsAre(kUnknownErrorAlert, "terminate"));
}

TEST_F(Cancellation, BlamesNoVolumeWhenTheProgramEndsMeanwhile) {
  layOut();
  world.loop.whenServed([this] { world.loop.terminate(); });
  world.app().cancelWipe();
  EXPECT_THAT(world.journal.only({"notice"}), IsEmpty());
}

TEST_F(Cancellation, RemovesTheFilesItselfWhenTheSystemHasNoThreadToSpare) {
  layOut();
  world.threads.refuse("calvero-cancel");
  world.app().cancelWipe();
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
  EXPECT_THAT(world.journal.only({"alert", "notice"}), ElementsAre(kAbortedAlert));
}

TEST_F(Cancellation, AskedForAgainWhileItWaitsIsCountedAndDoneOnce) {
  layOut();
  world.loop.whenServed([this] {
    world.app().cancelWipe();
    world.threads.runWaiting("calvero-cancel");
  });
  world.app().cancelWipe();
  EXPECT_EQ(world.app().shell().cancelNumber, 2);
  EXPECT_EQ(world.journal.only({"removeDirectory"}).size(), 1U);
  EXPECT_THAT(world.journal.only({"alert"}), ElementsAre(kAbortedAlert));
}

TEST_F(Cancellation, AskedForByTheSuiteWhileItWaitsEndsTheApplicationWithoutTheAlert) {
  layOut();
  world.loop.whenServed([this] {
    world.app().cancelProcess();
    world.threads.runWaiting("calvero-cancel");
  });
  world.app().cancelWipe();
  EXPECT_THAT(world.journal.only({"alert", "terminate"}), ElementsAre("terminate"));
}

}  // namespace
}  // namespace calvero
