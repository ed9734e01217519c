#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

#include "tests/fakes/world.h"
#include "tests/wipe/alert_texts.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using testing::FileCall;
using ::testing::IsEmpty;
using testing::Steps;
using testing::World;

constexpr const char* kQuestion =
    "alert \"Alert!!\" \"Are you sure , you want to erase the free space of selected drive?\" \"YES\" \"NO\"";
constexpr const char* kNotice =
    "alert \"Please!! \n Close all the files related to drive , as well as do not add any data to drive during "
    "process.\" \"\" \"\" \"\"";
Steps joined(std::initializer_list<Steps> parts) {
  Steps all;
  for (const Steps& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

Steps progressFilledAtOnce() {
  Steps steps;
  for (int percent = 0; percent <= 100; ++percent) steps.push_back("setProgress " + std::to_string(percent));
  return steps;
}

class Proceed : public ::testing::Test {
 protected:
  Proceed() { world.volume("DATA", 300'000'000); }

  void reachMethodPage() {
    world.launch().next();
    world.journal.clear();
  }

  World world;
};

TEST_F(Proceed, AsksGivesTheNoticeAndStartsBothThreadsInOrder) {
  reachMethodPage();
  world.proceed();
  EXPECT_THAT(world.journal.all(), ElementsAre(kQuestion, kNotice, "selectPage 2", "hide buttonBack", "hide buttonHome",
                                               "setText tfFreespaceData \"300.00 MB\"", "show buttonCancel",
                                               "setText tfElapsedData \" \"", "setText tfElapsedTime \"00:00:00\"",
                                               "setText tfElapsedData \"0.00 KB\"", "sleep 1", "detach", "detach"));
  EXPECT_EQ(world.app().shell().wipingProcessOn, 1);
}

TEST_F(Proceed, TakesItsFillerSizeAndPausesFromTheScaleThatIsHandedIn) {
  world.fixed.scale = {.fillerBytes = 100'000'000,
                       .pauseBeforeStart = std::chrono::seconds(4),
                       .pauseAfterLayout = std::chrono::seconds(5)};
  reachMethodPage();
  world.proceed();
  EXPECT_THAT(world.journal.only({"sleep"}), ElementsAre("sleep 4"));
  world.journal.clear();
  world.runWorker();
  EXPECT_EQ(world.app().currentRun()->numTempFiles, 3U);
  EXPECT_THAT(world.journal.only({"sleep"}), ElementsAre("sleep 0", "sleep 5"));
  EXPECT_THAT(world.journal.only({"setText tfElapsedData"}),
              ElementsAre("setText tfElapsedData \"0.00 KB\"", "setText tfElapsedData \"100.00 MB\"",
                          "setText tfElapsedData \"200.00 MB\"", "setText tfElapsedData \"300.00 MB\""));
  EXPECT_EQ(world.app().currentRun()->outcome, RunOutcome::finished);
}

TEST_F(Proceed, ReturnsToTheVolumePageOnNoWithoutAFlagOrThread) {
  reachMethodPage();
  world.app().setAbortErasing(true);
  world.app().currentRun()->terminateThread = 1;
  world.alerts.willAnswer(AlertAnswer::alternateButton);
  world.proceed();
  EXPECT_THAT(world.journal.all(), ElementsAre(kQuestion, "hide buttonProceed", "show buttonNext", "selectPage 0"));
  EXPECT_EQ(world.threads.started(), 0U);
  EXPECT_TRUE(world.app().abortErasing());
  EXPECT_EQ(world.app().currentRun()->terminateThread, 1);
  EXPECT_EQ(world.app().shell().wipingProcessOn, 0);
}

TEST_F(Proceed, DoesNotMindTheAnswerToTheNotice) {
  reachMethodPage();
  world.alerts.willAnswer(AlertAnswer::defaultButton);
  world.alerts.willAnswer(AlertAnswer::alternateButton);
  world.proceed();
  EXPECT_EQ(world.threads.started(), 2U);
  EXPECT_EQ(world.controls.page(), 2);
}

TEST_F(Proceed, StartsNothingOnceTheSuiteHasEndedTheApplicationDuringTheNotice) {
  reachMethodPage();
  world.alerts.whileShown([this] {
    if (world.alerts.shown().size() == 1) world.systemNotifications.send("cancel wipe", "cancel");
  });
  world.proceed();
  EXPECT_EQ(world.loop.terminations(), 1);
  EXPECT_THAT(world.threads.names(), ElementsAre("calvero-cancel"));
  EXPECT_EQ(world.app().shell().wipingProcessOn, 0);
}

TEST_F(Proceed, LocalisesTheQuestionsFourTextsAndTheNoticesTitle) {
  world.localisation.markTexts();
  reachMethodPage();
  world.proceed();
  const auto alerts = world.alerts.shown();
  ASSERT_EQ(alerts.size(), 2U);
  EXPECT_EQ(alerts[0].title, "<Alert!!>");
  EXPECT_EQ(alerts[0].message, "<Are you sure , you want to erase the free space of selected drive?>");
  EXPECT_EQ(alerts[0].defaultButton, "<YES>");
  EXPECT_EQ(alerts[0].alternateButton, "<NO>");
  EXPECT_EQ(alerts[1].title,
            "<Please!! \n Close all the files related to drive , as well as do not add any data to drive during "
            "process.>");
  EXPECT_EQ(alerts[1].message, "");
  EXPECT_EQ(alerts[1].defaultButton, "");
}

TEST_F(Proceed, ShowsNoDialogAndSwitchesNoPageInRemoteModeYetStartsBothThreads) {
  world.order("DATA", "1");
  world.launch();
  const std::size_t before = world.threads.started();
  world.proceed();
  EXPECT_THAT(world.journal.all(),
              ElementsAre("hide buttonBack", "hide buttonHome", "setText tfFreespaceData \"300.00 MB\"",
                          "show buttonCancel", "setText tfElapsedData \" \"", "setText tfElapsedTime \"00:00:00\"",
                          "setText tfElapsedData \"0.00 KB\"", "sleep 1", "detach", "detach"));
  EXPECT_EQ(world.threads.started(), before + 2);
}

TEST_F(Proceed, ClearsTheAbortBeforeThePauseAndTheThreadsFlagAfterIt) {
  reachMethodPage();
  world.app().setAbortErasing(true);
  world.app().currentRun()->terminateThread = 1;
  bool paused = false;
  world.clock.whenSlept([&](Clock::Duration) {
    paused = true;
    EXPECT_FALSE(world.app().abortErasing());
    EXPECT_EQ(world.app().shell().wipingProcessOn, 1);
    EXPECT_EQ(world.app().currentRun()->terminateThread, 1);
  });
  world.proceed();
  EXPECT_TRUE(paused);
  EXPECT_EQ(world.app().currentRun()->terminateThread, 0);
}

TEST_F(Proceed, NamesItsThreadsWithinTheSystemsLimit) {
  world.start();
  for (const std::string& name : world.threads.names()) {
    EXPECT_FALSE(name.empty());
    EXPECT_LE(name.size(), 15U);
  }
}

TEST_F(Proceed, EndsTheApplicationWhenTheSystemHasNoThreadForTheWorker) {
  reachMethodPage();
  world.threads.refuse("calvero-wipe");
  world.proceed();
  EXPECT_THAT(world.journal.only({"alert", "terminate"}),
              ElementsAre(kQuestion, kNotice, kUnknownErrorAlert, "terminate"));
  EXPECT_EQ(world.app().currentRun()->outcome, RunOutcome::failed);
  EXPECT_EQ(world.app().currentRun()->firstFault().text(), "carry out the run: Resource temporarily unavailable");
  EXPECT_EQ(world.threads.started(), 0U);
}

TEST_F(Proceed, EndsTheApplicationAndLeavesNothingWhenTheSystemHasNoThreadForTheClock) {
  reachMethodPage();
  world.threads.refuse("calvero-clock");
  world.alerts.whileShown([this] {
    if (world.threads.started() == 1) world.runWorker();
  });
  world.proceed();
  EXPECT_THAT(world.journal.only({"alert", "terminate", "createDirectory"}),
              ElementsAre(kQuestion, kNotice, kUnknownErrorAlert, "terminate"));
  EXPECT_EQ(world.app().currentRun()->outcome, RunOutcome::failed);
  EXPECT_EQ(world.app().currentRun()->workerEnded, 1);
}

TEST_F(Proceed, ReportsAnOrderThatTheSystemHasNoThreadFor) {
  world.order("DATA", "1");
  world.threads.refuse("calvero-wipe");
  world.launch();
  EXPECT_EQ(world.tags.peek("cvrStatus"), "3");
  EXPECT_EQ(world.loop.terminations(), 1);
}

class Phases : public Proceed {
 protected:
  /// A run of three files that writes no patterns, for the steps around the writing.
  RunPtr startWithoutPasses() {
    world.start();
    world.app().seventh_FAST_ZERO_WRITE();
    world.journal.clear();
    return world.app().currentRun();
  }
};

TEST_F(Phases, RunThroughToTheCompletionWindowInOrder) {
  startWithoutPasses();
  world.runWorker();
  EXPECT_EQ(world.steps(),
            joined({{"sleep 0", "setText labelPhase \"Phase 1: Analyzing Data..\"", "redraw labelPhase",
                     "startProgressAnimation", "createDirectory /media/DATA/.$$XE8AQU", "create .temp0",
                     "create .temp1", "create .temp2", "setProgressDeterminate", "detach"},
                    progressFilledAtOnce(),
                    {"sleep 1", "setProgress 0", "hide buttonNext",
                     "setText labelPhase \"Phase 2: Securely Erasing Data..\"", "redraw labelPhase"},
                    {"setProgress 1", "exists .temp0", "readAttributes .temp0", "open .temp0", "close .temp0",
                     "setText tfElapsedData \"0.00 KB\"", "redraw tfElapsedData", "removeItem .temp0"},
                    {"setProgress 33", "exists .temp1", "readAttributes .temp1", "open .temp1", "close .temp1",
                     "setText tfElapsedData \"128.00 MB\"", "redraw tfElapsedData", "removeItem .temp1"},
                    {"setProgress 66", "exists .temp2", "readAttributes .temp2", "open .temp2", "close .temp2",
                     "setText tfElapsedData \"256.00 MB\"", "redraw tfElapsedData", "removeItem .temp2"},
                    {"releaseSpace", "removeDirectory /media/DATA/.$$XE8AQU", "setText tfCleanedSize \"300.00 MB\"",
                     "setText tfCleanedSize \"300.00 MB\"", "setProgress 100", "bringToFront windowCompleted"}}));
}

TEST_F(Phases, LetGoOfTheVolumeAtTheirEndWhateverItIs) {
  const RunPtr run = startWithoutPasses();
  world.runWorker();
  EXPECT_EQ(run->outcome, RunOutcome::finished);
  EXPECT_EQ(run->directory(), nullptr) << "a finished run that is kept would keep the volume busy";

  World other;
  other.volume("DATA", 300'000'000);
  other.start();
  other.files.script.failAt(FileCall::removeDirectory, 1, ErrorCode::readOnly);
  other.files.script.before(FileCall::pwrite, 1, [&] { other.app().currentRun()->abortErasing = 1; });
  other.runWorker();
  EXPECT_EQ(other.app().currentRun()->directory(), nullptr);
}

TEST_F(Phases, LogTheThreadsFlagFirst) {
  const RunPtr run = startWithoutPasses();
  run->terminateThread = 1;
  world.runWorker();
  EXPECT_THAT(world.journal.all(), ElementsAre("log terminate thread in phjase1 = 1", "sleep 0"));
}

TEST_F(Phases, EndBeforeTheFirstStepWhenTheThreadIsAlreadyTold) {
  const RunPtr run = startWithoutPasses();
  run->terminateThread = 1;
  world.app().startPhaseOne(*run);
  EXPECT_THAT(world.steps(), ElementsAre("sleep 0"));
}

TEST_F(Phases, ApplyTheOrderedMethodBeforeAnyFileIsMade) {
  world.order("DATA", "7");
  world.launch();
  world.runWorker();
  const Steps steps = world.steps();
  ASSERT_GT(steps.size(), 10U);
  EXPECT_EQ(steps[0], "sleep 0");
  EXPECT_EQ(steps[1], "turnOff butFastZeroWipe");
  EXPECT_EQ(steps[5], "turnOn butFAST_ZERO_WRITE");
  EXPECT_EQ(steps[10], "setText labelPhase \"Phase 1: Analyzing Data..\"");
}

TEST_F(Phases, LeaveTheChosenMethodAloneInOrdinaryMode) {
  startWithoutPasses();
  world.runWorker();
  EXPECT_THAT(world.journal.only({"turnOn", "turnOff"}), IsEmpty());
}

TEST_F(Phases, BeginTheSecondByWritingWhenNotAborted) {
  const RunPtr run = startWithoutPasses();
  world.app().createFile(*run);
  world.journal.clear();
  world.app().startPhaseTwo(*run);
  const Steps steps = world.steps();
  ASSERT_GE(steps.size(), 4U);
  EXPECT_THAT(Steps(steps.begin(), steps.begin() + 4),
              ElementsAre("hide buttonNext", "setText labelPhase \"Phase 2: Securely Erasing Data..\"",
                          "redraw labelPhase", "setProgress 1"));
}

TEST_F(Phases, EndTheApplicationAtTheStartOfTheSecondWhenAborted) {
  world.localisation.markTexts();
  const RunPtr run = startWithoutPasses();
  run->abortErasing = 1;
  world.app().startPhaseTwo(*run);
  EXPECT_THAT(world.steps(),
              ElementsAre("hide buttonNext",
                          "alert \"<Information>\" \"<Unknown Error Occured>\" \"<Relaunch the application>\" \"<>\"",
                          "terminate"));
}

TEST_F(Phases, EndTheApplicationWhenACancelArrivedDuringTheFirst) {
  startWithoutPasses();
  world.loop.setPosts(testing::FakeEventLoop::Posts::queued);
  world.files.script.before(FileCall::createFile, 2, [this] { world.app().cancelWipe(); });
  world.runWorker();
  EXPECT_THAT(
      world.journal.only({"alert", "terminate"}),
      ElementsAre("alert \"Information\" \"Wiping process aborted\" \"OK\" \"\"", kUnknownErrorAlert, "terminate"));
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
  EXPECT_EQ(world.files.script.count(FileCall::open), 0U);
}

TEST_F(Phases, GoOnWithoutTheThreadThatHasNoWorkWhenTheSystemHasNoneToSpare) {
  const RunPtr run = startWithoutPasses();
  world.threads.refuse("calvero-data");
  world.runWorker();
  EXPECT_EQ(run->outcome, RunOutcome::finished);
  EXPECT_EQ(run->faults(), 0U);
  EXPECT_EQ(world.journal.only({"log run:"}).size(), 1U);
  EXPECT_EQ(world.journal.only({"removeItem"}).size(), 3U);
  EXPECT_THAT(world.journal.only({"alert", "terminate"}), IsEmpty());
}

TEST_F(Phases, TakeARenamedDirectoryForALostVolumeAndLeaveNothingUnderItsNewName) {
  const RunPtr run = startWithoutPasses();
  const std::string renamed = "/media/DATA/renamed";
  world.files.script.before(FileCall::exists, 2, [&] { world.files.renameFromOutside(World::kDirectory, renamed); });
  world.runWorker();
  EXPECT_EQ(run->volumeEjected, 1);
  EXPECT_EQ(run->outcome, RunOutcome::failed);
  EXPECT_THAT(world.journal.only({"alert", "terminate"}), ElementsAre(kUnknownErrorAlert, "terminate"));
  EXPECT_FALSE(world.files.directoryExists(renamed));
}

TEST_F(Phases, MarkAFinishedRunAsOverAndLeaveTheProcessOn) {
  const RunPtr run = startWithoutPasses();
  world.runWorker();
  EXPECT_TRUE(world.app().abortErasing());
  EXPECT_EQ(world.app().currentRun(), run);
  EXPECT_EQ(run->terminateThread, 0);
  EXPECT_EQ(world.app().shell().wipingProcessOn, 1);
  EXPECT_EQ(run->outcome, RunOutcome::finished);
  EXPECT_EQ(run->workerEnded, 1);
}

TEST_F(Phases, RaiseTheCompletionWindowBeforeTheRunIsMarkedAsOver) {
  const RunPtr run = startWithoutPasses();
  bool wasOver = true;
  world.journal.whenAdded([&](const std::string& entry) {
    if (entry == "bringToFront windowCompleted") wasOver = run->abortErasing != 0;
  });
  world.runWorker();
  EXPECT_FALSE(wasOver) << "the window would stay away if it were asked for after the mark";
  EXPECT_EQ(world.journal.all().back(), "bringToFront windowCompleted");
  EXPECT_TRUE(world.controls.shown(Control::windowCompleted));
  EXPECT_EQ(run->abortErasing, 1);
}

TEST_F(Phases, PostTheCompletionWindowBeforeTheRunIsMarkedAsOver) {
  const RunPtr run = startWithoutPasses();
  world.loop.setPosts(testing::FakeEventLoop::Posts::queued);
  world.loop.setLoopThread(testing::FakeEventLoop::LoopThread::thisThreadOnly);
  bool wasOver = true;
  world.journal.whenAdded([&](const std::string& entry) {
    if (entry == "post") wasOver = run->abortErasing != 0;
  });
  std::thread([this] { world.runWorker(); }).join();
  EXPECT_FALSE(wasOver) << "at the last post";
  EXPECT_EQ(run->abortErasing, 1);
  EXPECT_FALSE(world.controls.shown(Control::windowCompleted));
  world.loop.drain();
  EXPECT_EQ(world.journal.all().back(), "bringToFront windowCompleted");
}

}  // namespace
}  // namespace calvero
