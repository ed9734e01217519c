#include "window/tile_grid.h"

#include <QAccessible>
#include <QScrollArea>
#include <QToolTip>

#include "app/notification_centre.h"
#include "tests/window/window_fixture.h"
#include "volumes/my_collection_view.h"

namespace calvero::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

using Selection = std::vector<std::size_t>;

class TileGridTest : public WindowTest {
 protected:
  TileGridTest() {
    window.onTilesSelected = [this](Selection indexes) { told.push_back(std::move(indexes)); };
    window.resize(window.minimumSizeHint());
  }
  ~TileGridTest() override { QApplication::setLayoutDirection(Qt::LeftToRight); }

  void showTiles(std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) addVolumes({"volume " + std::to_string(i)});
    show();
    grid().focusCurrent();
    told.clear();
  }

  std::size_t columns() {
    std::size_t inFirstRow = 0;
    while (inFirstRow < grid().count() && grid().tile(inFirstRow)->y() == grid().tile(0)->y()) ++inFirstRow;
    return inFirstRow;
  }

  std::vector<Selection> told;
};

TEST_F(TileGridTest, TellsWhichTileWasClicked) {
  showTiles(5);
  QTest::mouseClick(grid().tile(3), Qt::LeftButton);
  EXPECT_THAT(told, ElementsAre(Selection{3}));
  EXPECT_FALSE(grid().tile(3)->selected());
  EXPECT_EQ(focused(), "volume 3");
}

TEST_F(TileGridTest, GivesTheKeyboardBackToTheSelectedTileWhenAnotherIsRefused) {
  NotificationCentre notifications;
  std::size_t selected = 0;
  MyCollectionView picker(controls, notifications, selected);
  window.onTilesSelected = [&](const Selection& indexes) { picker.setSelectionIndexes(indexes); };
  showTiles(103);
  for (std::size_t refused : {101U, 102U}) {
    QTest::mouseClick(grid().tile(100), Qt::LeftButton);
    EXPECT_EQ(focused(), "volume 100");
    QTest::mouseClick(grid().tile(refused), Qt::LeftButton);
    EXPECT_EQ(focused(), "volume 100");
    type(Qt::Key_End);
    EXPECT_EQ(focused(), "volume 100");
    EXPECT_TRUE(grid().tile(100)->selected());
    EXPECT_FALSE(grid().tile(refused)->selected());
  }
  type(Qt::Key_Left);
  EXPECT_EQ(focused(), "volume 99") << "it goes on from there";
}

TEST_F(TileGridTest, TellsOfAClickBesideTheTiles) {
  showTiles(2);
  QTest::mouseClick(&grid(), Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
  EXPECT_THAT(told, ElementsAre(Selection{}));
}

TEST_F(TileGridTest, IgnoresTheOtherMouseButtons) {
  showTiles(2);
  QTest::mouseClick(grid().tile(1), Qt::RightButton);
  EXPECT_TRUE(told.empty());
}

TEST_F(TileGridTest, MovesAndSelectsWithTheArrowKeys) {
  showTiles(8);
  const std::size_t down = columns();
  ASSERT_GE(down, 2U);
  for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Left, Qt::Key_Down, Qt::Key_Up, Qt::Key_Up}) type(key);
  EXPECT_THAT(told, ElementsAre(Selection{1}, Selection{0}, Selection{down}, Selection{0}));
  EXPECT_EQ(focused(), "volume 0");
}

TEST_F(TileGridTest, MirrorsTheArrowKeysFromRightToLeft) {
  QApplication::setLayoutDirection(Qt::RightToLeft);
  showTiles(4);
  EXPECT_GT(grid().tile(0)->x(), grid().tile(1)->x());
  type(Qt::Key_Left);
  type(Qt::Key_Right);
  EXPECT_THAT(told, ElementsAre(Selection{1}, Selection{0}));
}

TEST_F(TileGridTest, ReachesBothEndsAndWholePages) {
  showTiles(40);
  type(Qt::Key_End);
  type(Qt::Key_Home);
  EXPECT_THAT(told, ElementsAre(Selection{39}, Selection{0}));
  type(Qt::Key_PageDown);
  ASSERT_EQ(told.size(), 3U);
  EXPECT_EQ(told.back().front() % columns(), 0U);
  EXPECT_GT(told.back().front(), 0U);
  type(Qt::Key_PageUp);
  EXPECT_EQ(told.back(), Selection{0});
}

TEST_F(TileGridTest, SelectsTheTileAtTheKeyboardWithTheSpaceBar) {
  showTiles(3);
  type(Qt::Key_Space);
  EXPECT_THAT(told, ElementsAre(Selection{0}));
}

TEST_F(TileGridTest, ScrollsToTheTileAtTheKeyboard) {
  showTiles(40);
  type(Qt::Key_End);
  const auto* area = find<QScrollArea>("tileScroll");
  const QPoint corner = grid().tile(39)->mapTo(area->viewport(), QPoint(0, 0));
  EXPECT_TRUE(area->viewport()->rect().contains(QRect(corner, grid().tile(39)->size())));
}

TEST_F(TileGridTest, IsEnteredAndLeftWithTheTabKey) {
  showTiles(3);
  type(Qt::Key_Right);
  type(Qt::Key_Tab);
  EXPECT_EQ(focused(), "buttonNext");
  type(Qt::Key_Backtab);
  EXPECT_EQ(focused(), "volume 1");
}

TEST_F(TileGridTest, KeepsTheKeyboardThroughANewList) {
  showTiles(3);
  controls.clearVolumes();
  addVolumes({"A", "B"});
  EXPECT_EQ(focused(), "A");
}

TEST_F(TileGridTest, WrapsItsRowsToTheWidth) {
  showTiles(8);
  const std::size_t narrow = columns();
  window.resize(window.width() + 2 * grid().tile(0)->width(), window.height());
  EXPECT_TRUE(QTest::qWaitFor([&] { return columns() > narrow; }, kWaitMilliseconds));
}

TEST_F(TileGridTest, LetsATitleFollowItsObject) {
  showTiles(2);
  window.findChild<QStandardItemModel*>("arrayController")->item(1)->setText("renamed");
  EXPECT_EQ(grid().tile(1)->title(), "renamed");
}

TEST_F(TileGridTest, TellsAboutAVolumeInToolTipAndDescription) {
  MountedVolume stick = volume("<b>stick</b>");
  stick.removable = true;
  controls.addTile(stick);
  MountedVolume share = volume("share");
  share.local = false;
  controls.addTile(share);
  EXPECT_EQ(grid().tile(0)->accessibleName(), "<b>stick</b>");
  EXPECT_EQ(grid().tile(0)->accessibleDescription(),
            "Removable drive, File System : ext4, Mount Path : /media/<b>stick</b>, Drive Space : 2000 B, "
            "Free Space : 1000 B");
  EXPECT_THAT(grid().tile(1)->accessibleDescription().toStdString(), HasSubstr("Network drive"));
  EXPECT_THAT(grid().tile(0)->toolTip().toStdString(), HasSubstr("&lt;b&gt;stick"));
}

TEST_F(TileGridTest, DescribesItsTilesAnewInAnotherLanguage) {
  struct Shouting : Localisation {
    std::string localised(const std::string& key) const override { return key == "Fixed drive" ? "FIXED" : key; }
  };
  addVolumes({"A"});
  window.setTexts(Shouting());
  EXPECT_THAT(grid().tile(0)->accessibleDescription().toStdString(), HasSubstr("FIXED, File System"));
}

TEST_F(TileGridTest, IsAListOfItemsForAssistiveTechnology) {
  showTiles(2);
  controls.setTileSelected(1, true);
  QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&grid());
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(list->role(), QAccessible::List);
  EXPECT_EQ(list->text(QAccessible::Name), "Drives");
  ASSERT_EQ(list->childCount(), 2);
  QAccessibleInterface* item = list->child(1);
  EXPECT_EQ(item->role(), QAccessible::ListItem);
  EXPECT_EQ(item->text(QAccessible::Name), "volume 1");
  EXPECT_EQ(item->parent(), list);
  EXPECT_EQ(list->indexOfChild(item), 1);
  EXPECT_TRUE(item->state().selectable && item->state().selected && item->state().focusable);
  EXPECT_FALSE(item->state().focused);
  EXPECT_TRUE(list->child(0)->state().focused);
  EXPECT_FALSE(list->child(0)->state().selected);
}

TEST_F(TileGridTest, IsPressedByAssistiveTechnology) {
  showTiles(2);
  QAccessibleInterface* item = QAccessible::queryAccessibleInterface(grid().tile(1));
  ASSERT_NE(item->actionInterface(), nullptr);
  ASSERT_TRUE(item->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
  item->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_THAT(told, ElementsAre(Selection{1}));
}

TEST_F(TileGridTest, MayBeEmptiedByTheClickItTells) {
  showTiles(3);
  window.onTilesSelected = [&](const Selection&) { controls.clearVolumes(); };
  QTest::mouseClick(grid().tile(1), Qt::LeftButton);
  EXPECT_EQ(controls.tileCount(), 0U);
}

TEST_F(TileGridTest, RestsWhileAnotherPageIsShown) {
  showTiles(8);
  ASSERT_TRUE(QTest::qWaitFor([&] { return grid().clock().isRunning(); }, kWaitMilliseconds));
  controls.selectPage(Page::method);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !grid().clock().isRunning(); }, kWaitMilliseconds));
  controls.selectPage(Page::volume);
  EXPECT_TRUE(QTest::qWaitFor([&] { return grid().clock().isRunning(); }, kWaitMilliseconds));
}

TEST_F(TileGridTest, ShowsAnotherPictureForEachKindOfDrive) {
  const auto add = [this](bool local, bool removable) {
    MountedVolume drive = volume("A");
    drive.local = local;
    drive.removable = removable;
    controls.addTile(drive);
  };
  add(true, false);
  add(true, true);
  add(false, false);
  add(false, true);
  show();
  controls.selectPage(Page::method);  // no tile has the keyboard
  std::vector<QImage> pictures;
  for (std::size_t i = 0; i < grid().count(); ++i) pictures.push_back(grid().tile(i)->grab().toImage());
  EXPECT_NE(pictures[0], pictures[1]) << "fixed and removable";
  EXPECT_NE(pictures[0], pictures[2]) << "fixed and network";
  EXPECT_NE(pictures[1], pictures[2]) << "removable and network";
  EXPECT_EQ(pictures[2], pictures[3]) << "a network drive, whatever its medium";
}

}  // namespace
}  // namespace calvero::testing
