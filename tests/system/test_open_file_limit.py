import json
import os

from case import SystemTest, isWriting
from testkit import program
from testkit.volume import EXT4_RESERVE_BYTES

# Beside the descriptors that a run keeps spare this leaves room for a few files only.
HARD_LIMIT = 44
LESS_THAN_IS_SPARED = 30


class OpenFileLimit(SystemTest):
    def wipeWithLimit(self, target, softLimit, hardLimit, grade):
        ended = self.runCommand(["prlimit", f"--nofile={softLimit}:{hardLimit}", self.programFor(False), "wipe",
                                 target.path, "--yes", "--json"])
        report = json.loads(ended.stdout)
        self.assertEqual((report["outcome"], report["grade"], report["faults"]), ("finished", grade, 0), ended)
        self.assertEqual(ended.returncode, program.EXIT_FINISHED if grade == "complete" else program.EXIT_FAILED, ended)
        self.assertNothingLeft(target)
        return ended

    def testARunThatCannotOpenAllItsFilesHoldsTheOthersByTheirNames(self):
        target = self.makeVolume("ext4", 1200)
        freeBefore = target.freeBytes()
        ended = self.wipeWithLimit(target, HARD_LIMIT, HARD_LIMIT, "complete")
        self.assertEqual(ended.stderr, "")
        covered = json.loads(ended.stdout)["bytesCovered"]
        self.assertGreater(covered, 0.99 * (freeBefore - EXT4_RESERVE_BYTES))
        self.assertLessEqual(covered, freeBefore)
        self.assertFreeAgain(target, freeBefore)

    def testSpaceThatAnotherProgramGaveBackIsNotCalledErased(self):
        target = self.makeVolume("ext4", 400)
        process = self.startCommand(["prlimit", f"--nofile={LESS_THAN_IS_SPARED}:{LESS_THAN_IS_SPARED}",
                                     self.programFor(False), "wipe", target.path, "--yes", "--json"])
        program.waitUntil(lambda: isWriting(target, 1), "the second filler file being written")
        os.unlink(os.path.join(target.fillerDirectory(), ".temp0"))
        code, output, errors = self.finish(process)
        report = json.loads(output)
        self.assertEqual((code, report["grade"]), (program.EXIT_FAILED, "partial"))
        self.assertAlmostEqual(report["notHeld"], 128_000_000, delta=100_000)  # with the blocks that list its blocks
        self.assertIn("128.00 MB were not held until the end of the run", errors)
        self.assertNothingLeft(target)

    def testALowSoftLimitKeepsNothingFromBeingHeld(self):
        target = self.makeVolume("ext4", 1200)
        ended = self.wipeWithLimit(target, HARD_LIMIT, 1024, "complete")
        self.assertEqual(ended.stderr, "")
