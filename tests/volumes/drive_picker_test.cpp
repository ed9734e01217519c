#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/world.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::Steps;
using testing::World;

class DrivePicker : public ::testing::Test {
 protected:
  DrivePicker() {
    for (const char* name : {"ZERO", "ONE", "TWO", "THREE", "FOUR"}) world.volume(name, 300'000'000);
    world.launch();
  }

  /// Clicks tiles; none is the empty space beside them.
  void click(const MyCollectionView::Indexes& tiles) {
    world.journal.clear();
    picker().setSelectionIndexes(tiles);
  }
  MyCollectionView& picker() { return world.app().collectionView(); }

  World world;
};

TEST_F(DrivePicker, AClickedTileIsHighlightedThePreviousOnePlainAndItsVolumeDescribed) {
  click({3});
  EXPECT_THAT(world.journal.all(),
              ElementsAre("setTileSelection 3", "deselectTile 0", "selectTile 3", "setText tfDriveName \"THREE\"",
                          "setText tfFileSystem \"FAT\"", "setText tfDriveSpace \"600.00 MB\"",
                          "setText tfFreeSpace \"300.00 MB\""));
  EXPECT_EQ(world.app().selectedTableRow(), 3U);
  EXPECT_EQ(world.app().shell().currentSelectionG, 3U);
  EXPECT_EQ(picker().currentSelection(), 3U);
  EXPECT_EQ(picker().previousSelection(), 0U);
}

TEST_F(DrivePicker, PostsSelectionChangedForAClickedTile) {
  int posts = 0;
  world.app().notifications().addObserver(kSelectionChanged, [&] { ++posts; });
  click({2});
  EXPECT_EQ(posts, 1);
}

TEST_F(DrivePicker, AClickOnEmptySpaceKeepsTheOldTileHighlightedAndPostsNothing) {
  click({2});
  int posts = 0;
  world.app().notifications().addObserver(kSelectionChanged, [&] { ++posts; });
  click({});
  EXPECT_THAT(world.controls.selectedTiles(), ElementsAre(2U));
  EXPECT_THAT(world.journal.all(), ElementsAre("setTileSelection", "deselectTile 2", "selectTile 2"));
  EXPECT_EQ(posts, 0);
  EXPECT_EQ(world.app().selectedTableRow(), 2U);
}

TEST_F(DrivePicker, WalksAStaleIndexBackByOneForEachSelectionAndDoesNothingElse) {
  click({4});
  world.controls.setTileCount(3);
  click({1});
  EXPECT_EQ(picker().currentSelection(), 3U);
  EXPECT_THAT(world.journal.all(), ElementsAre("setTileSelection 1"));
  EXPECT_EQ(world.app().selectedTableRow(), 4U);
  click({1});
  EXPECT_EQ(picker().currentSelection(), 2U);
  click({1});
  EXPECT_EQ(picker().currentSelection(), 1U) << "the index is good again, and the click counts";
  EXPECT_EQ(world.app().selectedTableRow(), 1U);
}

TEST_F(DrivePicker, StaysAtTheFirstTileWithoutAnyTiles) {
  world.controls.setTileCount(0);
  click({});
  EXPECT_EQ(picker().currentSelection(), 0U);
}

TEST_F(DrivePicker, ChoosesTheTileAtIndex100AndRefusesTheOnesBeyond) {
  World many;
  for (int i = 0; i < 103; ++i) many.volume("V" + std::to_string(i), 1'000);
  MyCollectionView& tiles = many.launch().collectionView();
  tiles.setSelectionIndexes({100});
  EXPECT_EQ(many.app().selectedTableRow(), 100U);
  for (const std::size_t beyond : {std::size_t{101}, std::size_t{102}}) {
    tiles.setSelectionIndexes({beyond});
    EXPECT_EQ(many.app().selectedTableRow(), 100U);
    EXPECT_EQ(tiles.currentSelection(), 100U);
    EXPECT_THAT(many.controls.selectedTiles(), ElementsAre(100U));
  }
}

TEST_F(DrivePicker, TakesTheFirstOfSeveralTiles) {
  click({1, 4});
  EXPECT_EQ(world.app().selectedTableRow(), 1U);
  EXPECT_THAT(world.controls.selectedTiles(), ElementsAre(1U));
}

TEST_F(DrivePicker, ATableRowSelectsItsVolumeWithoutChangingTheHighlightedTile) {
  click({3});
  world.controls.selectRow(1);
  world.app().notifications().post(kTableSelectionDidChange);
  EXPECT_EQ(world.app().selectedTableRow(), 1U);
  EXPECT_EQ(world.controls.text(Control::tfDriveName), "ONE");
  EXPECT_THAT(world.controls.selectedTiles(), ElementsAre(3U));
  EXPECT_EQ(picker().currentSelection(), 3U);
}

TEST_F(DrivePicker, KeepsItsIndexesThroughAReload) {
  click({4});
  world.app().reloadVolumes();
  EXPECT_EQ(picker().currentSelection(), 4U);
  EXPECT_EQ(picker().previousSelection(), 0U);
}

TEST_F(DrivePicker, OlderFormDoesNotLookWhetherTheListHasShrunk) {
  click({4});
  world.controls.setTileCount(3);
  picker().setSelectionIndexes3({1});
  EXPECT_EQ(world.app().selectedTableRow(), 1U);
  EXPECT_EQ(picker().previousSelection(), 4U);
  EXPECT_EQ(world.journal.only({"setTileSelection"}).back(), "setTileSelection 1") << "passed on to the tiles first";
}

TEST(SpareCollectionView, StartsAtTheFirstTileAndShowsNothing) {
  MyCollectionView spare;
  spare.setSelectionIndexes({2});
  spare.setSelectionIndexes3({2});
  spare.reloadView();
  EXPECT_EQ(spare.currentSelection(), 0U);
  EXPECT_EQ(spare.previousSelection(), 0U);
}

TEST(PickerItem, KeepsItsOwnTitle) {
  EXPECT_EQ(Item("DATA").title(), "DATA");
  EXPECT_EQ(Item().title(), "Test Title");
}

}  // namespace
}  // namespace calvero
