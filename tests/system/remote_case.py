"""What the tests of ordered runs share: an order with a store, a home and perhaps a session bus of its own, and the
program that carries it out, on no display unless it is given one."""

import concurrent.futures
import contextlib
import os
import pathlib
import re
import shutil
import signal
import subprocess
import tempfile
import time

from case import NOTICED_WITHIN_SECONDS, SystemTest
from tag_store import STORE_VARIABLE, Tags
from testkit import program
from testkit.program import startedAs
from testkit.volume import FILLER_NAME, protectDisks

BUS_VARIABLE = "DBUS_SESSION_BUS_ADDRESS"
FINISHED, FAILED = "2", "3"
RUN_SECONDS = 120
# The time to read of the end of a run and of a cancel. What is late in seeing its beginning sees less of it; without it
# there would be nothing.
PAUSE_SECONDS, ABORT_PAUSE_SECONDS = 7, 3
TOLERANCE_SECONDS = 2
NOTIFICATION = ("dbus-send", "--session", "--type=signal", "/com/OndrelSoftware/Notifications",
                "com.OndrelSoftware.Notifications.Posted")
_FOREIGN_VARIABLES = ("DBUS_", "DISPLAY", "LANG", "LC_", "QT_", "WAYLAND_", "XAUTHORITY", "XDG_")
_MANUAL = pathlib.Path(__file__).resolve().parents[2] / "docs" / "remote.md"


def documentedCancels():
    """The commands that docs/remote.md gives to call a run off."""
    return re.findall(r"```sh\n(.*?)\n```", _MANUAL.read_text(), re.DOTALL)


class Order:
    """An order for the volume of that name; `method` may be left out of it."""

    def __init__(self, folder, volumeName, method="1", plainUser=False):
        self.folder = folder
        self.plainUser = plainUser
        self.tags = Tags(os.path.join(folder, "tags.sqlite"))
        self.env = {name: value for name, value in os.environ.items() if not name.startswith(_FOREIGN_VARIABLES)}
        self.env |= {"HOME": folder, "LANG": "C.UTF-8", "XDG_RUNTIME_DIR": folder, STORE_VARIABLE: self.tags.path}
        self.process = None
        self.tags.set(cvrOnline="1", cvrDrive=volumeName, **({} if method is None else {"cvrAlgo": method}))

    def start(self, command):
        self._log = os.path.join(self.folder, "printed")
        with open(self._log, "wb") as log:
            self.process = subprocess.Popen(command, env=self.env, stdin=subprocess.DEVNULL, stdout=log, stderr=log,
                                            **startedAs(self.plainUser))

    @property
    def status(self):
        return self.tags.read().get("cvrStatus")

    def waitForStatus(self, seconds=RUN_SECONDS):
        """Returns the status and when it was there."""
        return program.waitUntil(lambda: self.status, "a status", seconds), time.monotonic()

    def waitForEnd(self, seconds=NOTICED_WITHIN_SECONDS):
        """Returns the exit code and what was printed."""
        try:
            self.process.wait(timeout=seconds)
        except subprocess.TimeoutExpired:
            raise AssertionError(f"still running after {seconds} s; tags: {self.tags.read()}") from None
        with open(self._log, errors="replace") as log:
            return self.process.returncode, log.read()

    def notify(self, *texts):
        """Posts a notification of those texts in the order's session."""
        subprocess.run([*NOTIFICATION, *(f"string:{text}" for text in texts)], env=self.env, check=True, timeout=20)

    def close(self):
        if self.process is not None and self.process.poll() is None:
            self.process.kill()
            self.process.wait()


class RemoteTest(SystemTest):
    def setUp(self):
        if os.geteuid() == 0:
            protectDisks()

    def makeFolder(self, plainUser=False):
        folder = tempfile.mkdtemp(prefix="calvero-remote-")
        if plainUser:
            os.chown(folder, program.PLAIN_USER, program.PLAIN_USER)
        # The program may still be ending in a test that failed.
        self.addCleanup(shutil.rmtree, folder, ignore_errors=True)
        return folder

    def makeOrder(self, target, method="1", plainUser=False):
        """An order that nothing carries out yet; `target` is a volume or a name."""
        order = Order(self.makeFolder(plainUser), getattr(target, "name", target), method, plainUser)
        if plainUser:
            os.chown(order.tags.path, program.PLAIN_USER, program.PLAIN_USER)
        self.addCleanup(order.close)
        return order

    def startOrder(self, target, method="1", **options):
        order = self.makeOrder(target, method, **options)
        order.start([self.windowProgramFor(order.plainUser)])
        return order

    def besideEachOther(self, check, items):
        """Calls `check` with each item, all at once, since it mostly waits. It must start no program of the test's:
        those end with the thread that has started them."""
        with concurrent.futures.ThreadPoolExecutor(len(items)) as pool:
            for item, checked in [(item, pool.submit(check, *item)) for item in items]:
                with self.subTest(item[0]):
                    checked.result()

    def startBus(self, order):
        """A session bus for the order, before its program is started; returns its process."""
        if shutil.which("dbus-daemon") is None or shutil.which("dbus-send") is None:
            self.skipTest("dbus-daemon and dbus-send are not installed")
        path = os.path.join(order.folder, "bus")
        bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--nopidfile", f"--address=unix:path={path}"],
                               stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **startedAs(plainUser=False))
        self.addCleanup(bus.wait)
        self.addCleanup(bus.kill)
        program.waitUntil(lambda: os.path.exists(path), "the session bus", seconds=20)
        order.env[BUS_VARIABLE] = f"unix:path={path}"
        return bus

    def startWithBus(self, target, method="1"):
        order = self.makeOrder(target, method)
        self.startBus(order)
        order.start([self.windowProgramFor(order.plainUser)])
        return order

    def waitUntilWriting(self, target, seconds=60):
        first = os.path.join(target.path, FILLER_NAME, ".temp0")
        program.waitUntil(lambda: os.path.exists(first) and sizeOf(first) > 0, "the first filler file's data", seconds)

    def waitUntilRemoved(self, target, seconds=RUN_SECONDS):
        """Waits for the end of a run's clean-up; returns when it was."""
        program.waitUntil(lambda: not os.path.lexists(target.fillerDirectory()), "the clean-up", seconds)
        return time.monotonic()

    def assertEndedSilently(self, order, code, seconds=NOTICED_WITHIN_SECONDS):
        self.assertEqual(order.waitForEnd(seconds), (code, ""))

    def assertStillWriting(self, order, target):
        self.assertIsNone(order.process.poll(), order.tags.read())
        self.assertTrue(os.path.lexists(target.fillerDirectory()))
        self.assertIsNone(order.status)

    def expectFinish(self, order, target, seconds=RUN_SECONDS):
        self.assertEqual(order.waitForStatus(seconds)[0], FINISHED)
        self.assertEndedSilently(order, program.EXIT_FINISHED)
        self.assertEqual(order.status, FINISHED)
        self.assertNothingLeft(target)

    def expectAbort(self, order, target=None, seconds=NOTICED_WITHIN_SECONDS):
        """Waits for a cancelled run's status, and for the end after the time to read the message."""
        status, when = order.waitForStatus(seconds)
        self.assertEqual(status, FAILED)
        self.assertEndedSilently(order, program.EXIT_CANCELLED)
        lasted = time.monotonic() - when
        self.assertGreater(lasted, ABORT_PAUSE_SECONDS - TOLERANCE_SECONDS)
        self.assertEqual(order.status, FAILED)
        if target is not None:
            self.assertNothingLeft(target)


def sizeOf(path):
    try:
        return os.stat(path).st_size
    except FileNotFoundError:
        return 0


def processesOf(path):
    """Those that were started from that file, or from any in that folder."""
    found = []
    for entry in filter(str.isdigit, os.listdir("/proc")):
        with contextlib.suppress(OSError):
            started = os.readlink(f"/proc/{entry}/exe")
            if started == path or started.startswith(path + os.sep):
                found.append(int(entry))
    return found


def killProgramsOf(folder):
    """Kills what was started from that folder and has a session of its own."""
    for process in processesOf(folder):
        with contextlib.suppress(OSError):
            os.kill(process, signal.SIGKILL)
