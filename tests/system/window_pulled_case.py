"""What the tests of volumes that go or hang under the window's run share."""

from case import NOTICED_WITHIN_SECONDS
from pulled_case import PulledTest
from testkit import program
from window_case import FAST, REQUEST, WindowTest


class WindowPulledTest(PulledTest, WindowTest):
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

    def checkTold(self, window, target):
        self.assertEqual(self.outcome(window, NOTICED_WITHIN_SECONDS), f"The drive {target.name} was removed or has "
                         "failed. Deleted data may still be readable on it.")
        self.acknowledge(window)

    def checkHanging(self, phase):
        """A run on a volume that hangs in that phase can be cancelled, and the program ends. That it does so while a
        file is written is in test_window_hanging_volume."""
        target = self.makeFuseTarget()
        window = self.startStopped(target, phase)
        self.addCleanup(target.die)  # until then not even a killed program ends
        target.hang()
        self.goOn(window.process)
        self.cancelWhileItHangs(window)
        self.closeWhileItHangs(window, target)
