"""What a run says it came to where others change the volume's free space under it, and where it writes nothing."""

import json
import os

from case import SystemTest, isWriting
from testkit import program

FREED_BYTES = 140_000_000
LEFT_BYTES = 8_000_000


class Account(SystemTest):
    def reportOf(self, process, exitCode):
        code, output, errors = self.finish(process)
        self.assertEqual(code, exitCode, (output, errors))
        return json.loads(output), errors

    def testARunWhoseSpaceAnotherProgramTakesIsPartialAndSaysHowMuchIsMissing(self):
        target = self.makeVolume("ext4", 64)
        process = self.startWipe(target, method="3")
        program.waitUntil(lambda: isWriting(target, 0), "the first filler file being written")
        neighbour = os.path.join(target.path, "neighbour")
        with open(neighbour, "wb") as file:
            os.posix_fallocate(file.fileno(), 0, target.freeBytes() - LEFT_BYTES)
        report, errors = self.reportOf(process, program.EXIT_FAILED)
        self.assertEqual((report["outcome"], report["grade"], report["faults"]), ("finished", "partial", 0))
        self.assertGreater(report["shortBy"], os.stat(neighbour).st_size)
        self.assertEqual(report["shortBy"], report["freeAtStart"] - report["bytesCovered"])
        self.assertIn("have not been overwritten", errors)
        self.assertNothingLeft(target)

    def testARunCoversWhatAnotherProgramFreesMeanwhile(self):
        target = self.makeVolume("ext4", 200)
        neighbour = os.path.join(target.path, "neighbour")
        with open(neighbour, "wb") as file:
            os.posix_fallocate(file.fileno(), 0, FREED_BYTES)
        process = self.startWipe(target)
        program.waitUntil(lambda: isWriting(target, 0), "the first filler file being written")
        os.remove(neighbour)
        report, _ = self.reportOf(process, program.EXIT_FINISHED)
        self.assertEqual(report["grade"], "complete")
        self.assertGreater(report["bytesCovered"], report["freeAtStart"] + FREED_BYTES * 0.95)
        self.assertNothingLeft(target)

    def testAMethodWithoutDataSaysThatNothingWasOverwritten(self):
        target = self.makeVolume("ext4", 16)
        ended = self.wipeAsText(target)
        self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
        self.assertIn("\nNothing was overwritten: this method writes no data.\n", "\n" + ended.stdout)
        self.assertNotIn("Finished", ended.stdout)
        report, _ = self.reportOf(self.startWipe(target, method="7"), program.EXIT_FINISHED)
        self.assertEqual((report["grade"], report["bytesCovered"]), ("nothing", 0))
        self.assertEqual(report["message"], "Nothing was overwritten: this method writes no data.")

    def wipeAsText(self, target):
        return self.runProgram("wipe", target.path, "--method", "7", "--yes")
