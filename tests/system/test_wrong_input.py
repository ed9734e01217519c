"""Each wrong input gets one clear line, and nothing is created for it."""

import os
import unittest

from case import SystemTest, everything
from testkit import program


class WrongInput(SystemTest):
    def wipeWith(self, target, *arguments, plainUser=False):
        """The refused program's end; nothing was created on the volume."""
        before = everything(target.path)
        ended = self.runProgram("wipe", *arguments, plainUser=plainUser)
        self.assertEqual(everything(target.path), before)
        self.assertEqual(ended.stdout, "")
        return ended

    def testAnUnknownNameListsTheNames(self):
        target = self.makeVolume()
        ended = self.wipeWith(target, "no such volume", "--method", "1", "--yes")
        self.assertRefused(ended, "no such volume", target.name)

    def testAPathInsideAVolumeNamesTheVolume(self):
        target = self.makeVolume()
        inside = os.path.join(target.path, "folder")
        os.mkdir(inside)
        ended = self.wipeWith(target, inside, "--method", "1", "--yes")
        self.assertRefused(ended, target.path, target.name)

    def testAMethodThatDoesNotExistIsWrongUsage(self):
        target = self.makeVolume()
        for method in ("0", "10", "-1", "abc", "1x", ""):
            with self.subTest(method):
                self.assertWrongUsage(self.wipeWith(target, target.path, "--method", method, "--yes"), "1", "9")

    def testWithoutATerminalAndWithoutYesTheEraseIsNotConfirmed(self):
        target = self.makeVolume()
        self.assertWrongUsage(self.wipeWith(target, target.path, "--method", "1"), "--yes")

    def testWithoutATerminalAVolumeMustBeNamed(self):
        target = self.makeVolume()
        ended = self.wipeWith(target, "--yes")
        self.assertEqual(ended.returncode, program.EXIT_WRONG_USAGE, ended)
        self.assertIn("volume", ended.stderr.lower())

    def testAnUnknownOptionIsWrongUsage(self):
        target = self.makeVolume()
        ended = self.wipeWith(target, target.path, "--yes", "--no-such-option")
        self.assertEqual(ended.returncode, program.EXIT_WRONG_USAGE, ended)

    def testAReadOnlyVolumeIsRefused(self):
        target = self.makeVolume()
        target.remount("ro")
        ended = self.wipeWith(target, target.path, "--method", "1", "--yes")
        self.assertRefused(ended, "Read only drive, please select other drives")

    def testARootFolderThatTheUserMayNotWriteToIsRefused(self):
        target = self.makeVolume()
        os.chmod(target.path, 0o755)
        ended = self.wipeWith(target, target.path, "--method", "1", "--yes", plainUser=True)
        self.assertRefused(ended, "root", target.name)

    def testAVolumeIsFoundByItsNameAndByItsPathWithATrailingSlash(self):
        target = self.makeVolume()
        for given in (target.name, target.path, target.path + "/"):
            with self.subTest(given):
                ended = self.runProgram("wipe", given, "--method", "7", "--yes")
                self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
                self.assertNothingLeft(target)


class WithoutPrivileges(unittest.TestCase):
    """What needs no volume and no rights."""

    def run_(self, *arguments):
        return SystemTest.runProgram(SystemTest(), *arguments)

    def testTheExitCodesAreDocumentedInTheHelp(self):
        ended = self.run_("--help")
        self.assertEqual(ended.returncode, program.EXIT_FINISHED)
        for word in ("finished", "failed", "usage", "refused", "cancelled"):
            self.assertIn(word, ended.stdout.lower())

    def testAnUnknownCommandIsWrongUsage(self):
        self.assertEqual(self.run_("erase-everything").returncode, program.EXIT_WRONG_USAGE)
