"""Orders given with calvero-cli and carried out by the real program."""

import os

from case import SLOWEST
from remote_case import FAILED, FINISHED
from remote_order_case import OrderCommandTest
from testkit import program


class OrderCommand(OrderCommandTest):
    def testAWaitEndsWithTheFinishedRun(self):
        target = self.makeVolume("ext4", 16)
        code, output, errors = self.complete("order", target.name, "--method", "dod", "--wait")
        self.assertEqual((code, errors), (program.EXIT_FINISHED, ""), output)
        self.assertIn("Finished", output.splitlines()[-1])
        tags = self.order.tags.read()
        self.assertRegex(tags.pop("cvrResult"), "^complete free=")
        self.assertEqual(tags, {
            "cvrOnline": "1", "cvrDrive": target.name, "cvrAlgo": "3", "cvrStatus": FINISHED, "CVRCANCEL": "",
            "cvrNamed": target.name, "cvrMountPath": target.path, "cvrVolumeUuid": target.uuid()})
        self.assertNothingLeft(target)

    def testAnOrderIsRefusedForAnotherVolumeOfTheSameNameAtTheSamePlace(self):
        target, other = (self.makeVolume("ext4", 16, label="same") for _ in range(2))
        other.unmount()
        code, output, errors = self.complete("order", "same", "--method", "1", "--wait")
        self.assertEqual((code, errors), (program.EXIT_FINISHED, ""), output)
        target.unmount()
        other.mountInPlaceOf(target)
        self.order.tags.set(cvrStatus="")
        before = os.stat(other.path).st_mtime_ns
        self.order.start([self.windowProgram])  # the order is still pending, as at the next log-in
        self.assertEqual(self.order.waitForStatus()[0], FAILED)
        self.assertEqual(self.order.waitForEnd()[0], program.EXIT_FAILED)
        self.assertEqual(os.stat(other.path).st_mtime_ns, before, "something was made on the other volume")

    def testTheOrderOutlivesTheCommandAndCanBeFollowed(self):
        target = self.makeVolume("ext4", 256)
        code, output, errors = self.complete("order", target.path, "--method", SLOWEST)
        self.assertEqual((code, errors), (program.EXIT_FINISHED, ""), output)
        self.assertIn("under way", self.complete("status")[1], "before it holds the volume")
        self.waitUntilWriting(target)
        self.assertIn("under way", self.complete("status")[1])
        self.assertEqual(self.complete("clear")[0], program.EXIT_REFUSED)
        self.assertEqual(self.complete("cancel", "--wait")[0], program.EXIT_FINISHED)
        self.assertEqual(self.order.status, FAILED)
        self.assertEqual(self.complete("clear")[0], program.EXIT_FINISHED)
        self.assertEqual(self.order.tags.read()["cvrOnline"], "0")
        self.assertNothingLeft(target)

    def testARunIsUnderWayUntilItsProgramEndsThoughItHasLeftTheVolume(self):
        target = self.makeVolume("ext4", 16)
        self.assertEqual(self.complete("order", target.name, "--method", "1")[0], program.EXIT_FINISHED)
        self.waitUntilWriting(target)
        self.waitUntilRemoved(target)
        self.assertEqual(self.order.status, "")
        self.assertIn("under way", self.complete("status")[1])
        before = self.order.tags.read()
        for command in (("clear",), ("order", target.name, "--method", "1", "--wait")):
            code, output, errors = self.complete(*command)
            self.assertEqual(code, program.EXIT_REFUSED, (output, errors))
            self.assertIn("under way", errors)
        self.assertEqual(self.order.tags.read(), before)
        self.assertEqual(program.waitUntil(lambda: self.order.status, "the status"), FINISHED)
        # The program ends now, and is waited for.
        self.assertEqual(self.complete("clear")[0], program.EXIT_FINISHED)

    def testASecondStartDuringTheRunEndsAtOnceAndChangesNothing(self):
        target = self.makeVolume("ext4", 256)
        waiting = self.start("order", target.name, "--method", SLOWEST, "--wait")
        self.waitUntilWriting(target)
        before = self.order.tags.read()
        self.order.start([self.windowProgram])
        self.assertEqual(self.order.waitForEnd(), (program.EXIT_REFUSED, ""))
        self.assertEqual(self.order.tags.read(), before)
        self.waitUntilWriting(target)
        self.assertEqual(self.complete("cancel", "--wait")[0], program.EXIT_FINISHED)
        self.assertEqual(self.finish(waiting)[0], program.EXIT_CANCELLED)
