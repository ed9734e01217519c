#include "tests/gallery/scenes.h"

#include <QProgressBar>

#include "window/completed_window.h"
#include "wipe/filler_names.h"
#include "wipe/filler_size.h"

namespace calvero::testing {
namespace {

using std::chrono::seconds;

constexpr std::uint64_t kGigabyte = 1'000'000'000;
constexpr std::uint64_t kFreeBytes = 64 * kGigabyte;
constexpr std::size_t kFileAt37Percent = 187;  // of 501
constexpr std::size_t kReadOnlyTile = 5;

constexpr const char* kData = "Data";
constexpr const char* kLongName = "Holiday pictures & videos 2019–2024 (copy of the old computer's disk)";

MountedVolume volumeOf(const std::string& name, const std::string& format, std::uint64_t free, std::uint64_t total) {
  MountedVolume volume;
  volume.name = name;
  volume.mountPath = "/media/" + name;
  volume.formatDescription = format;
  volume.availableBytes = free;
  volume.totalBytes = total;
  return volume;
}

MountedVolume removable(MountedVolume volume) {
  volume.removable = true;
  return volume;
}

MountedVolume readOnly(MountedVolume volume) {
  volume.readOnly = true;
  return volume;
}

MountedVolume remote(MountedVolume volume) {
  volume.local = false;
  return volume;
}

void addVolumes(Stage& stage) {
  stage.volume(volumeOf("System", "ext4", 183 * kGigabyte, 512 * kGigabyte));
  stage.volume(volumeOf(kData, "XFS", kFreeBytes, 1000 * kGigabyte));
  stage.volume(removable(volumeOf(kLongName, "exFAT", 712 * kGigabyte, 2000 * kGigabyte)));
  stage.volume(removable(volumeOf("صور العائلة 2023", "FAT32", 9 * kGigabyte, 32 * kGigabyte)));
  stage.volume(remote(volumeOf("archive", "NFS", 1400 * kGigabyte, 8000 * kGigabyte)));
  stage.volume(readOnly(removable(volumeOf("Installer", "ISO 9660", 0, 4 * kGigabyte))));
  stage.volume(removable(volumeOf("写真 2024", "NTFS", 41 * kGigabyte, 128 * kGigabyte)));
}

/// One volume, small or large enough for a run.
void addOneVolume(Stage& stage, const std::string& name, std::uint64_t free) {
  stage.volume(volumeOf(name, "ext4", free, 4 * free));
}

void startRun(Stage& stage, const char* method = "algorithm_1") {
  stage.click("buttonNext");
  stage.click(method);
  stage.expectAlert("question");
  stage.expectAlert("notice");
  stage.click("proceedBtn");
  stage.waitForAlerts();
}

void refuseToClose(Stage& stage) {
  stage.expectAlert("wiping-is-on");
  stage.window().close();
  stage.waitForAlerts();
}

/// From the list of drives to the end of a run.
void playWizard(Stage& stage) {
  addVolumes(stage);
  Gate& phaseOne = stage.gateBefore(FileCall::createFile, 1);
  Gate& phaseTwo = stage.gateBefore(FileCall::open, kFileAt37Percent);
  stage.play([&] {
    stage.showWindow("volumes");
    stage.clickTile(2);
    stage.showWindow("volumes-long-name");
    stage.clickTile(3);
    stage.showWindow("volumes-right-to-left-name");
    stage.clickTile(1);
    stage.click("buttonNext");
    stage.showWindow("methods");
    stage.click("algorithm_8");
    stage.showWindow("methods-gutmann");
    stage.click("algorithm_1");
    stage.expectAlert("question", AlertAnswer::alternateButton);
    stage.click("proceedBtn");
    stage.waitForAlerts();

    startRun(stage);
    stage.waitFor("phase 1", [&] { return phaseOne.isReached(); });
    stage.waitForText("labelPhase", stage.localised("Phase 1: Analyzing Data.."));
    stage.showWindow("phase-1");
    phaseOne.open();

    stage.waitFor("phase 2", [&] { return phaseTwo.isReached(); });
    stage.clock().advance(seconds(754));
    stage.waitForText("tfElapsedTime", "00:12:34");
    stage.waitFor("37 %", [&] { return stage.find<QProgressBar>("piDataWipe").value() == 37; });
    stage.showWindow("phase-2");
    refuseToClose(stage);
    phaseTwo.open();

    auto& completed = stage.window().completedWindow();
    stage.show("completed", completed);
    stage.showWindow("completed-page");
    stage.click("completionPageOk");
    stage.waitFor("the first page", [&] { return !completed.isVisible(); });
    stage.showWindow("volumes-again");
  });
}

void playCancel(Stage& stage) {
  addOneVolume(stage, kData, kFreeBytes);
  Gate& writing = stage.gateBefore(FileCall::open, 2);
  Gate& cleaning = stage.gateBefore(FileCall::releaseSpace, 1);
  stage.play([&] {
    startRun(stage);
    stage.waitFor("the run", [&] { return writing.isReached(); });
    stage.expectAlert("aborted");
    stage.once([&] { return cleaning.isReached(); },
               [&] {
                 stage.showWindow("cancelling");
                 writing.open();
                 cleaning.open();
               });
    stage.click("cancelBut");
    stage.waitForAlerts();
  });
}

void playWithoutVolumes(Stage& stage) {
  stage.play([&] {
    stage.showWindow("no-volumes");
    stage.expectAlert("nothing-to-erase");
    stage.click("buttonNext");
    stage.waitForAlerts();
  });
}

void playRefusals(Stage& stage) {
  addVolumes(stage);
  stage.play([&] {
    stage.clickTile(kReadOnlyTile);
    stage.expectAlert("refused-read-only");
    stage.click("buttonNext");
    stage.waitForAlerts();

    stage.clickTile(1);
    const std::pair<ErrorCode, const char*> refusals[] = {
        {ErrorCode::notPermitted, "refused-not-permitted"},
        {ErrorCode::busy, "refused-busy"},
        {ErrorCode::notFound, "refused-not-found"},
        {ErrorCode::notOurs, "refused-not-ours"},
        {ErrorCode::other, "refused-other"},
    };
    const auto failNextCheck = [&](ErrorCode code) {
      const std::size_t next = stage.files().script.count(FileCall::checkDirectory) + 1;
      stage.files().script.failAt(FileCall::checkDirectory, next, code);
    };
    for (const auto& [code, name] : refusals) {
      failNextCheck(code);
      stage.expectAlert(name);
      stage.click("buttonNext");
      stage.waitForAlerts();
    }
    stage.click("buttonNext");
    failNextCheck(ErrorCode::gone);
    stage.expectAlert("refused-gone");
    stage.click("proceedBtn");
    stage.waitForAlerts();
    stage.click("buttonBack");
    stage.administratorCommand("pkexec /usr/bin/calvero-cli wipe /run/media/ann/Data");
    failNextCheck(ErrorCode::notPermitted);
    stage.expectAlert("refused-but-for-administrator");
    stage.click("buttonNext");
    stage.waitForAlerts();
  });
}

void playFlawedRun(Stage& stage) {
  addOneVolume(stage, kLongName, kFillerFileBytes);
  stage.files().script.failAt(FileCall::fsync, 1, ErrorCode::other);
  stage.play([&] {
    startRun(stage);
    stage.show("completed-flawed", stage.window().completedWindow());
    stage.showWindow("completed-page-flawed");
  });
}

/// Most of what was free has been taken by others.
void playPartialRun(Stage& stage) {
  addOneVolume(stage, kLongName, kFillerFileBytes);
  stage.files().volume(std::string("/media/") + kLongName).tellsFreeSpace = false;
  stage.play([&] {
    startRun(stage);
    stage.show("completed-partial", stage.window().completedWindow());
    stage.showWindow("completed-page-partial");
  });
}

void playRunWithoutData(Stage& stage) {
  addOneVolume(stage, kData, kFillerFileBytes);
  stage.play([&] {
    startRun(stage, "algorithm_7");
    stage.show("completed-nothing", stage.window().completedWindow());
    stage.showWindow("completed-page-nothing");
  });
}

void playFullStorage(Stage& stage) {
  addOneVolume(stage, kLongName, kFillerFileBytes);
  stage.files().script.failAt(FileCall::fsync, 2, ErrorCode::full);
  stage.play([&] {
    startRun(stage);
    stage.show("completed-storage-full", stage.window().completedWindow());
    stage.showWindow("completed-page-storage-full");
  });
}

void playLostVolume(Stage& stage) {
  addOneVolume(stage, kLongName, kFillerFileBytes);
  Gate& writing = stage.gateBefore(FileCall::open, 2);
  stage.play([&] {
    startRun(stage);
    stage.waitFor("the run", [&] { return writing.isReached(); });
    stage.files().volume(std::string("/media/") + kLongName).mounted = false;
    stage.volumes().remove(kLongName);
    writing.open();
    stage.show("completed-lost", stage.window().completedWindow());
    stage.showWindow("completed-page-lost");
  });
}

void playLostState(Stage& stage) {
  addOneVolume(stage, kData, kFillerFileBytes);
  Gate& writing = stage.gateBefore(FileCall::open, 1);
  stage.play([&] {
    startRun(stage);
    stage.waitFor("the run", [&] { return writing.isReached(); });
    const std::string directory = fillerDirectoryPath(std::string("/media/") + kData);
    stage.files().removeFromOutside(directory, ".temp1");
    stage.expectAlert("unknown-error");
    writing.open();
    stage.waitForAlerts();
  });
}

/// A run that the suite ordered tells its end in a pop-up, and holds still while that is read.
void playOrder(Stage& stage) {
  addOneVolume(stage, kLongName, kFillerFileBytes);
  stage.order(kLongName);
  Gate& reading = stage.newGate();
  stage.clock().atSleepOf(seconds(7), [&reading] { reading.pass(); });
  stage.play([&] {
    stage.waitFor("the pop-up", [&] { return reading.isReached(); });
    stage.show("pop-up-finished", stage.popUp());
  });
}

void playCancelledOrder(Stage& stage) {
  addOneVolume(stage, kData, kFillerFileBytes);
  stage.order(kData);
  Gate& writing = stage.gateBefore(FileCall::open, 1);
  stage.play([&] {
    stage.waitFor("the run", [&] { return writing.isReached(); });
    stage.clock().atSleepOf(seconds(3), [&stage] { stage.show("pop-up-cancelled", stage.popUp()); });
    stage.app().cancelProcess();
  });
}

}  // namespace

void playAllScenes(const std::string& language, const Visitor& visitor) {
  for (const auto play :
       {playWizard, playCancel, playWithoutVolumes, playRefusals, playFlawedRun, playPartialRun, playRunWithoutData,
        playFullStorage, playLostVolume, playLostState, playOrder, playCancelledOrder}) {
    Stage stage(language, visitor);
    play(stage);
  }
}

}  // namespace calvero::testing
