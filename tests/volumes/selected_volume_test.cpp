#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/fakes/world.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using testing::FileCall;
using ::testing::IsEmpty;
using testing::World;

MountedVolume described(const std::string& formatDescription) {
  MountedVolume volume;
  volume.name = "DATA";
  volume.mountPath = "/media/DATA";
  volume.formatDescription = formatDescription;
  volume.availableBytes = 1'234'567;
  volume.totalBytes = 2'000'000'000;
  return volume;
}

std::string fileSystemOf(const std::string& formatDescription) {
  World world;
  world.volume(described(formatDescription));
  return world.create().fileSystemSelectedVolume();
}

TEST(SelectedVolume, KnowsOnlyTwoFileSystemsByTheWordExtended) {
  EXPECT_EQ(fileSystemOf("Mac OS Extended (Journaled)"), "HFSPlus");
  EXPECT_EQ(fileSystemOf("Extended"), "HFSPlus");
  EXPECT_EQ(fileSystemOf("notExtendedAtAll"), "HFSPlus");
  for (const char* other : {"ext4", "XFS", "Btrfs", "FAT32", "NTFS", "APFS", "extended", "EXTENDED", ""}) {
    EXPECT_EQ(fileSystemOf(other), "FAT") << other;
  }
}

TEST(SelectedVolume, GivesTheCapacityAsTextAndTheFreeSpaceAsANumber) {
  World world;
  world.volume(described("ext4"));
  const AppDelegate& app = world.create();
  EXPECT_EQ(app.capacityOfDisk(), "2.00 GB");
  EXPECT_EQ(app.freeSpaceOnDisk(), 1'234'567U);
}

TEST(SelectedVolume, FillsTheFourDescriptionFieldsInOrder) {
  World world;
  world.volume(described("ext4"));
  AppDelegate& app = world.launch();
  app.setSelectedVolumeDescription();
  EXPECT_THAT(world.journal.all(), ElementsAre("setText tfDriveName \"DATA\"", "setText tfFileSystem \"FAT\"",
                                               "setText tfDriveSpace \"2.00 GB\"", "setText tfFreeSpace \"1.23 MB\""));
}

TEST(SelectedVolume, DescribesTheRowThatIsSelected) {
  World world;
  world.volume("DATA", 100'000);
  world.volume("MORE", 200'000);
  AppDelegate& app = world.launch();
  app.setCurrentSelection(1);
  EXPECT_EQ(app.selectedTableRow(), 1U);
  EXPECT_EQ(app.nameSelectedVolume(), "MORE");
  EXPECT_EQ(app.freeSpaceOnDisk(), 200'000U);
  EXPECT_EQ(world.controls.text(Control::tfDriveName), "MORE");
  EXPECT_EQ(world.controls.text(Control::tfFreeSpace), "200.00 KB");
}

TEST(SelectedVolume, FollowsTheTablesSelection) {
  World world;
  world.volume("DATA", 100'000);
  world.volume("MORE", 200'000);
  AppDelegate& app = world.launch();
  world.controls.selectRow(1);
  app.notifications().post(kTableSelectionDidChange);
  EXPECT_EQ(app.selectedTableRow(), 1U);
  EXPECT_EQ(world.controls.text(Control::tfDriveName), "MORE");
}

TEST(SelectedVolume, ThrowsBeyondTheTable) {
  World world;
  world.volume("DATA", 100'000);
  AppDelegate& app = world.launch();
  EXPECT_THROW(app.setCurrentSelection(1), std::out_of_range);
  EXPECT_THROW((void)app.nameSelectedVolume(), std::out_of_range);
  EXPECT_THROW((void)app.freeSpaceOnDisk(), std::out_of_range);
  EXPECT_THROW((void)app.capacityOfDisk(), std::out_of_range);
  EXPECT_THROW((void)app.fileSystemSelectedVolume(), std::out_of_range);
  EXPECT_THROW(app.getVolumePathForRow(1), std::out_of_range);
  EXPECT_THROW(app.getVolumePathForRow2(1), std::out_of_range);
}

TEST(VolumePath, IsTheMountPathOfTheNamedVolume) {
  World world;
  MountedVolume volume = described("ext4");
  volume.mountPath = "/somewhere/else";
  world.volume(volume);
  EXPECT_EQ(world.launch().getVolumePath("DATA"), "/somewhere/else");
}

TEST(VolumePath, IsTheSameThroughBothEntries) {
  World world;
  world.volume("DATA", 100'000);
  world.volume("MORE", 100'000);
  AppDelegate& app = world.launch();
  for (std::size_t row = 0; row < 2; ++row) {
    EXPECT_EQ(app.getVolumePathForRow(row), app.getVolumePathForRow2(row));
  }
  EXPECT_EQ(app.getVolumePathForRow(1), "/media/MORE");
}

TEST(VolumePath, IsNothingForAVolumeThatIsNotMountedWithoutAnyPanel) {
  World world;
  world.volume("DATA", 100'000);
  AppDelegate& app = world.launch();
  EXPECT_EQ(app.getVolumePath("GONE"), std::nullopt);
  EXPECT_THAT(world.alerts.shown(), IsEmpty());
  EXPECT_FALSE(app.abortErasing());
  EXPECT_EQ(world.loop.terminations(), 0);
}

TEST(VolumePath, SetsBothFlagsShowsThePanelAndTerminatesWhenTheLookupFails) {
  World world;
  world.volume("DATA", 100'000);
  world.localisation.markTexts();
  AppDelegate& app = world.launch();
  world.volumes.breakLookup();
  EXPECT_EQ(app.getVolumePath("DATA"), std::nullopt);
  EXPECT_TRUE(app.abortErasing());
  EXPECT_EQ(app.currentRun()->volumeEjected, 1);
  EXPECT_THAT(world.journal.only({"log"}), ElementsAre("log disk lookup: the mount table cannot be read"));
  EXPECT_THAT(world.steps(),
              ElementsAre("alert \"<Information>\" \"<Unknown Error Occured>\" \"<Relaunch the application>\" \"<>\"",
                          "terminate"));
}

TEST(VolumePath, WritesTheStatusInsteadOfThePanelInRemoteModeWhenTheLookupFails) {
  World world;
  world.volume("DATA", 100'000);
  world.order("DATA", "1");
  AppDelegate& app = world.launch();
  world.volumes.breakLookup();
  EXPECT_EQ(app.getVolumePath("DATA"), std::nullopt);
  EXPECT_THAT(world.steps(), ElementsAre("setTag cvrResult \"failed free=0 covered=0 not-held=0 faults=0\"",
                                         "setTag cvrStatus \"3\"", "terminate"));
}

TEST(SelectedVolumeCheck, FindsNothingWrongWithAWritableVolumeAndChangesNothing) {
  World world;
  world.volume("DATA", 100'000);
  AppDelegate& app = world.launch();
  EXPECT_FALSE(app.checkSelectedVolume().failed());
  EXPECT_FALSE(world.files.directoryExists(World::kDirectory));
  EXPECT_THAT(world.steps(), ElementsAre("isReadOnly /media/DATA", "checkDirectory /media/DATA/.$$XE8AQU"));
}

TEST(SelectedVolumeCheck, RefusesAReadOnlyVolumeBeforeItLooksAtAnythingOnIt) {
  World world;
  MountedVolume volume = described("ext4");
  volume.readOnly = true;
  world.volume(volume);
  world.files.addForeignDirectory(volume.mountPath, World::kDirectory);
  world.files.script.failFrom(FileCall::checkDirectory, 1, ErrorCode::notOurs);
  EXPECT_EQ(world.launch().checkSelectedVolume().code, ErrorCode::readOnly);
  EXPECT_EQ(world.files.script.count(FileCall::checkDirectory), 0U);
}

TEST(SelectedVolumeCheck, AsksTheVolumeWhetherItIsReadOnlyAndNotTheList) {
  World world;
  MountedVolume volume = described("ext4");
  volume.readOnly = true;
  world.volume(volume);
  AppDelegate& app = world.launch();
  world.files.volume(volume.mountPath).readOnly = false;
  world.volumes.hideReadOnlyFlag(volume.mountPath);
  EXPECT_FALSE(app.checkSelectedVolume().failed());
  app.next();
  EXPECT_EQ(world.controls.page(), static_cast<int>(Page::method));
}

TEST(SelectedVolumeCheck, TellsAVolumeThatIsNotMountedAnyMore) {
  World world;
  world.volume("DATA", 100'000);
  AppDelegate& app = world.launch();
  world.eject("DATA");
  EXPECT_EQ(app.checkSelectedVolume().code, ErrorCode::notFound);
}

TEST(SelectedVolumeCheck, RefusesAVolumeThatGaveNoFiguresWhenItWasListed) {
  World world;
  MountedVolume volume = described("ext4");
  volume.availableBytes = 0;
  volume.totalBytes = 0;
  world.volume(volume);
  EXPECT_EQ(world.launch().checkSelectedVolume().code, ErrorCode::gone);
}

TEST(SelectedVolumeCheck, PassesOnWhyTheDirectoryCannotBeMade) {
  World world;
  world.volume("DATA", 100'000);
  world.files.addForeignDirectory("/media/DATA", World::kDirectory);
  EXPECT_EQ(world.launch().checkSelectedVolume().code, ErrorCode::notOurs);
}

}  // namespace
}  // namespace calvero
