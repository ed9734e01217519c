#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/method_controls.h"
#include "methods/method_catalogue.h"
#include "tests/fakes/world.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::Steps;
using testing::World;

class Wizard : public ::testing::Test {
 protected:
  Wizard() { world.volume("DATA", 300'000'000); }

  World world;
};

class WizardOnAReadOnlyVolume : public ::testing::Test {
 protected:
  WizardOnAReadOnlyVolume() {
    MountedVolume volume;
    volume.name = "ROM";
    volume.mountPath = "/media/ROM";
    volume.formatDescription = "ext4";
    volume.availableBytes = 300'000'000;
    volume.readOnly = true;
    world.volume(volume);
  }

  World world;
};

TEST_F(Wizard, StepsToTheMethodPageInOrder) {
  AppDelegate& app = world.launch();
  app.next();
  EXPECT_THAT(
      world.journal.without({"log"}),
      ElementsAre("lookUp DATA", "isReadOnly /media/DATA", "reloadTable", "turnOn butFastZeroWipe",
                  "turnOff butRandomWipe", "turnOff butDOD5220", "turnOff butNATO", "turnOff butFAST_ZERO_WRITE",
                  "turnOff butNAVSO", "turnOff butPETER_GUTTMAN", "turnOff butVSITR", "turnOff butNINTH_ALGO",
                  "turnOn butFastZeroWipe", "turnOff butDOD5220", "turnOff butRandomWipe",
                  "setText tfUnsecuredData \"300.00 MB\"", "setText tfCleanedSize \"300.00 MB\"", "selectPage 1",
                  "hide buttonNext", "show buttonBack", "show buttonProceed", "lookUp DATA"));
}

TEST_F(Wizard, LeavesCancelAndHomeAsTheyAreOnTheWayToTheMethodPage) {
  AppDelegate& app = world.launch();
  app.next();
  EXPECT_TRUE(world.controls.hidden(Control::buttonNext));
  EXPECT_TRUE(world.controls.shown(Control::buttonBack));
  EXPECT_TRUE(world.controls.shown(Control::buttonProceed));
  EXPECT_TRUE(world.controls.hidden(Control::buttonCancel));
  EXPECT_TRUE(world.controls.shown(Control::buttonHome));
}

TEST_F(Wizard, KeepsTheVolumesPathInsteadOfThePlaceholderAfterNext) {
  AppDelegate& app = world.launch();
  ASSERT_EQ(app.shell().createFilePath, "test");
  app.next();
  EXPECT_EQ(app.shell().createFilePath, "/media/DATA");
}

TEST_F(Wizard, EmptiesTheListOfFillerFilesOnTheWayToTheMethodPage) {
  AppDelegate& app = world.launch();
  app.createFile(*app.currentRun());
  ASSERT_FALSE(app.currentRun()->filePathsArray.empty());
  app.next();
  EXPECT_THAT(app.currentRun()->filePathsArray, IsEmpty());
}

TEST_F(Wizard, ReturnsToMethod0WithOnePassAtEveryVisitOfTheMethodPage) {
  AppDelegate& app = world.launch();
  app.next();
  app.eight_PETER_GUTTMAN();
  app.back();
  app.next();
  EXPECT_EQ(app.methodChoice().eraseMethodSelected, 0);
  EXPECT_EQ(app.methodChoice().numPassSelected, 1);
  for (const EraseMethod& method : kMethodCatalogue) {
    EXPECT_EQ(world.controls.isOn(controlsOf(method.number)->button), method.number == 0) << method.number;
  }
}

TEST_F(WizardOnAReadOnlyVolume, RefusesNextWithAnAlertAndStaysOnTheVolumePage) {
  AppDelegate& app = world.launch();
  app.next();
  EXPECT_THAT(world.journal.without({"log"}),
              ElementsAre("lookUp ROM", "isReadOnly /media/ROM",
                          "alert \"Information\" \"Read only drive, please select other drives\" \"Ok\" \"\""));
  EXPECT_TRUE(world.controls.shown(Control::buttonNext));
  EXPECT_EQ(world.controls.page(), -1);
  EXPECT_EQ(app.shell().createFilePath, "test");
}

TEST_F(WizardOnAReadOnlyVolume, LocalisesEveryTextOfTheRefusalTheEmptyOneIncluded) {
  world.localisation.markTexts();
  world.launch().next();
  ASSERT_EQ(world.alerts.shown().size(), 1U);
  const Alert alert = world.alerts.shown().front();
  EXPECT_EQ(alert.title, "<Information>");
  EXPECT_EQ(alert.message, "<Read only drive, please select other drives>");
  EXPECT_EQ(alert.defaultButton, "<Ok>");
  EXPECT_EQ(alert.alternateButton, "<>");
}

TEST_F(WizardOnAReadOnlyVolume, AcceptsItWhenTheFlagCannotBeRead) {
  world.volumes.hideReadOnlyFlag("/media/ROM");
  world.launch().next();
  EXPECT_EQ(world.controls.page(), 1);
  EXPECT_THAT(world.alerts.shown(), IsEmpty());
}

TEST_F(WizardOnAReadOnlyVolume, CanBeLeftForAnotherVolumeAfterTheRefusal) {
  world.volume("DATA", 1'000'000);
  AppDelegate& app = world.launch();
  app.next();
  app.setCurrentSelection(1);
  app.next();
  EXPECT_EQ(world.controls.page(), 1);
  EXPECT_EQ(app.shell().createFilePath, "/media/DATA");
}

TEST_F(Wizard, GoesBackInOrder) {
  AppDelegate& app = world.launch();
  app.next();
  world.journal.clear();
  app.back();
  EXPECT_THAT(world.journal.all(),
              ElementsAre("selectPage 0", "reloadTable", "hide buttonBack", "redraw buttonBack", "hide buttonProceed",
                          "redraw buttonProceed", "hide buttonCancel", "redraw buttonCancel", "show buttonHome",
                          "redraw buttonHome", "show buttonNext", "redraw buttonNext"));
}

TEST_F(Wizard, ClearsTheFlagsOfTheRunAndNothingElseOnTheWayBack) {
  AppDelegate& app = world.start();
  app.fifth_NATO();
  app.currentRun()->volumeEjected = 1;
  app.back();
  EXPECT_EQ(app.shell().wipingProcessOn, 0);
  EXPECT_EQ(app.currentRun()->volumeEjected, 0);
  EXPECT_EQ(app.methodChoice().eraseMethodSelected, 4);
  EXPECT_EQ(app.methodChoice().numPassSelected, 7);
  EXPECT_EQ(world.controls.text(Control::tfUnsecuredData), "300.00 MB");
}

TEST_F(Wizard, SetsTheProgressPagesFiguresInOrder) {
  AppDelegate& app = world.launch();
  app.setIBObjectsBeforeWipe();
  EXPECT_THAT(world.journal.all(),
              ElementsAre("setText tfFreespaceData \"300.00 MB\"", "show buttonCancel", "setText tfElapsedData \" \"",
                          "setText tfElapsedTime \"00:00:00\"", "setText tfElapsedData \"0.00 KB\""));
}

TEST_F(Wizard, ShowsZeroFiguresBeforeARun) {
  world.launch().setIBObjectsBeforeWipe();
  EXPECT_EQ(world.controls.text(Control::tfElapsedData), "0.00 KB");
  EXPECT_EQ(world.controls.text(Control::tfElapsedTime), "00:00:00");
  EXPECT_TRUE(world.controls.shown(Control::buttonCancel));
}

TEST_F(Wizard, ThrowsBeyondTheListOnNextWithoutAnyVolume) {
  World empty;
  AppDelegate& app = empty.launch();
  EXPECT_THROW(app.next(), std::out_of_range);
  EXPECT_EQ(empty.controls.page(), -1);
}

TEST_F(Wizard, HandsOverToTheSuitesHomeApplicationAndQuits) {
  world.desktop.installAt("/opt/home/1/2/3/4/5/calvero");
  AppDelegate& app = world.launch();
  app.goToHome();
  EXPECT_THAT(world.journal.all(),
              ElementsAre("launchApplication /opt/home", "activate com.PelmarSoftware.PelmarMacCleaner", "terminate"));
}

TEST_F(Wizard, LaunchesWhatTheRemovalsLeaveWhenInstalledLessThanSixLevelsDeepAndStillQuits) {
  world.desktop.installAt("/usr/bin/calvero");
  AppDelegate& app = world.launch();
  app.goToHome();
  EXPECT_THAT(world.journal.all(),
              ElementsAre("launchApplication /", "activate com.PelmarSoftware.PelmarMacCleaner", "terminate"));
}

}  // namespace
}  // namespace calvero
