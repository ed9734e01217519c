"""A medium that answers nothing any more, and may never again, must not hold up the window."""

from window_case import WindowTest


class HangingVolume(WindowTest):
    def testARunOnAVolumeThatHangsCanBeCancelledAndTheProgramEnds(self):
        target = self.makeFuseVolume(64)
        window = self.startWindow()
        self.startWriting(window, target)
        self.addCleanup(target.die)  # until then not even a killed program ends
        target.hang()
        self.cancelWhileItHangs(window)
        self.closeWhileItHangs(window, target)
