"""pkexec as a user's program meets it, and calvero-cli as pkexec starts it. No rights are given to anybody."""

import os
import shutil
import tempfile

from testkit import program

DISMISSED = 126  # pkexec's exit code when the password was not given
_SCRIPT = """#!/bin/sh
for word; do printf '%s\\n' "$word"; done > "${0%/*}/words"
exit """ + str(DISMISSED) + "\n"


class FakePkexec:
    """The first pkexec in the search path of `env`: remembers what it was to start, and starts nothing."""

    def __init__(self):
        self.folder = tempfile.mkdtemp(prefix="calvero-pkexec-")
        os.chmod(self.folder, 0o755)
        script = os.path.join(self.folder, "pkexec")
        with open(script, "w") as file:
            file.write(_SCRIPT)
        os.chmod(script, 0o755)
        with open(self._words, "w"):
            os.chmod(self._words, 0o666)
        self.env = {"PATH": f"{self.folder}:{os.environ['PATH']}"}

    @property
    def _words(self):
        return os.path.join(self.folder, "words")

    def words(self):
        """The words that it was called with; none when it was not called."""
        with open(self._words) as file:
            return file.read().splitlines()

    def remove(self):
        shutil.rmtree(self.folder)


def environmentByPkexec():
    """What root's program has in its environment there, and what a caller might have smuggled in."""
    return {"PKEXEC_UID": str(program.PLAIN_USER), "HOME": "/nowhere", "XDG_DATA_HOME": "/nowhere"}
