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

void addVolumes(SceneFixture& fixture) {
  fixture.volume(volumeOf("System", "ext4", 183 * kGigabyte, 512 * kGigabyte));
  fixture.volume(volumeOf(kData, "XFS", kFreeBytes, 1000 * kGigabyte));
  fixture.volume(removable(volumeOf(kLongName, "exFAT", 712 * kGigabyte, 2000 * kGigabyte)));
  fixture.volume(removable(volumeOf("صور العائلة 2023", "FAT32", 9 * kGigabyte, 32 * kGigabyte)));
  fixture.volume(remote(volumeOf("archive", "NFS", 1400 * kGigabyte, 8000 * kGigabyte)));
  fixture.volume(readOnly(removable(volumeOf("Installer", "ISO 9660", 0, 4 * kGigabyte))));
  fixture.volume(removable(volumeOf("写真 2024", "NTFS", 41 * kGigabyte, 128 * kGigabyte)));
}

/// One volume, small or large enough for a run.
void addOneVolume(SceneFixture& fixture, const std::string& name, std::uint64_t free) {
  fixture.volume(volumeOf(name, "ext4", free, 4 * free));
}

void startRun(SceneFixture& fixture, const char* method = "algorithm_1") {
  fixture.click("buttonNext");
  fixture.click(method);
  fixture.expectAlert("question");
  fixture.expectAlert("notice");
  fixture.click("proceedBtn");
  fixture.waitForAlerts();
}

void refuseToClose(SceneFixture& fixture) {
  fixture.expectAlert("wiping-is-on");
  fixture.window().close();
  fixture.waitForAlerts();
}

/// From the list of drives to the end of a run.
void playWizard(SceneFixture& fixture) {
  addVolumes(fixture);
  Latch& phaseOne = fixture.latchBefore(FileCall::createFile, 1);
  Latch& phaseTwo = fixture.latchBefore(FileCall::open, kFileAt37Percent);
  fixture.play([&] {
    fixture.showWindow("volumes");
    fixture.clickTile(2);
    fixture.showWindow("volumes-long-name");
    fixture.clickTile(3);
    fixture.showWindow("volumes-right-to-left-name");
    fixture.clickTile(1);
    fixture.click("buttonNext");
    fixture.showWindow("methods");
    fixture.click("algorithm_8");
    fixture.showWindow("methods-gutmann");
    fixture.click("algorithm_1");
    fixture.expectAlert("question", AlertAnswer::alternateButton);
    fixture.click("proceedBtn");
    fixture.waitForAlerts();

    startRun(fixture);
    fixture.waitFor("phase 1", [&] { return phaseOne.isReached(); });
    fixture.waitForText("labelPhase", fixture.localised("Phase 1: Analyzing Data.."));
    fixture.showWindow("phase-1");
    phaseOne.release();

    fixture.waitFor("phase 2", [&] { return phaseTwo.isReached(); });
    fixture.clock().advance(seconds(754));
    fixture.waitForText("tfElapsedTime", "00:12:34");
    fixture.waitFor("37 %", [&] { return fixture.find<QProgressBar>("piDataWipe").value() == 37; });
    fixture.showWindow("phase-2");
    refuseToClose(fixture);
    phaseTwo.release();

    auto& completed = fixture.window().completedWindow();
    fixture.show("completed", completed);
    fixture.showWindow("completed-page");
    fixture.click("completionPageOk");
    fixture.waitFor("the first page", [&] { return !completed.isVisible(); });
    fixture.showWindow("volumes-again");
  });
}

void playCancel(SceneFixture& fixture) {
  addOneVolume(fixture, kData, kFreeBytes);
  Latch& writing = fixture.latchBefore(FileCall::open, 2);
  Latch& cleaning = fixture.latchBefore(FileCall::releaseSpace, 1);
  fixture.play([&] {
    startRun(fixture);
    fixture.waitFor("the run", [&] { return writing.isReached(); });
    fixture.expectAlert("aborted");
    fixture.once([&] { return cleaning.isReached(); },
                 [&] {
                   fixture.showWindow("cancelling");
                   writing.release();
                   cleaning.release();
                 });
    fixture.click("cancelBut");
    fixture.waitForAlerts();
  });
}

void playWithoutVolumes(SceneFixture& fixture) {
  fixture.play([&] {
    fixture.showWindow("no-volumes");
    fixture.expectAlert("nothing-to-erase");
    fixture.click("buttonNext");
    fixture.waitForAlerts();
  });
}

void playRefusals(SceneFixture& fixture) {
  addVolumes(fixture);
  fixture.play([&] {
    fixture.clickTile(kReadOnlyTile);
    fixture.expectAlert("refused-read-only");
    fixture.click("buttonNext");
    fixture.waitForAlerts();

    fixture.clickTile(1);
    const std::pair<ErrorCode, const char*> refusals[] = {
        {ErrorCode::notPermitted, "refused-not-permitted"},
        {ErrorCode::busy, "refused-busy"},
        {ErrorCode::notFound, "refused-not-found"},
        {ErrorCode::notOurs, "refused-not-ours"},
        {ErrorCode::other, "refused-other"},
    };
    const auto failNextCheck = [&](ErrorCode code) {
      const std::size_t next = fixture.files().script.count(FileCall::checkDirectory) + 1;
      fixture.files().script.failAt(FileCall::checkDirectory, next, code);
    };
    for (const auto& [code, name] : refusals) {
      failNextCheck(code);
      fixture.expectAlert(name);
      fixture.click("buttonNext");
      fixture.waitForAlerts();
    }
    fixture.click("buttonNext");
    failNextCheck(ErrorCode::gone);
    fixture.expectAlert("refused-gone");
    fixture.click("proceedBtn");
    fixture.waitForAlerts();
    fixture.click("buttonBack");
    fixture.administratorCommand("pkexec /usr/bin/calvero-cli wipe /run/media/ann/Data");
    failNextCheck(ErrorCode::notPermitted);
    fixture.expectAlert("refused-but-for-administrator");
    fixture.click("buttonNext");
    fixture.waitForAlerts();
  });
}

void playFlawedRun(SceneFixture& fixture) {
  addOneVolume(fixture, kLongName, kFillerFileBytes);
  fixture.files().script.failAt(FileCall::fsync, 1, ErrorCode::other);
  fixture.play([&] {
    startRun(fixture);
    fixture.show("completed-flawed", fixture.window().completedWindow());
    fixture.showWindow("completed-page-flawed");
  });
}

/// Most of what was free has been taken by others.
void playPartialRun(SceneFixture& fixture) {
  addOneVolume(fixture, kLongName, kFillerFileBytes);
  fixture.files().volume(std::string("/media/") + kLongName).tellsFreeSpace = false;
  fixture.play([&] {
    startRun(fixture);
    fixture.show("completed-partial", fixture.window().completedWindow());
    fixture.showWindow("completed-page-partial");
  });
}

void playRunWithoutData(SceneFixture& fixture) {
  addOneVolume(fixture, kData, kFillerFileBytes);
  fixture.play([&] {
    startRun(fixture, "algorithm_7");
    fixture.show("completed-nothing", fixture.window().completedWindow());
    fixture.showWindow("completed-page-nothing");
  });
}

void playFullStorage(SceneFixture& fixture) {
  addOneVolume(fixture, kLongName, kFillerFileBytes);
  fixture.files().script.failAt(FileCall::fsync, 2, ErrorCode::full);
  fixture.play([&] {
    startRun(fixture);
    fixture.show("completed-storage-full", fixture.window().completedWindow());
    fixture.showWindow("completed-page-storage-full");
  });
}

void playLostVolume(SceneFixture& fixture) {
  addOneVolume(fixture, kLongName, kFillerFileBytes);
  Latch& writing = fixture.latchBefore(FileCall::open, 2);
  fixture.play([&] {
    startRun(fixture);
    fixture.waitFor("the run", [&] { return writing.isReached(); });
    fixture.files().volume(std::string("/media/") + kLongName).mounted = false;
    fixture.volumes().remove(kLongName);
    writing.release();
    fixture.show("completed-lost", fixture.window().completedWindow());
    fixture.showWindow("completed-page-lost");
  });
}

void playLostState(SceneFixture& fixture) {
  addOneVolume(fixture, kData, kFillerFileBytes);
  Latch& writing = fixture.latchBefore(FileCall::open, 1);
  fixture.play([&] {
    startRun(fixture);
    fixture.waitFor("the run", [&] { return writing.isReached(); });
    const std::string directory = fillerDirectoryPath(std::string("/media/") + kData);
    fixture.files().removeFromOutside(directory, ".temp1");
    fixture.expectAlert("unknown-error");
    writing.release();
    fixture.waitForAlerts();
  });
}

/// A run that the suite ordered tells its end in a pop-up, and holds still while that is read.
void playOrder(SceneFixture& fixture) {
  addOneVolume(fixture, kLongName, kFillerFileBytes);
  fixture.order(kLongName);
  Latch& reading = fixture.newLatch();
  fixture.clock().atSleepOf(seconds(7), [&reading] { reading.wait(); });
  fixture.play([&] {
    fixture.waitFor("the pop-up", [&] { return reading.isReached(); });
    fixture.show("pop-up-finished", fixture.popUp());
  });
}

void playCancelledOrder(SceneFixture& fixture) {
  addOneVolume(fixture, kData, kFillerFileBytes);
  fixture.order(kData);
  Latch& writing = fixture.latchBefore(FileCall::open, 1);
  fixture.play([&] {
    fixture.waitFor("the run", [&] { return writing.isReached(); });
    fixture.clock().atSleepOf(seconds(3), [&fixture] { fixture.show("pop-up-cancelled", fixture.popUp()); });
    fixture.app().cancelProcess();
  });
}

}  // namespace

void playAllScenes(const std::string& language, const Visitor& visitor) {
  for (const auto play :
       {playWizard, playCancel, playWithoutVolumes, playRefusals, playFlawedRun, playPartialRun, playRunWithoutData,
        playFullStorage, playLostVolume, playLostState, playOrder, playCancelledOrder}) {
    SceneFixture fixture(language, visitor);
    play(fixture);
  }
}

}  // namespace calvero::testing
