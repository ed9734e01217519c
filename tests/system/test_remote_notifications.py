"""The notification that cancels a run, and what is none."""

import os
import shutil
import subprocess
import time

from case import NOTICED_WITHIN_SECONDS, SLOWEST
from remote_case import FAILED, RUN_SECONDS, RemoteTest, documentedCancels, sizeOf
from testkit import program

NO_CANCELS = (("cancel wipe", "other"), ("cancel wipe", ""), ("cancel wipe",), ("cancel", "cancel wipe"),
              ("Cancel wipe", "cancel"), ("cancel wipe ", "cancel"), ("cancel wipe", "cancel", "cancel"))


class Notifications(RemoteTest):
    def testEachDocumentedCommandCancels(self):
        commands = documentedCancels()
        self.assertEqual(len(commands), 3, commands)
        started = []
        for command in commands:
            target = self.makeVolume("ext4", 256)
            started.append((command, self.startWithBus(target, SLOWEST), target))
            self.waitUntilWriting(target)

        def cancel(command, order, target):
            if shutil.which(tool := command.split()[0]) is None:
                self.skipTest(f"{tool} is not installed")
            self.assertStillWriting(order, target)
            began = time.monotonic()
            subprocess.run(["sh", "-c", command], env=order.env, check=True, timeout=20)
            self.expectAbort(order, target)
            self.assertLess(time.monotonic() - began, 15)
            self.assertNotIn("CVRCANCEL", order.tags.read())

        self.besideEachOther(cancel, started)

    def testAWipeInATerminalIsCancelledTooAndLeavesTheOrderAlone(self):
        ordered = self.makeVolume("ext4", 16)
        for mebibytes, method, notifications, code, outcome in (
                (256, SLOWEST, [("cancel wipe", "cancel")], program.EXIT_CANCELLED, "cancelled"),
                (32, "8", NO_CANCELS, program.EXIT_FINISHED, "finished")):
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
        target = self.makeVolume("ext4", 32)
        order = self.startWithBus(target, "8")
        self.waitUntilWriting(target)
        for texts in NO_CANCELS:
            order.notify(*texts)
        self.assertStillWriting(order, target)
        self.expectFinish(order, target)
