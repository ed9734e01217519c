"""A volume that hangs before the clean-up must not hold up the window."""

from pulled_case import CLEAN_UP
from window_pulled_case import WindowPulledTest


class HangingCleanUp(WindowPulledTest):
    def testARunOnAVolumeThatHangsBeforeTheCleanUpCanBeCancelledAndTheProgramEnds(self):
        self.checkHanging(CLEAN_UP)
