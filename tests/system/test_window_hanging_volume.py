"""A medium that answers nothing any more, and may never again, must not hold up the window."""

from testkit import program
from window_case import WindowTest


class HangingVolume(WindowTest):
    def testARunOnAVolumeThatHangsCanBeCancelledAndTheProgramEnds(self):
        target = self.makeFuseVolume(64)
        window = self.startWindow()
        self.startWriting(window, target)
        self.addCleanup(target.die)  # until then not even a killed program ends
        target.hang()
        window.pressButton("Cancel")
        window.find("label", "Please wait, finishing current process..")
        aborted = window.find("dialog", "Information", "Wiping process aborted", timeout=30)
        window.pressButton("OK", within=aborted)
        window.waitUntilGone("dialog", "Information")
        self.assertOnFirstPage(window)
        window.closeWindow()
        program.waitUntil(lambda: hasLeft(window), "the program leaving without its threads", seconds=15)
        target.die()
        self.assertEqual(window.waitForEnd(10), (0, "", ""))


def hasLeft(window):
    """Whether the program has ended, but for threads that the kernel holds until the medium answers."""
    if window.process.poll() is not None:
        return True
    with open(f"/proc/{window.process.pid}/stat") as file:
        return file.read().rpartition(")")[2].split()[0] == "Z"
