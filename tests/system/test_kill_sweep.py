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

# Runs spend most of their time in pauses, so many go on beside each other, each on a volume of its own.
LANES_OF_SMALL_FILES, LANES_OF_TWO_FILES = 20, 4
MOST_POINTS_OF_A_CALL, SIZES_KILLED_AT = 30, 20
LEAST_POINTS = 200
SMALL_FILE_BYTES = 100_000  # of the program with small filler files
SMALL_VOLUME_MEBIBYTES, TWO_FILES_MEBIBYTES = 3, 170
KEPT_FILES = 10
ATTEMPTS = 5  # a busy machine may look at a file too late
# What a file system takes for the directory itself.
DIRECTORY_SLACK_BYTES = 32 * 1024
_ENDED = object()


class Sweep:
    """Runs of one program on volumes of one size that are killed at one of the points each. `killedRun` starts a run
    on a volume and waits for its end by yielding as long as it lasts."""

    def __init__(self, test, programPath, mebibytes, fillerBytes):
        self._test = test
        self._program = programPath
        self._mebibytes = mebibytes
        self._fillerBytes = fillerBytes

    def command(self, target):
        return [self._program, "wipe", target.path, "--method", "1", "--yes", "--json"]

    def makeTarget(self):
        target = self._test.makeVolume("ext4", self._mebibytes)
        target.kept = KeptFiles(target.path, KEPT_FILES)
        target.entries = everything(os.path.join(target.path, "kept"))
        target.freeBefore = target.freeBytes()
        return target

    def lanes(self, number, points, killedRun):
        left = iter(points)
        return [self._lane(self.makeTarget(), left, killedRun) for _ in range(number)]

    def _lane(self, target, points, killedRun):
        test = self._test
        for point in points:
            process = yield from killedRun(target, point)
            test.assertEqual(process.returncode, -signal.SIGKILL, point)
            self._checkKilled(target, point)
            following = test.startCommand(self.command(target))
            yield from until(lambda: following.poll() is not None, "the end of the next run")
            code, output, errors = test.finish(following)
            test.assertEqual(code, program.EXIT_FINISHED, (point, output, errors))
            test.assertNothingLeft(target)
            test.assertUnchanged(target, point)
            test.assertFreeAgain(target, target.freeBefore, DIRECTORY_SLACK_BYTES)

    def _checkKilled(self, target, point):
        self._test.assertUnchanged(target, point)
        self._test.assertFreeAgain(target, target.freeBefore - self._fillerBytes, DIRECTORY_SLACK_BYTES)
        written = [name for name in fillerNames(target)
                   if os.stat(os.path.join(target.fillerDirectory(), name)).st_blocks]
        self._test.assertLessEqual(len(written), 1, (point, written))


class KillSweep(SystemTest):
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
    def testARunKilledAnywhereLeavesWhatTheNextOneCleansUp(self):
        scaled = os.environ.get("CALVERO_CLI_SCALED")
        if not scaled:
            self.skipTest("the program with small filler files is not built")
        calls, lanesAtCalls = self.lanesAtCalls(Sweep(self, scaled, SMALL_VOLUME_MEBIBYTES, SMALL_FILE_BYTES))
        sizes, lanesAtSizes = self.lanesAtSizes(
            Sweep(self, program.programPath(), TWO_FILES_MEBIBYTES, FILLER_BYTES))
        running = lanesAtSizes + lanesAtCalls
        while running:
            running = [lane for lane in running if next(lane, _ENDED) is not _ENDED]
            time.sleep(0.002)
        print(f"\nkilled at {len(calls)} system calls and {len(sizes)} sizes of two files", flush=True)
        self.assertGreaterEqual(len(calls) + len(sizes), LEAST_POINTS)

    def lanesAtCalls(self, sweep):
        """At every system call of a run, but of those that are made again and again only at some."""
        notes = self.newFile()

        def killedRun(target, point):
            process = self.startCommand(trace.killing(notes, sweep.command(target), pathsOf(target), point))
            yield from until(lambda: process.poll() is not None, "the end of the killed run")
            return process

        points = self.pointsOfARun(sweep, notes)
        return points, sweep.lanes(LANES_OF_SMALL_FILES, points, killedRun)

    def pointsOfARun(self, sweep, notes):
        target = sweep.makeTarget()
        ended = self.runCommand(trace.noting(notes, sweep.command(target), pathsOf(target)))
        self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
        found = trace.points(notes)
        names = sorted({point.name for point in found})
        self.assertLess({"mkdirat", "flock", "openat", "pwrite64", "fsync", "unlinkat", "close"}, set(names))
        return [point for name in names for point in spread([point for point in found if point.name == name])]

    def lanesAtSizes(self, sweep):
        sizes = range(0, FILLER_BYTES, FILLER_BYTES // SIZES_KILLED_AT * 2)
        points = [*((0, size) for size in sizes), *((1, size // 10) for size in sizes)]

        def killedRun(target, point):
            number, size = point
            path = os.path.join(target.fillerDirectory(), f".temp{number}")
            for _ in range(ATTEMPTS):
                process = self.startCommand(sweep.command(target))
                yield from until(lambda: process.poll() is not None or isPast(path, size), point)
                if process.poll() is None:
                    process.kill()
                    process.wait()
                    break
            return process

        return points, sweep.lanes(LANES_OF_TWO_FILES, points, killedRun)


def spread(points):
    """So many of them, spread evenly, but for the very last ones: how often a volume takes a block more, or a run looks
    at it once more, is not the same each time."""
    if len(points) <= MOST_POINTS_OF_A_CALL:
        return points
    reached = points[:int(0.95 * len(points))]
    return reached[::-(-len(reached) // MOST_POINTS_OF_A_CALL)]


def until(condition, what):
    """Yields until the condition holds; fails loudly when that never comes."""
    deadline = time.monotonic() + FILL_TIMEOUT_SECONDS
    while not condition():
        assert time.monotonic() < deadline, f"waited in vain for {what}"
        yield


def pathsOf(target):
    names = (f".temp{number}" for number in range(target.freeBefore // SMALL_FILE_BYTES + 1))
    return [target.path, target.fillerDirectory(), *(os.path.join(target.fillerDirectory(), name) for name in names)]


def isPast(path, size):
    try:
        return os.stat(path).st_size > size
    except FileNotFoundError:
        return False
