"""A volume that goes while the files are laid out: the window says so in time."""

from case import NOTICED_WITHIN_SECONDS
from pulled_case import PHASE_1
from window_pulled_case import WindowPulledTest

UNKNOWN_ERROR = ("Information", "Unknown Error Occured")


class PulledLayout(WindowPulledTest):
    def testAVolumeThatGoesWhileTheFilesAreLaidOutIsToldAndEndsTheProgram(self):
        for how, target, lose in self.losses(PHASE_1):
            with self.subTest(how):
                window = self.startStopped(target, PHASE_1)
                lose()
                self.goOn(window.process)
                error = window.find("dialog", *UNKNOWN_ERROR, timeout=NOTICED_WITHIN_SECONDS)
                window.pressButton("Relaunch the application", within=error)
                self.assertEqual(window.waitForEnd(10), (0, "", ""))
