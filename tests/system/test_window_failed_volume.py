"""A medium that fails under the run: the window says so, never tells of a success, and stays usable."""

import shutil
import subprocess

from window_lost_case import LostTest


class FailedVolume(LostTest):
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
