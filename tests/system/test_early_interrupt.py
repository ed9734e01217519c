"""Ctrl-C before the program waits for an answer, typed ahead of an Enter."""

from case import SystemTest
from testkit import program
from testkit.program import TerminalProgram

# The threads that have asked about the volumes end at that moment, and would take some of the signals.
ATTEMPTS = 20


class EarlyInterrupt(SystemTest):
    def testEndsTheWizardHoweverEarlyInItsListItComes(self):
        self.makeVolume("ext4", 16)
        for _ in range(ATTEMPTS):
            started = TerminalProgram([program.programPath()])
            self.addCleanup(started.close)
            started.readUntil("Mount path")
            started.answerAtOnce("\x03")
            self.assertEqual(started.waitForEnd(), program.EXIT_CANCELLED, started.text)
