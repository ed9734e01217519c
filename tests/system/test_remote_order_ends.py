"""How calvero-cli tells that an order's run was cancelled, by whatever means, or has lost its volume."""

import os
import signal

from case import SLOWEST
from remote_case import FAILED, processesOf
from remote_order_case import OrderCommandTest
from testkit import program


class OrderEnds(OrderCommandTest):
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
