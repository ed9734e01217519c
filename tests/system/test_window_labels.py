"""A volume's label is text from a stranger: it is shown as text, whatever it holds."""

import re

from window_case import FAST, ISOLATES, QUESTION, REQUEST, WindowTest

REPLACEMENT = "\N{REPLACEMENT CHARACTER}"
OVERRIDE = "\N{RIGHT-TO-LEFT OVERRIDE}"

# file system, size in MiB, label, name shown
LABELS = (
    ("ext4", 16, "<b>x</b> &amp;&y", "<b>x</b> &amp;&y"),
    ("ext4", 16, b"a\x1b[2J\x07\x7f\nb\xff%1%n", f"a{REPLACEMENT}[2J{3 * REPLACEMENT}b{REPLACEMENT}%1%n"),
    ("ext4", 16, f"a{OVERRIDE}gpj.exe", f"a{REPLACEMENT}gpj.exe"),
)
LONGEST = "<h1>%1</h1><img src='file:///etc/passwd'>\t" + "W" * 180 + f"&{OVERRIDE}\N{GRINNING FACE}"


class HostileLabels(WindowTest):
    def checkShown(self, target, window):
        """In the tile and its tool tip, in the description and in the question that follows."""
        tile = window.find("list item", target.name)
        self.assertNotRegex(tile.description, "[\0-\x1f]")
        window.hover(tile)
        tip = window.find("tool tip")
        self.assertEqual(ISOLATES.sub("", tip.name).splitlines()[0], target.name)
        self.choose(window, target)

    def checkErased(self, target, window):
        window.pressButton("Next")
        self.chooseMethod(window, FAST)
        window.pressButton("Proceed")
        self.answer(window, *QUESTION, button="YES")
        self.answer(window, REQUEST)
        self.assertEqual(self.outcome(window), f"The free space of {target.name} has been erased.")
        label = window.find("label", re.compile("has been erased"), within=window.find("dialog", "Calvero"))
        self.assertEqual(ISOLATES.sub("", label.name), f"The free space of {target.name} has been erased.")
        self.acknowledge(window)
        self.assertDescribed(window, target)

    def testAHostileLabelIsShownAsPlainTextAndItsVolumeErased(self):
        for fs, mebibytes, label, shown in LABELS:
            with self.subTest(shown):
                target = self.makeVolume(fs, mebibytes, label=label)
                target.name = shown
                window = self.startWindow()
                self.checkShown(target, window)
                self.checkErased(target, window)
                self.quit(window)
                self.assertNothingLeft(target)

    def testAVeryLongHostileLabelDoesNotStretchTheWindow(self):
        target = self.makeVolume("btrfs", 128, label=LONGEST)
        target.name = LONGEST.replace("\t", REPLACEMENT).replace(OVERRIDE, REPLACEMENT)
        window = self.startWindow()
        narrow = self.widthOf(window)
        self.checkShown(target, window)
        self.assertEqual(self.widthOf(window), narrow)
        self.checkErased(target, window)
        self.assertEqual(self.widthOf(window), narrow)

    def testTwoVolumesOfOneLabelGetNamesOfTheirOwn(self):
        targets = [self.makeVolume("ext4", 16, label="TWIN") for _ in range(2)]
        window = self.startWindow()
        names = sorted(tile.name for tile in window.findAll("list item", re.compile("^TWIN")))
        self.assertEqual(names, ["TWIN", "TWIN 1"])
        window.click(window.find("list item", "TWIN 1"))
        target = next(one for one in targets if one.path in window.find("list item", "TWIN 1").description)
        target.name = "TWIN 1"
        self.assertDescribed(window, target)
        self.checkErased(target, window)

    def widthOf(self, window):
        return window.bounds(window.find("frame", "Calvero"))[2]
