"""A medium that goes away or fails under the run: the window says so, never tells of a success, and stays
usable."""

import shutil
import subprocess

from case import NOTICED_WITHIN_SECONDS
from window_case import FAST, RUN_SECONDS, SLOWEST, WindowTest

UNKNOWN_ERROR = ("Information", "Unknown Error Occured")
DEAD = "does not respond|not connected any more"


class LostVolume(WindowTest):
    def writing(self, target, method=SLOWEST):
        window = self.startWindow()
        self.startWriting(window, target, method)
        return window

    def checkTold(self, window, target):
        text = self.outcome(window, NOTICED_WITHIN_SECONDS)
        self.assertEqual(text, f"The drive {target.name} was removed or has failed. Deleted data may still be "
                         "readable on it.")
        self.acknowledge(window)

    def checkRefusedNow(self, window, target):
        """The volume is still listed, but takes no further run."""
        self.choose(window, target)
        window.pressButton("Next")
        window.pressButton("Proceed")
        self.assertRegex(window.find("dialog", "Information").description, DEAD)
        self.assertRefusal(window)
        window.pressButton("Back")
        self.assertOnFirstPage(window)

    def checkUsableAndEnds(self, window):
        other = self.makeVolume("ext4", 24)
        window.pressButton("Reload Drives")
        self.startRun(window, other)
        self.expectSuccess(window, other)
        self.quit(window)
        self.assertNothingLeft(other)

    def testAVolumeWhoseFileSystemDiesIsToldAndTheWindowStaysUsable(self):
        target = self.makeFuseVolume(64)
        window = self.writing(target)
        target.die()
        self.checkTold(window, target)
        self.checkRefusedNow(window, target)
        self.checkUsableAndEnds(window)

    def testAVolumeTakenOutOfTheTreeIsToldAndTheWindowStaysUsable(self):
        target = self.makeVolume("ext4", 64)
        window = self.writing(target)
        target.detach()
        self.checkTold(window, target)
        window.waitUntilGone("list item", target.name)
        self.checkUsableAndEnds(window)

    def testAMediumThatFailsIsToldAndTheWindowStaysUsable(self):
        if shutil.which("xfs_io") is None:
            self.skipTest("xfs_io is not installed")
        target = self.makeVolume("xfs", 320)
        window = self.writing(target)
        subprocess.run(["xfs_io", "-x", "-c", "shutdown", target.path], check=True)
        self.checkTold(window, target)
        self.checkRefusedNow(window, target)
        self.checkUsableAndEnds(window)

    def testAVolumeThatTurnsReadOnlyIsToldAndTheWindowStaysUsable(self):
        target = self.makeVolume("ext4", 64)
        window = self.writing(target)
        # As the file system itself does on a damaged medium.
        target.remount("abort")
        self.checkTold(window, target)
        self.choose(window, target)
        window.pressButton("Next")
        self.assertRefusal(window, "Read only drive, please select other drives")
        self.assertOnFirstPage(window)
        self.checkUsableAndEnds(window)

    def testAFillerDirectoryRemovedFromOutsideIsToldAndEndsTheProgram(self):
        target = self.makeVolume("ext4", 200)
        freeBefore = target.freeBytes()
        window = self.writing(target, FAST)
        shutil.rmtree(target.fillerDirectory())
        error = window.find("dialog", *UNKNOWN_ERROR, timeout=RUN_SECONDS)
        window.pressButton("Relaunch the application", within=error)
        self.assertEqual(window.waitForEnd(10), (0, "", ""))
        self.assertFreeAgain(target, freeBefore)
