"""A volume's label is text from a stranger: it is shown as text, whatever it holds."""

import os
import re

from window_case import FAST, ISOLATES, QUESTION, REQUEST, WindowTest, successText

REPLACEMENT = "\N{REPLACEMENT CHARACTER}"
OVERRIDE = "\N{RIGHT-TO-LEFT OVERRIDE}"
END_OF_ISOLATE = "\N{POP DIRECTIONAL ISOLATE}"
HARMFUL = f"[\0-\x1f\x7f-\x9f\u2028\u2029{OVERRIDE}{END_OF_ISOLATE}]"
# Name, kind of drive, file system, mount path, size and free space.
LINES_OF_A_TOOL_TIP = 6

# label, name shown
LABELS = (
    ("<b>x</b> &amp;&y", "<b>x</b> &amp;&y"),
    (b"a\x1b[2J\x07\x7f\nb\xff%1%n", f"a{REPLACEMENT}[2J{3 * REPLACEMENT}b{REPLACEMENT}%1%n"),
    (f"a{OVERRIDE}gpj.exe", f"a{REPLACEMENT}gpj.exe"),
)
# As many bytes as a label or a folder's name can have; the last character is cut in two.
LONGEST_BYTES = 255
LONGEST = ("<h1>%1</h1><img src='file:///etc/passwd'>\t" + "W" * LONGEST_BYTES).encode()[:LONGEST_BYTES - 6] + (
    f"&{OVERRIDE}\N{GRINNING FACE}".encode()[:6])
LONGEST_SHOWN = LONGEST.decode(errors="replace").replace("\t", REPLACEMENT).replace(OVERRIDE, REPLACEMENT)


class HostileLabels(WindowTest):
    def checkShown(self, target, window):
        """In the tile and its tool tip, in the description and in the question that follows."""
        tile = window.find("list item", target.name)
        self.assertNotRegex(tile.description, HARMFUL)
        window.hover(tile)
        tip = ISOLATES.sub("", window.find("tool tip").name)
        self.assertNotRegex(tip.replace("\n", ""), HARMFUL)
        self.assertEqual(tip.splitlines()[0], target.name)
        self.assertEqual(len(tip.splitlines()), LINES_OF_A_TOOL_TIP)
        self.choose(window, target)

    def checkErased(self, target, window):
        window.pressButton("Next")
        self.chooseMethod(window, FAST)
        window.pressButton("Proceed")
        self.answer(window, *QUESTION, button="YES")
        self.answer(window, REQUEST)
        self.assertRegex(self.outcome(window), successText(target))
        label = window.find("label", re.compile("have been overwritten"), within=window.find("dialog", "Calvero"))
        self.assertRegex(ISOLATES.sub("", label.name), successText(target))
        self.acknowledge(window)
        self.assertDescribed(window, target)

    def testAHostileLabelIsShownAsPlainTextAndItsVolumeErased(self):
        targets = [self.makeVolume("ext4", 16, label=label) for label, _ in LABELS]
        window = self.startWindow()
        for target, (_, shown) in zip(targets, LABELS):
            with self.subTest(shown):
                target.name = shown
                self.checkShown(target, window)
                self.checkErased(target, window)
                self.assertNothingLeft(target)

    def testAVeryLongHostileLabelDoesNotStretchTheWindow(self):
        target = self.makeVolume("btrfs", 128, label=LONGEST)
        target.name = LONGEST_SHOWN
        window = self.startWindow()
        narrow = self.widthOf(window)
        self.checkShown(target, window)
        self.assertEqual(self.widthOf(window), narrow)
        self.checkErased(target, window)
        self.assertEqual(self.widthOf(window), narrow)

    def testAHostileMountPathIsShownAsPlainText(self):
        target = self.makeVolume("ext4", 16, label=" ")
        parent = target.path + "-of"
        os.mkdir(parent)
        self.addCleanup(os.rmdir, parent)
        self.addCleanup(target.close)
        target.mountAt(os.path.join(parent, f"<b>a&amp;\x1b[2J\n\u009b{END_OF_ISOLATE}{OVERRIDE}\u2028b\udcffc"))
        target.name = f"<b>a&amp;{REPLACEMENT}[2J{5 * REPLACEMENT}b{REPLACEMENT}c"
        window = self.startWindow()
        self.checkShown(target, window)
        tile = window.find("list item", target.name)
        self.assertIn(f"{parent}/{target.name},", tile.description)
        self.checkErased(target, window)

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
