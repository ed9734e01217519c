"""How much deleted data a whole run leaves readable on the raw medium: the same story for every file system."""

import os

from case import FREE_SPACE_SLACK_BYTES, SystemTest
from testkit.marks import KeptFiles, MarkedData
from testkit.volume import FILLER_BYTES


class EfficacyTest(SystemTest):
    fs = ""
    mebibytes = 400  # more than two full filler files and a part of one
    # A volume full of marked files, less its metadata and what it keeps back for itself.
    leastMarkedBefore = 0.8
    mostReadableBytes = 0

    def checkRun(self, method, plainUser=False):
        target = self.makeVolume(self.fs, self.mebibytes)
        kept = KeptFiles(target.path)
        marked = MarkedData(target.path)
        before = marked.leaveDeleted(target)
        self.assertGreater(before, self.leastMarkedBefore * target.sizeBytes)

        freeBefore = target.freeBytes()
        self.assertGreater(freeBefore, 2 * FILLER_BYTES)
        allowed = self.mostReadableBytes + (target.bytesReservedForRoot() if plainUser else 0)
        report = self.wipe(target, method, plainUser)
        self.assertFalse(target.isReadOnly())
        self.assertNothingLeft(target)
        self.assertFreeAgain(target, freeBefore, FREE_SPACE_SLACK_BYTES)
        self.assertEqual(kept.differences(), [])
        target.unmount()
        after = marked.bytesReadable(target)
        who = "plain user" if plainUser else "root"
        print(f"\n{self.fs} {self.mebibytes} MiB, method {method}, {who}: {before} -> {after} bytes readable "
              f"(at most {allowed})", flush=True)
        self.assertLessEqual(after, allowed)
        target.mount("ro")
        self.assertEqual(kept.differences(), [], "kept files as they are on the medium")
        self.assertFalse(os.path.lexists(target.fillerDirectory()))
        self.assertEqual(report["faults"], 0, report)
        return report, before
