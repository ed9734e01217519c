"""Another user of the machine who does to a volume whatever he can, as fast as he can, while a run is under way."""

import collections
import ctypes
import functools
import itertools
import multiprocessing
import os
import signal
import stat

from testkit.program import PLAIN_USER, endWithParent
from testkit.volume import FILLER_NAME

_EXCHANGE = 2  # of renameat2
_AT_FDCWD = -100
_CLONE_NEWUSER, _CLONE_NEWNS = 0x10000000, 0x00020000
_MS_BIND, _MNT_DETACH = 4096, 2
_EVERYBODY = 0o777
_NEW_FILE = os.O_CREAT | os.O_EXCL | os.O_WRONLY | os.O_CLOEXEC

_LEFT_FILLERS = (0, 2, 3)

_libc = ctypes.CDLL(None)


class Neighbour:
    """Attacks from processes of its own, one for each way, from construction to `stop`. `successes` counts what
    worked, by kind, but for mounting where users may not.

    In the volume's root folder there are "precious", "secret", "left" and "shared", folders of root's, the last two
    open to everybody and "left" with filler files that a run of root's has left; "theirs" and "decoy", folders of the neighbour's; "link", a symbolic link; "letter", a file that
    he may write to. `outside` is a folder of root's elsewhere."""

    def __init__(self, volumePath, outside, ways):
        fork = multiprocessing.get_context("fork")
        self._over = fork.RawValue("b", 0)
        self._mayNotMount = fork.RawValue("b", 0)
        self._kinds = {way: sorted({kind for kind, _ in _actions(way, outside)}) for way in ways}
        self._counts = {way: fork.RawArray("Q", len(kinds)) for way, kinds in self._kinds.items()}
        self._processes = [fork.Process(target=self._attack, args=(volumePath, outside, way)) for way in ways]
        for process in self._processes:
            process.start()

    def stop(self):
        self._over.value = 1
        for process in self._processes:
            process.join(60)
            if process.exitcode != 0:
                process.kill()
                raise AssertionError(f"a neighbour ended with {process.exitcode}")

    @property
    def successes(self):
        counted = collections.Counter()
        for way, kinds in self._kinds.items():
            if way != "mount" or not self._mayNotMount.value:
                counted.update(dict(zip(kinds, self._counts[way])))
        return counted

    def _attack(self, volumePath, outside, way):
        signal.signal(signal.SIGINT, signal.SIG_IGN)
        os.chdir(volumePath)
        os.setgroups([])
        os.setgid(PLAIN_USER)
        os.setuid(PLAIN_USER)
        os.umask(0)
        endWithParent()
        if way == "mount" and _libc.unshare(_CLONE_NEWUSER | _CLONE_NEWNS) != 0:
            self._mayNotMount.value = 1
            return
        counts, places = self._counts[way], {kind: place for place, kind in enumerate(self._kinds[way])}
        actions = [(places[kind], action) for kind, action in _actions(way, outside)]
        while not self._over.value:
            for place, action in actions:
                if action() == 0:
                    counts[place] += 1


def _exchange(one, other):
    return functools.partial(_libc.renameat2, _AT_FDCWD, one.encode(), _AT_FDCWD, other.encode(), _EXCHANGE)


def _call(function, *arguments):
    return functools.partial(function, *(word.encode() if isinstance(word, str) else word for word in arguments))


def _make(path):
    def make():
        descriptor = _libc.open(path.encode(), _NEW_FILE, _EVERYBODY)
        return -1 if descriptor < 0 else _libc.write(descriptor, b"own", 3) - 3 + _libc.close(descriptor)

    return make


def _special(path, kind):
    return _call(_libc.mknod, path, kind | _EVERYBODY, 0)


def _actions(way, outside):
    return {"swap": _swaps, "move": _moves, "plant": _plants, "fill": _fills, "remove": _removes,
            "mount": _mounts}[way](outside)


def _swaps(outside):
    """Each there and back, so that the names stay with what they name."""
    for name in ("precious", "secret", "left", "theirs", "decoy", "link"):
        yield f"swap with {name}", _exchange(FILLER_NAME, name)
        yield f"swap with {name}", _exchange(FILLER_NAME, name)


def _moves(outside):
    # What is renamed to the folder's name takes the place of one that is empty.
    for name in ("decoy", "left", "precious", "secret"):
        yield "rename it away", _call(_libc.rename, FILLER_NAME, "away")
        yield f"rename {name} to it", _call(_libc.rename, name, FILLER_NAME)
        yield f"rename {name} back", _call(_libc.rename, FILLER_NAME, name)
        yield "rename it back", _call(_libc.rename, "away", FILLER_NAME)
    for name in ("shared", "theirs"):
        yield "swap with left", _exchange(FILLER_NAME, "left")
        yield f"move {name} inside", _call(_libc.rename, name, f"{FILLER_NAME}/{name}")
        yield f"move {name} back", _call(_libc.rename, f"{FILLER_NAME}/{name}", name)
        yield "swap with left", _exchange(FILLER_NAME, "left")


def _plants(outside):
    for path in (FILLER_NAME, FILLER_NAME + "/.temp0", FILLER_NAME + "/.temp1", "decoy/.temp0"):
        where = "inside" if "/" in path else "in its place"
        for target in ("precious", "letter", outside, outside + "/letter", outside + "/mine"):
            leads = os.path.join(".." if "/" in path else ".", target)
            yield f"plant a link {where}", _call(_libc.symlink, leads, path)
            yield f"remove a plant {where}", _call(_libc.unlink, path)
        for kind, make in (("a second name of a file", _call(_libc.link, "letter", path)),
                           ("a pipe", _special(path, stat.S_IFIFO)), ("a socket", _special(path, stat.S_IFSOCK)),
                           ("a file", _make(path))):
            yield f"plant {kind} {where}", make
            yield f"remove a plant {where}", _call(_libc.unlink, path)
        yield f"plant a folder {where}", _call(_libc.mkdir, path, _EVERYBODY)
        yield f"plant a folder with a file {where}", _make(path + "/own")
        yield f"remove a file from a folder {where}", _call(_libc.unlink, path + "/own")
        yield f"remove a folder {where}", _call(_libc.rmdir, path)


def _fills(outside):
    """Empty files without end, named as a run's own, in whatever stands in its place."""
    numbers = itertools.count()
    yield "fill it", lambda: _special(f"{FILLER_NAME}/.temp{next(numbers)}", stat.S_IFREG)()


def _removes(outside):
    for number in _LEFT_FILLERS:
        yield "remove a filler", functools.partial(_removeOfRoot, f"{FILLER_NAME}/.temp{number}")


def _removeOfRoot(path):
    """Not one that a neighbour has put there."""
    try:
        if os.lstat(path).st_uid != 0:
            return -1
        os.unlink(path)
    except OSError:
        return -1
    return 0


def _mounts(outside):
    for source in ("precious", outside):
        yield "mount on it", _call(_libc.mount, source, FILLER_NAME, None, _MS_BIND, None)
        yield "unmount it", _call(_libc.umount2, FILLER_NAME, _MNT_DETACH)
