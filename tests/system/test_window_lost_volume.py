"""A volume that goes away under the run: the window says so, never tells of a success, and stays usable."""

import shutil

from window_case import FAST, RUN_SECONDS
from window_lost_case import LostTest

UNKNOWN_ERROR = ("Information", "Unknown Error Occured")


class LostVolume(LostTest):
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

    def testAFillerDirectoryRemovedFromOutsideIsToldAndEndsTheProgram(self):
        target = self.makeVolume("ext4", 200)
        freeBefore = target.freeBytes()
        window = self.writing(target, FAST)
        shutil.rmtree(target.fillerDirectory())
        error = window.find("dialog", *UNKNOWN_ERROR, timeout=RUN_SECONDS)
        window.pressButton("Relaunch the application", within=error)
        self.assertEqual(window.waitForEnd(10), (0, "", ""))
        self.assertFreeAgain(target, freeBefore)
