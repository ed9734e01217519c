"""Orders through the tag store: what is written, what is refused, what is waited for. A script stands in for the window
program; it reads and writes the tags as that one does."""

import fcntl
import json
import os
import re
import shutil
import sqlite3
import subprocess
import tempfile
from unittest import mock

from case import SystemTest, everything
from testkit import program
from testkit.program import TerminalProgram, startedAs

STORE_VARIABLE = "CALVERO_TAG_STORE"
BUS_VARIABLE = "DBUS_SESSION_BUS_ADDRESS"
NOTHING_LEFT = {"cvrOnline": "0", "cvrDrive": "", "cvrAlgo": "", "cvrStatus": "", "CVRCANCEL": ""}
# Ends by itself in a test that fails. `files` are where the script and the test tell each other how far they are.
STAND_IN = """#!/usr/bin/python3
import os, pathlib, sqlite3, sys, time
files = pathlib.Path(__file__).parent
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
FAIL = 'write("cvrStatus", "3")\n'
FOLLOW_A_REQUEST = 'waitUntil(lambda: read("CVRCANCEL") == "1")\nwrite("CVRCANCEL", "0")\n' + FAIL


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
            file.write(STAND_IN + body)
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
        if not os.path.exists(self.store):
            return {}
        connection = sqlite3.connect(self.store, timeout=10)
        try:
            return dict(connection.execute("SELECT tag, value FROM tags"))
        finally:
            connection.close()

    def setTags(self, **values):
        """As another program that orders runs."""
        connection = sqlite3.connect(self.store, timeout=10)
        with connection:
            connection.execute("PRAGMA application_id = 1330467923")
            connection.execute("PRAGMA user_version = 1")
            connection.execute("CREATE TABLE IF NOT EXISTS tags (tag TEXT PRIMARY KEY NOT NULL, value TEXT NOT NULL)"
                               " WITHOUT ROWID")
            connection.executemany("INSERT INTO tags VALUES (?, ?) ON CONFLICT (tag) DO UPDATE"
                                   " SET value = excluded.value", values.items())
        connection.close()

    def setOrder(self, volume, method="3", **values):
        self.setTags(cvrOnline="1", cvrDrive=volume, cvrAlgo=method, **values)

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


class Order(OrderTest):
    def order(self, target, *arguments, method="3"):
        return self.runProgram("order", target.path, "--method", method, *arguments)

    def assertNothingOrdered(self):
        self.assertFalse(os.path.exists(self.store), "a store was made")
        self.assertFalse(os.path.exists(self.file("started")), "the program was started")

    def testIsStoredBeforeTheProgramIsStarted(self):
        target = self.makeVolume()
        self.standIn("")
        for given, method, number in ((target.name, "3", "3"), (target.path + "/", "GUTMANN-dod", "9")):
            with self.subTest(given):
                ended = self.runProgram("order", given, "--method", method)
                self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
                self.assertOneLine(ended.stdout, target.name, "calvero-cli status", "calvero-cli clear")
                self.assertEqual(self.waitForStart(), f"cvrOnline=1 cvrDrive={target.name} cvrAlgo={number} cvrStatus="
                                                      " CVRCANCEL=")
                self.assertEqual(self.tags(), {"cvrOnline": "1", "cvrDrive": target.name, "cvrAlgo": number,
                                               "cvrStatus": "", "CVRCANCEL": ""})
                os.remove(self.file("started"))
                self.assertEqual(self.runProgram("clear").returncode, program.EXIT_FINISHED)

    def testMayReplaceOneThatHasEnded(self):
        target = self.makeVolume()
        self.standIn("")
        self.setOrder("another volume", "8", cvrStatus="3", CVRCANCEL="1", LANG="de")
        self.assertEqual(self.order(target).returncode, program.EXIT_FINISHED)
        self.assertEqual(self.tags(), {"cvrOnline": "1", "cvrDrive": target.name, "cvrAlgo": "3", "cvrStatus": "",
                                       "CVRCANCEL": "", "LANG": "de"})

    def testIsRefusedWhereAWipeWouldBe(self):
        self.standIn("")
        target = self.makeVolume()
        before = everything(target.path)
        self.assertRefused(self.runProgram("order", "no such volume", "--method", "1"), "no such volume", target.name)
        self.assertNothingOrdered()
        target.remount("ro")
        self.assertRefused(self.order(target), "Read only drive, please select other drives")
        self.assertNothingOrdered()
        target.remount("rw")
        end = self.hold(target)
        self.assertRefused(self.order(target), "another run")
        self.assertNothingOrdered()
        end()
        self.assertEqual(everything(target.path), before)

    def testIsRefusedWhileAnotherHasNotEnded(self):
        target, other = self.makeVolume(), self.makeVolume()
        self.standIn("")
        self.setOrder(other.name)
        before = self.tags()
        self.assertRefused(self.order(target), other.name, "calvero-cli clear")
        self.hold(other)
        self.setOrder(other.name, cvrStatus="2")
        before = self.tags()
        self.assertRefused(self.order(target), other.name, "under way")
        self.assertEqual(self.tags(), before)
        self.assertFalse(os.path.exists(self.file("started")))

    def testIsWrongUsageWithoutAMethodOrWithAnUnknownOne(self):
        self.standIn("")
        target = self.makeVolume()
        for method in ("0", "10", "abc", ""):
            with self.subTest(method):
                self.assertWrongUsage(self.order(target, method=method), "1", "9")
        self.assertWrongUsage(self.runProgram("order", target.path), "--method")
        self.assertWrongUsage(self.runProgram("order", "--method", "1"), "VOLUME")
        self.assertWrongUsage(self.order(target, "--timeout", "5"), "--wait")
        self.assertWrongUsage(self.order(target, "--wait", "--timeout", "0"), "--timeout")
        self.assertNothingOrdered()

    def testStoresNothingWhereThereIsNoProgramToCarryItOut(self):
        target = self.makeVolume()
        with mock.patch.dict(os.environ, {"PATH": "/nowhere"}):
            ended = self.order(target)
        self.assertEqual(ended.returncode, program.EXIT_FAILED, ended)
        self.assertOneLine(ended.stderr, "calvero", "PATH")
        self.assertNothingOrdered()

    def testFindsTheProgramInThePath(self):
        target = self.makeVolume()
        elsewhere = os.path.join(self.folder, "bin")
        os.mkdir(elsewhere)
        self.standIn('files.parent.joinpath("started").write_text("elsewhere")\n', elsewhere)
        with mock.patch.dict(os.environ, {"PATH": f"{elsewhere}:{os.environ['PATH']}"}):
            self.assertEqual(self.order(target).returncode, program.EXIT_FINISHED)
        self.assertEqual(self.waitForStart(), "elsewhere")

    def testIsCalledOffWhenTheProgramCannotBeStarted(self):
        target = self.makeVolume()
        with open(self.file("calvero"), "w") as file:
            file.write("no program")
        os.chmod(self.file("calvero"), 0o755)
        ended = self.order(target)
        self.assertEqual(ended.returncode, program.EXIT_FAILED, ended)
        self.assertOneLine(ended.stderr, "cannot be started")
        self.assertEqual(self.tags()["cvrOnline"], "0")

    def testStartsNothingWhenTheStoreCannotBeUsed(self):
        target = self.makeVolume()
        self.standIn("")
        with open(self.store, "w") as file:
            file.write("A text that is no database, however long it goes on. " * 20)
        with open(self.store, "rb") as file:
            before = file.read()
        ended = self.order(target)
        self.assertEqual(ended.returncode, program.EXIT_FAILED, ended)
        self.assertOneLine(ended.stderr, self.store)
        with open(self.store, "rb") as file:
            self.assertEqual(file.read(), before)
        self.assertFalse(os.path.exists(self.file("started")))

    def testLeavesAWipeThatIsTypedAsItIs(self):
        target, other = self.makeVolume(), self.makeVolume()
        self.setOrder(other.name, "5", CVRCANCEL="1")
        before, untouched = self.tags(), everything(other.path)
        report = self.wipe(target, method="2")
        self.assertEqual((report["volume"], report["method"]), (target.name, 2))
        self.assertEqual(self.tags(), before)
        self.assertEqual(everything(other.path), untouched)


class WaitingForAnOrder(OrderTest):
    def startOrder(self, target, *arguments):
        return self.startProgram("order", target.name, "--method", "dod", "--wait", *arguments)

    def testLastsUntilTheProgramHasEndedAndSaysWhatBecameOfIt(self):
        target = self.makeVolume()
        for body, code, words in ((FINISH, program.EXIT_FINISHED, ("Finished", target.path, "dod", "cli clear")),
                                  (FAIL, program.EXIT_FAILED, ("Failed", target.path, "remain readable")),
                                  (FOLLOW_A_REQUEST, program.EXIT_CANCELLED, ("Cancelled", target.path)),
                                  ("sys.exit(3)\n", program.EXIT_FAILED, ("without a status", "exit code 3")),
                                  ("os.kill(os.getpid(), 9)\n", program.EXIT_FAILED, ("without a status", "signal 9"))):
            with self.subTest(body):
                self.standIn(body + "write('ended', 'yes')\n")
                self.setTags(ended="no")
                started = self.startOrder(target)
                if body == FOLLOW_A_REQUEST:
                    self.waitForStart()
                    self.assertEqual(self.runProgram("cancel").returncode, program.EXIT_FINISHED)
                self.assertEndsWith(self.finish(started), code, *words)
                self.assertEqual(self.tags()["ended"], "no" if "status" in words[0] else "yes")
                self.assertEqual(self.tags()["cvrOnline"], "1", "an order stays pending")
                os.remove(self.file("started"))
                self.assertEqual(self.runProgram("clear").returncode, program.EXIT_FINISHED)

    def testEndsWithTheTimeoutThoughTheRunGoesOn(self):
        target = self.makeVolume()
        self.standIn(WAIT_TO_GO + FINISH)
        self.assertEndsWith(self.finish(self.startOrder(target, "--timeout", "1")), program.EXIT_FAILED,
                            "Not ended within 1 s", "goes on")
        self.assertEqual(self.tags()["cvrStatus"], "")
        self.go()
        program.waitUntil(lambda: self.tags()["cvrStatus"] == "2", "the end of the run")

    def testEndsWithCtrlCThoughTheRunGoesOn(self):
        target = self.makeVolume()
        self.standIn(WAIT_TO_GO + FINISH)
        started = TerminalProgram([self.command, "order", target.name, "--method", "1", "--wait"])
        self.addCleanup(started.close)
        started.readUntil("Ordered: ")
        started.answer("\x03")
        self.assertEqual(started.waitForEnd(), program.EXIT_FAILED, started.text)
        self.assertIn("No longer waiting", started.text)
        self.waitForStart()
        self.assertEqual(self.tags()["CVRCANCEL"], "")
        self.go()
        program.waitUntil(lambda: self.tags()["cvrStatus"] == "2", "the end of the run")


class OrdersOfOthers(OrderTest):
    """The commands about an order that another program wrote."""

    def testTheStatusFollowsTheRun(self):
        target = self.makeVolume()
        self.setOrder(target.name, "9")
        expected = {"pending": True, "volume": target.name, "method": 9, "running": False, "cancelAsked": False,
                    "status": None, "outcome": "none"}
        self.assertEqual(self.statusOf(), expected)
        end = self.hold(target)
        self.setTags(CVRCANCEL="1")
        self.assertEqual(self.statusOf(), expected | {"running": True, "cancelAsked": True})
        text = self.runProgram("status").stdout
        self.assertEqual(text, f'Order:  "{target.name}" with method 9 (gutmann-dod), pending\nRun:    under way\n'
                               "Cancel: asked for\nStatus: none yet\n")
        end()
        self.setTags(cvrStatus="3")
        self.assertEqual(self.statusOf(), expected | {"cancelAsked": True, "status": 3, "outcome": "failed"})

    def testARunKeepsItsOrderFromBeingRemoved(self):
        target = self.makeVolume()
        self.setOrder(target.name)
        before = self.tags()
        end = self.hold(target)
        self.assertRefused(self.runProgram("clear"), target.name, "under way")
        self.assertEqual(self.tags(), before)
        end()
        self.assertEqual(self.runProgram("clear").returncode, program.EXIT_FINISHED)
        self.assertEqual(self.tags(), NOTHING_LEFT)

    def testACancelMayWaitForTheStatus(self):
        target = self.makeVolume()
        self.setOrder(target.name)
        end = self.hold(target)
        started = self.startProgram("cancel", "--wait")
        program.waitUntil(lambda: self.tags().get("CVRCANCEL") == "1", "the request")
        self.assertIsNone(started.poll())
        end()
        self.setTags(CVRCANCEL="0", cvrStatus="3")
        self.assertEndsWith(self.finish(started), program.EXIT_FINISHED, "Cancelled", target.name)

    def testACancelIsRefusedOnceTheRunHasEnded(self):
        target = self.makeVolume()
        self.setOrder(target.name, cvrStatus="2")
        self.assertRefused(self.runProgram("cancel"), target.name, "ended")
        self.assertNotIn("CVRCANCEL", self.tags())
        self.hold(target)
        self.assertEqual(self.runProgram("cancel").returncode, program.EXIT_FINISHED, "it runs again")
        self.assertEqual(self.tags()["CVRCANCEL"], "1")


class Notifications(OrderTest):
    def setUp(self):
        super().setUp()
        if reason := next((name for name in ("dbus-daemon", "dbus-monitor") if shutil.which(name) is None), None):
            self.skipTest(f"{reason} is not installed")
        address = f"unix:path={self.file('bus')}"
        self.background("dbus-daemon", "--session", "--nofork", f"--address={address}")
        os.environ[BUS_VARIABLE] = address

    def background(self, *command, output=subprocess.DEVNULL):
        started = subprocess.Popen(command, stdout=output, stderr=subprocess.DEVNULL, **startedAs(plainUser=False))
        self.addCleanup(started.wait)
        self.addCleanup(started.kill)

    def testACancelIsSentToTheSessionToo(self):
        program.waitUntil(lambda: os.path.exists(self.file("bus")), "the bus")
        with open(self.file("heard"), "w") as heard:
            self.background("dbus-monitor", "--session", "type='signal',member='Posted'", output=heard)
        self.setOrder("not there")

        def isHeard():
            # Anew, until the monitor listens.
            self.assertEqual(self.runProgram("cancel").returncode, program.EXIT_FINISHED)
            with open(self.file("heard")) as heard:
                return re.search(r'string "cancel wipe"\s+string "cancel"\n', heard.read())

        program.waitUntil(isHeard, "the notification", seconds=30)
        self.assertEqual(self.tags()["CVRCANCEL"], "1")


class WithoutVolumes(OrderTest):
    """What needs no volume and no rights."""

    def testWithoutAnOrderThereIsNothingToShowToCancelOrToRemove(self):
        self.assertEqual(self.runProgram("status").stdout, "Order:  none\nRun:    none\nStatus: none\n")
        self.assertEqual(self.statusOf(), {"pending": False, "volume": None, "method": None, "running": False,
                                           "cancelAsked": False, "status": None, "outcome": "none"})
        self.assertRefused(self.runProgram("cancel"), "no order")
        self.assertRefused(self.runProgram("cancel", "--wait"), "no order")
        ended = self.runProgram("clear")
        self.assertEqual((ended.returncode, ended.stdout), (program.EXIT_FINISHED, "There is no order.\n"))
        self.assertFalse(os.path.exists(self.store), "asking makes no store")

    def testAnOrderForAVolumeThatIsNotThereIsShownAndRemoved(self):
        self.setOrder("not there", "abc", LANG="fr")
        self.assertIn('"not there" with method 1 (zero), since "abc" names none, pending',
                      self.runProgram("status").stdout)
        self.assertEqual(self.runProgram("cancel").returncode, program.EXIT_FINISHED)
        self.assertEqual(self.tags()["CVRCANCEL"], "1")
        ended = self.runProgram("clear")
        self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
        self.assertEqual(self.tags(), NOTHING_LEFT | {"LANG": "fr"})

    def testHostileTextsAreShownAsEscapes(self):
        self.setOrder("a\x1b[2J\nb", "\x07", cvrStatus="\x9b1m")
        for arguments in (("status",), ("status", "--json"), ("clear",)):
            with self.subTest(arguments):
                ended = self.runProgram(*arguments)
                self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
                self.assertNotRegex(ended.stdout + ended.stderr, r"[\x00-\x09\x0b-\x1f\x7f-\x9f]")

    def testAStoreThatCannotBeUsedIsToldInOneLine(self):
        with open(self.store, "w") as file:
            file.write("A text that is no database, however long it goes on. " * 20)
        for command in ("status", "cancel", "clear"):
            with self.subTest(command):
                ended = self.runProgram(command)
                self.assertEqual(ended.returncode, program.EXIT_FAILED, ended)
                self.assertOneLine(ended.stderr, self.store)
                self.assertEqual(ended.stdout, "")

    def testTheExitCodesOfAnOrderAreInItsHelp(self):
        ended = self.runProgram("order", "--help")
        self.assertEqual(ended.returncode, program.EXIT_FINISHED)
        for word in ("ordered", "failed", "usage", "refused", "cancelled"):
            self.assertIn(word, ended.stdout.lower())
