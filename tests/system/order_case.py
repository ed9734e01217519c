"""What the tests of orders start from. A script stands in for the window program; it reads and writes the tags as that
one does."""

import fcntl
import json
import os
import shutil
import struct
import tempfile
from unittest import mock

from case import SystemTest
from remote_case import BUS_VARIABLE
from tag_store import STORE_VARIABLE, Tags
from testkit import program

NOTHING_LEFT = {"cvrOnline": "0", "cvrDrive": "", "cvrAlgo": "", "cvrStatus": "", "cvrResult": "", "CVRCANCEL": "",
                "cvrNamed": "", "cvrMountPath": "", "cvrVolumeUuid": ""}

# Ends by itself in a test that fails. `files` are where the script and the test tell each other how far they are.
STAND_IN = """#!/usr/bin/python3
import os, pathlib, sqlite3, sys, time
files = pathlib.Path(__file__).parent
code = 0
end = time.monotonic() + 60

def waitUntil(condition):
    while not condition():
        if time.monotonic() > end:
            sys.exit(99)
        time.sleep(0.005)

def execute(statement, *values):
    connection = sqlite3.connect(os.environ["CALVERO_TAG_STORE"], timeout=10)
    with connection:
        rows = connection.execute(statement, values).fetchall()
    connection.close()
    return rows

def read(tag):
    return dict(execute("SELECT tag, value FROM tags")).get(tag)

def write(tag, value):
    execute("INSERT INTO tags VALUES (?, ?) ON CONFLICT (tag) DO UPDATE SET value = excluded.value", tag, value)

(files / "started").write_text(" ".join(f"{tag}={read(tag)}" for tag in
                                        ("cvrOnline", "cvrDrive", "cvrAlgo", "cvrStatus", "CVRCANCEL")))
"""
WAIT_TO_GO = 'waitUntil((files / "go").exists)\n'
FINISH = 'write("cvrStatus", "2")\n'
FAIL = 'write("cvrStatus", "3")\ncode = 1\n'
FOLLOW_A_REQUEST = 'waitUntil(lambda: read("CVRCANCEL") == "1")\nwrite("CVRCANCEL", "0")\n' + FAIL + "code = 4\n"


class OrderTest(SystemTest):
    """The program in a folder of its own, beside which there is nothing yet, with a store that is not there yet."""

    def removeFolder(self):
        """What an order has started may still be writing into it."""
        def isGone():
            shutil.rmtree(self.folder, ignore_errors=True)
            return not os.path.exists(self.folder)

        program.waitUntil(isGone, "the folder is removed")

    def setUp(self):
        self.folder = tempfile.mkdtemp(prefix="calvero-orders-")
        self.addCleanup(self.removeFolder)
        self.command = shutil.copy(program.programPath(), self.folder)
        self.store = os.path.join(self.folder, "tags.sqlite")
        # No bus either: a window that somebody uses would take a cancel for its own.
        patch = mock.patch.dict(os.environ, {STORE_VARIABLE: self.store, BUS_VARIABLE: "unix:path=/nowhere"})
        patch.start()
        self.addCleanup(patch.stop)

    def programFor(self, plainUser):
        return self.command

    def standIn(self, body, folder=None):
        """What carries out orders: a script that notes that it was started, and with which order, and does `body`."""
        path = os.path.join(folder or self.folder, "calvero")
        with open(path, "w") as file:
            file.write(STAND_IN + body + "sys.exit(code)\n")
        os.chmod(path, 0o755)

    def file(self, name):
        return os.path.join(self.folder, name)

    def waitForStart(self):
        path = self.file("started")
        program.waitUntil(lambda: os.path.exists(path) and os.path.getsize(path) > 0, "the start of the program")
        with open(path) as file:
            return file.read()

    def go(self):
        open(self.file("go"), "w").close()

    def tags(self):
        return Tags(self.store).read()

    def setTags(self, **values):
        """As another program that orders runs."""
        Tags(self.store).set(**values)

    def setOrder(self, volume, method="3", **values):
        self.setTags(cvrOnline="1", cvrDrive=volume, cvrAlgo=method, **values)

    def claim(self):
        """A run of the order, wherever it is in its course; returns what ends it."""
        held = os.open(self.store + "-order", os.O_RDWR | os.O_CREAT, 0o600)
        fcntl.fcntl(held, fcntl.F_OFD_SETLK, struct.pack("hhqqi4x", fcntl.F_WRLCK, os.SEEK_SET, 0, 0, 0))
        ended = []

        def end():
            if not ended:
                ended.append(True)
                os.close(held)

        self.addCleanup(end)
        return end

    def hold(self, target):
        """A run on the volume, as everybody else sees it; returns what ends it."""
        os.mkdir(target.fillerDirectory(), 0o700)
        held = os.open(target.fillerDirectory(), os.O_RDONLY | os.O_DIRECTORY)
        fcntl.flock(held, fcntl.LOCK_EX)
        ended = []

        def end():
            if not ended:
                ended.append(True)
                os.rmdir(target.fillerDirectory())
                os.close(held)

        self.addCleanup(end)
        return end

    def statusOf(self):
        ended = self.runProgram("status", "--json")
        self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
        return json.loads(ended.stdout)

    def assertEndsWith(self, ended, code, *words):
        """`ended` is exit code, output and errors; the words are in the last line."""
        self.assertEqual(ended[0], code, ended)
        line = (ended[1] + ended[2]).strip().splitlines()[-1]
        for word in words:
            self.assertIn(word.lower(), line.lower())
