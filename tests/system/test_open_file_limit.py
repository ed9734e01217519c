import json
import os

from case import SystemTest, isWriting
from testkit import program
from testkit.volume import EXT4_RESERVE_BYTES

# Beside the descriptors that a run keeps spare this leaves room for a few files only.
HARD_LIMIT = 44
LESS_THAN_IS_SPARED = 30


class OpenFileLimit(SystemTest):
    def wipeWithLimit(self, target, softLimit, hardLimit):
        ended = self.runCommand(["prlimit", f"--nofile={softLimit}:{hardLimit}", self.programFor(False), "wipe",
                                 target.path, "--yes", "--json"])
        self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
        self.assertEqual(json.loads(ended.stdout)["faults"], 0)
        self.assertNothingLeft(target)
        return ended

    def testARunThatCannotOpenAllItsFilesHoldsTheOthersByTheirNames(self):
        target = self.makeVolume("ext4", 1200)
        freeBefore = target.freeBytes()
        ended = self.wipeWithLimit(target, HARD_LIMIT, HARD_LIMIT)
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
        _, _, errors = self.finish(process)
        self.assertIn("128.00 MB were not held until the end of the run", errors)
        self.assertNothingLeft(target)

    def testALowSoftLimitKeepsNothingFromBeingHeld(self):
        target = self.makeVolume("ext4", 1200)
        ended = self.wipeWithLimit(target, HARD_LIMIT, 1024)
        self.assertEqual(ended.stderr, "")
