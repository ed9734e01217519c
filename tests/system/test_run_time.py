"""How long a run took is counted from its start, however slowly its threads come to life."""

import json
import time
import unittest

from case import SystemTest
from testkit import program, trace

DELAY_SECONDS = 1
THREADS_THAT_START_WITH_A_RUN = 2  # the worker and the clock


@unittest.skipUnless(trace.available(), "strace is not installed")
class RunTime(SystemTest):
    def testIsCountedFromBeforeItsFirstThread(self):
        target = self.makeVolume("ext4", 16)
        command = [program.programPath(), "wipe", target.path, "--method", "1", "--yes", "--json"]
        began = time.monotonic()
        ended = self.runCommand(trace.delaying(command, [], DELAY_SECONDS * 1_000_000, calls="clone,clone3"))
        self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
        seconds = json.loads(ended.stdout)["seconds"]
        self.assertGreaterEqual(seconds, THREADS_THAT_START_WITH_A_RUN * DELAY_SECONDS)
        self.assertLess(seconds, time.monotonic() - began)
        self.assertNothingLeft(target)
