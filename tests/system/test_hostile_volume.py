"""The filler directory's name is known to everybody, and the program may run as root."""

import os
import subprocess
import tempfile
import unittest

from case import SystemTest, everything
from testkit import program, trace
from testkit.program import PLAIN_USER

ROOT = 0


class HostileFillerDirectory(SystemTest):
    def preciousFolder(self, target, owner):
        folder = os.path.join(target.path, "precious")
        os.mkdir(folder)
        for name in ("letter", ".temp0"):
            path = os.path.join(folder, name)
            with open(path, "w") as file:
                file.write("precious")
            os.chown(path, owner, -1)
        os.chown(folder, owner, -1)
        return folder

    def checkRefused(self, plant, owner=None):
        """`plant(target, precious, owner)` puts something under the filler directory's name."""
        for plainUser in (False, True):
            with self.subTest(plainUser=plainUser):
                target = self.makeVolume("ext4", 64)
                runner = PLAIN_USER if plainUser else ROOT
                planted = runner if owner is None else owner(runner)
                plant(target, self.preciousFolder(target, planted), planted)
                before = everything(target.path)
                ended = self.runProgram("wipe", target.path, "--method", "1", "--yes", plainUser=plainUser)
                self.assertRefused(ended, ".$$XE8AQU")
                self.assertEqual(everything(target.path), before)

    def testALinkToAnotherFolderIsRefused(self):
        def plant(target, precious, owner):
            os.symlink(precious, target.fillerDirectory())
            os.lchown(target.fillerDirectory(), owner, -1)

        self.checkRefused(plant)

    def testAnotherUsersFolderIsRefused(self):
        def plant(target, precious, owner):
            os.rename(precious, target.fillerDirectory())
            os.chmod(target.fillerDirectory(), 0o777)

        self.checkRefused(plant, owner=lambda runner: ROOT if runner == PLAIN_USER else PLAIN_USER)

    def testAMountPointIsRefused(self):
        def plant(target, precious, owner):
            os.mkdir(target.fillerDirectory())
            os.chown(target.fillerDirectory(), owner, -1)
            subprocess.run(["mount", "--bind", precious, target.fillerDirectory()], check=True)

        self.checkRefused(plant)

    def testAnotherVolumeMountedThereIsRefused(self):
        def plant(target, precious, owner):
            other = self.makeVolume("ext4", 16)
            os.chown(other.path, owner, -1)
            os.mkdir(target.fillerDirectory())
            subprocess.run(["mount", "--bind", other.path, target.fillerDirectory()], check=True)
            with open(os.path.join(target.fillerDirectory(), ".temp0"), "w") as file:
                file.write("precious")

        self.checkRefused(plant)

    def testAPlainFileIsRefused(self):
        def plant(target, precious, owner):
            os.rename(os.path.join(precious, "letter"), target.fillerDirectory())

        self.checkRefused(plant)


@unittest.skipUnless(trace.available(), "strace is not installed")
class HostileFillerNames(SystemTest):
    """A left filler directory of the running user's own in which somebody has put something of the first name."""

    def checkNothingPreciousTouched(self, plant, expectedExit=program.EXIT_FINISHED):
        for plainUser in (False, True):
            with self.subTest(plainUser=plainUser), tempfile.TemporaryDirectory(prefix="calvero-trace-") as folder:
                os.chmod(folder, 0o777)
                target = self.makeVolume("ext4", 64)
                precious = os.path.join(target.path, "precious")
                os.makedirs(os.path.join(precious, "folder"))
                for name in ("letter", "folder/letter"):
                    with open(os.path.join(precious, name), "w") as file:
                        file.write("precious")
                os.mkdir(target.fillerDirectory(), 0o700)
                planted = os.path.join(target.fillerDirectory(), ".temp0")
                plant(planted, precious)
                if plainUser:
                    for path in (target.fillerDirectory(), planted, precious, os.path.join(precious, "letter")):
                        os.chown(path, PLAIN_USER, -1, follow_symlinks=False)
                watched = precious if expectedExit == program.EXIT_FINISHED else target.path
                contents = self.contents(watched)
                ended, calls = self.tracedWipe(target, folder, plainUser)
                self.assertEqual(ended.returncode, expectedExit, ended)
                self.assertEqual(self.contents(watched), contents)
                self.assertEqual([call for call in calls if "precious" in call.arguments], [])
                if expectedExit == program.EXIT_FINISHED:
                    self.assertNothingLeft(target)

    def contents(self, folder):
        # The count of links falls when the planted name is removed, and that is right.
        return {path: (entry[0], entry[1], entry[3:]) for path, entry in everything(folder).items()}

    def tracedWipe(self, target, folder, plainUser):
        output = os.path.join(folder, "calls")
        command = trace.command(output, [self.programFor(plainUser)])
        ended = self.runCommand([*command, "wipe", target.path, "--method", "1", "--yes"], plainUser)
        return ended, trace.calls(output)

    def testALinkToAFileIsRemovedAndNotFollowed(self):
        self.checkNothingPreciousTouched(lambda planted, precious: os.symlink(precious + "/letter", planted))

    def testALinkToAFolderIsRemovedAndNotFollowed(self):
        self.checkNothingPreciousTouched(lambda planted, precious: os.symlink(precious, planted))

    def testASecondNameOfAFileIsRemovedAndTheFileNotTruncated(self):
        self.checkNothingPreciousTouched(lambda planted, precious: os.link(precious + "/letter", planted))

    def testAPipeIsRemovedAndNotOpened(self):
        self.checkNothingPreciousTouched(lambda planted, precious: os.mkfifo(planted))

    def testAnEmptyFolderIsRemoved(self):
        self.checkNothingPreciousTouched(lambda planted, precious: os.mkdir(planted))

    # No run makes a folder with something in it, so this is somebody's and the whole directory is left alone.

    def testAFolderWithAFileInItIsRefused(self):
        def plant(planted, precious):
            os.rename(precious + "/folder", planted)

        self.checkNothingPreciousTouched(plant, program.EXIT_REFUSED)

    def testAFolderWithALinkInItIsRefused(self):
        def plant(planted, precious):
            os.mkdir(planted)
            os.symlink(precious, planted + "/link")

        self.checkNothingPreciousTouched(plant, program.EXIT_REFUSED)

    def testAFolderMountedInsideIsRefused(self):
        def plant(planted, precious):
            os.mkdir(planted)
            subprocess.run(["mount", "--bind", precious, planted], check=True)

        self.checkNothingPreciousTouched(plant, program.EXIT_REFUSED)
