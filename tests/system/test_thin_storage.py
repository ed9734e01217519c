"""Volumes in images on storage with less room than they show, and volumes that are gone when a run reaches for them."""

import json
import os
import signal
import subprocess

from case import everything
from pulled_case import PulledTest
from remote_case import RemoteTest
from testkit import program, trace
from testkit.volume import MEBIBYTE, Volume

SLOWEST = "9"


class ThinStorage(RemoteTest):
    def makeStacked(self, mebibytes, freeBelow, fallocate=False):
        """A volume in an image on another one, on which so many MiB are left free."""
        below = self.makeVolume("ext4", 64)
        path = os.path.join(below.path, "image.raw")
        if fallocate:
            with open(path, "wb") as image:
                os.posix_fallocate(image.fileno(), 0, mebibytes * MEBIBYTE)
        made = Volume("ext4", mebibytes * MEBIBYTE, imagePath=path)
        made.imagePath = path
        self.addCleanup(made.close)
        os.chmod(made.path, 0o1777)
        with open(os.path.join(below.path, "others"), "wb") as others:
            os.posix_fallocate(others.fileno(), 0, max(below.freeBytes() - freeBelow * MEBIBYTE, MEBIBYTE))
        return made

    def testAVolumeInASparseImageOnTooLittleRoomIsRefused(self):
        target = self.makeStacked(mebibytes=40, freeBelow=10)
        before = everything(target.path)
        self.assertRefused(self.runProgram("wipe", target.path, "--yes"), target.name, "image.raw", "bytes", "room")
        ended = self.runProgram("wipe", target.path, "--yes", "--json")
        self.assertEqual(json.loads(ended.stdout)["outcome"], "refused")
        self.assertRefused(self.runProgram("order", target.path, "--method", "1"), target.name, "image.raw")
        self.assertEqual(everything(target.path), before)

    def testAnOrderForOneEndsAsFailedWithNothingWritten(self):
        target = self.makeStacked(mebibytes=40, freeBelow=10)
        before = everything(target.path)
        order = self.startOrder(target)
        self.assertEqual(order.waitForStatus()[0], "3")
        self.assertEqual(order.waitForEnd()[0], program.EXIT_FAILED)
        self.assertEqual(everything(target.path), before)

    def testAVolumeInAnImageThatHasOrCanGetItsRoomIsWiped(self):
        for options in ({"mebibytes": 40, "freeBelow": 4, "fallocate": True}, {"mebibytes": 16, "freeBelow": 30}):
            with self.subTest(options):
                target = self.makeStacked(**options)
                self.wipe(target)
                self.assertNothingLeft(target)


    def testStorageThatIsFilledByOthersDuringTheRunEndsItAtOnceAndSparesTheFileSystem(self):
        target = self.makeStacked(mebibytes=40, freeBelow=45)
        below = os.path.dirname(target.imagePath)
        started = self.startCommand([program.programPath(), "wipe", target.path, "--yes", "--json", "--method", SLOWEST])
        program.waitUntil(lambda: isWriting(target), "the first filler file being written")
        fillUp(os.path.join(below, "more of others"))
        code, output, errors = self.finish(started)
        report = json.loads(output)
        self.assertEqual((code, report["outcome"]), (program.EXIT_FAILED, "failed"), errors)
        self.assertIn("is full", errors)
        self.assertIn("make room there before the volume is unmounted", errors)
        os.remove(os.path.join(below, "more of others"))
        target.unmount()
        checked = subprocess.run(["e2fsck", "-fn", target.imagePath], capture_output=True, text=True)
        self.assertEqual(checked.returncode, 0, checked.stdout)


def isWriting(target):
    try:
        return os.stat(os.path.join(target.fillerDirectory(), ".temp0")).st_size > MEBIBYTE // 2
    except FileNotFoundError:
        return False


def fillUp(path):
    with open(path, "wb", buffering=0) as file:
        try:
            while True:
                file.write(bytes(MEBIBYTE))
        except OSError:
            os.fsync(file.fileno())


class GoneVolume(PulledTest):
    def testNothingIsMadeOnWhatIsBelowAVolumeThatIsUnmountedAfterTheLastLook(self):
        below = self.makeVolume("ext4", 32)
        target = self.makeVolume("ext4", 16)
        target.unmount()
        os.rmdir(target.path)
        target.path = below.path + "/on top"
        os.mkdir(target.path)
        target.mount()
        # The worker's look at the path, which is the last before it opens the volume.
        command, waitUntilStopped = self.stoppingAt(trace.Point("newfstatat", 1), [target.path], [
            program.programPath(), "wipe", target.path, "--yes", "--json"])
        started = self.startCommand(command)
        waitUntilStopped()
        target.unmount()
        before = os.stat(target.path).st_mtime_ns
        started.send_signal(signal.SIGCONT)
        code, output, errors = self.finish(started)
        self.assertEqual(os.stat(target.path).st_mtime_ns, before, "something was made on the volume below")
        self.assertEqual((code, json.loads(output)["bytesWritten"]), (program.EXIT_REFUSED, 0), errors)
        self.assertIn("is not mounted any more", errors)
