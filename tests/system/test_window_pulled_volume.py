"""A volume that goes while a file is written or before the clean-up: the window says so in time. More ways of going
while a file is written are in test_window_lost_volume."""

from pulled_case import CLEAN_UP, PHASE_2
from window_case import SLOWEST
from window_pulled_case import WindowPulledTest


class PulledVolume(WindowPulledTest):
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
