"""The window as most people start it: without the rights of root, on a desktop of that user's own."""

import os

from testkit import program
from window_case import DOD, WindowTest


class PlainUser(WindowTest):
    plainUser = True

    def testAVolumeThatTheUserMayNotWriteToIsRefusedAndAnotherIsErased(self):
        forbidden, target = self.makeVolume("ext4", 16), self.makeVolume("ext4", 40)
        os.chmod(forbidden.path, 0o755)
        freeBefore = target.freeBytes()
        window = self.startWindow()
        with open(f"/proc/{window.process.pid}/status") as status:
            self.assertIn(f"\nUid:\t{program.PLAIN_USER}\t{program.PLAIN_USER}", status.read())

        self.choose(window, forbidden)
        window.pressButton("Next")
        self.assertRefusal(window, "You are not allowed to write")
        self.assertOnFirstPage(window)
        self.assertNothingLeft(forbidden)

        self.startRun(window, target, DOD)
        self.expectSuccess(window, target)
        self.quit(window)
        self.assertNothingLeft(target)
        self.assertFreeAgain(target, freeBefore)
