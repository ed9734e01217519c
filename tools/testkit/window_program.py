"""A program with windows on a desktop.Desktop; how to use it is told there."""

import re
import subprocess
import time

from testkit.accessible_tree import AccessibleTree
from testkit.desktop import TITLE_BAR_CLOSING_BUTTON
from testkit.program import startedAs

WAIT_SECONDS = 10
_POLL_SECONDS = 0.01
# How long a call on the accessibility bus may take. An action that opens a dialog is answered when the dialog closes.
_CALL_MILLISECONDS = 2000
_ACTION_MILLISECONDS = 250
_ALWAYS = -1  # the limit also holds for a program that has only just started
# What a button does when it is clicked, by the names that toolkits use; the others open menus or set the focus.
_PRESSING_ACTIONS = ("press", "click", "toggle", "activate")
_DIALOG_ROLES = ("alert", "dialog")
_ABOVE_THE_WINDOW = 8  # pixels, to the middle of the title bar or nearly so


class WindowProgram:
    """A started program, with a fresh home unless it is given another program's `home`."""

    def __init__(self, desktop, command, env=None, home=None):
        from gi.repository import Atspi
        self._setTimeout = lambda milliseconds: Atspi.set_timeout(milliseconds, _ALWAYS)
        self._setTimeout(_CALL_MILLISECONDS)
        self._desktop = desktop
        self.home = home or desktop.newHome()
        self._printed = [desktop.newFile(kind) for kind in ("output", "errors")]
        with open(self._printed[0], "wb") as output, open(self._printed[1], "wb") as errors:
            self.process = subprocess.Popen(
                command, env=desktop.env | self.home | (env or {}), stdin=subprocess.DEVNULL, stdout=output,
                stderr=errors, **startedAs(desktop.plainUser))
        self._tree = AccessibleTree(desktop, self.process.pid)

    # What is there

    def find(self, role=None, name=None, description=None, within=None, timeout=WAIT_SECONDS):
        """Waits for an accessible that is showing, the first in the tree's order. Texts are compared whole; a compiled
        pattern is searched for."""
        return self._wait(lambda: self._tree.find(role, name, description, within, justOne=True),
                          _inWords(role, name, description), timeout)[0]

    def findAll(self, role=None, name=None, description=None, within=None):
        """All that are showing now."""
        return self._answer(lambda: self._tree.find(role, name, description, within))

    def isShowing(self, role=None, name=None, description=None, within=None):
        return bool(self.findAll(role, name, description, within))

    def waitUntilGone(self, role=None, name=None, description=None, timeout=WAIT_SECONDS):
        self._wait(lambda: not self._tree.find(role, name, description, justOne=True),
                   f"the end of {_inWords(role, name, description)}", timeout)

    def windows(self):
        """Titles and roles of the windows that are showing."""
        return self._answer(lambda: [(window.name, window.getRoleName()) for window in self._tree.windows()])

    def tree(self):
        """Everything that the program tells of itself, also what is not showing."""
        return self._tree.asText()

    # What it is like

    def states(self, accessible):
        return self._tree.states(accessible)

    def hasState(self, accessible, state):
        return state in self.states(accessible)

    def waitForState(self, accessible, state, isSet=True, timeout=WAIT_SECONDS):
        self._wait(lambda: self.hasState(accessible, state) == isSet,
                   f"{accessible.name!r} being {'' if isSet else 'not '}{state}", timeout)

    def text(self, accessible):
        """What an input field holds, or what a label says."""
        try:
            return accessible.queryText().getText(0, -1)
        except NotImplementedError:
            return accessible.name

    def value(self, accessible):
        return accessible.queryValue().currentValue

    def waitFor(self, condition, what, timeout=WAIT_SECONDS):
        """Waits for something else, asked again when what it reads goes away meanwhile."""
        return self._wait(condition, what, timeout)

    def bounds(self, accessible):
        """x, y, width, height on the screen, once the window manager has put the window in its place."""
        self._wait(lambda: self._isPlaced(self._tree.window(accessible)), f"the place of {accessible.name!r}")
        return self._boundsNow(accessible)

    # What a person does

    def press(self, accessible):
        """Does the accessible's main action. Returns at the latest soon after it began: it may go on for as long as a
        dialog that it opens."""
        action = accessible.queryAction()
        names = [action.getName(index).lower() for index in range(action.nActions)]
        index = next((names.index(name) for name in _PRESSING_ACTIONS if name in names), None)
        assert index is not None, f"{accessible.name!r} cannot be pressed, only {names}"
        self._setTimeout(_ACTION_MILLISECONDS)
        try:
            assert action.doAction(index), f"{accessible.name!r} refused to be pressed"
        except self._tree.changes as error:
            if "did not receive a reply" not in str(error).lower():
                raise
        finally:
            self._setTimeout(_CALL_MILLISECONDS)

    def pressButton(self, name, within=None, timeout=WAIT_SECONDS):
        """Presses a button as soon as it can be."""
        button = self.find("push button", name, within=within, timeout=timeout)
        self.waitForState(button, "enabled", timeout=timeout)
        self.press(button)

    def click(self, accessible, button=1):
        """Clicks on its centre."""
        x, y, width, height = self.bounds(accessible)
        self._clickAt(x + width // 2, y + height // 2, button)

    def hover(self, accessible):
        """Rests the pointer on its centre."""
        x, y, width, height = self.bounds(accessible)
        self._desktop.run("xdotool", "mousemove", str(x + width // 2 - 1), str(y + height // 2), "mousemove_relative",
                          "--sync", "1", "0")

    def typeKeys(self, *keys):
        """Types keys by their names ("Tab", "space", "alt+n") once a window of the program listens: where there is a
        dialog, the dialog."""
        self._waitUntilActive()
        self._desktop.run("xdotool", "key", "--clearmodifiers", *keys)

    def closeWindow(self, title=None):
        """Closes the active window by the window manager's key, or the one of that title by its title bar."""
        if title is None:
            return self.typeKeys("alt+F4")
        window = self._wait(lambda: self._titled(title), f"window {title!r}")[0]
        x, y, width, _ = self.bounds(window)
        return self._clickAt(x + width // 2, y - _ABOVE_THE_WINDOW, TITLE_BAR_CLOSING_BUTTON)

    # The process

    @property
    def output(self):
        with open(self._printed[0], errors="replace") as file:
            return file.read()

    @property
    def errors(self):
        with open(self._printed[1], errors="replace") as file:
            return file.read()

    def waitForEnd(self, seconds=WAIT_SECONDS):
        """Waits for the end and returns exit code, output and errors."""
        try:
            self.process.wait(timeout=seconds)
        except subprocess.TimeoutExpired:
            raise AssertionError(f"still running after {seconds} s; {self._situation()}") from None
        return self.process.returncode, self.output, self.errors

    def close(self):
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    # Waiting

    def _answer(self, read):
        """A reading during which nothing went away."""
        return self._wait(lambda: [read()], "an answer from the program")[0]

    def _wait(self, condition, what, seconds=WAIT_SECONDS):
        """Polls `condition` and returns its first true value."""
        deadline = time.monotonic() + seconds
        while True:
            isRunning = self.process.poll() is None
            try:
                if value := condition():
                    return value
            except self._tree.changes:
                pass
            assert isRunning, f"{what} never came; {self._situation()}"
            assert time.monotonic() < deadline, f"waited {seconds} s in vain for {what}; {self._situation()}"
            time.sleep(_POLL_SECONDS)

    def _situation(self):
        code = self.process.poll()
        state = f"there is:\n{self.tree()}" if code is None else f"the program ended with {code}"
        return f"{state}\noutput: {self.output}\nerrors: {self.errors}"

    def _waitUntilActive(self):
        def isActive():
            windows = self._tree.windows()
            dialogs = [window for window in windows if window.getRoleName() in _DIALOG_ROLES]
            return any("active" in self.states(window) for window in dialogs or windows)

        self._wait(isActive, "an active window")

    def _boundsNow(self, accessible):
        from pyatspi import DESKTOP_COORDS
        return tuple(accessible.queryComponent().getExtents(DESKTOP_COORDS))

    def _isPlaced(self, window):
        """A program learns late where the window manager has put its window; the screen knows. A window that the
        manager has not yet taken into a frame of its own is still a child of the screen itself."""
        x, y, width, height = self._boundsNow(window)
        listed = self._desktop.run("xwininfo", "-root", "-tree")
        return re.search(rf"^ {{6,}}0x.* {width}x{height}[+-]\S+  \+{x}\+{y}$", listed, re.MULTILINE)

    def _titled(self, title):
        return [window for window in self._tree.windows() if window.name == title]

    def _clickAt(self, x, y, button):
        # Not xdotool's own click, which takes a tenth of a second.
        self._desktop.run("xdotool", "mousemove", str(x), str(y), "mousedown", str(button), "mouseup", str(button))


def _inWords(role, name, description):
    wanted = {"role": role, "name": name, "description": description}
    return ", ".join(f"{key} {value!r}" for key, value in wanted.items() if value is not None) or "anything"
