"""What every system test needs: volumes that are cleaned up, and the program."""

import json
import os
import signal
import stat
import subprocess
import unittest

from testkit import program
from testkit.fuse_volume import FuseVolume
from testkit.program import startedAs
from testkit.volume import FILLER_BYTES, MEBIBYTE, MEGABYTE, Unavailable, Volume, protectDisks

# Metadata that a run may leave allocated: directory blocks, B-tree nodes.
FREE_SPACE_SLACK_BYTES = 4 * MEGABYTE
FILL_TIMEOUT_SECONDS = 240
# Passes enough that a run goes on until it is ended.
SLOWEST = "9"
# What ends a run by itself is seen by then.
NOTICED_WITHIN_SECONDS = 10


class SystemTest(unittest.TestCase):
    maxDiff = None

    def makeVolume(self, fs="ext4", mebibytes=64, **options):
        try:
            protectDisks()
            made = Volume(fs, mebibytes * MEBIBYTE, **options)
        except Unavailable as reason:
            self.skipTest(str(reason))
        self.addCleanup(made.close)
        # A folder for everybody, as the root of a stick or a shared disk is.
        os.chmod(made.path, 0o1777)
        return made

    def makeFuseVolume(self, mebibytes):
        try:
            protectDisks()
            made = FuseVolume(mebibytes * MEBIBYTE)
        except Unavailable as reason:
            self.skipTest(str(reason))
        self.addCleanup(made.close)
        return made

    def programFor(self, plainUser):
        return self._pathFor(program.programPath(), plainUser)

    def windowProgramFor(self, plainUser):
        return self._pathFor(program.windowProgramPath(), plainUser)

    def _pathFor(self, path, plainUser):
        if not plainUser:
            return path
        copy = program.PublicCopy(path)
        self.addCleanup(copy.remove)
        return copy.path

    def runCommand(self, command, plainUser=False):
        return subprocess.run(command, stdin=subprocess.DEVNULL, capture_output=True, text=True,
                              timeout=FILL_TIMEOUT_SECONDS, **startedAs(plainUser))

    def runProgram(self, *arguments, plainUser=False):
        return self.runCommand([self.programFor(plainUser), *arguments], plainUser)

    def wipe(self, target, method="1", plainUser=False):
        """A whole run that must finish; returns its report."""
        ended = self.runProgram("wipe", target.path, "--method", method, "--yes", "--json", plainUser=plainUser)
        self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
        report = json.loads(ended.stdout)
        self.assertEqual(report["outcome"], "finished")
        return report

    def startProgram(self, *arguments, plainUser=False):
        return self.startCommand([self.programFor(plainUser), *arguments], plainUser)

    def startCommand(self, command, plainUser=False):
        process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                                   text=True, **startedAs(plainUser))

        def end():
            if process.poll() is None:
                process.kill()
            process.communicate()

        self.addCleanup(end)
        return process

    def startWipe(self, target, method="1", plainUser=False):
        return self.startProgram("wipe", target.path, "--method", method, "--yes", "--json", plainUser=plainUser)

    def finish(self, process):
        """Waits for the end and returns exit code, output and errors."""
        output, errors = process.communicate(timeout=FILL_TIMEOUT_SECONDS)
        return process.returncode, output, errors

    def assertNothingLeft(self, target):
        self.assertFalse(os.path.lexists(target.fillerDirectory()), "the filler directory is still there")

    def assertFreeAgain(self, target, freeBefore, slackBytes=FREE_SPACE_SLACK_BYTES):
        self.assertTrue(target.waitUntilFree(freeBefore - slackBytes),
                        f"{freeBefore} bytes were free, now {target.freeBytes()}")

    def assertRefused(self, ended, *words):
        """Refused with one line that holds `words`."""
        self.assertEqual(ended.returncode, program.EXIT_REFUSED, ended)
        self.assertOneLine(ended.stderr, *words)

    def assertWrongUsage(self, ended, *words):
        self.assertEqual(ended.returncode, program.EXIT_WRONG_USAGE, ended)
        self.assertOneLine(ended.stderr, *words)

    def assertOneLine(self, text, *words):
        self.assertEqual(len(text.strip().splitlines()), 1, text)
        for word in words:
            self.assertIn(word.lower(), text.lower())


def fillerNames(target):
    try:
        return os.listdir(target.fillerDirectory())
    except FileNotFoundError:
        return []


def isWriting(target, number):
    """Whether filler file `number` is being written now, and not yet full."""
    try:
        bytesNow = os.stat(os.path.join(target.fillerDirectory(), f".temp{number}")).st_size
    except FileNotFoundError:
        return False
    return 0 < bytesNow < FILLER_BYTES


def everything(root):
    """Every entry below `root`: kind, mode, owner and group, size, time of change and contents, to see that nothing changed."""
    entries = {}
    for folder, folders, files in os.walk(root):
        for name in folders + files:
            path = os.path.join(folder, name)
            about = os.lstat(path)
            content = None
            if stat.S_ISREG(about.st_mode):
                with open(path, "rb") as file:
                    content = file.read()
            elif stat.S_ISLNK(about.st_mode):
                content = os.readlink(path)
            entries[path] = (about.st_mode, (about.st_uid, about.st_gid), about.st_nlink, about.st_size, about.st_mtime_ns, content)
    return entries


def kill9(process):
    process.send_signal(signal.SIGKILL)
    process.wait()
