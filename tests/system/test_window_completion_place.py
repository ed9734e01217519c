"""Where the completion window stands on a desktop with frames: pinned onto the main window once the volume is gone."""

import re

from testkit import program
from window_case import SLOWEST, WindowTest

NOTICED_WITHIN_SECONDS = 10


class CompletionPlace(WindowTest):
    def idOf(self, window, accessible):
        """Of the window on the screen that has the place of the accessible's."""
        place = window.bounds(accessible)
        numbers = self.screen.run("xdotool", "search", "--onlyvisible", "--pid", str(window.process.pid)).split()
        return next(number for number in numbers if self.placeOf(number) == place)

    def placeOf(self, number):
        """x, y, width and height."""
        about = self.screen.run("xwininfo", "-id", number)
        return tuple(int(re.search(rf"{name}: +(-?\d+)$", about, re.MULTILINE)[1])
                     for name in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))

    def frameOf(self, number):
        """The window manager's window around it, which is as large as it is where there is nothing to be seen of it."""
        return re.search(r"Parent window id: (0x[0-9a-f]+)", self.screen.run("xwininfo", "-children", "-id", number))[1]

    def lowerLeftOfFrame(self, number):
        x, y, _, height = self.placeOf(self.frameOf(number))
        return x, y + height

    def windowAfterAnEjectedRun(self):
        target = self.makeVolume("ext4", 64)
        window = self.startWindow()
        self.startWriting(window, target, SLOWEST)
        # As the file system itself does on a damaged medium; the run takes the volume for ejected.
        target.remount("abort")
        self.outcome(window, NOTICED_WITHIN_SECONDS)
        return window

    def mainAndCompleted(self, window):
        return (self.idOf(window, window.find(role, "Calvero")) for role in ("frame", "dialog"))

    def testThePinnedWindowStandsOnTheMainWindowsLowerLeftCornerAndFollowsIt(self):
        window = self.windowAfterAnEjectedRun()
        main, completed = self.mainAndCompleted(window)
        self.assertNotEqual(self.placeOf(self.frameOf(main)), self.placeOf(main), "the main window has a frame")
        corner = self.lowerLeftOfFrame(main)
        self.assertPinned(completed, main)
        self.screen.run("xdotool", "windowmove", "--relative", main, "60", "-40")
        program.waitUntil(lambda: self.lowerLeftOfFrame(main) != corner, "the main window in its new place", seconds=10)
        self.assertPinned(completed, main)

    def testAWindowThatWasPinnedStandsByItselfAtTheEndOfTheNextRun(self):
        window = self.windowAfterAnEjectedRun()
        self.acknowledge(window)
        other = self.makeVolume("ext4", 24)
        window.pressButton("Reload Drives")
        self.startRun(window, other)
        self.outcome(window)
        main, completed = self.mainAndCompleted(window)
        self.assertNotEqual(self.placeOf(self.frameOf(completed)), self.placeOf(completed), "it has a frame again")
        corner, place = self.lowerLeftOfFrame(main), self.placeOf(completed)
        self.assertNotEqual(self.lowerLeftOfFrame(completed), corner)
        self.screen.run("xdotool", "windowmove", "--relative", main, "60", "-40")
        program.waitUntil(lambda: self.lowerLeftOfFrame(main) != corner, "the main window in its new place", seconds=10)
        self.assertEqual(self.placeOf(completed), place)

    def assertPinned(self, completed, main):
        program.waitUntil(lambda: self.lowerLeftOfFrame(completed) == self.lowerLeftOfFrame(main),
                          "the completion window on the main window's corner", seconds=10)
