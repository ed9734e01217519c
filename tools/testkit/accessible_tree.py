"""What a program tells the accessibility bus of itself. Read call by call, so that everything may change in between:
any reading may raise one of AccessibleTree.changes, and is then begun again."""

import re


class _Changed(Exception):
    """What was being read went away meanwhile."""


class AccessibleTree:
    def __init__(self, desktop, pid):
        import pyatspi
        from gi.repository import GLib
        self._pyatspi = pyatspi
        self.changes = (_Changed, GLib.Error)
        self._programs = desktop.accessibles
        self._pid = pid
        self._application = None

    def states(self, node):
        return {self._pyatspi.stateToString(state) for state in node.getState().getStates()}

    def windows(self):
        """Those that are showing."""
        application = self._ourApplication()
        children = self._children(application) if application else ()
        return [window for window in children if self._isShowing(window)]

    def find(self, role=None, name=None, description=None, within=None, justOne=False):
        """What is showing and fits, in the tree's order. What is in a hidden part is hidden too."""
        found = []

        def search(node):
            if not self._isShowing(node):
                return
            if _fits(name, node, "name") and _fits(description, node, "description") and (
                    role is None or node.getRoleName() == role):
                found.append(node)
            for child in self._children(node):
                if found and justOne:
                    return
                search(child)

        for node in [within] if within else self.windows():
            search(node)
        return found[:1] if justOne else found

    def window(self, node):
        """The window that the node is in."""
        while (parent := node.parent) is not None and parent.getRoleName() != "application":
            node = parent
        return node

    def asText(self):
        """Everything, also what is not showing, as far as the program answers."""
        lines = []

        def add(node, depth):
            words = [node.getRoleName(), repr(node.name), node.description, f"[{' '.join(sorted(self.states(node)))}]"]
            lines.append("  " * depth + " ".join(word for word in words if word))
            for child in self._children(node):
                add(child, depth + 1)

        try:
            if application := self._ourApplication():
                add(application, 0)
        except self.changes as error:
            lines.append(f"(no further answer: {error})")
        return "\n".join(lines) or "(nothing on the accessibility bus)"

    def _ourApplication(self):
        if self._application is None:
            for application in self._children(self._programs):
                try:
                    if self._isOurs(application.get_process_id()):
                        self._application = application
                except self.changes:  # another program, just ended
                    continue
        return self._application

    def _isOurs(self, pid):
        """Whether that is the process or, where it was started through another program, one below it."""
        while pid > 1:
            if pid == self._pid:
                return True
            try:
                with open(f"/proc/{pid}/stat") as file:
                    pid = int(file.read().rpartition(")")[2].split()[1])
            except (FileNotFoundError, ProcessLookupError):
                return False
        return False

    def _isShowing(self, node):
        return node.getState().contains(self._pyatspi.STATE_SHOWING)

    def _children(self, node):
        count = node.childCount
        if count < 0:
            raise _Changed("a number of children")
        for index in range(count):
            child = node.getChildAtIndex(index)
            if child is None:
                raise _Changed("a child")
            yield child


def _fits(wanted, node, attribute):
    if wanted is None:
        return True
    text = getattr(node, attribute)
    return bool(wanted.search(text)) if isinstance(wanted, re.Pattern) else text == wanted
