"""Finds the programs, and runs calvero-cli: to its end, in the background, on a terminal of its own, under strace."""

import ctypes
import fcntl
import os
import pty
import select
import shutil
import signal
import subprocess
import tempfile
import termios
import time

PLAIN_USER = 65534
_PR_SET_PDEATHSIG = 1
EXIT_FINISHED, EXIT_FAILED, EXIT_WRONG_USAGE, EXIT_REFUSED, EXIT_CANCELLED = range(5)


def programPath():
    return _namedBy("CALVERO_CLI", "calvero-cli")


def windowProgramPath():
    return _namedBy("CALVERO", "calvero")


def _namedBy(variable, name):
    path = os.environ.get(variable, "")
    if not os.access(path, os.X_OK):
        raise SystemExit(f"{variable} must name the {name} program")
    return os.path.abspath(path)


class PublicCopy:
    """A copy of a program, calvero-cli unless another is named, that every user may start, wherever it lies."""

    def __init__(self, path=None):
        self._folder = tempfile.mkdtemp(prefix="calvero-program-")
        os.chmod(self._folder, 0o755)
        self.path = shutil.copy(path or programPath(), self._folder)
        os.chmod(self.path, 0o755)

    def remove(self):
        shutil.rmtree(self._folder)


def endWithParent():
    """In a child that is about to become the program: a killed test or demonstration leaves no run behind."""
    ctypes.CDLL(None).prctl(_PR_SET_PDEATHSIG, signal.SIGKILL)


def startedAs(plainUser):
    """Options for subprocess."""
    options = {"preexec_fn": endWithParent}
    return options | {"user": PLAIN_USER, "group": PLAIN_USER, "extra_groups": []} if plainUser else options


def hasLeft(process):
    """Whether it has ended, but for threads that the kernel holds until a medium answers."""
    return process.poll() is not None or stateOf(process) == "Z"


def stateOf(process):
    """R, S, D, Z or another of the kernel's letters for the first thread of a process that was not waited for yet."""
    with open(f"/proc/{process.pid}/stat") as file:
        return file.read().rpartition(")")[2].split()[0]


def otherThreads(process):
    """The threads of a process but its first: the name of each, and the signals that it leaves to others."""
    threads = []
    for task in os.listdir(f"/proc/{process.pid}/task"):
        try:
            with open(f"/proc/{process.pid}/task/{task}/status") as file:
                status = dict(line.split(":", 1) for line in file)
        except (FileNotFoundError, ProcessLookupError):  # it ended before the file was opened, or before it was read
            continue
        blocked = int(status["SigBlk"], base=16)
        if int(task) != process.pid:
            threads.append((status["Name"].strip(), {s for s in signal.Signals if blocked >> (s - 1) & 1}))
    return threads


def waitUntil(condition, what, seconds=60):
    """Polls `condition` and returns its first true value; fails loudly when it never comes."""
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        if value := condition():
            return value
        time.sleep(0.002)
    raise AssertionError(f"waited {seconds} s in vain: {what}")


class TerminalProgram:
    """A program whose standard streams are a terminal of its own; remembers what it printed, and when."""

    def __init__(self, command, columns=80, term="xterm", env=None, plainUser=False):
        self._controller, terminal = pty.openpty()
        fcntl.ioctl(terminal, termios.TIOCSWINSZ, bytes((24, 0, columns, 0, 0, 0, 0, 0)))

        def takeTerminal():
            endWithParent()
            fcntl.ioctl(0, termios.TIOCSCTTY, 0)

        self.process = subprocess.Popen(
            command, stdin=terminal, stdout=terminal, stderr=terminal, env=os.environ | {"TERM": term} | (env or {}),
            start_new_session=True, **startedAs(plainUser) | {"preexec_fn": takeTerminal})
        os.close(terminal)
        self.reads = []  # (seconds, bytes)
        self._answered = 0

    @property
    def text(self):
        return b"".join(data for _, data in self.reads).decode(errors="replace")

    def readSome(self, seconds):
        """Reads what there is within `seconds`; False at the end of the output."""
        if not select.select([self._controller], [], [], seconds)[0]:
            return True
        try:
            data = os.read(self._controller, 65536)
        except OSError:  # EIO: the program has closed its end
            return False
        self.reads.append((time.monotonic(), data))
        return bool(data)

    def readUntil(self, words, seconds=60):
        """Waits for `words` to be printed after the last answer."""
        deadline = time.monotonic() + seconds
        while words not in self.text[self._answered:]:
            if time.monotonic() > deadline or not self.readSome(0.1):
                raise AssertionError(f"{words!r} never came; printed: {self.text!r}")

    def answer(self, line):
        """Once the program waits: ThreadSanitizer's own runtime loses a signal that comes as a first wait begins."""
        waitUntil(lambda: stateOf(self.process) != "R", "the program waiting for an answer")
        self.answerAtOnce(line)

    def answerAtOnce(self, line):
        self._answered = len(self.text)
        os.write(self._controller, line.encode() + b"\n")

    def waitForEnd(self, seconds=120):
        deadline = time.monotonic() + seconds
        while self.readSome(0.1):
            if time.monotonic() > deadline:
                self.close()
                raise AssertionError(f"still running after {seconds} s; printed: {self.text!r}")
        return self.process.wait(timeout=30)

    def close(self):
        if self.process.poll() is None:
            self.process.send_signal(signal.SIGKILL)
            self.process.wait()
        if self._controller is not None:
            os.close(self._controller)
            self._controller = None
