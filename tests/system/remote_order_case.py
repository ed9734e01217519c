"""What the tests of orders that the real program carries out start from."""

import os
import shutil
import subprocess

from remote_case import RemoteTest, killProgramsOf
from testkit import program
from testkit.program import startedAs


class OrderCommandTest(RemoteTest):
    def setUp(self):
        super().setUp()
        self.order = self.makeOrder("nothing yet")
        os.remove(self.order.tags.path)
        self.startBus(self.order)
        self.programs = self.makeFolder()
        self.windowProgram = shutil.copy(program.windowProgramPath(), os.path.join(self.programs, "calvero"))
        self.command = shutil.copy(program.programPath(), os.path.join(self.programs, "calvero-cli"))
        # What it orders has a session of its own and would outlive a test that fails.
        self.addCleanup(killProgramsOf, self.programs)

    def start(self, *arguments):
        process = subprocess.Popen([self.command, *arguments], env=self.order.env, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, **startedAs(False))
        self.addCleanup(process.communicate)
        self.addCleanup(process.kill)
        return process

    def complete(self, *arguments):
        return self.finish(self.start(*arguments))
