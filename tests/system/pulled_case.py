"""What the tests of pulled volumes share: a program that stops in the middle of its run, so that its volume can be
taken from it in any phase, and the ways in which volumes go."""

import os
import signal
import tempfile
import unittest

from case import SystemTest
from testkit import program, trace
from testkit.trace import Point

PHASE_1, PHASE_2, CLEAN_UP = "phase 1", "phase 2", "clean-up"
_VOLUME_MEBIBYTES = 48  # room for one filler file
_FILE = ".temp0"


def _pointIn(phase, target):
    """Where a run on `target` stops, and the path that it has to do with there."""
    if phase is PHASE_1:  # the directory is made, and no file
        return Point("mkdirat", 1), target.path
    if phase is PHASE_2:  # in the middle of the file
        return Point("pwrite64", 100), os.path.join(target.fillerDirectory(), _FILE)
    return Point("unlinkat", 1), _FILE  # the written file's name is removed


@unittest.skipUnless(trace.available(), "strace is not installed")
class PulledTest(SystemTest):
    def makeTarget(self):
        return self.makeVolume("ext4", _VOLUME_MEBIBYTES)

    def makeFuseTarget(self):
        return self.makeFuseVolume(_VOLUME_MEBIBYTES)

    def losses(self, phase):
        """Each way in which a volume goes: its name, a volume, and what takes it away."""
        taken, dead, failed, locked = self.makeTarget(), self.makeFuseTarget(), self.makeTarget(), self.makeTarget()
        ways = [("taken out of the tree", taken, taken.detach),
                ("its file system died", dead, dead.die),
                # As the file system itself does on a damaged medium.
                ("turned read-only by an error", failed, lambda: failed.remount("abort"))]
        if phase is PHASE_1:  # later the run's open files forbid it
            ways.append(("turned read-only by somebody", locked, lambda: locked.remount("ro")))
        return ways

    def stopping(self, command, target, phase):
        """The command as one that stops in that phase of its run on `target`, and what waits for that."""
        point, at = _pointIn(phase, target)
        return self.stoppingAt(point, [at], command)

    def stoppingAt(self, point, paths, command):
        handle, path = tempfile.mkstemp(prefix="calvero-stop-")
        os.close(handle)
        self.addCleanup(os.remove, path)

        def waitUntilStopped():
            program.waitUntil(lambda: trace.isStopped(path), "the program stopping in the middle of its run", 120)

        return trace.stopping(path, command, paths, point), waitUntilStopped

    def goOn(self, process):
        process.send_signal(signal.SIGCONT)
