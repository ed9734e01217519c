"""A tag store on a disk that is full: the status is stored as soon as there is room, and a program that is told to end
does so all the same."""

import os
import subprocess

from remote_case import FAILED, RemoteTest
from testkit import program
from testkit.volume import MEBIBYTE

NO_VOLUME = "not there"
DISK_BYTES = MEBIBYTE // 2
WRITER = "calvero-tags"
ENDS_WITHIN_SECONDS = 30


def hasThread(process, name):
    return name in (other for other, _ in program.otherThreads(process))


class FullDisk(RemoteTest):
    def setUp(self):
        if os.geteuid() != 0:
            self.skipTest("mounting a disk needs root")
        super().setUp()

    def makeFolder(self, plainUser=False):
        """A small disk of its own, which ends with this process's mount table."""
        folder = super().makeFolder(plainUser)
        subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={DISK_BYTES},mode=700", "store", folder], check=True)
        self.addCleanup(subprocess.run, ["umount", "-l", folder], check=True)
        return folder

    def startOnFullDisk(self):
        """An order that ends at once; returns it and what fills the disk."""
        order = self.makeOrder(NO_VOLUME)
        ballast = os.path.join(order.folder, "ballast")
        with open(ballast, "wb", buffering=0) as file:
            try:
                while file.write(bytes(1024)):
                    pass
            except OSError:
                pass
        self.assertEqual(os.statvfs(order.folder).f_bfree, 0)
        order.start([program.windowProgramPath()])
        return order, ballast

    def assertWaits(self, order):
        """Far longer than its tags hold up a program with a window."""
        self.assertRaises(subprocess.TimeoutExpired, order.process.wait, 8)
        self.assertTrue(hasThread(order.process, WRITER))
        self.assertIsNone(order.status)

    def testGetsTheStatusOnceThereIsRoom(self):
        order, ballast = self.startOnFullDisk()
        self.assertWaits(order)
        os.remove(ballast)
        self.assertEndedSilently(order, program.EXIT_FAILED, ENDS_WITHIN_SECONDS)
        self.assertEqual(order.status, FAILED)

    def testEndsWithoutTheStatusWhenItIsToldToEnd(self):
        order, ballast = self.startOnFullDisk()
        self.assertWaits(order)
        order.process.terminate()
        self.assertEndedSilently(order, program.EXIT_FAILED, ENDS_WITHIN_SECONDS)
        os.remove(ballast)
        self.assertEqual(order.tags.read(), {"cvrOnline": "1", "cvrDrive": NO_VOLUME, "cvrAlgo": "1"})


class StoreOnTheErasedVolume(RemoteTest):
    def setUp(self):
        super().setUp()
        self.target = self.makeVolume("ext4", 16)

    def makeFolder(self, plainUser=False):
        folder = os.path.join(self.target.path, "home")
        os.mkdir(folder, 0o700)
        return folder

    def testGetsTheStatusAfterTheEnd(self):
        order = self.startOrder(self.target)
        self.expectFinish(order, self.target)
