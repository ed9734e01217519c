"""A volume that goes or hangs in any phase of a run: the window says so in time, and is not held up. More ways of going
while a file is written are in test_window_lost_volume."""

from case import NOTICED_WITHIN_SECONDS
from pulled_case import CLEAN_UP, PHASE_1, PHASE_2, PulledTest
from testkit import program
from window_case import FAST, REQUEST, SLOWEST, WindowTest

UNKNOWN_ERROR = ("Information", "Unknown Error Occured")


class PulledVolume(PulledTest, WindowTest):
    def startStopped(self, target, phase, method=FAST):
        """The window with a run that has stopped in that phase."""
        command, waitUntilStopped = self.stopping([program.windowProgramPath()], target, phase)
        window = self.startWindow(command=command)
        self.toMethods(window, target, method)
        self.proceed(window)
        # Not waiting for the alert to go: the program may have stopped by then.
        window.pressButton("OK", within=window.find("dialog", REQUEST))
        waitUntilStopped()
        return window

    def testAVolumeThatGoesWhileTheFilesAreLaidOutIsToldAndEndsTheProgram(self):
        for how, target, lose in self.losses(PHASE_1):
            with self.subTest(how):
                window = self.startStopped(target, PHASE_1)
                lose()
                self.goOn(window.process)
                error = window.find("dialog", *UNKNOWN_ERROR, timeout=NOTICED_WITHIN_SECONDS)
                window.pressButton("Relaunch the application", within=error)
                self.assertEqual(window.waitForEnd(10), (0, "", ""))

    def testAVolumeThatGoesBeforeTheCleanUpIsToldAndTheProgramCanBeClosed(self):
        for how, target, lose in self.losses(CLEAN_UP):
            with self.subTest(how):
                window = self.startStopped(target, CLEAN_UP)
                lose()
                self.goOn(window.process)
                self.checkTold(window, target)
                self.quit(window)

    def testAVolumeTakenOutOfTheTreeIsToldThoughItsFileWouldNotBeDoneForLong(self):
        target = self.makeTarget()
        window = self.startStopped(target, PHASE_2, SLOWEST)
        target.detach()
        self.goOn(window.process)
        self.checkTold(window, target)
        self.quit(window)

    def testARunOnAVolumeThatHangsInAnyPhaseCanBeCancelledAndTheProgramEnds(self):
        for phase in (PHASE_1, PHASE_2, CLEAN_UP):
            with self.subTest(phase):
                target = self.makeFuseTarget()
                window = self.startStopped(target, phase)
                self.addCleanup(target.die)  # until then not even a killed program ends
                target.hang()
                self.goOn(window.process)
                self.cancelWhileItHangs(window)
                self.closeWhileItHangs(window, target)

    def checkTold(self, window, target):
        self.assertEqual(self.outcome(window, NOTICED_WITHIN_SECONDS), f"The drive {target.name} was removed or has "
                         "failed. Deleted data may still be readable on it.")
        self.acknowledge(window)
