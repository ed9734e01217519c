"""A desktop of the test's own, and windows driven as a person and a screen reader drive them.

    reason = desktop.whyUnavailable()          # None, or why this machine has no such desktop
    screen = desktop.shared()                  # one per process, started at first use, ended with the process
    with WindowProgram(screen, [path]) as window:               # from testkit.window_program
        window.pressButton("Start")                              # an action, through the accessibility bus
        window.click(window.find("list item", "Volume 1"))       # the real pointer
        window.typeKeys("Tab", "space")                          # the real keyboard
        window.waitForState(window.find("check box", "Agree"), "checked")
        window.find("label", re.compile("%$"), timeout=60)       # waits, or fails with all that is to be seen
        window.closeWindow()
        code, output, errors = window.waitForEnd(10)
    screen.screenshot("all.png")

Roles and states are named as the accessibility bus names them ("push button", "showing"); `window.tree()` prints them.
A press or a key is only sent: what it leads to is then waited for with `find`, `waitForState`, `waitUntilGone`.

The desktop is Xvfb with a window manager, a session bus and an accessibility bus. Nothing of it is shared with the
user's own desktop or with another test's, and nothing is left behind even by `kill -9`: the servers end with this
process, and a watcher then removes their folder. Needs the Python that Debian's python3-pyatspi is installed for.
"""

import atexit
import ctypes
import importlib.util
import os
import secrets
import shlex
import shutil
import signal
import struct
import subprocess
import sys
import tempfile

from testkit.program import PLAIN_USER, startedAs, waitUntil
from testkit.screenshot import savePng

SCREEN = (1280, 800)
TITLE_BAR_CLOSING_BUTTON = 2  # of the mouse
_READY = "{ready}"
_PR_SET_PDEATHSIG = 1
_BUS_LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
_PROGRAMS = ("Xvfb", "openbox", "dbus-daemon", "xdotool", "xwininfo", _BUS_LAUNCHER)
_MODULES = ("gi", "pyatspi")

# What would lead a program back to the user's own desktop, its language or its look.
_FOREIGN_VARIABLES = ("AT_SPI_", "DBUS_", "DESKTOP_", "DISPLAY", "GDK_", "GTK_", "LANG", "LC_", "QT_", "SESSION_",
                      "WAYLAND_", "XAUTHORITY", "XDG_", "XMODIFIERS")

# The bus lets in root too: the tests look at a plain user's desktop from outside.
_BUS_CONFIGURATION = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path={folder}/run/bus</listen>
  <auth>EXTERNAL</auth>
  <servicedir>{folder}/services</servicedir>
  <policy context="default">
    <allow user="root"/>
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""

_BUS_SERVICE = f"[D-BUS Service]\nName=org.a11y.Bus\nExec={_BUS_LAUNCHER}\n"

_WINDOW_MANAGER_CONFIGURATION = """<?xml version="1.0"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew></focus>
  <placement><policy>Smart</policy><center>yes</center></placement>
  <desktops><number>1</number></desktops>
  <keyboard><keybind key="A-F4"><action name="Close"/></keybind></keyboard>
  <mouse>
    <context name="Client">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
    </context>
    <context name="Titlebar">
      <mousebind button="Middle" action="Press"><action name="Close"/></mousebind>
    </context>
  </mouse>
</openbox_config>
"""

# It outlives this process by as long as the servers need to let go of the folder.
_WATCHER = 'read -r _; for i in 1 2 3 4 5 6 7 8 9 10; do rm -rf -- "$1" && exit; sleep 0.2; done 2>/dev/null'


def whyUnavailable():
    """Why there can be no desktop here, or None."""
    for name in _PROGRAMS:
        if shutil.which(name) is None:
            return f"{name} is not installed"
    for name in _MODULES:
        if importlib.util.find_spec(name) is None:
            return f"{sys.executable} has no module {name}"
    return None


def _endServerWithParent():
    """In a child: as endWithParent, but a server is asked to end, so that it removes its sockets and locks."""
    ctypes.CDLL(None).prctl(_PR_SET_PDEATHSIG, signal.SIGTERM)


def _replaceEnvironment(env):
    os.environ.clear()
    os.environ.update(env)


_shared = None


def shared(plainUser=False):
    """The desktop of this process."""
    global _shared
    if _shared is None:
        _shared = Desktop(plainUser)
        atexit.register(_shared.close)
    return _shared


class Desktop:
    """A screen, a window manager and buses. The library behind pyatspi connects once and for all, so that a process
    can use but one desktop; see `shared`. A plain user's belongs to that user, with all that runs on it."""

    _started = False

    def __init__(self, plainUser=False, size=SCREEN):
        if Desktop._started:
            raise RuntimeError("this process has had its desktop; use desktop.shared()")
        Desktop._started = True
        self.size = size
        self.plainUser = plainUser
        self._servers = []
        self._homes = 0
        self.folder = tempfile.mkdtemp(prefix="calvero-desktop-")
        self._giveToUser(self.folder)
        self._watcher = subprocess.Popen(["/bin/sh", "-c", _WATCHER, "watcher", self.folder], stdin=subprocess.PIPE,
                                         start_new_session=True)
        try:
            self._start()
        except BaseException:
            self.close()
            raise

    def _path(self, *names):
        return os.path.join(self.folder, *names)

    def _write(self, name, content):
        with open(self._path(name), "xb") as file:
            file.write(content)
        self._giveToUser(self._path(name))

    def _giveToUser(self, path):
        if self.plainUser:
            os.chown(path, PLAIN_USER, PLAIN_USER)

    def makeFolder(self, path):
        os.mkdir(path, 0o700)
        self._giveToUser(path)

    def _start(self):
        for name in ("run", "screen", "services", "homes"):
            self.makeFolder(self._path(name))
        self._write("session.conf", _BUS_CONFIGURATION.format(folder=self.folder).encode())
        self._write("services/org.a11y.Bus.service", _BUS_SERVICE.encode())
        self._write("openbox.xml", _WINDOW_MANAGER_CONFIGURATION.encode())
        self._writeScreenKey()
        kept = {name: value for name, value in os.environ.items() if not name.startswith(_FOREIGN_VARIABLES)}
        self.env = kept | {
            "DBUS_SESSION_BUS_ADDRESS": f"unix:path={self._path('run', 'bus')}",
            "GSETTINGS_BACKEND": "memory",
            "LANG": "C.UTF-8",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "QT_QPA_PLATFORM": "xcb",
            "XAUTHORITY": self._path("key"),
            "XDG_RUNTIME_DIR": self._path("run"),
            "XDG_SESSION_TYPE": "x11",
        } | self.newHome()
        width, height = self.size
        display = self._startServer(
            "Xvfb", "-displayfd", _READY, "-screen", "0", f"{width}x{height}x24", "-fbdir", self._path("screen"),
            "-auth", self._path("key"), "-nolisten", "tcp", "-noreset")
        bus = self._startServer(
            "dbus-daemon", f"--print-address={_READY}", f"--config-file={self._path('session.conf')}", "--nofork",
            "--nopidfile", "--nosyslog")
        self._firstLine(bus)
        self.env["DISPLAY"] = f":{self._firstLine(display)}"
        self._startServer("openbox", "--sm-disable", "--config-file", self._path("openbox.xml"), "--startup",
                          f"mkdir {shlex.quote(self._path('managed'))}").close()
        self._connect()
        waitUntil(lambda: os.path.isdir(self._path("managed")), "the window manager", seconds=30)

    def _writeScreenKey(self):
        """Only who knows the key may type on the screen: the program may run as root."""
        name = b"MIT-MAGIC-COOKIE-1"
        anyAddress = struct.pack(">HHH", 0xFFFF, 0, 0)
        entry = anyAddress + struct.pack(">H", len(name)) + name + struct.pack(">H", 16) + secrets.token_bytes(16)
        self._write("key", entry)

    def _startServer(self, *command):
        """Starts a server. One that takes a descriptor as _READY writes a line there as soon as it can be used."""
        ready, told = os.pipe()
        with open(self._path("servers.log"), "ab") as log:
            self._servers.append(subprocess.Popen(
                [part.replace(_READY, str(told)) for part in command], env=self.env, stdin=subprocess.DEVNULL,
                stdout=log, stderr=log, pass_fds=[told],
                **(startedAs(self.plainUser) | {"preexec_fn": _endServerWithParent})))
        os.close(told)
        return open(ready)

    def _firstLine(self, ready):
        with ready:
            line = ready.readline().strip()
        if not line:
            raise RuntimeError(f"a server of the desktop ended:\n{self.log()}")
        return line

    def log(self):
        """What the servers said."""
        with open(self._path("servers.log"), errors="replace") as file:
            return file.read()

    def _connect(self):
        before = dict(os.environ)
        _replaceEnvironment(self.env)
        try:
            import pyatspi
            from gi.repository import Atspi
            self.accessibles = pyatspi.Registry.getDesktop(0)
            # Without an event loop nothing would tell the cache that it is out of date.
            self.accessibles.setCacheMask(Atspi.Cache.NONE)
        finally:
            _replaceEnvironment(before)

    def newHome(self):
        """The environment of a user who has never started the program."""
        self._homes += 1
        home = self._path("homes", str(self._homes))
        folders = {"XDG_CACHE_HOME": ".cache", "XDG_CONFIG_HOME": ".config", "XDG_DATA_HOME": ".local/share",
                   "XDG_STATE_HOME": ".local/state"}
        self.makeFolder(home)
        return {"HOME": home} | {name: os.path.join(home, folder) for name, folder in folders.items()}

    def newFile(self, name):
        """The path of a file that is there until the desktop is closed."""
        descriptor, path = tempfile.mkstemp(prefix=f"{name}-", dir=self.folder)
        os.close(descriptor)
        return path

    def run(self, *command):
        """Runs a tool of the screen and returns what it prints."""
        return subprocess.run(command, env=self.env, check=True, stdout=subprocess.PIPE, text=True, timeout=30).stdout

    def screenshot(self, path, area=None):
        """Writes the screen, or what of `area` (x, y, width, height) is on it, as PNG."""
        savePng(self._path("screen", "Xvfb_screen0"), path, area)

    def close(self):
        for server in reversed(self._servers):
            server.terminate()
        for server in self._servers:
            try:
                server.wait(timeout=5)
            except subprocess.TimeoutExpired:
                server.kill()
                server.wait()
        self._servers.clear()
        self._watcher.stdin.close()
        self._watcher.wait()
