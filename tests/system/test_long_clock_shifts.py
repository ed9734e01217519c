"""The system clock is set ahead and back all through a run."""

import time

import shifted_clock
from case import SystemTest
from figures import COLUMNS, checkFigures
from testkit import program
from testkit.marks import KeptFiles
from testkit.program import TerminalProgram


class ClockShifts(SystemTest):
    def testDisturbNeitherARunNorItsFigures(self):
        target = self.makeVolume("ext4", 160)
        kept = KeptFiles(target.path)
        freeBefore = target.freeBytes()
        began = time.monotonic()
        # Seven passes, for a run of some seconds.
        started = TerminalProgram([program.programPath(), "wipe", target.path, "--method", "5", "--yes"],
                                  columns=COLUMNS, env=shifted_clock.environment(self))
        self.addCleanup(started.close)
        self.assertEqual(started.waitForEnd(240), program.EXIT_FINISHED, started.text)
        bars = [moment for moment, data in started.reads if b"Phase" in data]
        checkFigures(self, started.text, leastSeconds=bars[-1] - bars[0], mostSeconds=time.monotonic() - began)
        self.assertNothingLeft(target)
        self.assertFreeAgain(target, freeBefore)
        self.assertEqual(kept.differences(), [])
