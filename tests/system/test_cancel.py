import json
import signal

from case import SLOWEST, SystemTest, fillerNames, isWriting
from testkit import program
from testkit.marks import KeptFiles
from testkit.volume import MEBIBYTE

TEBIBYTE_IN_MEBIBYTES = 1 << 20
SIGNALS = (signal.SIGINT, signal.SIGTERM, signal.SIGHUP, signal.SIGQUIT)
# What ends a program that does not care for it, and means nothing to this one.
MEANINGLESS = (signal.SIGPIPE, signal.SIGXFSZ, signal.SIGXCPU, signal.SIGALRM, signal.SIGUSR1, signal.SIGUSR2,
               signal.SIGVTALRM, signal.SIGPROF, signal.SIGPOLL, signal.SIGPWR, signal.SIGSTKFLT)


class Cancel(SystemTest):
    def checkCancelled(self, target, process, freeBefore, kept):
        code, output, errors = self.finish(process)
        self.assertEqual(code, program.EXIT_CANCELLED, (output, errors))
        self.assertEqual(json.loads(output)["outcome"], "cancelled")
        self.assertNothingLeft(target)
        self.assertFreeAgain(target, freeBefore)
        self.assertEqual(kept.differences(), [])

    def testASignalWhileFilesAreBeingWrittenLeavesNothing(self):
        for number in SIGNALS:
            with self.subTest(number.name):
                target = self.makeVolume("ext4", 200)
                kept = KeptFiles(target.path)
                freeBefore = target.freeBytes()
                process = self.startWipe(target, method="3")
                program.waitUntil(lambda: isWriting(target, 0), "the first filler file being written")
                process.send_signal(number)
                self.checkCancelled(target, process, freeBefore, kept)

    def testASignalWhileFilesAreBeingLaidOutLeavesNothing(self):
        # A thin volume of two tebibytes takes more than fifteen thousand filler files.
        target = self.makeVolume("xfs", 2 * TEBIBYTE_IN_MEBIBYTES, neededBytes=400 * MEBIBYTE,
                                 mkfsOptions=("-l", "size=64m"))
        kept = KeptFiles(target.path)
        freeBefore = target.freeBytes()
        for number in SIGNALS:
            with self.subTest(number.name):
                process = self.startWipe(target)
                program.waitUntil(lambda: len(fillerNames(target)) > 100, "some filler files")
                process.send_signal(number)
                atSignal = len(fillerNames(target))
                self.checkCancelled(target, process, freeBefore, kept)
                self.assertLess(atSignal, freeBefore // 128_000_000, "the layout was still under way")

    def testASignalThatMeansNothingToTheRunDoesNotEndIt(self):
        target = self.makeVolume("ext4", 200)
        kept = KeptFiles(target.path)
        freeBefore = target.freeBytes()
        process = self.startWipe(target, method=SLOWEST)
        program.waitUntil(lambda: isWriting(target, 0), "the first filler file being written")
        for number in MEANINGLESS:
            process.send_signal(number)
        process.send_signal(signal.SIGINT)
        self.checkCancelled(target, process, freeBefore, kept)

    def testOnlyTheThreadOfTheEventLoopTakesASignal(self):
        target = self.makeVolume("ext4", 200)
        process = self.startWipe(target, method=SLOWEST)
        program.waitUntil(lambda: isWriting(target, 0), "the first filler file being written")
        threads = program.otherThreads(process)
        process.send_signal(signal.SIGINT)
        self.finish(process)
        self.assertIn("calvero-wipe", dict(threads))
        for name, blocked in threads:
            self.assertLessEqual(set(SIGNALS), blocked, name)

    def testASecondSignalDoesNotSkipTheCleanUp(self):
        target = self.makeVolume("ext4", 320)
        kept = KeptFiles(target.path)
        freeBefore = target.freeBytes()
        process = self.startWipe(target)
        program.waitUntil(lambda: isWriting(target, 1), "the second filler file being written")
        process.send_signal(signal.SIGINT)
        process.send_signal(signal.SIGINT)
        process.send_signal(signal.SIGTERM)
        self.checkCancelled(target, process, freeBefore, kept)

    def testAPlainUserCancelsItsRun(self):
        target = self.makeVolume("btrfs", 300)
        kept = KeptFiles(target.path)
        freeBefore = target.freeBytes()
        process = self.startWipe(target, plainUser=True)
        program.waitUntil(lambda: isWriting(target, 0), "the first filler file being written")
        process.send_signal(signal.SIGTERM)
        self.checkCancelled(target, process, freeBefore, kept)
