"""Orders given with calvero-cli and carried out by the real program."""

import os
import shutil
import signal
import subprocess

from case import SLOWEST
from remote_case import FAILED, FINISHED, RemoteTest, killProgramsOf, processesOf
from testkit import program
from testkit.program import startedAs


class OrderCommand(RemoteTest):
    def setUp(self):
        super().setUp()
        self.order = self.makeOrder("nothing yet")
        os.remove(self.order.tags.path)
        self.startBus(self.order)
        self.programs = self.makeFolder()
        self.windowProgram = shutil.copy(program.windowProgramPath(), os.path.join(self.programs, "calvero"))
        self.command = shutil.copy(program.programPath(), os.path.join(self.programs, "calvero-cli"))
        # What it orders has a session of its own and would outlive a test that fails.
        self.addCleanup(killProgramsOf, self.programs)

    def start(self, *arguments):
        process = subprocess.Popen([self.command, *arguments], env=self.order.env, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, **startedAs(False))
        self.addCleanup(process.communicate)
        self.addCleanup(process.kill)
        return process

    def complete(self, *arguments):
        return self.finish(self.start(*arguments))

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

    def testAWaitTellsACancelWhichIsFollowedAtOnce(self):
        target = self.makeVolume("ext4", 256)
        waiting = self.start("order", target.name, "--method", SLOWEST, "--wait")
        self.waitUntilWriting(target)
        refused = self.complete("order", target.name, "--method", "1")
        self.assertEqual(refused[0], program.EXIT_REFUSED, refused)
        code, output, errors = self.complete("cancel", "--wait")
        self.assertEqual((code, errors), (program.EXIT_FINISHED, ""), output)
        code, output, errors = self.finish(waiting)
        self.assertEqual(code, program.EXIT_CANCELLED, (output, errors))
        self.assertIn("Cancelled", (output + errors).splitlines()[-1])
        self.assertEqual(self.order.status, FAILED)
        self.assertNoRequestLeft()
        self.assertNothingLeft(target)

    def testACancelThatTheNotificationHasDoneLeavesNoRequestForTheNextRun(self):
        target = self.makeVolume("ext4", 256)
        waiting = self.start("order", target.name, "--method", SLOWEST, "--wait")
        self.waitUntilWriting(target)
        code, output, errors = self.complete("cancel")
        self.assertEqual((code, errors), (program.EXIT_FINISHED, ""), output)
        self.assertIn("Cancelled", output.splitlines()[-1])
        self.assertNoRequestLeft()
        self.assertEqual(self.finish(waiting)[0], program.EXIT_CANCELLED)
        self.assertEqual(self.order.status, FAILED)
        self.assertNothingLeft(target)

    def assertNoRequestLeft(self):
        self.assertEqual(self.order.tags.read()["CVRCANCEL"], "0")

    def testAWaitTellsAVolumeThatIsGone(self):
        target = self.makeVolume("ext4", 96)
        waiting = self.start("order", target.name, "--method", SLOWEST, "--wait")
        self.waitUntilWriting(target)
        target.detach()
        code, output, errors = self.finish(waiting)
        self.assertEqual(code, program.EXIT_FAILED, (output, errors))
        self.assertEqual(self.order.status, FAILED)

    def testAWaitTellsACancelByOtherMeansThanTheCommand(self):
        target = self.makeVolume("ext4", 256)
        for cancel in (lambda: self.order.notify("cancel wipe", "cancel"), self.terminateCalvero):
            waiting = self.start("order", target.name, "--method", SLOWEST, "--wait")
            self.waitUntilWriting(target)
            cancel()
            code, output, errors = self.finish(waiting)
            self.assertEqual(code, program.EXIT_CANCELLED, (output, errors))
            self.assertIn("Cancelled", errors)
            self.assertEqual(self.order.tags.read()["CVRCANCEL"], "")
            self.assertEqual(self.complete("clear")[0], program.EXIT_FINISHED)

    def terminateCalvero(self):
        for process in processesOf(self.windowProgram):
            os.kill(process, signal.SIGTERM)

    def testARequestThatAnotherProgramSetsMakesNoCancelOfALostVolume(self):
        target = self.makeVolume("ext4", 96)
        waiting = self.start("order", target.name, "--method", SLOWEST, "--wait")
        self.waitUntilWriting(target)
        self.order.tags.set(CVRCANCEL="later")
        target.detach()
        code, output, errors = self.finish(waiting)
        self.assertEqual(code, program.EXIT_FAILED, (output, errors))

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
