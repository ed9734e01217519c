"""Home, from its button to the suite's home application, in the layout in which the suite installs this program."""

import contextlib
import os
import shutil
import socket
import tempfile

from testkit import program
from window_case import ENDS_WITHIN_SECONDS, WindowTest

# The home application's folder is six path levels above the program.
PLACE = "suite/applications/calvero/usr/bin/calvero"
HOME_APPLICATION = """#!/bin/sh
id -u > "$(dirname "$0")/started.new"
mv "$(dirname "$0")/started.new" "$(dirname "$0")/started"
"""
NOTHING_STARTED = "no application is started: "


class Home(WindowTest):
    def setUp(self):
        super().setUp()
        if os.geteuid() != 0:
            self.skipTest("a log service of the test's own needs root")
        self.folder = tempfile.mkdtemp(prefix="calvero-home-")
        self.addCleanup(shutil.rmtree, self.folder)
        os.chmod(self.folder, 0o755)
        self.program = os.path.join(self.folder, PLACE)
        os.makedirs(os.path.dirname(self.program))
        shutil.copy(program.windowProgramPath(), self.program)

    def installHomeApplication(self):
        path = os.path.join(self.folder, "home-application")
        with open(path, "w") as file:
            file.write(HOME_APPLICATION)
        os.chmod(path, 0o755)
        return path

    def pressHome(self):
        """Until the program has ended; returns what it has logged."""
        path = os.path.join(self.folder, "log")
        with socket.socket(socket.AF_UNIX, socket.SOCK_DGRAM) as log:
            log.setblocking(False)
            log.bind(path)
            window = self.startWindow(command=[
                "unshare", "--mount", "sh", "-c",
                'mount -t tmpfs log /dev && : >/dev/log && mount --bind "$0" /dev/log && exec "$1"',
                path, self.program])
            window.pressButton("Home")
            self.assertEqual(window.waitForEnd(ENDS_WITHIN_SECONDS), (0, "", ""))
            lines = []
            with contextlib.suppress(BlockingIOError):
                while True:
                    lines.append(log.recv(4096).decode().split("]: ", 1)[1])
        return [line for line in lines if NOTHING_STARTED in line]

    @property
    def started(self):
        return os.path.join(self.folder, "started")

    def testTheHomeApplicationComesUpAndTheProgramEnds(self):
        self.installHomeApplication()
        self.assertEqual(self.pressHome(), [])
        program.waitUntil(lambda: os.path.exists(self.started), "the home application")

    def testWhereThereIsNoneTheProgramEndsAndLogsWhy(self):
        self.assertEqual(self.pressHome(), [f"{NOTHING_STARTED}there is no program {self.folder}/home-application"])

    def testRootStartsNoneThatAUserCanChange(self):
        path = self.installHomeApplication()
        os.chown(path, program.PLAIN_USER, program.PLAIN_USER)
        reason = f"root must not start {path}, since others than root can change {path}"
        self.assertEqual(self.pressHome(), [NOTHING_STARTED + reason])
        self.assertFalse(os.path.exists(self.started))
