"""The whole way by keyboard alone."""

from window_case import FAST, NAVSO, PHASE_2, QUESTION, RANDOM, REQUEST, WindowTest, successText

MOST_TILES = 200


class WipeByKeyboard(WindowTest):
    def goToTile(self, window, target):
        """With the arrow key, as many times as it takes."""
        tile = window.find("list item", target.name)
        for _ in range(MOST_TILES):
            current = next(item for item in window.findAll("list item") if window.hasState(item, "focused"))
            if current.name == target.name:
                break
            window.typeKeys("Right")
            window.waitForState(current, "focused", isSet=False)
        window.waitForState(tile, "selected")
        self.assertDescribed(window, target)

    def focused(self, window):
        return [(role, one.name) for role in ("push button", "check box", "list item", "label")
                for one in window.findAll(role) if window.hasState(one, "focused")]

    def focusOn(self, window, button):
        """With the Tab key, as many times as it takes."""
        for _ in range(20):
            if window.hasState(button, "focused"):
                return
            before = self.focused(window)
            window.typeKeys("Tab")
            window.waitFor(lambda: self.focused(window) not in ([], before), "Tab leading on")
        self.fail(f"Tab does not lead to {button.name!r}")

    def testTheArrowKeysChooseTheMethod(self):
        target = self.makeVolume("ext4", 16)
        window = self.startWindow()
        self.goToTile(window, target)
        window.typeKeys("Return")
        window.waitForState(window.find("check box", FAST), "focused")
        for key, method in (("Down", RANDOM), ("Down", NAVSO), ("Up", RANDOM), ("Right", NAVSO), ("Left", RANDOM)):
            window.typeKeys(key)
            window.waitForState(window.find("check box", method), "checked")
        window.waitForState(window.find("check box", FAST), "checked", isSet=False)

    def testTheWholeWayIsGoneByKeyboardAlone(self):
        target = self.makeVolume("ext4", 64)
        freeBefore = target.freeBytes()
        window = self.startWindow()
        self.goToTile(window, target)

        # Enter goes on, Tab and Space go back.
        window.typeKeys("Return")
        window.waitForState(window.find("check box", FAST), "focused")
        self.focusOn(window, window.find("push button", "Back"))
        window.typeKeys("space")
        self.assertOnFirstPage(window)
        window.waitForState(window.find("list item", target.name), "focused")
        self.focusOn(window, window.find("push button", "Next"))
        window.typeKeys("space")

        # Escape is "NO".
        window.waitForState(window.find("check box", FAST), "focused")
        window.typeKeys("Return")
        window.find("dialog", *QUESTION)
        window.typeKeys("Escape")
        window.waitUntilGone("dialog", QUESTION[0])
        self.assertOnFirstPage(window)
        self.assertNoRun(window, target)

        window.typeKeys("Return")
        window.waitForState(window.find("check box", FAST), "focused")
        self.focusOn(window, window.find("push button", "Proceed"))
        window.typeKeys("space")
        question = window.find("dialog", *QUESTION)
        window.waitForState(window.find("push button", "YES", within=question), "focused")
        window.typeKeys("Return")
        window.find("dialog", REQUEST)
        window.typeKeys("space")
        window.find("label", PHASE_2, timeout=30)
        # Keys that were meant for the question do not cancel the run.
        window.typeKeys("Return", "space", "Escape")

        self.assertRegex(self.outcome(window), successText(target))
        window.typeKeys("Return")
        window.waitUntilGone("dialog", "Calvero")
        self.assertOnFirstPage(window)
        self.quit(window)
        self.assertNothingLeft(target)
        self.assertFreeAgain(target, freeBefore)

    def testARunIsCancelledByKeyboardAlone(self):
        target = self.makeVolume("ext4", 64)
        window = self.startWindow()
        self.startWriting(window, target)
        self.focusOn(window, window.find("push button", "Cancel"))
        window.typeKeys("space")
        window.find("dialog", "Information", "Wiping process aborted", timeout=20)
        window.typeKeys("Escape")
        window.waitUntilGone("dialog", "Information")
        self.assertOnFirstPage(window)
        self.assertNothingLeft(target)
