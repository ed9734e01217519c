"""Filler directories that cannot be removed, or not be changed: the path, the reason and what to do are told."""

import os
import subprocess

from case import SystemTest
from testkit import program
from testkit.program import PLAIN_USER


class Leftover(SystemTest):
    def protect(self, path, attribute):
        subprocess.run(["chattr", f"+{attribute}", path], check=True)
        self.addCleanup(self.lift, path, attribute)

    def lift(self, path, attribute):
        if os.path.exists(path):
            subprocess.run(["chattr", f"-{attribute}", path], check=True)

    def leaveDirectory(self, target, owner, mode=0o700):
        os.mkdir(target.fillerDirectory())
        os.chown(target.fillerDirectory(), owner, -1)
        os.chmod(target.fillerDirectory(), mode)

    def testADirectoryThatCannotBeRemovedIsAFailureWithItsPathAndWhatToDo(self):
        target = self.makeVolume("ext4", 64)
        self.protect(target.path, "a")
        ended = self.runProgram("wipe", target.path, "--yes", "--quiet")
        self.assertEqual(ended.returncode, program.EXIT_FAILED, ended)
        self.assertOneLine(ended.stderr, target.fillerDirectory(), "Operation not permitted", "chattr -a",
                           "start another run")
        self.assertNotIn("readable", ended.stderr)
        self.lift(target.path, "a")
        self.wipe(target)
        self.assertNothingLeft(target)

    def testALeftDirectoryThatMayNotBeChangedIsToldInsteadOfTheRootFolder(self):
        for plainUser in (False, True):
            for attribute in ("i", "a"):
                with self.subTest(plainUser=plainUser, attribute=attribute):
                    target = self.makeVolume("ext4", 16)
                    self.leaveDirectory(target, PLAIN_USER if plainUser else 0)
                    self.protect(target.fillerDirectory(), attribute)
                    ended = self.runProgram("wipe", target.path, "--yes", plainUser=plainUser)
                    self.assertRefused(ended, target.fillerDirectory(), "which an earlier run left", "chattr -i")
                    self.assertNotIn("root folder", ended.stderr)
                    self.lift(target.fillerDirectory(), attribute)
                    self.wipe(target, plainUser=plainUser)
                    self.assertNothingLeft(target)

    def testALeftDirectoryThatItsOwnerMayNotEnterIsTakenOver(self):
        target = self.makeVolume("ext4", 16)
        self.leaveDirectory(target, PLAIN_USER, mode=0)
        self.wipe(target, plainUser=True)
        self.assertNothingLeft(target)

    def testTheUmaskOfTheCallerTakesNoRightsFromARun(self):
        for plainUser in (False, True):
            for mask in ("0777", "0700"):
                with self.subTest(plainUser=plainUser, mask=mask):
                    target = self.makeVolume("ext4", 64)
                    command = [self.programFor(plainUser), "wipe", target.path, "--yes", "--quiet"]
                    ended = self.runCommand(["sh", "-c", f'umask {mask}; exec "$0" "$@"', *command], plainUser)
                    self.assertEqual((ended.returncode, ended.stderr), (program.EXIT_FINISHED, ""))
                    self.assertNothingLeft(target)
