"""How an ordered run ends that does not finish: a missing or lost volume, a lost filler file."""

import os
import shutil
import subprocess

from case import NOTICED_WITHIN_SECONDS, SLOWEST
from remote_case import FAILED, RemoteTest
from testkit import program

ENDS_BY_ITSELF_SECONDS = 30
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
