"""What the tests of the window share: the program on a desktop of the test's own, and the steps of its wizard."""

import os
import re

from case import SystemTest, fillerNames
from testkit import desktop, program
from testkit.volume import protectDisks
from testkit.window_program import WindowProgram

FAST, RANDOM, NAVSO, DOD, SLOWEST = (re.compile(name) for name in (
    r"Fast Zero Write.*Passes: 1$", r"^Random, ", r"^N\.A\.V\.S\.O\.", r"^DOD", r"Passes: 38$"))
QUESTION = ("Alert!!", "Are you sure , you want to erase the free space of selected drive?")
REQUEST = re.compile("^Please!!")
PHASE_1, PHASE_2 = "Phase 1: Analyzing Data..", "Phase 2: Securely Erasing Data.."
RUN_SECONDS = 120
ENDS_WITHIN_SECONDS = 30  # where only the end itself matters
# Around a name, so that its direction does not disturb the text about it.
ISOLATES = re.compile("[\N{FIRST STRONG ISOLATE}\N{POP DIRECTIONAL ISOLATE}]")
_START_SECONDS = 30  # of a program, and of a run


class WindowTest(SystemTest):
    plainUser = False

    def setUp(self):
        if reason := desktop.whyUnavailable():
            self.skipTest(reason)
        if os.geteuid() == 0:
            protectDisks()
        elif self.plainUser:
            self.skipTest("starting a program as another user needs root")
        self.screen = desktop.shared(self.plainUser)

    def startWindow(self, **options):
        """The program with its first page shown."""
        window = WindowProgram(self.screen, options.pop("command", None) or [self.windowProgramFor(self.plainUser)],
                               **options)
        self.addCleanup(window.close)
        window.find("frame", "Calvero", timeout=_START_SECONDS)
        return window

    # The steps of the wizard

    def choose(self, window, target):
        tile = window.find("list item", target.name)
        window.click(tile)
        window.waitForState(tile, "selected")
        self.assertDescribed(window, target)

    def toMethods(self, window, target, method=FAST):
        self.choose(window, target)
        window.pressButton("Next")
        self.chooseMethod(window, method)

    def chooseMethod(self, window, method):
        button = window.find("check box", method)
        window.click(button)
        window.waitForState(button, "checked")

    def proceed(self, window, answer="YES"):
        window.pressButton("Proceed")
        self.answer(window, *QUESTION, button=answer)

    def startRun(self, window, target, method=FAST):
        """Until phase 2 is shown."""
        self.toMethods(window, target, method)
        self.proceed(window)
        self.answer(window, REQUEST)
        window.find("label", PHASE_2, timeout=_START_SECONDS)

    def startWriting(self, window, target, method=SLOWEST):
        """Until filler file 0 is there and not empty."""
        self.startRun(window, target, method)
        first = os.path.join(target.fillerDirectory(), ".temp0")
        program.waitUntil(lambda: os.path.exists(first) and os.stat(first).st_size > 0, "the first filler file's data")

    def answer(self, window, title, message=None, button="OK", timeout=20):
        """Presses the button of that alert, as soon as it is there, and waits until the alert is gone."""
        alert = window.find("dialog", title, message, timeout=timeout)
        window.pressButton(button, within=alert)
        # The program may hold still before the alert's window goes.
        window.waitUntilGone("dialog", title, message, timeout=20)

    def outcome(self, window, timeout=RUN_SECONDS):
        """Waits for the completion window and returns what it says."""
        return ISOLATES.sub("", window.find("dialog", "Calvero", timeout=timeout).description)

    def expectSuccess(self, window, target):
        """Waits for a success and goes back to the first page."""
        self.assertRegex(self.outcome(window), successText(target))
        self.acknowledge(window)

    def acknowledge(self, window):
        window.pressButton("OK", within=window.find("dialog", "Calvero"))
        window.waitUntilGone("dialog", "Calvero")
        self.assertOnFirstPage(window)

    def cancelWhileItHangs(self, window):
        """Cancels the run on a volume that does not answer, and goes back to the first page."""
        window.pressButton("Cancel")
        window.find("label", "Please wait, finishing current process..")
        self.answer(window, "Information", "Wiping process aborted", timeout=30)
        self.assertOnFirstPage(window)

    def closeWhileItHangs(self, window, target):
        """The program leaves without the threads that the volume keeps, and ends once it dies."""
        window.closeWindow()
        program.waitUntil(lambda: program.hasLeft(window.process), "the program leaving without its threads",
                          seconds=15)
        target.die()
        self.assertEqual(window.waitForEnd(10), (0, "", ""))

    def quit(self, window):
        window.closeWindow()
        self.assertEqual(window.waitForEnd(ENDS_WITHIN_SECONDS), (0, "", ""))

    # What is expected

    def description(self, window):
        """What the first page says of the selected volume."""
        area = window.find("label", "Drive Name :").parent
        labels = [label.name for label in window.findAll("label", within=area)]
        return dict(zip(labels[::2], labels[1::2]))

    def assertDescribed(self, window, target):
        program.waitUntil(lambda: self.description(window)["Drive Name :"] == target.name,
                          f"the description of {target.name}", seconds=10)

    def assertOnFirstPage(self, window):
        window.find("push button", "Next")
        window.find("list", "Drives")
        self.assertFalse(window.isShowing("push button", re.compile("^(Proceed|Back|Cancel)$")))

    def assertNoRun(self, window, target):
        """No run is under way, and none has left anything."""
        self.assertEqual(runThreads(window), [])
        self.assertEqual(fillerNames(target), [])
        self.assertNothingLeft(target)

    def assertRefusal(self, window, *words, title="Information"):
        """The alert that is up says so; answers it."""
        alert = window.find("dialog", title)
        for word in words:
            self.assertIn(word, alert.description)
        self.answer(window, title, button=re.compile("^(OK|Ok)$"))


def successText(target):
    """What is said of a run that has overwritten all of the volume's free space."""
    return rf"^\d+\.\d\d [MG]B of free space on {re.escape(target.name)} have been overwritten\.$"


LASTING_THREADS = ("calvero-dbus", "calvero-tags")


def runThreads(window):
    """Names of the threads of a run."""
    names = [name for name, _ in program.otherThreads(window.process)]
    return [name for name in names if name.startswith("calvero-") and name not in LASTING_THREADS]
