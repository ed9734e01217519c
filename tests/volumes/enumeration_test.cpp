#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/world.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::Steps;
using testing::World;

MountedVolume volumeOf(const std::string& name, const std::string& formatDescription) {
  MountedVolume volume;
  volume.name = name;
  volume.mountPath = "/media/" + name;
  volume.formatDescription = formatDescription;
  volume.availableBytes = 1'000'000;
  volume.totalBytes = 2'000'000;
  return volume;
}

TEST(VolumeEnumeration, ListsTheOnlyVolumeAtIndex0) {
  World world;
  world.volume("ROOT", 1'000'000);
  const AppDelegate& app = world.create();
  EXPECT_THAT(app.volumes().volumeNameArray, ElementsAre("ROOT"));
  EXPECT_EQ(app.nameSelectedVolume(), "ROOT");
}

TEST(VolumeEnumeration, KeepsTheSystemsOrderInAllParallelArrays) {
  World world;
  world.volume("ZULU", 300);
  world.volume("ALFA", 200);
  world.volume("MIKE", 100);
  const VolumeTable& table = world.create().volumes();
  EXPECT_THAT(table.volumeNameArray, ElementsAre("ZULU", "ALFA", "MIKE"));
  EXPECT_THAT(table.freeSpaceOfSelectedVolumeArray, ElementsAre(300U, 200U, 100U));
  EXPECT_THAT(table.capacityOfSelectedVolumeArray, ElementsAre(600U, 400U, 200U));
  EXPECT_THAT(table.fileSystemOfSelectedVolumeArray, ElementsAre("ext4", "ext4", "ext4"));
  ASSERT_EQ(table.items.size(), 3U);
  EXPECT_EQ(table.items[0].title(), "ZULU");
  EXPECT_EQ(table.items[2].title(), "MIKE");
  EXPECT_EQ(table.urls.size(), 3U);
}

TEST(VolumeEnumeration, AddsEachVolumesRowBeforeItsLabel) {
  World world;
  world.volume("ONE", 100);
  world.volume(volumeOf("HIDDEN", "SMB"));
  world.volume("TWO", 200);
  const AppDelegate& app = world.create();
  EXPECT_THAT(world.steps(),
              ElementsAre("clearVolumes", "mountedVolumes", "addTableRow ONE", "addTile ONE",
                          "setText volLabel \"ONE\"", "addTableRow TWO", "addTile TWO", "setText volLabel \"TWO\""));
  EXPECT_THAT(app.shell().mutdictForArrayController,
              ElementsAre(std::pair<const std::string, std::string>("Drives", "TWO")));
  EXPECT_EQ(world.controls.text(Control::volLabel), "TWO") << "the last one stays";
}

TEST(VolumeEnumeration, LeavesOutAutomountersAndWindowsSharesByTheirDescription) {
  World world;
  world.volume(volumeOf("A", "Unknown (autofs)"));
  world.volume(volumeOf("B", "an Unknown (autofs) mount"));
  world.volume(volumeOf("C", "SMB"));
  world.volume(volumeOf("D", "a share (SMB 3)"));
  const AppDelegate& app = world.create();
  EXPECT_THAT(app.volumes().volumeNameArray, IsEmpty());
  EXPECT_THAT(app.volumes().items, IsEmpty());
  EXPECT_EQ(app.volumes().urls.size(), 4U) << "what the system reported is kept whole";
}

TEST(VolumeEnumeration, ComparesTheDescriptionByLetterCase) {
  World world;
  world.volume(volumeOf("A", "smb"));
  world.volume(volumeOf("B", "unknown (autofs)"));
  world.volume(volumeOf("C", "Unknown"));
  world.volume(volumeOf("D", "autofs"));
  world.volume(volumeOf("E", ""));
  EXPECT_THAT(world.create().volumes().volumeNameArray, ElementsAre("A", "B", "C", "D", "E"));
}

TEST(VolumeEnumeration, ListsNetworkVolumesOfOtherKindsAndRemovableOnes) {
  World world;
  MountedVolume network = volumeOf("NET", "NFS");
  network.local = false;
  MountedVolume stick = volumeOf("STICK", "FAT32");
  stick.removable = true;
  world.volume(network);
  world.volume(stick);
  EXPECT_THAT(world.create().volumes().volumeNameArray, ElementsAre("NET", "STICK"));
}

TEST(VolumeEnumeration, ListsAReadOnlyVolumeLikeAnyOther) {
  World world;
  MountedVolume volume = volumeOf("ROM", "ext4");
  volume.readOnly = true;
  world.volume(volume);
  const AppDelegate& app = world.create();
  EXPECT_THAT(app.volumes().volumeNameArray, ElementsAre("ROM"));
  EXPECT_THAT(app.shell().isReadOnlyArray, IsEmpty());
  EXPECT_THAT(app.shell().driveVolumeNameMutableArray, IsEmpty());
}

TEST(VolumeEnumeration, IgnoresTheOrderedNameInOrdinaryMode) {
  World world;
  world.volume("DATA", 100);
  world.volume("MORE", 100);
  world.order("DATA", "1");
  world.tags.put("cvrOnline", "0");
  EXPECT_THAT(world.create().volumes().volumeNameArray, ElementsAre("DATA", "MORE"));
}

TEST(VolumeEnumeration, NarrowsToTheOrderedNameInRemoteMode) {
  World world;
  world.volume("MORE", 100);
  world.volume("DATA", 200);
  world.volume("DATA 2", 300);
  world.volume("data", 400);
  world.order("DATA", "1");
  const AppDelegate& app = world.create();
  EXPECT_THAT(app.volumes().volumeNameArray, ElementsAre("DATA"));
  EXPECT_EQ(app.freeSpaceOnDisk(), 200U);
  EXPECT_EQ(world.loop.terminations(), 0);
}

TEST(VolumeEnumeration, ListsBothVolumesOfTheOrderedNameInRemoteMode) {
  World world;
  world.volume("DATA", 100);
  MountedVolume second = volumeOf("DATA", "XFS");
  second.mountPath = "/media/DATA1";
  world.volume(second);
  world.order("DATA", "1");
  EXPECT_THAT(world.create().volumes().volumeNameArray, ElementsAre("DATA", "DATA"));
}

TEST(VolumeEnumeration, EndsARemoteOrderForAVolumeThatIsNotMountedBeforeTheWindowIsUsed) {
  World world;
  world.volume("DATA", 100);
  world.order("GONE", "1");
  world.create();
  EXPECT_THAT(world.steps(), ElementsAre("clearVolumes", "mountedVolumes",
                                         "setTag cvrResult \"failed free=0 covered=0 not-held=0 faults=0\"",
                                         "setTag cvrStatus \"3\"", "terminate"));
  EXPECT_THAT(world.alerts.shown(), IsEmpty());
}

TEST(VolumeEnumeration, EndsARemoteOrderForAVolumeThatTheFiltersLeaveOut) {
  World world;
  world.volume(volumeOf("DATA", "SMB"));
  world.order("DATA", "1");
  world.create();
  EXPECT_EQ(world.tags.peek("cvrStatus"), "3");
  EXPECT_EQ(world.loop.terminations(), 1);
}

TEST(VolumeEnumeration, EndsNothingWithAnEmptyListInOrdinaryMode) {
  World world;
  world.create();
  EXPECT_EQ(world.loop.terminations(), 0);
  EXPECT_EQ(world.tags.peek("cvrStatus"), std::nullopt);
}

TEST(VolumeReload, RemovesTheTilesAndBuildsTheControllersStateAnew) {
  World world;
  world.volume("DATA", 100);
  world.volume("MORE", 100);
  AppDelegate& app = world.launch();
  app.next();
  app.fifth_NATO();
  world.volumes.remove("MORE");
  world.volume("NEW", 700);
  world.journal.clear();
  app.reloadVolumes();
  EXPECT_THAT(world.journal.all(),
              ElementsAre("removeTiles DATA MORE", "log init", "clearVolumes", "readTag cvrOnline", "mountedVolumes",
                          "addTableRow DATA", "addTile DATA", "setText volLabel \"DATA\"", "addTableRow NEW",
                          "addTile NEW", "setText volLabel \"NEW\""));
  EXPECT_THAT(app.volumes().volumeNameArray, ElementsAre("DATA", "NEW"));
  EXPECT_EQ(app.shell().createFilePath, "test");
  EXPECT_EQ(app.shell().currentSelectionG, 0U);
  EXPECT_EQ(app.methodChoice().eraseMethodSelected, 0);
  EXPECT_EQ(app.methodChoice().numPassSelected, 1);
}

TEST(VolumeReload, KeepsTheSelectedRow) {
  World world;
  world.volume("DATA", 100);
  world.volume("MORE", 100);
  AppDelegate& app = world.launch();
  app.setCurrentSelection(1);
  app.reloadVolumes();
  EXPECT_EQ(app.selectedTableRow(), 1U);
}

TEST(VolumeReload, WorksOnAnEmptyList) {
  World world;
  AppDelegate& app = world.launch();
  app.reloadVolumes();
  EXPECT_EQ(app.shell().currentSelectionG, 0U);
  EXPECT_THAT(app.volumes().volumeNameArray, IsEmpty());
}

TEST(VolumeReload, ReadsTheRemoteOrderAgain) {
  World world;
  world.volume("DATA", 100);
  world.volume("MORE", 100);
  AppDelegate& app = world.launch();
  world.order("MORE", "2");
  app.reloadVolumes();
  EXPECT_EQ(app.order().cloudInitiation, 1);
  EXPECT_EQ(app.CDriveName(), "MORE");
  EXPECT_THAT(app.volumes().volumeNameArray, ElementsAre("MORE"));
}

TEST(VolumeReload, SubscribesOnceMoreToTheTableEachTime) {
  World world;
  world.volume("DATA", 100);
  AppDelegate& app = world.launch();
  app.reloadVolumes();
  app.reloadVolumes();
  world.journal.clear();
  app.notifications().post(kTableSelectionDidChange);
  EXPECT_EQ(world.journal.only({"setText tfDriveName"}).size(), 3U);
}

TEST(VolumeReload, DoesNotChangeTheTableThatARunHolds) {
  World world;
  world.volume("DATA", 100);
  AppDelegate& app = world.start();
  const RunPtr run = app.currentRun();
  world.volumes.remove("DATA");
  app.reloadVolumes();
  EXPECT_THAT(app.volumes().volumeNameArray, IsEmpty());
  EXPECT_EQ(run->volume.name(), "DATA");
  EXPECT_EQ(run->volume.freeBytes(), 100U);
}

}  // namespace
}  // namespace calvero
