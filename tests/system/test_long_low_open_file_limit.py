"""A run that needs hundreds of descriptors more than the limit of open files leaves it."""

import json
import os
import re
import signal

from case import SystemTest, fillerNames
from testkit import program
from testkit.marks import KeptFiles
from testkit.program import TerminalProgram

LIMIT = 256
VOLUME_MEBIBYTES = 64
FILE_BYTES = 100_000  # of the program with small filler files
SPARE_DESCRIPTORS = 32
MOST_OTHER_DESCRIPTORS = 30  # what the program has open besides: terminal, log, bus, tables
NOT_HELD = re.compile(r"(\d+\.\d\d) MB could not be held until the end of the run \(limit of open files\)")


class LowOpenFileLimit(SystemTest):
    """The terminal program with small filler files, so that a small volume takes hundreds of them."""

    def setUp(self):
        self.scaled = os.environ.get("CALVERO_CLI_SCALED")
        if not self.scaled:
            self.skipTest("the program with small filler files is not built")
        self.target = self.makeVolume("ext4", VOLUME_MEBIBYTES)
        self.kept = KeptFiles(self.target.path)
        self.freeBefore = self.target.freeBytes()
        self.files = self.freeBefore // FILE_BYTES + 1
        self.assertGreater(self.files, 2 * LIMIT)

    def command(self, *options, limit=LIMIT):
        return ["prlimit", f"--nofile={limit}:{limit}", self.scaled, "wipe", self.target.path, "--yes", *options]

    def checkNothingBroken(self):
        self.assertNothingLeft(self.target)
        self.assertFreeAgain(self.target, self.freeBefore)
        self.assertEqual(self.kept.differences(), [])

    def checkAmountNotHeld(self, text):
        """What was said is the space of every file but those that the limit lets be held."""
        said = NOT_HELD.findall(text)
        self.assertEqual(len(said), 1, text)
        filesNotHeld = float(said[0]) * 1e6 / FILE_BYTES
        mostHeld = LIMIT - SPARE_DESCRIPTORS
        # Whole blocks are a little more than the bytes, and the last files get less than their size or nothing.
        self.assertGreater(filesNotHeld, (self.files - mostHeld) * 0.95)
        self.assertLess(filesNotHeld, (self.files - mostHeld + MOST_OTHER_DESCRIPTORS) * 1.05)

    def testARunFinishesAndItsReportHasNoFaults(self):
        ended = self.runCommand(self.command("--json"))
        self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
        report = json.loads(ended.stdout)
        self.assertEqual((report["outcome"], report["faults"], report["exitCode"]), ("finished", 0, 0))
        self.assertOneLine(ended.stderr, "could not be held", "what was deleted may remain readable")
        self.checkAmountNotHeld(ended.stderr)
        self.checkNothingBroken()

    def testAPersonAtTheTerminalIsToldBesideTheClosingLine(self):
        started = TerminalProgram(self.command())
        self.addCleanup(started.close)
        self.assertEqual(started.waitForEnd(), program.EXIT_FINISHED, started.text)
        self.checkAmountNotHeld(started.text)
        self.assertIn("Finished: ", started.text)
        self.checkNothingBroken()

    def testARunThatIsOutOfDescriptorsIsCancelledCleanly(self):
        process = self.startCommand(self.command("--json", "--method", "5"))
        laidOutFiles = self.files

        def hasWrittenMoreThanItHolds():
            left = len(fillerNames(self.target))
            return 0 < left < laidOutFiles - LIMIT and os.path.exists(
                os.path.join(self.target.fillerDirectory(), f".temp{laidOutFiles - 1}"))

        program.waitUntil(hasWrittenMoreThanItHolds, "more written files than can be held", seconds=240)
        process.send_signal(signal.SIGINT)
        code, output, errors = self.finish(process)
        self.assertEqual(code, program.EXIT_CANCELLED, (output, errors))
        self.assertEqual(json.loads(output)["outcome"], "cancelled")
        self.assertEqual(len(NOT_HELD.findall(errors)), 1, errors)
        self.checkNothingBroken()

    def testWithoutADescriptorToSpareNothingIsHeldAndTheRunStillFinishes(self):
        ended = self.runCommand(self.command("--json", limit=SPARE_DESCRIPTORS))
        self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
        self.assertEqual(json.loads(ended.stdout)["faults"], 0)
        self.assertGreater(float(NOT_HELD.findall(ended.stderr)[0]) * 1e6, self.freeBefore * 0.9)
        self.checkNothingBroken()
