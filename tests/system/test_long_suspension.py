"""A program that is halted for a while in the middle of its work, as by a frozen session or a shell's Ctrl-Z, and goes
on."""

import os
import signal
import time

from figures import COLUMNS, checkFigures
from pulled_case import CLEAN_UP, PHASE_1, PHASE_2, PulledTest
from testkit import program
from testkit.marks import KeptFiles
from testkit.program import TerminalProgram
from testkit.trace import Point
from testkit.volume import MEBIBYTE

HALT_SECONDS = 3
# Longer than a cancel waits for a sign of life of its clean-up.
LONG_HALT_SECONDS = 10
GOES_ON_WITHIN_SECONDS = 60
MANY_FILES_MEBIBYTES = 1 << 17  # thin; takes more than a thousand filler files


class Suspension(PulledTest):
    def startOnTerminal(self, command):
        started = TerminalProgram(command, columns=COLUMNS)
        self.addCleanup(started.close)
        return started

    def halt(self, process, seconds):
        """The program has stopped; it goes on so much later."""
        time.sleep(seconds)
        self.goOn(process)

    def testARunHaltedInAnyPhaseGoesOnAndFinishes(self):
        for phase in (PHASE_1, PHASE_2, CLEAN_UP):
            with self.subTest(phase):
                target = self.makeTarget()
                kept = KeptFiles(target.path)
                freeBefore = target.freeBytes()
                command, waitUntilStopped = self.stopping(
                    [program.programPath(), "wipe", target.path, "--method", "1", "--yes"], target, phase)
                began = time.monotonic()
                started = self.startOnTerminal(command)
                waitUntilStopped()
                self.halt(started.process, HALT_SECONDS)
                self.assertEqual(started.waitForEnd(), program.EXIT_FINISHED, started.text)
                checkFigures(self, started.text, HALT_SECONDS, time.monotonic() - began)
                self.assertNothingLeft(target)
                self.assertFreeAgain(target, freeBefore)
                self.assertEqual(kept.differences(), [])

    def testACancelHaltedAtTheFirstFileThatItRemovesStillRemovesAll(self):
        self.checkHaltedCancel(removals=1)

    def testACancelHaltedInTheMiddleOfItsRemovalsStillRemovesAll(self):
        self.checkHaltedCancel(removals=500)

    def checkHaltedCancel(self, removals):
        target = self.makeVolume("xfs", MANY_FILES_MEBIBYTES, neededBytes=300 * MEBIBYTE,
                                 mkfsOptions=("-l", "size=64m"))
        freeBefore = target.freeBytes()
        command, stopped = self.stoppingAt(Point("unlinkat", removals), [target.fillerDirectory()], [
            program.programPath(), "wipe", target.path, "--method", "1", "--yes"])
        started = self.startOnTerminal(command)
        first = os.path.join(target.fillerDirectory(), ".temp0")
        program.waitUntil(lambda: os.path.lexists(first) and os.stat(first).st_size > 0, "the first file's data", 240)
        started.process.send_signal(signal.SIGINT)
        stopped()
        self.assertGreater(len(os.listdir(target.fillerDirectory())), 500)
        self.halt(started.process, LONG_HALT_SECONDS)
        deadline = time.monotonic() + GOES_ON_WITHIN_SECONDS
        while started.readSome(0.5):  # the worker, when it gets to its own removals, stops the program once more
            self.assertLess(time.monotonic(), deadline, started.text)
            self.goOn(started.process)
        self.assertEqual(started.waitForEnd(), program.EXIT_CANCELLED, started.text)
        self.assertNotIn("does not answer", started.text)
        self.assertNothingLeft(target)
        self.assertFreeAgain(target, freeBefore)
