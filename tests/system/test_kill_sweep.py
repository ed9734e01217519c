"""Runs that are killed at some two hundred places, spread over all their phases. After each, nothing of the user's has
changed, no more than one filler file's space is taken, and the next run finishes and leaves nothing."""

import os
import signal
import tempfile
import time
import unittest

from case import FILL_TIMEOUT_SECONDS, SystemTest, everything, fillerNames
from testkit import program, trace
from testkit.marks import KeptFiles
from testkit.volume import FILLER_BYTES

# Runs spend most of their time in pauses, so several go on beside each other, each on a volume of its own.
LANES_OF_ONE_FILE, LANES_OF_TWO_FILES = 10, 4
WRITES_KILLED_AT, SIZES_KILLED_AT = 110, 50
KEPT_FILES = 40
ATTEMPTS = 5  # a busy machine may look at a file too late
# What a file system takes for the directory itself.
DIRECTORY_SLACK_BYTES = 256 * 1024
_ENDED = object()


class KillSweep(SystemTest):
    def makeTarget(self, mebibytes):
        target = self.makeVolume("ext4", mebibytes)
        target.kept = KeptFiles(target.path, KEPT_FILES)
        target.entries = everything(os.path.join(target.path, "kept"))
        target.freeBefore = target.freeBytes()
        return target

    def sweep(self, mebibytes, lanes, points, killedRun):
        """`killedRun` starts a run on a volume that is killed at one of the points, and waits for that by yielding
        as long as it lasts."""
        left = iter(points)
        running = [self.lane(self.makeTarget(mebibytes), left, killedRun) for _ in range(lanes)]
        while running:
            running = [lane for lane in running if next(lane, _ENDED) is not _ENDED]
            time.sleep(0.002)

    def lane(self, target, points, killedRun):
        for point in points:
            process = yield from killedRun(target, point)
            self.assertEqual(process.returncode, -signal.SIGKILL, point)
            self.checkKilled(target, point)
            following = self.startWipe(target)
            yield from until(lambda: following.poll() is not None, "the end of the next run")
            code, output, errors = self.finish(following)
            self.assertEqual(code, program.EXIT_FINISHED, (point, output, errors))
            self.assertNothingLeft(target)
            self.assertUnchanged(target, point)
            self.assertFreeAgain(target, target.freeBefore, DIRECTORY_SLACK_BYTES)

    def checkKilled(self, target, point):
        self.assertUnchanged(target, point)
        self.assertFreeAgain(target, target.freeBefore - FILLER_BYTES, DIRECTORY_SLACK_BYTES)
        written = [name for name in fillerNames(target)
                   if os.stat(os.path.join(target.fillerDirectory(), name)).st_blocks]
        self.assertLessEqual(len(written), 1, (point, written))

    def assertUnchanged(self, target, point):
        self.assertEqual(everything(os.path.join(target.path, "kept")), target.entries, point)
        self.assertLessEqual(set(os.listdir(target.path)), {"kept", "lost+found", os.path.basename(
            target.fillerDirectory())}, point)

    def newFile(self):
        handle, path = tempfile.mkstemp(prefix="calvero-kill-")
        os.close(handle)
        self.addCleanup(os.remove, path)
        return path

    @unittest.skipUnless(trace.available(), "strace is not installed")
    def testARunKilledAtAnySystemCallLeavesWhatTheNextOneCleansUp(self):
        points = self.pointsOfARun(self.makeTarget(16))
        calls = self.newFile()

        def killedRun(target, point):
            process = self.startCommand(trace.killing(calls, wipeCommand(target), pathsOf(target), point))
            yield from until(lambda: process.poll() is not None, "the end of the killed run")
            return process

        self.sweep(16, LANES_OF_ONE_FILE, points, killedRun)
        print(f"\nkilled at {len(points)} system calls", flush=True)

    def pointsOfARun(self, target):
        """All calls of an undisturbed run on its volume, but of the writes and flushes only some."""
        calls = self.newFile()
        ended = self.runCommand(trace.noting(calls, wipeCommand(target), pathsOf(target)))
        self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
        found = trace.points(calls)
        self.assertLess({"mkdirat", "flock", "openat", "pwrite64", "fsync", "unlinkat", "close"},
                        {point.name for point in found})
        writing = [point for point in found if point.name in ("pwrite64", "fsync")]
        # Not the very last ones: how often a volume takes a block more is not the same each time.
        some = set(writing[:int(0.95 * len(writing)):len(writing) // WRITES_KILLED_AT])
        return [point for point in found if point not in writing or point in some]

    def testARunKilledWhileItWritesTwoFilesLeavesWhatTheNextOneCleansUp(self):
        sizes = range(0, FILLER_BYTES, FILLER_BYTES // SIZES_KILLED_AT * 2)
        points = [*((0, size) for size in sizes), *((1, size // 10) for size in sizes)]

        def killedRun(target, point):
            number, size = point
            path = os.path.join(target.fillerDirectory(), f".temp{number}")
            for _ in range(ATTEMPTS):
                process = self.startWipe(target)
                yield from until(lambda: process.poll() is not None or isPast(path, size), point)
                if process.poll() is None:
                    process.kill()
                    process.wait()
                    break
            return process

        self.sweep(170, LANES_OF_TWO_FILES, points, killedRun)
        print(f"\nkilled at {len(points)} sizes of two files", flush=True)


def until(condition, what):
    """Yields until the condition holds; fails loudly when that never comes."""
    deadline = time.monotonic() + FILL_TIMEOUT_SECONDS
    while not condition():
        assert time.monotonic() < deadline, f"waited in vain for {what}"
        yield


def wipeCommand(target):
    return [program.programPath(), "wipe", target.path, "--method", "1", "--yes", "--json"]


def pathsOf(target):
    return [target.path, target.fillerDirectory(), os.path.join(target.fillerDirectory(), ".temp0")]


def isPast(path, size):
    try:
        return os.stat(path).st_size > size
    except FileNotFoundError:
        return False
