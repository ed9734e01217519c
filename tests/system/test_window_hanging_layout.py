"""A volume that hangs while the files are laid out must not hold up the window."""

from pulled_case import PHASE_1
from window_pulled_case import WindowPulledTest


class HangingLayout(WindowPulledTest):
    def testARunOnAVolumeThatHangsWhileTheFilesAreLaidOutCanBeCancelledAndTheProgramEnds(self):
        self.checkHanging(PHASE_1)
