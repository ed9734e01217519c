"""Temporary folders that are removed however the process ends, by a watcher that outlives it."""

import os
import subprocess
import tempfile

# What is mounted in the folder is mounted for others alone, and is not gone into. The rest may take as long as what
# the process has started needs to end.
_WATCHER = """exec 3<&0
{ read -r _; for i in $(seq 100); do rm -rf --one-file-system -- "$1" && exit; sleep 0.1; done; } <&3 &"""

_ends = []


def folder(parent=None):
    """A new folder that everybody may enter. To be made before this process has mounts of its own."""
    path = tempfile.mkdtemp(prefix="calvero-scratch-", dir=parent)
    os.chmod(path, 0o755)
    watched, end = os.pipe()
    _ends.append(end)
    # Of no kin to this process, nor in its session: whoever ends all of that leaves the watcher.
    subprocess.run(["/bin/sh", "-c", _WATCHER, "watcher", path], stdin=watched, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL, start_new_session=True, cwd="/", check=True)
    os.close(watched)
    return path


def use():
    """All temporary files of this process are made in such a folder from now on."""
    tempfile.tempdir = folder()
