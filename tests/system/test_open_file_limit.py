import json

from case import SystemTest
from testkit import program

# Beside the descriptors that a run keeps spare this leaves room for a few files only.
HARD_LIMIT = 44


class OpenFileLimit(SystemTest):
    def wipeWithLimit(self, target, softLimit, hardLimit):
        ended = self.runCommand(["prlimit", f"--nofile={softLimit}:{hardLimit}", self.programFor(False), "wipe",
                                 target.path, "--yes", "--json"])
        self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
        self.assertEqual(json.loads(ended.stdout)["faults"], 0)
        self.assertNothingLeft(target)
        return ended

    def testARunThatCannotHoldAllItsFilesSaysHowMuchAndFinishes(self):
        target = self.makeVolume("ext4", 1200)
        freeBefore = target.freeBytes()
        ended = self.wipeWithLimit(target, HARD_LIMIT, HARD_LIMIT)
        self.assertOneLine(ended.stderr, "could not be held", "limit of open files")
        self.assertFreeAgain(target, freeBefore)

    def testALowSoftLimitKeepsNothingFromBeingHeld(self):
        target = self.makeVolume("ext4", 1200)
        ended = self.wipeWithLimit(target, HARD_LIMIT, 1024)
        self.assertEqual(ended.stderr, "")
