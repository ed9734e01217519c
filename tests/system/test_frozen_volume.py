"""A volume that is frozen under a run: what is said of the clean-up is true."""

import json
import os
import signal
import subprocess
import tempfile

from case import SLOWEST, SystemTest, isWriting
from testkit import program


class FrozenVolume(SystemTest):
    def freeze(self, target):
        subprocess.run(["fsfreeze", "-f", target.path], check=True)
        self.addCleanup(self.thaw, target)

    def thaw(self, target):
        subprocess.run(["fsfreeze", "-u", target.path], check=False, stderr=subprocess.DEVNULL)

    def testACancelSaysThatTheFilesMayBeLeftToTheNextRunWhichRemovesThem(self):
        target = self.makeVolume("ext4", 200)
        freeBefore = target.freeBytes()
        with tempfile.TemporaryFile("w+") as errors, tempfile.TemporaryFile("w+") as output:
            process = subprocess.Popen([self.programFor(False), "wipe", target.path, "--method", SLOWEST, "--yes",
                                        "--json"], stdin=subprocess.DEVNULL, stdout=output, stderr=errors)
            self.addCleanup(process.kill)
            program.waitUntil(lambda: isWriting(target, 0), "the first filler file being written")
            self.freeze(target)
            process.send_signal(signal.SIGINT)

            def said(file):
                return os.pread(file.fileno(), 4096, 0).decode()

            program.waitUntil(lambda: said(output), "the report of a run that has given up waiting", seconds=60)
            words = said(errors)
            self.assertIn("the volume does not answer", words)
            self.assertIn("else by the next run", words)
            self.assertEqual(json.loads(said(output))["outcome"], "cancelled")
            # The kernel ends the process only when its threads come back from the volume.
            self.thaw(target)
            self.assertEqual(process.wait(timeout=60), program.EXIT_CANCELLED)
        self.wipe(target, method="7")
        self.assertNothingLeft(target)
        self.assertFreeAgain(target, freeBefore)
