"""Runs of root's on a volume into whose root folder another user writes, renames, links and mounts all the time."""

import collections
import json
import os
import shutil
import stat
import tempfile
import time

from case import FILL_TIMEOUT_SECONDS, SystemTest, everything
from neighbour import Neighbour
from testkit import program, trace
from testkit.program import PLAIN_USER
from testkit.volume import FILLER_NAME, MEGABYTE

# By hand for longer: the races are won more often the longer they are tried.
SECONDS = int(os.environ.get("CALVERO_HOSTILE_SECONDS", "60"))
STICKY, OPEN = 0o1777, 0o777
# How much longer it may take until each way has succeeded at all.
TIMEOUT_SECONDS = 180
WAYS = (("swap",), ("move",), ("plant",), ("swap", "plant"), ("move", "plant"), ("swap", "fill"), ("swap", "remove"),
        ("swap", "mount"))
# Long enough for hundreds of the neighbour's actions behind each of the run's system calls.
DELAY_MICROSECONDS = 3000
# What the neighbour's own entries take meanwhile.
PLANTED_BYTES = MEGABYTE
_SECTOR_BYTES = 512
_ENDED = object()


class Ground:
    """What is precious on the volume and outside of it, and what the neighbour makes use of."""

    def __init__(self, target, outside):
        self._root = target.path
        self._outside = outside
        self._folders = [self._folder("precious", 0o755, 0), self._folder("secret", 0o700, 0)]
        self._folders.append(self._folder("shared", STICKY, 0))
        self._theirs = self._folder("theirs", OPEN, PLAIN_USER)
        self._file("letter", 0o666, 0)
        self._leftFolder()
        self._folder("decoy", OPEN, PLAIN_USER, files=())
        os.symlink("precious", os.path.join(self._root, "link"))
        os.lchown(os.path.join(self._root, "link"), PLAIN_USER, PLAIN_USER)
        self.before = self._state()

    def _path(self, name):
        return os.path.join(self._root, name)

    def _file(self, name, mode, owner):
        with open(self._path(name), "w") as file:
            file.write("precious")
        os.chmod(self._path(name), mode)
        os.chown(self._path(name), owner, owner)

    def _folder(self, name, mode, owner, files=("letter", "diary")):
        """The folder held by a descriptor, under whatever name it is later."""
        os.mkdir(self._path(name))
        for file in files:
            self._file(f"{name}/{file}", 0o644, owner)
        os.chmod(self._path(name), mode)
        os.chown(self._path(name), owner, owner)
        return os.open(self._path(name), os.O_PATH | os.O_DIRECTORY)

    def _leftFolder(self):
        """As an interrupted run leaves it, but that somebody has opened it to everybody since."""
        os.close(self._folder("left", OPEN, 0, files=(".temp0", ".temp2")))
        os.mknod(self._path("left/.temp3"), stat.S_IFCHR | 0o600, os.makedev(1, 3))

    def _state(self):
        state = [everything(self._outside), *map(_held, self._folders)]
        # A folder of the neighbour's own he may fill as he likes, but not change what he keeps in it.
        kept = _held(self._theirs)[1]
        state.append({name: about for name, about in kept.items() if name in ("letter", "diary")})
        about = os.lstat(self._path("letter"))
        with open(self._path("letter")) as file:
            state.append((about.st_mode, about.st_uid, about.st_nlink, about.st_size, about.st_mtime_ns, file.read()))
        return state

    def stateNow(self):
        """Once the neighbour has gone: his own entries, among them second names of files, are cleared away first."""
        kept = {"letter"}
        for number, folder in enumerate((*self._folders, self._theirs)):
            where = os.readlink(_pathOf(folder).rstrip("/"))
            if os.path.lexists(where):
                kept.add(f"kept{number}")
                os.rename(where, self._path(f"kept{number}"))
        for name in os.listdir(self._root):
            if name not in kept:
                _remove(self._path(name))
        for name in os.listdir(_pathOf(self._theirs)):
            if name not in ("letter", "diary"):
                _remove(os.path.join(_pathOf(self._theirs), name))
        return self._state()

    def clear(self):
        for folder in (*self._folders, self._theirs):
            os.close(folder)
        for name in os.listdir(self._root):
            _remove(self._path(name))


def _pathOf(descriptor):
    return f"/proc/self/fd/{descriptor}/"


def _held(descriptor):
    about = os.fstat(descriptor)
    entries = everything(_pathOf(descriptor))
    return ((about.st_mode, about.st_uid, about.st_nlink, about.st_mtime_ns),
            {os.path.basename(path): entry for path, entry in entries.items()})


def _remove(path):
    if stat.S_ISDIR(os.lstat(path).st_mode):
        shutil.rmtree(path)
    else:
        os.unlink(path)


def bytesWrittenTo(target):
    device = os.stat(target.path).st_dev
    with open(f"/sys/dev/block/{os.major(device)}:{os.minor(device)}/stat") as figures:
        return int(figures.read().split()[6]) * _SECTOR_BYTES


class HostileNeighbour(SystemTest):
    def setUp(self):
        self.successes = collections.Counter()
        self.exits = collections.Counter()
        self.reasons = collections.Counter()

    def outsideFolder(self):
        folder = tempfile.mkdtemp(prefix="calvero-precious-")
        self.addCleanup(shutil.rmtree, folder)
        os.chmod(folder, 0o755)
        for name, mode, owner in (("letter", 0o666, 0), ("mine", 0o600, PLAIN_USER)):
            path = os.path.join(folder, name)
            with open(path, "w") as file:
                file.write("precious")
            os.chmod(path, mode)
            os.chown(path, owner, owner)
        return folder

    def attackedRuns(self, mode, slowed, until):
        """Runs on a volume of its own, one after the other; yields while one is under way."""
        target = self.makeVolume("ext4", 16)
        os.rmdir(os.path.join(target.path, "lost+found"))
        os.chmod(target.path, mode)
        outside = self.outsideFolder()
        number = 0
        while time.monotonic() < until or number < len(WAYS) or not (self.isAllMet() or self.isOverdue(until)):
            ways = WAYS[number % len(WAYS)]
            yield from self.attackedRun(target, outside, ways, slowed)
            number += 1

    def isAllMet(self):
        """Whether each kind of attack has succeeded, and runs were finished and refused."""
        return all((*self.successes.values(), self.exits[program.EXIT_FINISHED], self.exits[program.EXIT_REFUSED]))

    def isOverdue(self, until):
        return time.monotonic() > until + TIMEOUT_SECONDS

    def attackedRun(self, target, outside, ways, slowed):
        ground = Ground(target, outside)
        writtenBefore = bytesWrittenTo(target)
        neighbour = Neighbour(target.path, outside, ways)
        try:
            process = self.startCommand(self.wipeCommand(target, slowed))
            deadline = time.monotonic() + FILL_TIMEOUT_SECONDS
            while process.poll() is None:
                self.assertLess(time.monotonic(), deadline, ways)
                yield
        finally:
            neighbour.stop()
        ended = self.finish(process)
        self.successes.update(neighbour.successes)
        self.exits[ended[0]] += 1
        self.reasons[ended[0], ended[2].replace(target.path, "").strip()] += 1
        self.assertEqual(ground.stateNow(), ground.before, (ways, ended))
        self.checkEnd(*ended, bytesWrittenTo(target) - writtenBefore)
        ground.clear()

    def wipeCommand(self, target, slowed):
        command = [program.programPath(), "wipe", target.path, "--method", "1", "--yes", "--json"]
        paths = [target.path, target.fillerDirectory(), FILLER_NAME]
        return trace.delaying(command, paths, DELAY_MICROSECONDS) if slowed else command

    def checkEnd(self, code, output, errors, writtenBytes):
        """Nothing but the truth, whatever has become of the run."""
        self.assertIn(code, (program.EXIT_FINISHED, program.EXIT_FAILED, program.EXIT_REFUSED), (output, errors))
        report = json.loads(output)
        self.assertEqual(report["exitCode"], code)
        if code == program.EXIT_FINISHED:
            self.assertEqual((report["outcome"], report["faults"]), ("finished", 0))
            for covered in (report["bytesCovered"], writtenBytes):
                self.assertGreater(covered, report["freeBytes"] - PLANTED_BYTES, (output, errors))
        else:
            self.assertIn("calvero-cli: ", errors)
            self.assertNotIn("Another run", errors)

    def testNothingPreciousIsTouchedAndEveryRunTellsTheTruth(self):
        until = time.monotonic() + SECONDS
        running = [self.attackedRuns(mode, slowed, until) for mode, slowed in self.kindsOfRuns()]
        while running:
            running = [runs for runs in running if next(runs, _ENDED) is not _ENDED]
            time.sleep(0.01)
        self.report()
        for kind, number in self.successes.items():
            self.assertGreater(number, 0, kind)
        self.assertGreater(self.exits[program.EXIT_FINISHED], 0)
        self.assertGreater(self.exits[program.EXIT_REFUSED], 0)

    def kindsOfRuns(self):
        kinds = [(STICKY, False), (OPEN, False)]
        return [*kinds, (OPEN, True)] if trace.available() else kinds

    def report(self):
        print(f"\n{sum(self.exits.values())} runs; by exit code: {dict(sorted(self.exits.items()))}")
        for (code, reason), number in sorted(self.reasons.items()):
            print(f"{number:10} with {code}: {reason}")
        for kind, number in sorted(self.successes.items()):
            print(f"{number:10} {kind}")

