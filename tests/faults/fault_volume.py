"""A volume whose file system meets one fault, and a whole run on it."""

import ctypes
import json
import os
import shutil
import subprocess
import tempfile
import time
from dataclasses import dataclass

from case import everything
from testkit.program import EXIT_REFUSED, endWithParent, startedAs
from testkit.trace import under
from testkit.volume import FILLER_NAME

FREE_CLUSTERS = 61  # of 4096 bytes: two whole filler files of 100,000 bytes and a part of a third
ENDS_WITHIN_SECONDS = 60
_MNT_DETACH = 2


def whyUnavailable():
    """Why this machine cannot mount such a volume, or None."""
    if os.geteuid() != 0:
        return "mounting a volume needs root"
    if not os.path.exists("/dev/fuse"):
        return "no /dev/fuse"
    return None


@dataclass
class Ended:
    """What a run was seen to do."""
    exitCode: int
    report: dict
    errors: str
    calls: dict  # of each kind, and the file system's other figures
    left: list  # what is still in the filler directory; None without one
    keptUnchanged: bool


class FaultVolume:
    """A folder with kept files, and with the filler directory that an interrupted run of `leftoversOf` left. Each run
    has it mounted anew, by a file system program of its own. Nobody but the run looks at the mount: each call counts.
    """

    def __init__(self, server, folder, leftoversOf=None):
        self._server = server
        self._folder = tempfile.mkdtemp(prefix="calvero-faults-", dir=folder)
        os.chmod(self._folder, 0o755)
        self._behind = os.path.join(self._folder, "behind")
        self.path = os.path.join(self._folder, "volume")
        self._fillers = os.path.join(self._behind, FILLER_NAME)
        os.mkdir(self._behind)
        os.chmod(self._behind, 0o1777)
        os.mkdir(self.path)
        self._keepFiles()
        self._kept = self._keptNow()
        if leftoversOf is not None:
            self._leaveFillers(leftoversOf)

    def _keepFiles(self):
        folder = os.path.join(self._behind, "kept")
        os.mkdir(folder)
        for name, text in (("letter", "Dear reader"), (".temp0", "not a filler file"), ("empty", "")):
            with open(os.path.join(folder, name), "w") as file:
                file.write(text)
        os.link(os.path.join(folder, "letter"), os.path.join(self._behind, "second name"))
        os.symlink("kept/letter", os.path.join(self._behind, "way"))

    def _leaveFillers(self, user):
        os.mkdir(self._fillers, 0o700)
        for number, text in ((0, "zeros"), (1, "")):
            with open(os.path.join(self._fillers, f".temp{number}"), "w") as file:
                file.write(text)
        for path in (self._fillers, *(os.path.join(self._fillers, name) for name in os.listdir(self._fillers))):
            os.chown(path, user, user)

    def run(self, program, method, plainUser, fault=None):
        ledger = os.path.join(self._folder, "ledger")
        with open(ledger, "w"):
            pass  # not the last run's figures again, should the file system fail to leave its own
        server = subprocess.Popen(
            [self._server, self._behind, self.path, str(FREE_CLUSTERS), ledger, *([fault] if fault else [])],
            stdout=subprocess.PIPE, text=True, preexec_fn=endWithParent)
        try:
            if server.stdout.readline() != "mounted\n":
                raise RuntimeError("the file system was not mounted")
            environment = os.environ | {"CALVERO_TAG_STORE": os.path.join(self._folder, "tags.sqlite")}
            ended = subprocess.run(
                [program, "wipe", self.path, "--method", method, "--yes", "--json"], stdin=subprocess.DEVNULL,
                capture_output=True, text=True, timeout=ENDS_WITHIN_SECONDS, cwd="/", env=environment,
                **startedAs(plainUser))
        finally:
            self._unmount(server)
        with open(ledger) as lines:
            calls = {name: int(figure) for name, figure in (line.split() for line in lines)}
        return Ended(ended.returncode, json.loads(ended.stdout or "{}"), ended.stderr, calls, self._left(),
                     self._keptNow() == self._kept)

    def runUndisturbed(self, program, method, plainUser):
        """A run without a fault. On a machine that is too busy to answer a run within its timeout it is refused, and
        is made again."""
        deadline = time.monotonic() + ENDS_WITHIN_SECONDS
        while True:
            ended = self.run(program, method, plainUser)
            isUnanswered = any(words in ended.errors for words in ("its size is not known", "it does not answer"))
            if not (ended.exitCode == EXIT_REFUSED and isUnanswered and time.monotonic() < deadline):
                return ended

    def _unmount(self, server):
        ctypes.CDLL(None).umount2(self.path.encode(), _MNT_DETACH)
        server.communicate(timeout=ENDS_WITHIN_SECONDS)

    def _left(self):
        return sorted(os.listdir(self._fillers)) if os.path.lexists(self._fillers) else None

    def _keptNow(self):
        """All but the filler directory, and the volume's own folder."""
        root = os.lstat(self._behind)
        entries = {path: about for path, about in everything(self._behind).items() if not under(path, self._fillers)}
        return (root.st_mode, root.st_uid, root.st_gid), entries

    def close(self):
        shutil.rmtree(self._folder)
