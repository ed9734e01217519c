"""Ordered runs on a desktop: the message at the end is all that is ever seen of them. A window that somebody uses
follows a cancel of other programs too."""

import fcntl
import os
import re
import shutil
import struct
import subprocess
import time
import unittest
import zlib

from case import NOTICED_WITHIN_SECONDS, SLOWEST
from remote_case import (ABORT_PAUSE_SECONDS, FAILED, FINISHED, NOTIFICATION, PAUSE_SECONDS, RUN_SECONDS,
                         RemoteTest)
from tag_store import STORE_VARIABLE
from testkit import program
from testkit.desktop import SCREEN
from testkit.program import startedAs
from testkit.window_program import WindowProgram
from window_case import ENDS_WITHIN_SECONDS, PHASE_2, WindowTest

GREEN, ORANGE = (0, 255, 0), (255, 119, 52)
POP_UP_WIDTH, POP_UP_HEIGHT = 300, 90
SPARE_SECONDS = 4
# What a busy machine may take to tell of a window that is on the screen already.
SEEN_LATE_SECONDS = 2
_MAPPED = re.compile(r"^MapNotify event,.*\n.*, window (0x[0-9a-f]+), override (YES|NO)", re.MULTILINE)


def _whyUnwatched():
    """The tool that is missing to see and to notify what is on the screen, or None."""
    return next((tool for tool in ("xev", "xprop", "stdbuf", "dbus-send") if shutil.which(tool) is None), None)


@unittest.skipIf(_whyUnwatched(), f"{_whyUnwatched()} is not installed")
class SeenTest(WindowTest, RemoteTest):
    def notify(self, *texts):
        self.screen.run(*NOTIFICATION, *(f"string:{text}" for text in texts))

    def startWatch(self):
        watch = ScreenWatch(self.screen)
        self.addCleanup(watch.close)
        return watch


class ScreenWatch:
    """Every window that comes to be seen, and every list of windows that the window manager has had."""

    def __init__(self, screen):
        self._screen = screen
        self._seen, self._listed = screen.newFile("seen"), screen.newFile("listed")
        self._tools = [self._start(self._seen, "xev", "-root", "-event", "substructure", "-event", "property"),
                       self._start(self._listed, "xprop", "-root", "-spy", "_NET_CLIENT_LIST")]
        program.waitUntil(self._hears, "the watch on the screen")
        program.waitUntil(lambda: _read(self._listed), "the watch on the list of windows")

    def _start(self, output, *command):
        with open(output, "wb") as file:
            return subprocess.Popen(["stdbuf", "-oL", *command], env=self._screen.env, stdin=subprocess.DEVNULL,
                                    stdout=file, **startedAs(plainUser=False))

    def _hears(self):
        self._screen.run("xprop", "-root", "-f", "_CALVERO_WATCH", "8s", "-set", "_CALVERO_WATCH", "begun")
        return "_CALVERO_WATCH" in _read(self._seen)

    def mapped(self):
        """Number of each window that came to be seen, and whether it is none of the window manager's."""
        return [(number, override == "YES") for number, override in _MAPPED.findall(_read(self._seen))]

    def managed(self):
        """Windows that were in the window manager's list, from which a task bar is made."""
        return re.findall(r"0x[0-9a-f]+", _read(self._listed))

    def close(self):
        for tool in self._tools:
            tool.kill()
            tool.wait()


def _read(path):
    with open(path, errors="replace") as file:
        return file.read()


class SeenOrders(SeenTest):
    def setUp(self):
        super().setUp()
        self.watch = self.startWatch()

    def start(self, target, method="1"):
        order = self.makeOrder(target, method)
        window = WindowProgram(self.screen, [program.windowProgramPath()], env={STORE_VARIABLE: order.tags.path})
        self.addCleanup(window.close)
        return order, window

    def waitForPopUp(self, seconds=RUN_SECONDS):
        """Returns its number and when it was seen."""
        mapped = program.waitUntil(self.watch.mapped, "a window", seconds)
        return mapped[0][0], time.monotonic()

    def colourAt(self, x, y):
        path = self.screen.newFile("pixel")
        os.remove(path)
        self.screen.screenshot(path, (x, y, 1, 1))
        with open(path, "rb") as file:
            picture = file.read()
        at = picture.index(b"IDAT")
        length, = struct.unpack(">I", picture[at - 4:at])
        return tuple(zlib.decompress(picture[at + 4:at + 4 + length])[1:])

    def assertPopUp(self, number):
        """It is where it belongs; returns a place where its colour is to be seen."""
        about = self.screen.run("xwininfo", "-id", number)
        figures = {name: int(re.search(rf"{name}: +(-?\d+)$", about, re.MULTILINE)[1])
                   for name in ("upper-left X", "upper-left Y", "Width", "Height")}
        self.assertIn("Override Redirect State: yes", about)
        self.assertEqual(figures["Width"], POP_UP_WIDTH)
        self.assertGreaterEqual(figures["Height"], POP_UP_HEIGHT)
        width, height = SCREEN
        self.assertEqual(figures["upper-left X"], width - POP_UP_WIDTH)
        above = (height - figures["Height"]) / 9
        self.assertAlmostEqual(height - figures["Height"] - figures["upper-left Y"], above, delta=1)
        return figures["upper-left X"] + 4, figures["upper-left Y"] + figures["Height"] // 2

    def assertPainted(self, place, colour):
        program.waitUntil(lambda: self.colourAt(*place) == colour, f"the colour {colour} at {place}", seconds=2)

    def assertNothingElseSeen(self, *numbers):
        self.assertEqual(self.watch.mapped(), [(number, True) for number in numbers])
        self.assertEqual(self.watch.managed(), [], "neither a window nor an entry in the task bar")

    def assertGone(self, number):
        self.assertNotIn(number, self.screen.run("xwininfo", "-root", "-tree"))

    def testAFinishedRunShowsItsMessageForSevenSecondsAndNothingElse(self):
        target = self.makeVolume("ext4", 16)
        order, window = self.start(target)
        number, appeared = self.waitForPopUp()
        self.assertIsNone(order.status)
        self.assertPainted(self.assertPopUp(number), GREEN)
        window.find(name=f"Your admin successfuly completed\n Calvero on:{target.name}", timeout=2)
        self.assertNothingLeft(target)
        status, when = order.waitForStatus(20)
        self.assertEqual(status, FINISHED)
        self.assertGreater(when - appeared, PAUSE_SECONDS - SEEN_LATE_SECONDS)
        self.assertLess(when - appeared, PAUSE_SECONDS + SPARE_SECONDS)
        self.assertEqual(window.waitForEnd(ENDS_WITHIN_SECONDS), (0, "", ""))
        self.assertNothingElseSeen(number)
        self.assertGone(number)

    def testACancelledRunShowsItsMessageForThreeSecondsAndNothingElse(self):
        target = self.makeVolume("ext4", 256)
        order, window = self.start(target, SLOWEST)
        self.waitUntilWriting(target)
        self.assertNothingElseSeen()
        self.notify("cancel wipe", "cancel")
        number, appeared = self.waitForPopUp(NOTICED_WITHIN_SECONDS)
        self.assertPopUp(number)
        self.assertEqual(order.waitForStatus(ABORT_PAUSE_SECONDS)[0], FAILED)
        self.assertEqual(window.waitForEnd(10), (program.EXIT_CANCELLED, "", ""))
        lasted = time.monotonic() - appeared
        self.assertGreater(lasted, ABORT_PAUSE_SECONDS - SEEN_LATE_SECONDS)
        self.assertLess(lasted, ABORT_PAUSE_SECONDS + SPARE_SECONDS)
        self.assertNothingLeft(target)
        self.assertNothingElseSeen(number)
        self.assertGone(number)

    def testTheMessageOfACancelIsPaintedWhileTheProgramWaits(self):
        target = self.makeVolume("ext4", 256)
        _, window = self.start(target, SLOWEST)
        self.waitUntilWriting(target)
        self.notify("cancel wipe", "cancel")
        number, _ = self.waitForPopUp(NOTICED_WITHIN_SECONDS)
        self.assertPainted(self.assertPopUp(number), ORANGE)
        self.assertEqual(window.waitForEnd(10), (program.EXIT_CANCELLED, "", ""))

    def testAMissingVolumeShowsNothingAtAll(self):
        order, window = self.start("not there")
        self.assertEqual(window.waitForEnd(ENDS_WITHIN_SECONDS), (program.EXIT_FAILED, "", ""))
        self.assertEqual(order.status, FAILED)
        self.assertNothingElseSeen()

    def testAFillerFileRemovedFromOutsideShowsNothingAtAll(self):
        target = self.makeVolume("ext4", 200)
        order, window = self.start(target)
        self.waitUntilWriting(target)
        os.remove(os.path.join(target.fillerDirectory(), ".temp1"))
        self.assertEqual(window.waitForEnd(RUN_SECONDS), (program.EXIT_FAILED, "", ""))
        self.assertEqual(order.status, FAILED)
        self.assertNothingLeft(target)
        self.assertNothingElseSeen()


class UsedWindow(SeenTest):
    """A window without an order."""

    def startUnordered(self):
        order = self.makeOrder("not there")
        order.tags.set(cvrOnline="0")
        return order, self.startWindow(env={STORE_VARIABLE: order.tags.path})

    def testANotificationEndsTheRunAndTheProgramWithoutAnAlert(self):
        target = self.makeVolume("ext4", 256)
        freeBefore = target.freeBytes()
        order, window = self.startUnordered()
        self.startWriting(window, target)
        before = order.tags.read()
        self.notify("cancel wipe", "other")
        self.notify("cancel", "cancel")
        window.closeWindow()  # what was posted before is served before this
        self.answer(window, "Wiping process is On")
        self.assertTrue(window.isShowing("label", PHASE_2))
        self.assertTrue(os.path.lexists(target.fillerDirectory()))
        watch = self.startWatch()
        self.notify("cancel wipe", "cancel")
        self.assertEqual(window.waitForEnd(10), (0, "", ""))
        self.assertEqual(watch.mapped(), [], "no alert")
        self.assertEqual(order.tags.read(), before)
        self.assertNothingLeft(target)
        self.assertFreeAgain(target, freeBefore)

    def testListingTheDrivesAnewLeavesAnOrderAloneThatAnotherProcessCarriesOut(self):
        target = self.makeVolume("ext4", 16)
        order, window = self.startUnordered()
        self.choose(window, target)
        with open(order.tags.path + "-order", "a") as claim:
            fcntl.fcntl(claim, fcntl.F_OFD_SETLK, struct.pack("hhqqi4x", fcntl.F_WRLCK, os.SEEK_SET, 0, 0, 0))
            order.tags.set(cvrOnline="1")
            window.pressButton("Reload Drives")
            self.toMethods(window, target)  # it has not taken the order, which would narrow its list
            self.assertIsNone(order.status)
            order.tags.set(cvrOnline="0")  # cleared
        self.proceed(window, answer="NO")
        self.quit(window)
        self.assertIsNone(order.status, "no status is written into a store that has been cleared")

    def testListingTheDrivesAnewClaimsAPendingOrderThatNobodyCarriesOut(self):
        target, other = self.makeVolume("ext4", 16), self.makeVolume("ext4", 16)
        order, window = self.startUnordered()
        self.choose(window, other)
        order.tags.set(cvrOnline="1", cvrDrive=target.name)
        window.pressButton("Reload Drives")
        self.assertDescribed(window, target)
        ended = subprocess.run([program.programPath(), "clear"], env=os.environ | {STORE_VARIABLE: order.tags.path},
                               capture_output=True, text=True, timeout=60, check=False)
        self.assertRefused(ended, target.name, "under way")
        second = subprocess.run([program.windowProgramPath()], env=order.env, capture_output=True, text=True,
                                timeout=60, check=False)
        self.assertEqual(second.returncode, program.EXIT_REFUSED, second)
        self.assertIsNone(order.status)

    def testANotificationWithoutARunEndsTheProgramToo(self):
        target = self.makeVolume("ext4", 16)
        _, window = self.startUnordered()
        self.choose(window, target)
        self.notify("cancel wipe", "cancel")
        self.assertEqual(window.waitForEnd(10), (0, "", ""))
        self.assertNothingLeft(target)
