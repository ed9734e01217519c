#include "platform/qt/wizard/wizard_session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTableView>
#include <QTimer>
#include <csignal>

#include "platform/qt/item_view.h"
#include "platform/qt/tile_grid.h"
#include "platform/qt/volume_page.h"
#include "tests/platform/qt/wizard_fixture.h"

namespace calvero {
namespace {

using testing::FileCall;
using ::testing::HasSubstr;
using ::testing::Not;

class WindowSession : public testing::WizardFixture {
 protected:
  TileGrid& tiles() { return ports.window.volumes().tiles(); }
  /// The index of the only tile that is drawn as selected; -1 when there is not exactly one.
  int selectedTile() {
    int found = -1;
    for (std::size_t i = 0; i < tiles().count(); ++i) {
      if (!tiles().tile(i)->selected()) continue;
      if (found >= 0) return -1;
      found = static_cast<int>(i);
    }
    return found;
  }
  void click(std::size_t tile) { QTest::mouseClick(tiles().tile(tile), Qt::LeftButton); }
  void reload() {
    press("reloadDrivers");
    QCoreApplication::processEvents();
  }
};

TEST_F(WindowSession, OpensTheWindowWithTheFirstTileSelectedAndItsVolumeDescribed) {
  mountVolume("DATA");
  mountVolume("MORE");
  use([this] {
    EXPECT_TRUE(ports.window.isVisible());
    EXPECT_EQ(selectedTile(), 0);
    EXPECT_EQ(text("tfDriveName"), "DATA");
    EXPECT_EQ(text("tfFreeSpace"), "300.00 KB");
  });
}

TEST_F(WindowSession, OpensWithoutAnyVolumeAndNextSaysThatThereIsNothingToErase) {
  use([this] {
    EXPECT_TRUE(ports.window.isVisible());
    answerNextAlert();
    press("buttonNext");
    EXPECT_THAT(alertText, HasSubstr("There is no drive to erase."));
    EXPECT_EQ(page(), 0);
    mountVolume("DATA");
    reload();
    EXPECT_EQ(selectedTile(), 0) << "and it is usable once a drive was connected";
    press("buttonNext");
    EXPECT_EQ(page(), 1);
  });
}

TEST_F(WindowSession, LogsAnExceptionOfAHandlerAndGoesOn) {
  mountVolume("DATA");
  use([this] {
    ports.window.onTableSelectionChanged();
    app->setCurrentSelection(0);
    ports.dispatch.run([this] { app->setCurrentSelection(7); });
    ports.dispatch.run([this] { app->setCurrentSelection(0); });
    EXPECT_EQ(text("tfDriveName"), "DATA");
  });
}

TEST_F(WindowSession, ShowsTheVolumeOfAClickedTile) {
  mountVolume("DATA");
  mountVolume("MORE", 500'000);
  use([this] {
    click(1);
    EXPECT_EQ(selectedTile(), 1);
    EXPECT_EQ(text("tfDriveName"), "MORE");
    EXPECT_EQ(text("tfFreeSpace"), "500.00 KB");
  });
}

TEST_F(WindowSession, KeepsTheSelectedVolumeThroughAReloadWhereverItHasMoved) {
  mountVolume("DATA");
  mountVolume("MORE");
  use([this] {
    click(1);
    volumes.remove("DATA");
    mountVolume("LATE");
    reload();
    EXPECT_EQ(selectedTile(), 0);
    EXPECT_EQ(text("tfDriveName"), "MORE");
    EXPECT_EQ(app->nameSelectedVolume(), "MORE") << "what is described is what would be erased";
  });
}

TEST_F(WindowSession, SelectsTheFirstVolumeWhenTheSelectedOneIsGone) {
  for (const char* name : {"ZERO", "ONE", "TWO"}) mountVolume(name);
  use([this] {
    click(2);
    unmountVolume("TWO");
    reload();
    EXPECT_EQ(selectedTile(), 0);
    EXPECT_EQ(text("tfDriveName"), "ZERO");
    EXPECT_EQ(app->nameSelectedVolume(), "ZERO");
    click(1);
    EXPECT_EQ(selectedTile(), 1) << "the first click after the list has shrunk counts";
  });
}

TEST_F(WindowSession, DescribesNothingWhenAllVolumesAreGone) {
  mountVolume("DATA");
  use([this] {
    unmountVolume("DATA");
    reload();
    EXPECT_EQ(text("tfDriveName"), "");
    EXPECT_EQ(text("tfFreeSpace"), "");
  });
}

TEST_F(WindowSession, SelectsByTheTableWithoutMovingTheHighlightedTile) {
  mountVolume("DATA");
  mountVolume("MORE");
  use([this] {
    auto* table = named<QTableView>("tableview");
    table->show();
    table->selectRow(1);
    EXPECT_EQ(text("tfDriveName"), "MORE");
    EXPECT_EQ(selectedTile(), 0);
  });
}

TEST_F(WindowSession, ListsEachVolumeOnceAfterReloads) {
  mountVolume("DATA");
  mountVolume("MORE");
  use([this] {
    reload();
    reload();
    EXPECT_EQ(tiles().count(), 2U);
    EXPECT_EQ(named<QTableView>("tableview")->model()->rowCount(), 2);
  });
}

struct Refusal {
  ErrorCode code;
  const char* words;
};

TEST_F(WindowSession, RefusesAVolumeThatCannotBeErasedAndSaysWhy) {
  mountVolume("DATA");
  use([this] {
    for (const Refusal& refusal :
         {Refusal{ErrorCode::notPermitted, "You are not allowed to write"},
          Refusal{ErrorCode::busy, "being erased by another process"},
          Refusal{ErrorCode::notOurs, "a folder \".$$XE8AQU\" that was not made by Calvero"},
          Refusal{ErrorCode::gone, "does not respond"}, Refusal{ErrorCode::other, "Unknown Error Occured"}}) {
      alertText.clear();
      files.script.failAt(FileCall::checkDirectory, files.script.count(FileCall::checkDirectory) + 1, refusal.code);
      answerNextAlert();
      press("buttonNext");
      EXPECT_THAT(alertText, HasSubstr(refusal.words));
      EXPECT_EQ(page(), 0);
    }
  });
}

TEST_F(WindowSession, RefusesAVolumeThatWasPulledSinceItWasListed) {
  mountVolume("DATA");
  use([this] {
    unmountVolume("DATA");
    answerNextAlert();
    press("buttonNext");
    EXPECT_THAT(alertText, HasSubstr("not connected any more"));
    EXPECT_EQ(page(), 0);
  });
}

TEST_F(WindowSession, LooksAgainBeforeARunWhetherTheVolumeCanBeErased) {
  mountVolume("DATA");
  use([this] {
    press("buttonNext");
    ASSERT_EQ(page(), 1);
    files.script.failAt(FileCall::checkDirectory, files.script.count(FileCall::checkDirectory) + 1, ErrorCode::busy);
    answerNextAlert();
    press("proceedBtn");
    EXPECT_THAT(alertText, HasSubstr("being erased by another process"));
    EXPECT_EQ(page(), 1);
    EXPECT_EQ(app->shell().wipingProcessOn, 0);
  });
}

TEST_F(WindowSession, ShowsTheCompletionWindowOfAFinishedRunAndReturnsWithItsOk) {
  mountVolume("DATA");
  use([this] {
    startRun();
    ASSERT_TRUE(comesTrue([this] { return completed().isVisible(); }));
    EXPECT_EQ(page(), 2);
    EXPECT_THAT(outcome(), HasSubstr("The free space of DATA has been erased."));
    QTest::keyClick(&completed(), Qt::Key_Return);
    ASSERT_TRUE(comesTrue([this] { return page() == 0; }));
    EXPECT_FALSE(completed().isVisible());
    EXPECT_TRUE(named<QWidget>("buttonNext")->isVisible());
    EXPECT_TRUE(named<QWidget>("buttonHome")->isVisible());
  });
}

TEST_F(WindowSession, ReturnsByTheCompletionPagesOkToo) {
  mountVolume("DATA");
  use([this] {
    startRun();
    ASSERT_TRUE(comesTrue([this] { return completed().isVisible(); }));
    press("completionPageOk");
    ASSERT_TRUE(comesTrue([this] { return !completed().isVisible(); }));
    EXPECT_EQ(page(), 0);
    EXPECT_TRUE(app->abortErasing());
    EXPECT_EQ(app->shell().wipingProcessOn, 0);
    EXPECT_TRUE(named<QWidget>("buttonNext")->isVisible());
  });
}

TEST_F(WindowSession, WarnsWhenWritesOfAFinishedRunFailed) {
  mountVolume("DATA");
  use([this] {
    files.script.failAt(FileCall::fsync, 2, ErrorCode::other);
    startRun();
    ASSERT_TRUE(comesTrue([this] { return completed().isVisible(); }));
    EXPECT_THAT(outcome(), HasSubstr("Part of the free space of DATA could not be erased."));
  });
}

TEST_F(WindowSession, WarnsWhenSpaceCouldNotBeHeld) {
  mountVolume("DATA");
  use([this] {
    files.setHandleLimit(0);
    startRun();
    ASSERT_TRUE(comesTrue([this] { return completed().isVisible(); }));
    EXPECT_THAT(outcome(), HasSubstr("Part of the free space of DATA could not be erased."));
  });
}

TEST_F(WindowSession, TellsAVolumeThatWasLostBetweenTwoFilesAndListsTheDrivesAnew) {
  mountVolume("DATA");
  mountVolume("MORE");
  use([this] {
    files.script.before(FileCall::removeItem, 1, [this] { unmountVolume("DATA"); });
    files.script.before(FileCall::pwrite, 2, [this] { unmountVolume("DATA"); });
    startRun();
    ASSERT_TRUE(comesTrue([this] { return completed().isVisible(); }));
    EXPECT_THAT(outcome(), HasSubstr("The drive DATA was removed or has failed."));
    ASSERT_TRUE(comesTrue([this] { return page() == 0; }));
    EXPECT_EQ(app->shell().wipingProcessOn, 0) << "the window can be closed again";
    QTest::keyClick(&completed(), Qt::Key_Escape);
    EXPECT_TRUE(comesTrue([this] { return tiles().count() == 1 && text("tfDriveName") == "MORE"; }));
  });
}

TEST_F(WindowSession, CancelsFromTheProgressPageAndRunsAgain) {
  mountVolume("DATA", 40'000'000);
  use([this] {
    startRunAndHoldIt();
    answerNextAlert();
    press("cancelBut");
    EXPECT_THAT(alertText, HasSubstr("Wiping process aborted"));
    ASSERT_TRUE(comesTrue([this] { return page() == 0 && app->shell().wipingProcessOn == 0; }));
    EXPECT_FALSE(files.directoryExists("/media/DATA/.$$XE8AQU"));
    press("buttonNext");
    EXPECT_TRUE(named<QWidget>("proceedBtn")->isVisible()) << "hidden by the cancel";
  });
}

TEST_F(WindowSession, RefusesToCloseDuringARunAndEndsTheProgramAfterwards) {
  mountVolume("DATA", 40'000'000);
  use([this] {
    startRunAndHoldIt();
    answerNextAlert();
    EXPECT_FALSE(ports.window.close());
    EXPECT_THAT(alertText, HasSubstr("Wiping process is On"));
    EXPECT_TRUE(ports.window.isVisible());
    EXPECT_FALSE(app->currentRun()->stopRequested());
    answerNextAlert();
    press("cancelBut");
    ASSERT_TRUE(comesTrue([this] { return app->shell().wipingProcessOn == 0; }));
    EXPECT_TRUE(ports.window.close());
  });
}

TEST_F(WindowSession, CancelsTheRunAndEndsAtASignal) {
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

TEST_F(WindowSession, StartsNoRunWhenASignalEndsTheProgramDuringTheNotice) {
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

TEST_F(WindowSession, LeavesTheWindowHiddenInRemoteMode) {
  mountVolume("DATA");
  tags.put("cvrOnline", "1");
  tags.put("cvrDrive", "DATA");
  tags.put("cvrAlgo", "1");
  use([this] {
    EXPECT_FALSE(ports.window.isVisible());
    ASSERT_TRUE(comesTrue([this] { return tags.peek("cvrStatus") == "2"; }));
    EXPECT_FALSE(completed().isVisible());
  });
}

TEST_F(WindowSession, EndsAtOnceWhenTheOrderedVolumeIsNotThere) {
  tags.put("cvrOnline", "1");
  tags.put("cvrDrive", "GONE");
  bool used = false;
  app = std::make_unique<AppDelegate>(machineOf());
  session = std::make_unique<WizardSession>(ports, *app);
  ports.loop.post([&] { used = true; });
  ports.loop.run();
  EXPECT_FALSE(used);
  EXPECT_EQ(tags.peek("cvrStatus"), "3");
  EXPECT_FALSE(ports.window.isVisible());
}

}  // namespace
}  // namespace calvero
