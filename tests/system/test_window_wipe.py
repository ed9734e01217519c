"""A whole run by mouse, and what is on the raw medium afterwards."""

import re

from testkit.marks import KeptFiles, MarkedData
from window_case import DOD, PHASE_1, PHASE_2, QUESTION, REQUEST, RUN_SECONDS, WindowTest

MOST_READABLE_BYTES = 17_000_000  # ext4 keeps back up to 4096 clusters for itself.
LEAST_MARKED_BEFORE = 0.8
ERASED_TEXTS = ["0.00 KB", "128.00 MB", "256.00 MB"]  # of three filler files; one behind
PERCENTAGES = [1, 33, 66, 100]


class WipeByMouse(WindowTest):
    def preparedVolume(self):
        """A volume of three filler files full of deleted data."""
        target = self.makeVolume("ext4", 320)
        kept = KeptFiles(target.path)
        marked = MarkedData(target.path)
        marked.fill()
        marked.delete()
        target.unmount()
        before = marked.bytesReadable(target)
        self.assertGreater(before, LEAST_MARKED_BEFORE * target.sizeBytes)
        target.mount()
        return target, kept, marked, before

    def clickThrough(self, window, target):
        self.choose(window, target)
        listed = self.description(window)["Free Space :"]
        window.click(window.find("push button", "Next"))
        self.chooseMethod(window, DOD)
        self.assertEqual(self.figure(window, "Unsecured Data: ").name, listed)
        self.assertEqual(self.figure(window, "Space to be erased: ").name, listed)
        window.click(window.find("push button", "Proceed"))
        question = window.find("dialog", *QUESTION)
        window.click(window.find("push button", "YES", within=question))
        window.click(window.find("push button", "OK", within=window.find("dialog", REQUEST)))
        return listed

    def figure(self, window, caption):
        """The label that follows the caption."""
        labels = window.findAll("label")
        return labels[[label.name for label in labels].index(caption) + 1]

    def watch(self, window):
        """What the progress page shows from phase 1 until the completion window comes."""
        phase = window.find("label", PHASE_1, timeout=30)
        bar = window.find("progress bar")
        readers = {"phase": lambda: phase.name, "percent": lambda: round(window.value(bar))}
        for kind, caption in (("erased", "Erased Data:"), ("elapsed", "Elapsed Time:")):
            readers[kind] = lambda figure=self.figure(window, caption): figure.name
        seen = {kind: [] for kind in readers} | {"phase": [PHASE_1]}  # it may be over by now

        def look():
            for kind, read in readers.items():
                value = read()
                if value not in seen[kind][-1:]:
                    seen[kind].append(value)
            return len(window.windows()) > 1

        window.waitFor(look, "the completion window", RUN_SECONDS)
        window.waitFor(look, "the last figures")
        return seen

    def checkFigures(self, window, seen, listed):
        self.assertEqual(seen["phase"], [PHASE_1, PHASE_2])
        inPhaseTwo = [value for value in seen["percent"] if value in PERCENTAGES]
        self.assertEqual(inPhaseTwo[-len(PERCENTAGES):], PERCENTAGES, seen)
        self.assertEqual(seen["erased"], ERASED_TEXTS)
        self.assertGreater(len(seen["elapsed"]), 2)
        self.assertEqual(seen["elapsed"], sorted(seen["elapsed"]))
        for text in seen["elapsed"]:
            self.assertRegex(text, r"^00:[0-5]\d:[0-5]\d$")
        self.assertEqual(self.figure(window, "Free Space:").name, listed)
        self.assertFalse(window.isShowing("push button", re.compile("^(Next|Back|Proceed|Home)$")))

    def testAWipeByMouseErasesTheFreeSpaceAndNothingElse(self):
        target, kept, marked, before = self.preparedVolume()
        freeBefore = target.freeBytes()
        window = self.startWindow()
        listed = self.clickThrough(window, target)
        seen = self.watch(window)
        self.checkFigures(window, seen, listed)
        self.expectSuccess(window, target)
        self.assertNoRun(window, target)
        self.assertDescribed(window, target)
        self.quit(window)

        self.assertFreeAgain(target, freeBefore)
        self.assertEqual(kept.differences(), [])
        target.unmount()
        after = marked.bytesReadable(target)
        print(f"\next4 320 MiB, three passes by mouse: {before} -> {after} bytes readable "
              f"(at most {MOST_READABLE_BYTES})", flush=True)
        self.assertLessEqual(after, MOST_READABLE_BYTES)
        target.mount("ro")
        self.assertEqual(kept.differences(), [], "kept files as they are on the medium")
        self.assertNothingLeft(target)
