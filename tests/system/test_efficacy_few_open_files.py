"""Fewer open files than the program keeps spare: the space of written files is held by their names."""

import json

from efficacy import EfficacyTest
from testkit import program
from testkit.volume import EXT4_RESERVE_BYTES

LIMIT = 30


class EfficacyWithFewOpenFiles(EfficacyTest):
    mebibytes = 400
    leastMarkedBefore = 0.6  # the journal takes more of a small volume

    def wipe(self, target, method="1", plainUser=False):
        ended = self.runCommand(["prlimit", f"--nofile={LIMIT}:{LIMIT}", self.programFor(plainUser), "wipe",
                                 target.path, "--method", method, "--yes", "--json"], plainUser)
        self.assertEqual((ended.returncode, ended.stderr), (program.EXIT_FINISHED, ""))
        report = json.loads(ended.stdout)
        self.assertEqual(report["outcome"], "finished")
        self.assertLessEqual(report["bytesCovered"], report["freeBytes"])
        return report


class EfficacyOnExt4(EfficacyWithFewOpenFiles):
    fs = "ext4"
    mostReadableBytes = EXT4_RESERVE_BYTES

    def testOnePassLeavesOnlyTheReserveReadable(self):
        self.checkRun("1")

    def testAPlainUsersRunLeavesNoMoreThanTheReserveAndTheBlocksOfRoot(self):
        self.checkRun("1", plainUser=True)


class EfficacyOnXfs(EfficacyWithFewOpenFiles):
    fs = "xfs"
    mostReadableBytes = 33_600_000  # XFS keeps back up to 8192 blocks for itself.

    def testOnePassLeavesOnlyTheReserveReadable(self):
        self.checkRun("1")
