"""A medium that answers nothing any more, and may never again, must not hold up the window."""

from testkit import program
from window_case import WindowTest


class HangingVolume(WindowTest):
    def testARunOnAVolumeThatHangsCanBeCancelledAndTheProgramEnds(self):
        target = self.makeFuseVolume(64)
        window = self.startWindow()
        self.startWriting(window, target)
        self.addCleanup(target.die)  # until then not even a killed program ends
        target.hang()
        self.cancelWhileItHangs(window)
        window.closeWindow()
        program.waitUntil(lambda: program.hasLeft(window.process), "the program leaving without its threads",
                          seconds=15)
        target.die()
        self.assertEqual(window.waitForEnd(10), (0, "", ""))
