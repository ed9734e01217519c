"""System calls as strace saw them from outside."""

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
WRITES = frozenset(
    "write writev pwrite64 pwritev pwritev2 sendfile copy_file_range truncate ftruncate fallocate".split())

_UNFINISHED = " <unfinished ...>"
_RESUMED = re.compile(r"<\.\.\. \w+ resumed>(.*)")
_CALL = re.compile(r"(\w+)\((.*)\)\s+= (-?\d+)")
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


def command(outputPath, program):
    # The leak check of a sanitized program is a tracer itself, and there can be but one.
    sanitizer = os.environ.get("ASAN_OPTIONS", "") + ":detect_leaks=0"
    return ["strace", "-f", "--seccomp-bpf", "-y", "-x", "-s", "8", "-qq", "-e", f"trace={_TRACED}",
            "-e", "signal=none", "-E", f"ASAN_OPTIONS={sanitizer.lstrip(':')}", "-o", outputPath, "--", *program]


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
