#include "window/widget_controls.h"

#include <QAbstractButton>
#include <QLabel>
#include <QProgressBar>
#include <QTableView>
#include <algorithm>
#include <stdexcept>

#include "tests/window/window_fixture.h"

namespace calvero::testing {
namespace {

using ::testing::HasSubstr;

class WidgetControlsTest : public WindowTest {
 protected:
  std::string whatIsWrong() {
    try {
      const WidgetControls others(window, popUp);
    } catch (const std::runtime_error& error) {
      return error.what();
    }
    return "";
  }
};

TEST_F(WidgetControlsTest, FindsEveryControl) {
  EXPECT_EQ(whatIsWrong(), "");
}

TEST_F(WidgetControlsTest, NamesAControlThatIsMissing) {
  for (const NamedControl& named : kNamedControls) {
    QObject* object = window.findChild<QObject*>(named.name);
    if (object == nullptr) object = popUp.findChild<QObject*>(named.name);
    if (object == nullptr) object = QLatin1String(named.name) == window.objectName() ? &window : nullptr;
    if (object == nullptr) object = &popUp;
    object->setObjectName("another");
    EXPECT_THAT(whatIsWrong(), HasSubstr(std::string("no ") + named.name));
    object->setObjectName(named.name);
  }
}

TEST_F(WidgetControlsTest, NamesAControlOfAnotherKind) {
  find("clickNext")->setObjectName("another");
  find("sideBar")->setObjectName("clickNext");
  EXPECT_THAT(whatIsWrong(), HasSubstr("clickNext is of another kind"));
}

TEST_F(WidgetControlsTest, ShowsTextsAsTheyAre) {
  controls.setText(Control::tfDriveName, "<b>A</b> & B");
  EXPECT_EQ(find<QLabel>("tfDriveName")->text(), "<b>A</b> & B");
  controls.setText(Control::algorithm_1, "A & B");
  EXPECT_EQ(find<QAbstractButton>("algorithm_1")->text(), "A && B");
}

TEST_F(WidgetControlsTest, HasNoLabelThatTakesItsTextForMarkup) {
  QList<QLabel*> labels = window.findChildren<QLabel*>();
  labels += popUp.findChildren<QLabel*>();
  ASSERT_GT(labels.size(), 30);
  for (const QLabel* label : labels) EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
}

TEST_F(WidgetControlsTest, DescribesAFieldByItsCaption) {
  controls.setText(Control::tfelapsedData, "Erased Data: ");
  EXPECT_EQ(find("tfElapsedData")->accessibleDescription(), "Erased Data:");
  EXPECT_EQ(find("tfCleanedSize")->accessibleDescription(), "Space to be erased:");
}

TEST_F(WidgetControlsTest, BringsTheProceedButtonBackWithItsPlace) {
  controls.show(Control::buttonProceed);
  controls.hide(Control::proceedBtn);
  EXPECT_TRUE(find("proceedBtn")->isHidden());
  controls.show(Control::buttonProceed);
  EXPECT_FALSE(find("proceedBtn")->isHidden());
}

TEST_F(WidgetControlsTest, TurnsSelectionButtonsOnAndOffOneByOne) {
  controls.turnOn(Control::butRandomWipe);
  controls.turnOn(Control::butNATO);
  EXPECT_TRUE(find<QAbstractButton>("butRandomWipe")->isChecked());
  controls.turnOff(Control::butRandomWipe);
  EXPECT_FALSE(find<QAbstractButton>("butRandomWipe")->isChecked());
  EXPECT_TRUE(find<QAbstractButton>("butNATO")->isChecked());
}

TEST_F(WidgetControlsTest, KeepsThePercentageThroughAnIndeterminatePhase) {
  auto* bar = find<QProgressBar>("piDataWipe");
  controls.setProgress(40);
  EXPECT_EQ(find<QLabel>("percentLabel")->text(), "40%");
  controls.setProgressIndeterminate();
  EXPECT_EQ(bar->maximum(), 0);
  EXPECT_EQ(find<QLabel>("percentLabel")->text(), "");
  controls.setProgressDeterminate();
  EXPECT_EQ(bar->maximum(), 100);
  EXPECT_EQ(bar->value(), 40);
}

TEST_F(WidgetControlsTest, ShowsNoPercentageFromARunsStartUntilItsFilesAreLaidOut) {
  const auto* bar = find<QProgressBar>("piDataWipe");
  controls.setProgress(100);
  controls.show(Control::buttonCancel);
  EXPECT_EQ(bar->maximum(), 0) << "the page is set up";
  controls.setProgressDeterminate();
  controls.startProgressAnimation();
  EXPECT_EQ(bar->maximum(), 0) << "phase 1 begins";
  EXPECT_EQ(find<QLabel>("percentLabel")->text(), "");
}

TEST_F(WidgetControlsTest, TellsOfTheTablesSelectionOnlyWhenTheUserMadeIt) {
  int told = 0;
  window.onTableSelectionChanged = [&] { ++told; };
  controls.show(Control::tableview);
  addVolumes({"A", "B", "C"});
  show();
  EXPECT_EQ(controls.selectedRow(), 0U);
  window.volumes().selectRow(1);
  EXPECT_EQ(controls.selectedRow(), 1U);
  controls.reloadTable();
  EXPECT_EQ(told, 0);
  auto* table = find<QTableView>("tableview");
  const QRect third = table->visualRect(table->model()->index(2, 0));
  QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, third.center());
  EXPECT_EQ(told, 1);
  EXPECT_EQ(controls.selectedRow(), 2U);
  controls.clearVolumes();
  EXPECT_EQ(told, 1);
  EXPECT_EQ(controls.selectedRow(), 0U);
  EXPECT_EQ(table->model()->rowCount(), 0);
}

TEST_F(WidgetControlsTest, HoldsTheTableUnderOneColumnOfDrives) {
  addVolumes({"A", "B"});
  const auto* rows = window.findChild<QStandardItemModel*>("arraycontroller2");
  EXPECT_EQ(rows->columnCount(), 1);
  EXPECT_EQ(rows->headerData(0, Qt::Horizontal).toString(), "Drives");
  EXPECT_EQ(rows->index(1, 0).data().toString(), "B");
}

TEST_F(WidgetControlsTest, RemovesTilesAndIgnoresThoseThatAreNotThere) {
  addVolumes({"A", "B", "C"});
  controls.removeTiles({"B", "none"});
  ASSERT_EQ(controls.tileCount(), 2U);
  EXPECT_EQ(grid().tile(1)->title(), "C");
  EXPECT_EQ(window.findChild<QStandardItemModel*>("arrayController")->rowCount(), 2);
}

TEST_F(WidgetControlsTest, DrawsAsSelectedWhatItIsTold) {
  addVolumes({"A", "B"});
  controls.setTileSelected(0, true);
  controls.setTileSelected(1, true);
  controls.setTileSelected(2, true);
  controls.setTileSelection({1});
  EXPECT_TRUE(grid().tile(0)->selected());
  controls.setTileSelected(0, false);
  EXPECT_FALSE(grid().tile(0)->selected());
  EXPECT_TRUE(grid().tile(1)->selected());
}

TEST_F(WidgetControlsTest, ShowsTheCompletionPageTogetherWithTheCompletionWindow) {
  controls.selectPage(Page::progress);
  controls.show(Control::buttonCancel);
  window.setOutcome("Erased <b>A</b>.", OutcomeKind::finished);
  EXPECT_TRUE(find("completedBox")->isHidden());
  show();
  controls.bringToFront(Control::windowCompleted);
  EXPECT_TRUE(find("windowCompleted")->isVisible());
  EXPECT_EQ(find<QLabel>("outcomeText")->text(), "Erased <b>A</b>.");
  EXPECT_EQ(find<QLabel>("completedText")->text(), "Erased <b>A</b>.");
  EXPECT_TRUE(find("completedBox")->isVisible());
  EXPECT_TRUE(find("completionPageOk")->isVisible());
  EXPECT_FALSE(find("cancelBut")->isVisible());
  controls.orderOut(Control::windowCompleted);
  EXPECT_FALSE(find("windowCompleted")->isVisible());
}

TEST_F(WidgetControlsTest, LeavesTheCompletionPageForAnotherPageOrANewRun) {
  show();
  controls.bringToFront(Control::windowCompleted);
  controls.selectPage(Page::progress);
  EXPECT_FALSE(find("completedBox")->isHidden());
  controls.selectPage(Page::volume);
  EXPECT_TRUE(find("completedBox")->isHidden());
  controls.bringToFront(Control::windowCompleted);
  controls.show(Control::buttonCancel);
  EXPECT_TRUE(find("completedBox")->isHidden());
  EXPECT_TRUE(find("completionPageOk")->isHidden());
}

TEST_F(WidgetControlsTest, KnowsWhetherTheMainWindowIsOnTheScreen) {
  EXPECT_FALSE(controls.mainWindowVisible());
  show();
  EXPECT_TRUE(controls.mainWindowVisible());
  window.showMinimized();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !controls.mainWindowVisible(); }, kWaitMilliseconds));
  controls.bringToFront(Control::window);
  EXPECT_TRUE(QTest::qWaitFor([&] { return controls.mainWindowVisible(); }, kWaitMilliseconds));
  controls.orderOut(Control::window);
  EXPECT_FALSE(controls.mainWindowVisible());
}

TEST_F(WidgetControlsTest, HasNoEntryInTheTaskBarOnceItLeft) {
  show();
  controls.leaveTaskBar();
  EXPECT_EQ(window.windowFlags() & Qt::WindowType_Mask, Qt::Tool);
  EXPECT_TRUE(window.isVisible());
}

TEST_F(WidgetControlsTest, PutsTheCompletionWindowOntoTheMainWindowsLowerLeftCorner) {
  show();
  window.move(100, 50);
  controls.bringToFront(Control::windowCompleted);
  controls.moveToOriginOf(Control::windowCompleted, Control::window);
  EXPECT_EQ(find("windowCompleted")->frameGeometry().bottomLeft(), window.frameGeometry().bottomLeft());
}

TEST_F(WidgetControlsTest, LetsTheCompletionWindowFollowTheMainWindow) {
  show();
  controls.bringToFront(Control::windowCompleted);
  ASSERT_TRUE(QTest::qWaitForWindowActive(find("windowCompleted"), kWaitMilliseconds));
  controls.moveToOriginOf(Control::windowCompleted, Control::window);
  controls.attachAbove(Control::windowCompleted, Control::window);
  controls.makeImmovable(Control::windowCompleted);
  window.move(window.pos() + QPoint(70, 30));
  const QWidget* completed = find("windowCompleted");
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return completed->frameGeometry().bottomLeft() == window.frameGeometry().bottomLeft(); },
                      kWaitMilliseconds));
  EXPECT_TRUE(completed->isVisible());
  EXPECT_TRUE(completed->windowFlags().testFlag(Qt::FramelessWindowHint));
}

TEST_F(WidgetControlsTest, BringsAnImmovableWindowBackToItsPlace) {
  show();
  controls.bringToFront(Control::windowCompleted);
  auto* completed = find("windowCompleted");
  ASSERT_TRUE(QTest::qWaitForWindowActive(completed, kWaitMilliseconds));
  controls.moveToOriginOf(Control::windowCompleted, Control::window);
  controls.attachAbove(Control::windowCompleted, Control::window);
  const auto isInPlace = [&] { return completed->frameGeometry().bottomLeft() == window.frameGeometry().bottomLeft(); };
  controls.makeImmovable(Control::windowCompleted);
  EXPECT_TRUE(QTest::qWaitFor(isInPlace, kWaitMilliseconds));
  completed->move(completed->pos() + QPoint(50, -50));
  EXPECT_FALSE(isInPlace());
  EXPECT_TRUE(QTest::qWaitFor(isInPlace, kWaitMilliseconds));
}

TEST_F(WidgetControlsTest, LetsAPinnedWindowGoOnceItIsTakenOffTheScreen) {
  show();
  auto* completed = find("windowCompleted");
  const Qt::WindowFlags flags = completed->windowFlags();
  for (int run = 0; run < 2; ++run) {
    for (int pin = 0; pin < 2; ++pin) {
      controls.moveToOriginOf(Control::windowCompleted, Control::window);
      controls.attachAbove(Control::windowCompleted, Control::window);
      controls.makeImmovable(Control::windowCompleted);
    }
    controls.bringToFront(Control::windowCompleted);
    controls.orderOut(Control::windowCompleted);
  }
  EXPECT_FALSE(completed->isVisible());
  controls.bringToFront(Control::windowCompleted);
  ASSERT_TRUE(QTest::qWaitForWindowActive(completed, kWaitMilliseconds));
  EXPECT_EQ(completed->windowFlags(), flags);
  EXPECT_NE(completed->geometry().bottomLeft(), window.geometry().bottomLeft());
  const QPoint place = completed->pos();
  window.move(window.pos() + QPoint(70, 30));
  EXPECT_EQ(completed->pos(), place);
  completed->move(place + QPoint(50, -50));
  QTest::qWait(0);
  EXPECT_EQ(completed->pos(), place + QPoint(50, -50));
}

TEST_F(WidgetControlsTest, BringsAHiddenApplicationToTheFrontByItsMessage) {
  controls.orderOut(Control::window);
  controls.activateApplication();
  EXPECT_FALSE(window.isVisible());
  EXPECT_FALSE(popUp.isVisible());
  popUp.bringToFront();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&popUp, kWaitMilliseconds));
}

TEST_F(WidgetControlsTest, KeepsTheCloudButtonsLookWhilePressedOnceNothingHighlights) {
  auto* button = find<QAbstractButton>("buttonCloud");
  controls.setAttributedTitle(Control::buttonCloud, {"Cloud & Control", Colour{1.0, 1.0, 1.0, 1.0}, 11.0});
  EXPECT_EQ(button->text(), "Cloud && Control");
  EXPECT_DOUBLE_EQ(button->font().pointSizeF(), 11.0);
  const QImage plain = button->grab().toImage();
  button->setDown(true);
  EXPECT_NE(button->grab().toImage(), plain);
  controls.highlightNothing(Control::buttonCloud);
  EXPECT_EQ(button->grab().toImage(), plain);
}

}  // namespace
}  // namespace calvero::testing
