"""A volume whose file system is a program of its own, as that of many sticks is: it can be made to die or to hang
under whatever uses the volume."""

import os
import signal
import subprocess

from testkit.program import endWithParent, waitUntil
from testkit.volume import Unavailable, Volume, whyUnavailable


class FuseVolume(Volume):
    def __init__(self, sizeBytes):
        reason = whyUnavailable("ntfs") or _whyNoServer()
        if reason:
            raise Unavailable(reason)
        self._server = None
        super().__init__("ntfs", sizeBytes)

    def mount(self, options="rw"):
        # In the foreground: a server that stands aside would outlive a killed test.
        self._server = subprocess.Popen(["ntfs-3g", "-o", f"no_detach,{options}", self._device, self.path],
                                        stderr=subprocess.DEVNULL, preexec_fn=endWithParent)
        waitUntil(lambda: os.path.ismount(self.path), "the mounted volume", seconds=20)
        self._mounted = True

    def unmount(self):
        super().unmount()
        self._server.wait(timeout=20)

    def die(self):
        """From now on everything on the volume fails at once."""
        self._server.kill()
        self._server.wait()

    def hang(self):
        """From now on nothing on the volume is answered, until it dies."""
        self._server.send_signal(signal.SIGSTOP)

    def close(self):
        if self._server is not None:
            self.die()
        super().close()


def _whyNoServer():
    if not os.path.exists("/dev/fuse"):
        return "no /dev/fuse"
    if subprocess.run(["sh", "-c", "command -v ntfs-3g"], capture_output=True).returncode != 0:
        return "ntfs-3g is not installed"
    return None
