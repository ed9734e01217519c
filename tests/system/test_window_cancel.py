"""What stops a run, or keeps it from starting, and what the same window can do afterwards."""

from case import everything, fillerNames
from testkit import program
from testkit.marks import KeptFiles
from testkit.volume import MEBIBYTE
from window_case import FAST, PHASE_1, QUESTION, REQUEST, WindowTest, runThreads

TEBIBYTE_IN_MEBIBYTES = 1 << 20
ABORTED = ("Information", "Wiping process aborted")


class Cancel(WindowTest):
    def testTheAnswerNoStartsNothing(self):
        target = self.makeVolume("ext4", 64)
        before = everything(target.path)
        window = self.startWindow()
        self.toMethods(window, target)
        self.proceed(window, answer="NO")
        self.assertOnFirstPage(window)
        self.assertDescribed(window, target)
        self.assertNoRun(window, target)
        self.quit(window)
        self.assertEqual(everything(target.path), before)

    def testACancelledRunLeavesNothingAndTheNextOneFinishes(self):
        target = self.makeVolume("ext4", 150)
        kept = KeptFiles(target.path)
        freeBefore = target.freeBytes()
        window = self.startWindow()
        self.startWriting(window, target)
        window.pressButton("Cancel")
        window.find("dialog", *ABORTED, timeout=20)
        self.assertNothingLeft(target)
        self.answer(window, *ABORTED)
        self.assertOnFirstPage(window)
        self.assertDescribed(window, target)
        self.assertFreeAgain(target, freeBefore)
        program.waitUntil(lambda: not runThreads(window), "the end of the run's threads", seconds=20)
        self.assertNoRun(window, target)

        self.startRun(window, target)
        self.expectSuccess(window, target)
        self.quit(window)
        self.assertNothingLeft(target)
        self.assertFreeAgain(target, freeBefore)
        self.assertEqual(kept.differences(), [])

    def testACancelWhileFilesAreLaidOutEndsTheProgramAndLeavesNothing(self):
        # So many filler files that it takes seconds to lay them out.
        target = self.makeVolume("xfs", 2 * TEBIBYTE_IN_MEBIBYTES, neededBytes=400 * MEBIBYTE,
                                 mkfsOptions=("-l", "size=64m"))
        freeBefore = target.freeBytes()
        window = self.startWindow()
        self.toMethods(window, target)
        self.proceed(window)
        self.answer(window, REQUEST)
        window.find("label", PHASE_1)
        program.waitUntil(lambda: fillerNames(target), "the first filler files")
        window.pressButton("Cancel")
        # Above or in place of the cancel's own alert, whichever comes first.
        error = window.find("dialog", "Information", "Unknown Error Occured", timeout=20)
        window.pressButton("Relaunch the application", within=error)
        self.assertEqual(window.waitForEnd(10), (0, "", ""))
        self.assertNothingLeft(target)
        self.assertFreeAgain(target, freeBefore)


class Closing(WindowTest):
    def testClosingTheWindowDuringARunIsRefusedAndTheRunFinishes(self):
        target = self.makeVolume("ext4", 48)
        window = self.startWindow()
        self.startWriting(window, target)
        window.closeWindow()
        self.answer(window, "Wiping process is On", "Cancel wiping and then quit the application")
        window.find("push button", "Cancel")
        self.assertIn("calvero-wipe", runThreads(window))
        self.expectSuccess(window, target)
        self.quit(window)
        self.assertNothingLeft(target)

    def testClosingTheWindowWithoutARunEndsTheProgramAtOnce(self):
        window = self.startWindow()
        self.quit(window)

    def testClosingTheWindowOnTheMethodPageEndsTheProgramAtOnce(self):
        target = self.makeVolume("ext4", 16)
        window = self.startWindow()
        self.toMethods(window, target, FAST)
        self.quit(window)
        self.assertNothingLeft(target)

    def testClosingTheQuestionIsTheAnswerNo(self):
        target = self.makeVolume("ext4", 16)
        window = self.startWindow()
        self.toMethods(window, target)
        window.pressButton("Proceed")
        window.find("dialog", *QUESTION)
        window.closeWindow()
        window.waitUntilGone("dialog", *QUESTION)
        self.assertOnFirstPage(window)
        self.assertNoRun(window, target)
