"""Drives that cannot be erased: the window says why, starts nothing, and takes another drive."""

import os
import signal
import subprocess

from case import everything, isWriting
from testkit import program
from window_case import WindowTest

READ_ONLY = "Read only drive, please select other drives"
BUSY = "This drive is being erased by another process."


class Refusals(WindowTest):
    def checkAnotherCanBeChosen(self, window, other):
        self.toMethods(window, other)
        window.pressButton("Back")
        self.assertOnFirstPage(window)

    def testAReadOnlyVolumeIsRefusedAndAnotherCanBeChosen(self):
        target, other = self.makeVolume("ext4", 16), self.makeVolume("ext4", 16)
        target.remount("ro")
        window = self.startWindow()
        self.choose(window, target)
        window.pressButton("Next")
        self.answer(window, "Information", READ_ONLY, button="Ok")
        self.assertOnFirstPage(window)
        self.assertDescribed(window, target)
        self.checkAnotherCanBeChosen(window, other)

    def testAVolumeThatTurnsReadOnlyOnTheMethodPageIsRefused(self):
        target = self.makeVolume("ext4", 16)
        window = self.startWindow()
        self.toMethods(window, target)
        target.remount("ro")
        window.pressButton("Proceed")
        self.assertRefusal(window, READ_ONLY)
        self.assertNoRun(window, target)

    def testAVolumeThatAnotherRunHoldsIsRefusedUntilThatHasEnded(self):
        target, other = self.makeVolume("ext4", 300), self.makeVolume("ext4", 16)
        window = self.startWindow()
        self.toMethods(window, target)
        run = self.startWipe(target, method="9")
        program.waitUntil(lambda: isWriting(target, 0), "the other run writing")
        window.pressButton("Proceed")
        self.assertRefusal(window, BUSY)
        window.pressButton("Back")
        self.assertOnFirstPage(window)
        window.pressButton("Next")
        self.assertRefusal(window, BUSY)
        self.assertOnFirstPage(window)
        self.checkAnotherCanBeChosen(window, other)
        self.assertIsNone(run.poll(), "the other run is under way all the time")

        run.send_signal(signal.SIGTERM)
        code, output, errors = self.finish(run)
        self.assertEqual(code, program.EXIT_CANCELLED, (output, errors))
        self.toMethods(window, target)

    def testAForeignFolderUnderTheNameOfTheFillerDirectoryIsRefused(self):
        target, other = self.makeVolume("ext4", 16), self.makeVolume("ext4", 16)
        os.makedirs(os.path.join(target.fillerDirectory(), "folder"))
        with open(os.path.join(target.fillerDirectory(), "folder", "letter"), "w") as file:
            file.write("precious")
        before = everything(target.path)
        window = self.startWindow()
        self.choose(window, target)
        window.pressButton("Next")
        self.assertRefusal(window, ".$$XE8AQU", "not made by Calvero")
        self.assertOnFirstPage(window)
        self.checkAnotherCanBeChosen(window, other)
        self.assertEqual(everything(target.path), before)

    def testALeftFolderThatMayNotBeChangedIsNamed(self):
        target, other = self.makeVolume("ext4", 16), self.makeVolume("ext4", 16)
        os.mkdir(target.fillerDirectory())
        subprocess.run(["chattr", "+i", target.fillerDirectory()], check=True)
        self.addCleanup(subprocess.run, ["chattr", "-i", target.fillerDirectory()])
        window = self.startWindow()
        self.choose(window, target)
        window.pressButton("Next")
        self.assertRefusal(window, target.fillerDirectory(), "an earlier run left", "locked")
        self.assertOnFirstPage(window)
        self.checkAnotherCanBeChosen(window, other)

    def testAVolumeThatWasUnmountedIsRefused(self):
        target, other = self.makeVolume("ext4", 16), self.makeVolume("ext4", 16)
        window = self.startWindow()
        self.choose(window, target)
        target.unmount()
        window.pressButton("Next")
        self.assertRefusal(window, "not connected any more", "Reload Drives")
        self.assertOnFirstPage(window)
        self.checkAnotherCanBeChosen(window, other)
