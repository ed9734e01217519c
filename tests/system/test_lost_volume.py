"""A medium that goes away under the run: it ends truthfully, never with a success."""

import json
import os
import shutil
import subprocess
import time

from case import SystemTest, isWriting
from testkit import program

# So many passes that the first file would not be done for long.
SLOWEST = "9"
NOTICED_WITHIN_SECONDS = 10


class LostVolume(SystemTest):
    def startedOn(self, target, method=SLOWEST):
        process = self.startWipe(target, method)
        program.waitUntil(lambda: isWriting(target, 0), "the first filler file being written")
        return process

    def checkFailedInTime(self, process, *words):
        began = time.monotonic()
        report = self.checkFailed(process, *words)
        self.assertLess(time.monotonic() - began, NOTICED_WITHIN_SECONDS)
        return report

    def checkFailed(self, process, *words):
        code, output, errors = self.finish(process)
        self.assertEqual(code, program.EXIT_FAILED, (output, errors))
        for word in words:
            self.assertIn(word, (output + errors).lower())
        return json.loads(output)

    def testAVolumeThatTurnsReadOnlyIsReported(self):
        target = self.makeVolume("ext4", 320)
        process = self.startedOn(target)
        # As the file system itself does on a damaged medium.
        target.remount("abort")
        report = self.checkFailedInTime(process, "read-only")
        self.assertGreater(report["faults"], 0)

    def testAMediumThatFailsIsReported(self):
        target = self.makeVolume("xfs", 400)
        if shutil.which("xfs_io") is None:
            self.skipTest("xfs_io is not installed")
        process = self.startedOn(target)
        subprocess.run(["xfs_io", "-x", "-c", "shutdown", target.path], check=True)
        report = self.checkFailedInTime(process)
        self.assertGreater(report["faults"], 0)

    def testAVolumeTakenOutOfTheTreeIsReported(self):
        target = self.makeVolume("ext4", 320)
        process = self.startedOn(target)
        target.detach()
        self.assertEqual(self.checkFailedInTime(process)["outcome"], "failed")

    def testAFillerDirectoryRemovedFromOutsideIsReported(self):
        target = self.makeVolume("ext4", 320)
        freeBefore = target.freeBytes()
        process = self.startedOn(target, method="3")  # it is told behind the file that is being written
        shutil.rmtree(target.fillerDirectory())
        self.checkFailed(process)
        self.assertFreeAgain(target, freeBefore)

    def testAFillerDirectoryRenamedFromOutsideIsReportedAndNothingIsLeftUnderItsNewName(self):
        target = self.makeVolume("ext4", 160)
        freeBefore = target.freeBytes()
        process = self.startedOn(target, method="1")
        renamed = os.path.join(target.path, "renamed")
        os.rename(target.fillerDirectory(), renamed)
        self.assertEqual(self.checkFailed(process)["outcome"], "failed")
        self.assertFalse(os.path.lexists(renamed))
        self.assertNothingLeft(target)
        self.assertFreeAgain(target, freeBefore)
