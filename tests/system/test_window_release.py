"""A drive can be taken away after a run, however that has ended, while the window stays open."""

import subprocess

from testkit import program
from window_case import RANDOM, WindowTest


class Release(WindowTest):
    def checkCanBeUnmounted(self, window, target):
        """As a file manager does it: not at once, perhaps, but soon."""
        def isUnmounted():
            return subprocess.run(["umount", target.path], stderr=subprocess.DEVNULL).returncode == 0
        program.waitUntil(isUnmounted, "the volume being free to unmount", seconds=5)
        target.noteUnmounted()
        window.pressButton("Reload Drives")
        window.waitUntilGone("list item", target.name)
        self.quit(window)

    def testAfterAFinishedRunTheVolumeCanBeUnmounted(self):
        target = self.makeVolume("ext4", 16)
        window = self.startWindow()
        self.startRun(window, target, RANDOM)
        self.expectSuccess(window, target)
        self.checkCanBeUnmounted(window, target)

    def testAfterACancelledRunTheVolumeCanBeUnmounted(self):
        target = self.makeVolume("ext4", 64)
        window = self.startWindow()
        self.startWriting(window, target)
        window.pressButton("Cancel")
        self.answer(window, "Information", "Wiping process aborted")
        self.assertOnFirstPage(window)
        self.checkCanBeUnmounted(window, target)

    def testAfterAFailedRunTheVolumeCanBeUnmounted(self):
        target = self.makeVolume("ext4", 64)
        window = self.startWindow()
        self.startWriting(window, target)
        # As the file system itself does on a damaged medium.
        target.remount("abort")
        self.assertIn("was removed or has failed", self.outcome(window))
        self.acknowledge(window)
        self.checkCanBeUnmounted(window, target)
