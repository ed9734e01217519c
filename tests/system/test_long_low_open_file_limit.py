"""A run that needs hundreds of descriptors more than the limit of open files leaves it."""

import json
import os
import signal

from case import SystemTest, fillerNames
from testkit import program
from testkit.marks import KeptFiles

LIMIT = 256
VOLUME_MEBIBYTES = 64
FILE_BYTES = 100_000  # of the program with small filler files
SPARE_DESCRIPTORS = 32
RESERVE_BYTES = 3_400_000  # a small ext4 keeps back a twentieth of itself


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

    def sizeOf(self, name):
        try:
            return os.stat(os.path.join(self.target.fillerDirectory(), name)).st_size
        except FileNotFoundError:
            return 0

    def checkEverythingCovered(self, report):
        self.assertEqual((report["outcome"], report["grade"], report["faults"], report["exitCode"]),
                         ("finished", "complete", 0, 0))
        self.assertGreater(report["bytesCovered"], 0.99 * (self.freeBefore - RESERVE_BYTES))
        self.assertLessEqual(report["bytesCovered"], self.freeBefore)

    def testARunFinishesAndItsReportHasNoFaults(self):
        ended = self.runCommand(self.command("--json"))
        self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
        report = json.loads(ended.stdout)
        self.assertEqual(ended.stderr, "")
        self.checkEverythingCovered(report)
        self.checkNothingBroken()

    def testARunThatIsOutOfDescriptorsIsCancelledCleanly(self):
        process = self.startCommand(self.command("--json", "--method", "5"))

        def holdsFilesByTheirNames():
            written = [name for name in fillerNames(self.target) if self.sizeOf(name) != 0]
            return len(written) > 2  # one is being written, and another may be about to lose its name

        program.waitUntil(holdsFilesByTheirNames, "more written files than can be held", seconds=240)
        process.send_signal(signal.SIGINT)
        code, output, errors = self.finish(process)
        self.assertEqual(code, program.EXIT_CANCELLED, (output, errors))
        self.assertEqual(json.loads(output)["outcome"], "cancelled")
        self.assertEqual(errors.count("Cancelled after"), 1, errors)
        self.assertEqual(len(errors.splitlines()), 1, errors)
        self.checkNothingBroken()

    def testWithoutADescriptorToSpareEverythingIsCovered(self):
        for limit in (SPARE_DESCRIPTORS, SPARE_DESCRIPTORS - 2):
            with self.subTest(limit=limit):
                ended = self.runCommand(self.command("--json", limit=limit))
                self.assertEqual((ended.returncode, ended.stderr), (program.EXIT_FINISHED, ""))
                self.checkEverythingCovered(json.loads(ended.stdout))
                self.checkNothingBroken()
