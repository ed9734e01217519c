#!/usr/bin/env python3
"""Shows on a throwaway volume what a wipe leaves readable. Ends non-zero if that is more than it should be."""

import argparse
import os
import shutil
import signal
import subprocess
import sys

from testkit import scratch
from testkit.marks import KeptFiles, MarkedData
from testkit.program import endWithParent, programPath
from testkit.volume import MEBIBYTE, MEGABYTE, Unavailable, Volume

VOLUME_BYTES = 400 * MEGABYTE // MEBIBYTE * MEBIBYTE
SETTLED_SLACK_BYTES = 4 * MEGABYTE
EXIT_UNAVAILABLE = 3


def reserveBytes(volume):
    """What the file system keeps back for itself and gives to nobody, so that no program can overwrite it."""
    figures = os.statvfs(volume.path)
    if volume.fs == "ext4":  # 2 % of the clusters, at most 4096 of them, against running dry while it writes back
        return min(figures.f_blocks // 50, 4096) * figures.f_frsize
    if volume.fs == "xfs":  # 5 % of the blocks, at most 8192 of them, for the same purpose
        return min(figures.f_blocks // 20, 8192) * figures.f_frsize
    return MEGABYTE // 10  # Btrfs reserves metadata only; what may remain is the tail of a metadata block


def asMegabytes(number):
    return f"{number / MEGABYTE:.2f} MB"


class OneLineParser(argparse.ArgumentParser):
    def error(self, message):
        self.exit(2, f"{self.prog}: {message}; see {self.prog} --help\n")


def arguments():
    parser = OneLineParser(prog="./run demo", description=__doc__)
    parser.add_argument("--fs", choices=("ext4", "xfs", "btrfs"), default="ext4")
    parser.add_argument("--method", choices=tuple("123456789"), default="1", metavar="N",
                        help="erase method, 1 to 9 (default: 1)")
    return parser.parse_args()


def becomeRoot():
    if os.geteuid() == 0:
        return
    if shutil.which("sudo") is None:
        sys.exit("The demo mounts a volume of its own and must be run as root.")
    print("The demo mounts a volume of its own and asks for root.", flush=True)
    os.execvp("sudo", ["sudo", "--preserve-env=CALVERO_CLI", sys.executable, *sys.argv])


def prepare(volume):
    """Fills the volume with the user's files and deletes most of them; returns both kinds and what is readable."""
    kept = KeptFiles(volume.path)
    marked = MarkedData(volume.path)
    return kept, marked, marked.leaveDeleted(volume)


def wipe(volume, method):
    process = subprocess.Popen([programPath(), "wipe", volume.path, "--method", method, "--yes"],
                               preexec_fn=endWithParent)
    try:
        return process.wait()
    except KeyboardInterrupt:  # it reached the program too, which is cleaning up
        process.wait()
        raise


def faultsAfter(volume, kept, marked, freeBefore, allowed):
    """Looks at the volume after the run; prints what it finds and returns how many of it is wrong."""
    left = os.path.lexists(volume.fillerDirectory())
    allFree = volume.waitUntilFree(freeBefore - SETTLED_SLACK_BYTES)
    held = freeBefore - volume.freeBytes()
    volume.unmount()
    after = marked.bytesReadable(volume)
    volume.mount("ro")
    changed = kept.differences()
    print(f"Deleted data still readable: {asMegabytes(after)} (the file system itself keeps back up to "
          f"{asMegabytes(allowed)})")
    print(f"Kept files: {kept.count - len(changed)} of {kept.count} unchanged")
    print("Left behind: " + ("the filler directory" if left else "nothing"))
    if not allFree:
        print(f"Space still taken: {asMegabytes(held)}")
    return [after > allowed, bool(changed), left, not allFree].count(True)


def show(fs, method):
    print(f"Making a volume of {asMegabytes(VOLUME_BYTES)} with {fs} in an image file", flush=True)
    with Volume(fs, VOLUME_BYTES) as volume:
        os.chmod(volume.path, 0o755)
        kept, marked, before = prepare(volume)
        print(f"Files written and deleted; readable on the raw medium: {asMegabytes(before)}")
        print(f"Files kept: {kept.count}\n", flush=True)
        if before < volume.sizeBytes // 2:
            sys.exit("The marked data never reached the medium; this demonstration would prove nothing.")
        freeBefore = volume.freeBytes()
        allowed = reserveBytes(volume)
        code = wipe(volume, method)
        print(f"\nThe wipe ended with exit code {code}")
        faults = faultsAfter(volume, kept, marked, freeBefore, allowed)
        if code != 0:
            return code
        print("As it should be." if faults == 0 else "NOT as it should be.")
        return 0 if faults == 0 else 1


def main():
    chosen = arguments()
    programPath()
    becomeRoot()
    scratch.use()
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(128 + signal.SIGTERM))
    try:
        return show(chosen.fs, chosen.method)
    except Unavailable as reason:
        print(f"The demo cannot run here: {reason}", file=sys.stderr)
        return EXIT_UNAVAILABLE
    except KeyboardInterrupt:
        return 128 + signal.SIGINT


if __name__ == "__main__":
    sys.exit(main())
