#include "window/wizard/wizard_session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <syslog.h>

#include <QProgressBar>
#include <QTableView>

#include "tests/ten_methods.h"
#include "tests/window/wizard_fixture.h"
#include "window/item_view.h"
#include "window/tile_grid.h"
#include "window/volume_page.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using testing::FileCall;
using ::testing::HasSubstr;

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

TEST_F(WindowSession, BringsTheWindowToTheFrontOnceItIsShown) {
  class Watch : public QObject {
   public:
    bool isRaised = false;
    bool eventFilter(QObject* watched, QEvent* event) override {
      const auto* window = static_cast<QWidget*>(watched);
      if (event->type() == QEvent::ZOrderChange && window->isVisible()) isRaised = true;
      return false;
    }
  };
  Watch watch;
  ports.window.installEventFilter(&watch);
  mountVolume("DATA");
  use([&] { EXPECT_TRUE(watch.isRaised); });
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
  use([this] {
    ::openlog("calvero", LOG_PERROR, LOG_USER);  // what is logged goes to the standard error output, too
    ::testing::internal::CaptureStderr();
    ports.window.onTableSelectionChanged();  // asks for a volume of the empty list
    EXPECT_THAT(::testing::internal::GetCapturedStderr(), HasSubstr("calvero: Unexpected failure: "));
    mountVolume("DATA");
    reload();
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

TEST_F(WindowSession, ShowsTheCompletionWindowOfAFinishedRunAndReturnsWithItsOk) {
  mountVolume("DATA");
  use([this] {
    startRun();
    ASSERT_TRUE(comesTrue([this] { return completed().isVisible(); }));
    EXPECT_EQ(page(), 2);
    EXPECT_FALSE(isWarned());
    EXPECT_THAT(outcome(), HasSubstr("299.01 KB of free space on DATA have been overwritten."));
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

TEST_F(WindowSession, NamesTheFolderThatAFinishedRunCouldNotRemove) {
  mountVolume("DATA");
  use([this] {
    files.script.failAt(FileCall::removeDirectory, 1, ErrorCode::notPermitted);
    startRun();
    ASSERT_TRUE(comesTrue([this] { return completed().isVisible(); }));
    EXPECT_THAT(outcome(), HasSubstr("The free space has been erased, but"));
    EXPECT_THAT(outcome(), HasSubstr("/media/DATA/.$$XE8AQU"));
  });
}

TEST_F(WindowSession, WarnsWhenWritesOfAFinishedRunFailed) {
  mountVolume("DATA");
  use([this] {
    files.script.failAt(FileCall::fsync, 2, ErrorCode::other);
    startRun();
    ASSERT_TRUE(comesTrue([this] { return completed().isVisible(); }));
    EXPECT_THAT(outcome(), HasSubstr("Only 266.24 KB of 299.01 KB of free space on DATA have been overwritten."));
    EXPECT_THAT(outcome(), HasSubstr("Deleted data may still be readable there."));
  });
}

TEST_F(WindowSession, WarnsWhenAnotherProgramGaveBackSpaceBeforeTheEnd) {
  mountVolume("DATA");
  use([this] {
    files.setHandleLimit(0);
    files.script.before(FileCall::releaseSpace, 1,
                        [this] { files.removeFromOutside("/media/DATA/.$$XE8AQU", ".temp0"); });
    startRun();
    ASSERT_TRUE(comesTrue([this] { return completed().isVisible(); }));
    EXPECT_THAT(outcome(), HasSubstr("Only 0.00 KB of 299.01 KB of free space on DATA have been overwritten."));
  });
}

TEST_F(WindowSession, WarnsWhereAnotherProgramTookTheSpaceDuringTheRun) {
  mountVolume("DATA", 40'000'000);
  use([this] {
    files.script.before(FileCall::pwrite, 10, [this] {
      auto& disk = files.volume("/media/DATA").disk;
      for (int block = 0; block < 5000; ++block) disk.allocate();
    });
    startRun();
    ASSERT_TRUE(comesTrue([this] { return completed().isVisible(); }));
    EXPECT_THAT(outcome(), HasSubstr("Only 19.52 MB of 40.00 MB of free space on DATA have been overwritten."));
    EXPECT_TRUE(isWarned());
  });
}

TEST_F(WindowSession, WarnsThatAMethodWithoutDataHasOverwrittenNothing) {
  mountVolume("DATA");
  use([this] {
    press("buttonNext");
    press("butFAST_ZERO_WRITE");
    answerNextAlert(kYes, [this] { answerNextAlert(); });
    press("proceedBtn");
    ASSERT_TRUE(comesTrue([this] { return completed().isVisible(); }));
    EXPECT_EQ(outcome(), "Nothing was overwritten: this method writes no data.");
    EXPECT_TRUE(isWarned());
  });
}

TEST_F(WindowSession, TellsThatTheStorageBehindADriveIsFullAsALostDrive) {
  mountVolume("DATA");
  use([this] {
    files.script.failAt(FileCall::fsync, 2, ErrorCode::full);
    startRun();
    ASSERT_TRUE(comesTrue([this] { return completed().isVisible(); }));
    EXPECT_THAT(outcome(), HasSubstr("The storage behind the drive DATA is full or failing. Make room there"));
    EXPECT_TRUE(isWarned());
    ASSERT_TRUE(comesTrue([this] { return page() == 0; }));
    EXPECT_EQ(app->shell().wipingProcessOn, 0);
    EXPECT_FALSE(files.directoryExists("/media/DATA/.$$XE8AQU"));
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

TEST_F(WindowSession, ShowsThatPhaseOneGoesOnWithoutAFigureAlsoAfterAFinishedRun) {
  mountVolume("DATA");
  const auto* bar = named<QProgressBar>("piDataWipe");
  std::vector<int> inPhaseOne;
  use([&] {
    for (int run = 0; run < 2; ++run) {
      std::promise<void> seen;
      const auto isSeen = seen.get_future().share();
      std::atomic<bool> isLayingOut{false};
      files.script.before(FileCall::createFile, files.script.count(FileCall::createFile) + 1, [&] {
        isLayingOut = true;
        isSeen.wait();
      });
      startRun();
      EXPECT_TRUE(comesTrue([&] { return isLayingOut && text("labelPhase") == "Phase 1: Analyzing Data.."; }));
      inPhaseOne.push_back(bar->maximum());
      EXPECT_EQ(text("percentLabel"), "");
      seen.set_value();
      ASSERT_TRUE(comesTrue([this] { return completed().isVisible(); }));
      EXPECT_EQ(bar->maximum(), 100);
      EXPECT_EQ(text("percentLabel"), "100%");
      QTest::keyClick(&completed(), Qt::Key_Return);
      ASSERT_TRUE(comesTrue([this] { return page() == 0; }));
    }
  });
  EXPECT_THAT(inPhaseOne, ElementsAre(0, 0));
}

TEST_F(WindowSession, ErasesWithAMethodThatTheLayoutHasNoControlsFor) {
  mountVolume("DATA");
  fixed.methods = testing::tenMethods();
  use([this] {
    press("buttonNext");
    press("algorithm_10");
    EXPECT_TRUE(named<QAbstractButton>("butMethod_10")->isChecked());
    EXPECT_EQ(named<QAbstractButton>("algorithm_10")->text(), "Twice over");
    EXPECT_EQ(text("passes_10"), "Passes: 2");
    answerNextAlert(kYes, [this] { answerNextAlert(); });  // then the notice
    press("proceedBtn");
    ASSERT_TRUE(comesTrue([this] { return completed().isVisible(); }));
  });
  const testing::Steps written = journal.only({"pwrite"});
  ASSERT_GE(written.size(), 2U);
  EXPECT_EQ(written[0], "pwrite .temp0 32768@0 0xAA");
  EXPECT_EQ(written[1], "pwrite .temp0 32768@0 random");
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
