"""A volume that is taken from calvero-cli in any phase of a run, or hangs in it."""

import json
import signal
import time

from case import NOTICED_WITHIN_SECONDS, SLOWEST
from pulled_case import CLEAN_UP, PHASE_1, PHASE_2, PulledTest
from testkit import program
from testkit.fuse_volume import FuseVolume

# A cancel waits eight seconds for a sign of life, the list of volumes and the end of the threads two seconds each.
LEAVES_WITHIN_SECONDS = 30


class PulledVolume(PulledTest):
    def startStopping(self, target, phase, method="1"):
        """A run that stops in that phase, and what waits for that."""
        command, waitUntilStopped = self.stopping(
            [program.programPath(), "wipe", target.path, "--method", method, "--yes", "--json"], target, phase)
        process = self.startCommand(command)
        if isinstance(target, FuseVolume):  # else a program that it keeps from ending would not end with the test
            self.addCleanup(target.die)
        return process, waitUntilStopped

    def checkLost(self, phase, mostCovered, method="1"):
        """`mostCovered` is what share of the free space may have been covered."""
        started = [(how, lose, *self.startStopping(target, phase, method)) for how, target, lose in self.losses(phase)]
        for how, lose, process, waitUntilStopped in started:
            with self.subTest(how):
                waitUntilStopped()
                lose()
                began = time.monotonic()
                self.goOn(process)
                code, output, errors = self.finish(process)
                self.assertLess(time.monotonic() - began, NOTICED_WITHIN_SECONDS)
                self.assertEqual(code, program.EXIT_FAILED, (output, errors))
                self.assertRegex(errors, r"(^|\n)calvero-cli: Failed: .*; deleted data may remain readable there\n$")
                report = json.loads(output)
                self.assertEqual(report["outcome"], "failed")
                self.assertLessEqual(report["bytesCovered"], report["freeBytes"] * mostCovered)

    def testIsToldWhenItGoesWhileTheFilesAreLaidOut(self):
        self.checkLost(PHASE_1, mostCovered=0)

    def testIsToldWhenItGoesWhileAFileIsWritten(self):
        # So many passes that the file would not be done for long.
        self.checkLost(PHASE_2, mostCovered=0.5, method=SLOWEST)

    def testIsToldWhenItGoesBeforeTheCleanUp(self):
        self.checkLost(CLEAN_UP, mostCovered=1)

    def testThatHangsDoesNotKeepTheCancelledProgram(self):
        started = []
        for phase in (PHASE_1, PHASE_2, CLEAN_UP):
            target = self.makeFuseTarget()
            started.append((phase, target, *self.startStopping(target, phase)))
        for _, target, process, waitUntilStopped in started:
            waitUntilStopped()
            target.hang()
            self.goOn(process)
            process.send_signal(signal.SIGINT)
        for phase, target, process, _ in started:
            with self.subTest(phase):
                program.waitUntil(lambda: program.hasLeft(process), "the program leaving without its threads",
                                  LEAVES_WITHIN_SECONDS)
                target.die()
                code, output, errors = self.finish(process)
                self.assertEqual(code, program.EXIT_CANCELLED, (output, errors))
                self.assertEqual(json.loads(output)["outcome"], "cancelled")
