#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <QTimer>
#include <csignal>

#include "tests/window/wizard_fixture.h"

namespace calvero {
namespace {

using testing::FileCall;
using ::testing::HasSubstr;
using ::testing::Not;

/// What ends a run, or the program, before its time.
class EndOfWindowSession : public testing::WizardFixture {};

TEST_F(EndOfWindowSession, CancelsFromTheProgressPageAndRunsAgain) {
  mountVolume("DATA", 40'000'000);
  use([this] {
    startRunAndHoldIt();
    answerNextAlert();
    press("cancelBut");
    EXPECT_THAT(alertText, HasSubstr("Wiping process aborted"));
    ASSERT_TRUE(comesTrue([this] { return page() == 0 && app->shell().wipingProcessOn == 0; }));
    EXPECT_FALSE(files.directoryExists("/media/DATA/.$$XE8AQU"));
    release();
    press("buttonNext");
    EXPECT_TRUE(named<QWidget>("proceedBtn")->isVisible()) << "hidden by the cancel";
    answerNextAlert(kYes, [this] { answerNextAlert(); });
    press("proceedBtn");
    ASSERT_TRUE(comesTrue([this] { return completed().isVisible(); }));
    EXPECT_THAT(outcome(), HasSubstr("40.00 MB of free space on DATA have been overwritten."));
    EXPECT_EQ(app->currentRun()->outcome, RunOutcome::finished);
  });
}

TEST_F(EndOfWindowSession, RefusesToCloseDuringARunAndEndsTheProgramAfterwards) {
  mountVolume("DATA", 40'000'000);
  use([this] {
    startRunAndHoldIt();
    answerNextAlert();
    EXPECT_FALSE(ports.window.close());
    EXPECT_THAT(alertText, HasSubstr("Wiping process is On"));
    EXPECT_TRUE(ports.window.isVisible());
    EXPECT_FALSE(app->currentRun()->stopRequested());
    EXPECT_FALSE(ports.loop.isEnding());
    answerNextAlert();
    press("cancelBut");
    ASSERT_TRUE(comesTrue([this] { return app->shell().wipingProcessOn == 0; }));
    EXPECT_FALSE(ports.loop.isEnding());
    EXPECT_TRUE(ports.window.close());
    EXPECT_TRUE(ports.loop.isEnding()) << "the program would run on without a window";
  });
}

TEST_F(EndOfWindowSession, CancelsTheRunAndEndsAtASignal) {
  mountVolume("DATA", 40'000'000);
  bool wentOn = false;
  use([&] {
    startRunAndHoldIt();
    std::raise(SIGTERM);
    wentOn = comesTrue([this] { return app->currentRun()->outcome == RunOutcome::cancelled; });
  });
  EXPECT_TRUE(wentOn);
  release();
  EXPECT_TRUE(ports.threads.waitForAll(std::chrono::seconds(20)));
  EXPECT_FALSE(files.directoryExists("/media/DATA/.$$XE8AQU"));
  EXPECT_THAT(alertText, Not(HasSubstr("aborted"))) << "nobody may be there to answer";
}

TEST_F(EndOfWindowSession, WaitsForTheCleanUpOfACancelWhenASignalComesMeanwhile) {
  mountVolume("DATA", 40'000'000);
  std::promise<void> served;
  files.script.before(FileCall::removeDirectory, 1, [&] {
    ::kill(::getpid(), SIGTERM);  // not to this thread, which takes none
    served.get_future().wait_for(std::chrono::seconds(5));
  });
  bool leftSomething = true;
  use([&] {
    startRunAndHoldIt();
    ports.loop.startTimer(std::chrono::milliseconds(5), TimerKind::repeating, [&, told = false]() mutable {
      if (!told && app->shell().cancelNumber == 2) served.set_value();
      told = app->shell().cancelNumber == 2;
    });
    press("cancelBut");
    leftSomething = files.directoryExists("/media/DATA/.$$XE8AQU");
  });
  EXPECT_FALSE(leftSomething) << "the program was ended before the clean-up";
  EXPECT_EQ(app->shell().cancelNumber, 2);
  EXPECT_THAT(alertText, Not(HasSubstr("aborted"))) << "nobody may be there to answer";
}

TEST_F(EndOfWindowSession, StartsNoRunWhenASignalEndsTheProgramDuringTheNotice) {
  mountVolume("DATA");
  QTimer signalling;
  QObject::connect(&signalling, &QTimer::timeout, [&] {
    if (alertText.empty() || QApplication::activeModalWidget() == nullptr) return;  // the question is not answered yet
    signalling.stop();
    std::raise(SIGTERM);
  });
  use([&] {
    press("buttonNext");
    answerNextAlert();  // YES
    signalling.start(std::chrono::milliseconds(5));
    press("proceedBtn");
  });
  EXPECT_THAT(alertText, HasSubstr("Are you sure"));
  EXPECT_FALSE(signalling.isActive()) << "the notice was shown";
  EXPECT_EQ(app->shell().wipingProcessOn, 0);
  EXPECT_EQ(files.script.count(FileCall::pwrite), 0U);
  EXPECT_FALSE(files.directoryExists("/media/DATA/.$$XE8AQU"));
}

}  // namespace
}  // namespace calvero
