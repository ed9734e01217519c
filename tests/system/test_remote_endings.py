"""How an ordered run ends that does not finish: a missing or lost volume, a lost filler file, a signal, a
notification."""

import os
import shutil
import signal
import subprocess
import time

from remote_case import FAILED, FINISHED, NOTICED_WITHIN_SECONDS, RUN_SECONDS, SLOWEST, RemoteTest, documentedCancels
from testkit import program
from testkit.fuse_volume import FuseVolume
from testkit.volume import MEBIBYTE, Unavailable

ENDS_AT_ONCE_SECONDS = 5
NO_CANCELS = (("cancel wipe", "other"), ("cancel wipe", ""), ("cancel wipe",), ("cancel", "cancel wipe"),
              ("Cancel wipe", "cancel"), ("cancel wipe ", "cancel"), ("cancel wipe", "cancel", "cancel"))


class MissingVolume(RemoteTest):
    def testIsToldAndEndsTheProgramAtOnce(self):
        target = self.makeVolume("ext4", 16)
        for name in ("not there", "", target.name + " ", target.name.upper(), target.path):
            with self.subTest(name):
                order = self.startOrder(name)
                self.assertEndedSilently(order, ENDS_AT_ONCE_SECONDS)
                self.assertEqual(order.tags.read(), {"cvrOnline": "1", "cvrDrive": name, "cvrAlgo": "1",
                                                     "cvrStatus": FAILED})
                self.assertNothingLeft(target)

    def testAnOrderWithoutANameIsToldToo(self):
        order = self.makeOrder("")
        os.remove(order.tags.path)
        order.tags.set(cvrOnline="1")
        order.start([program.windowProgramPath()])
        self.assertEndedSilently(order, ENDS_AT_ONCE_SECONDS)
        self.assertEqual(order.status, FAILED)


class LostVolume(RemoteTest):
    def checkTold(self, order):
        status, _ = order.waitForStatus(NOTICED_WITHIN_SECONDS)
        self.assertEqual(status, FAILED)
        self.assertEndedSilently(order)
        self.assertEqual(order.status, FAILED)

    def testAVolumeTakenOutOfTheTreeIsTold(self):
        target = self.makeVolume("ext4", 96)
        order = self.startOrder(target)
        self.waitUntilWriting(target)
        target.detach()
        self.checkTold(order)

    def testAMediumThatFailsIsTold(self):
        if shutil.which("xfs_io") is None:
            self.skipTest("xfs_io is not installed")
        target = self.makeVolume("xfs", 320)
        order = self.startOrder(target, SLOWEST)
        self.waitUntilWriting(target)
        subprocess.run(["xfs_io", "-x", "-c", "shutdown", target.path], check=True)
        self.checkTold(order)

    def testAVolumeThatTurnsReadOnlyIsTold(self):
        target = self.makeVolume("ext4", 64)
        order = self.startOrder(target, SLOWEST)
        self.waitUntilWriting(target)
        target.remount("abort")
        self.checkTold(order)

    def testAFileSystemThatDiesIsTold(self):
        try:
            target = FuseVolume(64 * MEBIBYTE)
        except Unavailable as reason:
            self.skipTest(str(reason))
        self.addCleanup(target.close)
        order = self.startOrder(target, SLOWEST)
        self.waitUntilWriting(target)
        target.die()
        self.checkTold(order)

    def testAFillerFileRemovedFromOutsideIsTold(self):
        target = self.makeVolume("ext4", 200)
        freeBefore = target.freeBytes()
        order = self.startOrder(target)
        self.waitUntilWriting(target)
        os.remove(os.path.join(target.fillerDirectory(), ".temp1"))
        self.assertIsNone(order.status)
        self.assertEqual(order.waitForStatus()[0], FAILED)
        self.assertEndedSilently(order)
        self.assertNothingLeft(target)
        self.assertFreeAgain(target, freeBefore)


class Signals(RemoteTest):
    def testASignalIsACancelAndLeavesNothing(self):
        started = []
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            target = self.makeVolume("ext4", 256)
            freeBefore = target.freeBytes()
            started.append((number, self.startOrder(target, SLOWEST), target, freeBefore))
            self.waitUntilWriting(target)
        for number, order, target, freeBefore in started:
            with self.subTest(number.name):
                self.assertStillWriting(order, target)
                order.process.send_signal(number)
                self.expectAbort(order, target)
                self.assertFreeAgain(target, freeBefore)


class Notifications(RemoteTest):
    def testEachDocumentedCommandCancels(self):
        commands = documentedCancels()
        self.assertTrue(any(command.startswith("dbus-send ") for command in commands), commands)
        started = []
        for command in commands:
            target = self.makeVolume("ext4", 256)
            started.append((command, self.startWithBus(target, SLOWEST), target))
            self.waitUntilWriting(target)
        for command, order, target in started:
            with self.subTest(command):
                self.assertStillWriting(order, target)
                began = time.monotonic()
                subprocess.run(["sh", "-c", command], env=order.env, check=True, timeout=20)
                self.expectAbort(order, target)
                self.assertLess(time.monotonic() - began, 15)
                self.assertNotIn("CVRCANCEL", order.tags.read())

    def testAWipeInATerminalIsCancelledTooAndLeavesTheOrderAlone(self):
        ordered = self.makeVolume("ext4", 16)
        for mebibytes, method, notifications, code, outcome in (
                (256, SLOWEST, [("cancel wipe", "cancel")], program.EXIT_CANCELLED, "cancelled"),
                (32, "6", NO_CANCELS, program.EXIT_FINISHED, "finished")):
            with self.subTest(outcome):
                target = self.makeVolume("ext4", mebibytes)
                freeBefore = target.freeBytes()
                order = self.makeOrder(ordered)
                before = order.tags.read()
                self.startBus(order)
                order.start([program.programPath(), "wipe", target.path, "--method", method, "--yes", "--json"])
                self.waitUntilWriting(target)
                self.assertStillWriting(order, target)
                for texts in notifications:
                    order.notify(*texts)
                ended, printed = order.waitForEnd(RUN_SECONDS)
                self.assertEqual(ended, code, printed)
                self.assertIn(f'"outcome": "{outcome}"', printed)
                self.assertEqual(order.tags.read(), before)
                self.assertNothingLeft(target)
                self.assertFreeAgain(target, freeBefore)

    def testACancelWhileTheFilesAreLaidOutIsToldToo(self):
        target = self.makeVolume("ext4", 256)
        order = self.startWithBus(target, SLOWEST)
        program.waitUntil(lambda: os.path.lexists(target.fillerDirectory()), "the filler directory")
        order.notify("cancel wipe", "cancel")
        self.assertEqual(order.waitForStatus(NOTICED_WITHIN_SECONDS)[0], FAILED)
        self.assertEndedSilently(order)
        self.assertEqual(order.status, FAILED)
        self.assertNothingLeft(target)

    def testASecondNotificationChangesNothing(self):
        target = self.makeVolume("ext4", 256)
        order = self.startWithBus(target, SLOWEST)
        self.waitUntilWriting(target)
        for _ in range(5):
            order.notify("cancel wipe", "cancel")
        self.expectAbort(order, target)

    def testAnotherNameOrObjectIsIgnored(self):
        target = self.makeVolume("ext4", 32)
        order = self.startWithBus(target, "6")
        self.waitUntilWriting(target)
        for texts in NO_CANCELS:
            order.notify(*texts)
        self.assertStillWriting(order, target)
        self.expectFinish(order, target)
        self.assertEqual(order.status, FINISHED)
