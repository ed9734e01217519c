"""How an ordered run ends that does not finish: a missing or lost volume, a lost filler file, a signal, a
notification."""

import os
import shutil
import signal
import subprocess
import time

from case import NOTICED_WITHIN_SECONDS, SLOWEST
from remote_case import FAILED, RUN_SECONDS, RemoteTest, documentedCancels, sizeOf
from testkit import program

ENDS_BY_ITSELF_SECONDS = 30
NO_CANCELS = (("cancel wipe", "other"), ("cancel wipe", ""), ("cancel wipe",), ("cancel", "cancel wipe"),
              ("Cancel wipe", "cancel"), ("cancel wipe ", "cancel"), ("cancel wipe", "cancel", "cancel"))
NO_RUN = "failed free=0 covered=0 not-held=0 faults=0"


class MissingVolume(RemoteTest):
    def testIsToldAndEndsTheProgramAtOnce(self):
        target = self.makeVolume("ext4", 16)
        for name in ("not there", "", target.name + " ", target.name.upper(), target.path):
            with self.subTest(name):
                order = self.startOrder(name)
                self.assertEndedSilently(order, program.EXIT_FAILED, ENDS_BY_ITSELF_SECONDS)
                self.assertEqual(order.tags.read(), {"cvrOnline": "1", "cvrDrive": name, "cvrAlgo": "1",
                                                     "cvrResult": NO_RUN, "cvrStatus": FAILED})
                self.assertNothingLeft(target)

    def testAnOrderWithoutANameIsToldToo(self):
        order = self.makeOrder("")
        os.remove(order.tags.path)
        order.tags.set(cvrOnline="1")
        order.start([program.windowProgramPath()])
        self.assertEndedSilently(order, program.EXIT_FAILED, ENDS_BY_ITSELF_SECONDS)
        self.assertEqual(order.status, FAILED)


class LostVolume(RemoteTest):
    def checkTold(self, order):
        status, _ = order.waitForStatus(NOTICED_WITHIN_SECONDS)
        self.assertEqual(status, FAILED)
        self.assertEndedSilently(order, program.EXIT_FAILED)
        self.assertEqual(order.status, FAILED)

    def testAVolumeTakenOutOfTheTreeIsTold(self):
        target = self.makeVolume("ext4", 96)
        order = self.startOrder(target, SLOWEST)
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
        target = self.makeFuseVolume(64)
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
        self.assertEndedSilently(order, program.EXIT_FAILED)
        self.assertNothingLeft(target)
        self.assertFreeAgain(target, freeBefore)


class Signals(RemoteTest):
    def testASignalIsACancelAndLeavesNothing(self):
        started = []
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP, signal.SIGQUIT):
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
        self.assertEqual(len(commands), 3, commands)
        started = []
        for command in commands:
            target = self.makeVolume("ext4", 256)
            started.append((command, self.startWithBus(target, SLOWEST), target))
            self.waitUntilWriting(target)
        for command, order, target in started:
            with self.subTest(command):
                if shutil.which(tool := command.split()[0]) is None:
                    self.skipTest(f"{tool} is not installed")
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
                (96, "8", NO_CANCELS, program.EXIT_FINISHED, "finished")):
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
                if code == program.EXIT_FINISHED:
                    self.assertStillWriting(order, target)
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
        first = os.path.join(target.fillerDirectory(), ".temp0")
        seen = program.waitUntil(lambda: order.status or (sizeOf(first) > 0 and "written"), "a status",
                                 NOTICED_WITHIN_SECONDS)
        self.assertEqual(seen, FAILED)
        self.assertEndedSilently(order, program.EXIT_CANCELLED)
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
        target = self.makeVolume("ext4", 96)
        order = self.startWithBus(target, "8")
        self.waitUntilWriting(target)
        for texts in NO_CANCELS:
            order.notify(*texts)
        self.assertStillWriting(order, target)
        self.expectFinish(order, target)
