"""What the tests of media that go away or fail under the window's run share."""

from case import NOTICED_WITHIN_SECONDS
from window_case import SLOWEST, WindowTest

DEAD = "does not respond|not connected any more"


class LostTest(WindowTest):
    def writing(self, target, method=SLOWEST):
        window = self.startWindow()
        self.startWriting(window, target, method)
        return window

    def checkTold(self, window, target):
        text = self.outcome(window, NOTICED_WITHIN_SECONDS)
        self.assertEqual(text, f"The drive {target.name} was removed or has failed. Deleted data may still be "
                         "readable on it.")
        self.acknowledge(window)

    def checkRefusedNow(self, window, target):
        """The volume is still listed, but takes no further run."""
        self.choose(window, target)
        window.pressButton("Next")
        window.pressButton("Proceed")
        self.assertRegex(window.find("dialog", "Information").description, DEAD)
        self.assertRefusal(window)
        window.pressButton("Back")
        self.assertOnFirstPage(window)

    def checkUsableAndEnds(self, window):
        other = self.makeVolume("ext4", 24)
        window.pressButton("Reload Drives")
        self.startRun(window, other)
        self.expectSuccess(window, other)
        self.quit(window)
        self.assertNothingLeft(other)
