"""An ordered run without any display: it covers the volume, says so in the tag store, and ends."""

import os
import subprocess

from case import FREE_SPACE_SLACK_BYTES
from remote_case import FINISHED, PAUSE_SECONDS, TOLERANCE_SECONDS, RemoteTest
from testkit import program
from testkit.marks import KeptFiles, MarkedData

# What ext4 keeps back for itself is two of a hundred clusters at most.
READABLE_SHARE = 0.03


class OrderedRun(RemoteTest):
    def fillAndDelete(self, target):
        marked = MarkedData(target.path)
        marked.fill()
        marked.delete()
        target.unmount()
        self.assertGreater(marked.bytesReadable(target), 0.7 * target.sizeBytes)
        target.mount()
        os.chmod(target.path, 0o1777)
        return marked

    def assertErased(self, target, marked):
        target.unmount()
        self.assertLess(marked.bytesReadable(target), READABLE_SHARE * target.sizeBytes)
        target.mount()

    def testErasesWithoutADisplayAndTellsItsEndAfterThePause(self):
        target, other = self.makeVolume("ext4", 64), self.makeVolume("ext4", 16)
        kept, untouched = KeptFiles(target.path), MarkedData(other.path)
        untouched.writeAtLeast(4_000_000)
        untouched.delete()
        marked = self.fillAndDelete(target)
        freeBefore = target.freeBytes()
        order = self.startOrder(target)
        self.waitUntilWriting(target)
        removed = self.waitUntilRemoved(target)
        self.assertIsNone(order.status, "no status before the time to read the message is over")
        status, when = order.waitForStatus(20)
        self.assertEqual(status, FINISHED)
        self.assertGreater(when - removed, PAUSE_SECONDS - TOLERANCE_SECONDS)
        self.assertEndedSilently(order, program.EXIT_FINISHED)
        tags = order.tags.read()
        self.assertRegex(tags.pop("cvrResult"), r"^complete free=\d+ covered=\d+ not-held=0 faults=0$")
        self.assertEqual(tags, {"cvrOnline": "1", "cvrDrive": target.name, "cvrAlgo": "1", "cvrStatus": FINISHED})
        self.assertFreeAgain(target, freeBefore, FREE_SPACE_SLACK_BYTES)
        self.assertEqual(kept.differences(), [])
        self.assertErased(target, marked)
        other.unmount()
        self.assertGreaterEqual(untouched.bytesReadable(other), 4_000_000, "another volume is left as it is")

    def testTheNextStartIsAgainAnOrderUntilItIsCleared(self):
        target = self.makeVolume("ext4", 16)
        order = self.startOrder(target)
        self.expectFinish(order, target)
        marked = self.fillAndDelete(target)
        order.tags.set(cvrStatus="")
        order.start([program.windowProgramPath()])
        self.expectFinish(order, target)
        self.assertErased(target, marked)
        self.assertEqual(order.tags.read()["cvrOnline"], "1")
        cleared = subprocess.run([program.programPath(), "clear"], env=order.env, stdin=subprocess.DEVNULL,
                                 capture_output=True, text=True, timeout=20)
        self.assertEqual(cleared.returncode, program.EXIT_FINISHED, cleared)
        order.start([program.windowProgramPath()])
        code, printed = order.waitForEnd()
        self.assertEqual(code, 1)
        self.assertOneLine(printed, "display", "calvero-cli")
        self.assertEqual(order.status, "")

    def testAPlainUsersOrderIsCarriedOut(self):
        target = self.makeVolume("ext4", 16)
        self.expectFinish(self.startOrder(target, plainUser=True), target)

    def testAnyOtherValueIsNoOrder(self):
        target = self.makeVolume("ext4", 16)
        for value in ("0", "", "2", "01", " 1", "true"):
            with self.subTest(value):
                order = self.makeOrder(target)
                order.tags.set(cvrOnline=value)
                order.start([program.windowProgramPath()])
                code, printed = order.waitForEnd()
                self.assertEqual(code, 1)
                self.assertOneLine(printed, "display")
                self.assertIsNone(order.status)
                self.assertNothingLeft(target)
