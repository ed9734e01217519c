"""System calls as strace saw them from outside."""

import collections
import os
import re
import shutil
from dataclasses import dataclass

# What changes a volume, names or opens something on it.
_TRACED = (
    "openat,openat2,open,creat,mkdir,mkdirat,unlink,unlinkat,rmdir,rename,renameat,renameat2,link,linkat,symlink,"
    "symlinkat,mknod,mknodat,truncate,ftruncate,fallocate,write,writev,pwrite64,pwritev,pwritev2,sendfile,"
    "copy_file_range,fsync,fdatasync,sync_file_range,syncfs,setxattr,fsetxattr,chmod,fchmod,fchmodat,chown,fchown,"
    "fchownat,utimensat,io_uring_setup,close"
)
_LOOKS = "openat,statx,mkdirat,flock,getdents64,fchmod,unlinkat"
WRITES = frozenset(
    "write writev pwrite64 pwritev pwritev2 sendfile copy_file_range truncate ftruncate fallocate".split())

_UNFINISHED = " <unfinished ...>"
_RESUMED = re.compile(r"<\.\.\. \w+ resumed>(.*)")
_CALL = re.compile(r"(\w+)\((.*)\)\s+= (-?\d+)")
_BEGUN = re.compile(r"(\d+)\s+(\w+)\(")
_DESCRIPTOR = re.compile(r"(-?\d+|AT_FDCWD)<([^>]*)>")
_WRITE = re.compile(r'"((?:[^"\\]|\\.)*)"(?:\.\.\.)?, (\d+), (\d+)$')


@dataclass(frozen=True)
class Call:
    name: str
    arguments: str
    result: int

    @property
    def descriptor(self):
        """Number and path of the first descriptor."""
        match = _DESCRIPTOR.match(self.arguments)
        return (match[1], match[2]) if match else ("", "")

    @property
    def path(self):
        return self.descriptor[1]

    @property
    def positionedWrite(self):
        """First bytes, length and offset of a pwrite64."""
        match = _WRITE.search(self.arguments)
        return match[1].encode().decode("unicode_escape").encode("latin-1"), int(match[2]), int(match[3])


def available():
    return shutil.which("strace") is not None


def _sanitizerOptions():
    # The leak check of a sanitized program is a tracer itself, and there can be but one.
    return (os.environ.get("ASAN_OPTIONS", "") + ":detect_leaks=0").lstrip(":")


# A tracer that is killed with its test would leave the program behind.
_ENDS_WITH_TRACER = ["setpriv", "--pdeathsig", "KILL", "--"]


def command(outputPath, program):
    return ["strace", "-f", "--seccomp-bpf", "-y", "-x", "-s", "8", "-qq", "-e", f"trace={_TRACED}",
            "-e", "signal=none", "-E", f"ASAN_OPTIONS={_sanitizerOptions()}", "-o", outputPath,
            "--", *_ENDS_WITH_TRACER, *program]


def _tracing(outputPath, program, paths, *options):
    # Not with --seccomp-bpf, under which no signal is delivered.
    ofPaths = [option for path in paths for option in ("-P", path)]
    return ["strace", "-f", "-qq", *ofPaths, *options, "-E", f"ASAN_OPTIONS={_sanitizerOptions()}", "-o", outputPath,
            "--", *_ENDS_WITH_TRACER, *program]


def noting(outputPath, program, paths):
    """A command that runs the program and notes every call on those paths: see `points`."""
    return _tracing(outputPath, program, paths, "-e", "signal=none")


@dataclass(frozen=True)
class Point:
    """A place in a program's run: the system call of that name that is some thread's `number`th on the traced paths.
    A path is that of a descriptor, or what is written in the call."""

    name: str
    number: int


def _at(point, signalName):
    return ["-e", f"inject={point.name}:signal={signalName}:when={point.number}"]


def killing(outputPath, program, paths, point):
    """A command that runs the program and kills it on its way into a call; it ends as the program does."""
    return _tracing(outputPath, program, paths, *_at(point, "KILL"))


def stopping(outputPath, program, paths, point):
    """A command that becomes the program, which stops, as by SIGSTOP, once a call is done: see `isStopped`. Every
    thread that gets there stops it."""
    return _tracing(outputPath, program, paths, "-D", *_at(point, "STOP"))


def delaying(program, paths, microseconds, calls=_LOOKS):
    """A command that runs the program and halts it for a moment behind each call on those paths that looks for, makes
    or removes something, or that is one of `calls`; it ends as the program does."""
    return _tracing(os.devnull, program, paths, "-e", f"inject={calls}:delay_exit={microseconds}", "-e", "signal=none")


def isStopped(outputPath):
    try:
        with open(outputPath, errors="replace") as lines:
            return "--- stopped by SIGSTOP ---" in lines.read()
    except FileNotFoundError:
        return False


def points(outputPath):
    """Where a program whose calls `noting` has noted can be stopped or killed, in their order."""
    counts = collections.Counter()
    found = {}
    with open(outputPath, errors="replace") as lines:
        for line in lines:
            if match := _BEGUN.match(line):
                counts[match[1], match[2]] += 1
                found.setdefault(Point(match[2], counts[match[1], match[2]]))
    return list(found)


def calls(outputPath):
    """The calls in the order in which they ended."""
    begun = {}
    found = []
    with open(outputPath, errors="replace") as lines:
        for line in lines:
            thread, _, rest = line.rstrip("\n").partition(" ")
            rest = rest.lstrip()
            if rest.endswith(_UNFINISHED):
                begun[thread] = rest.removesuffix(_UNFINISHED)
                continue
            if resumed := _RESUMED.match(rest):
                rest = begun.pop(thread, "") + resumed[1]
            if match := _CALL.match(rest):
                found.append(Call(match[1], match[2], int(match[3])))
    return found


def under(path, folder):
    return path == folder or path.startswith(folder + os.sep)
