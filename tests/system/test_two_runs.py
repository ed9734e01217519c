import signal

from case import SystemTest, isWriting
from testkit import program
from testkit.volume import FILLER_BYTES


LONG = "5"  # of seven passes


class TwoRuns(SystemTest):
    def testTheSecondRunOnAVolumeIsRefusedAndTheFirstOneUnharmed(self):
        for plainUser in (False, True):
            with self.subTest(plainUser=plainUser):
                target = self.makeVolume("ext4", 64)
                freeBefore = target.freeBytes()
                first = self.startWipe(target, LONG, plainUser)
                program.waitUntil(lambda: isWriting(target, 0), "the first run writing")
                first.send_signal(signal.SIGSTOP)  # in the middle of its run for as long as it takes
                second = self.runProgram("wipe", target.path, "--method", "1", "--yes", plainUser=plainUser)
                self.assertRefused(second, "another", "wip")
                self.assertIsNone(first.poll(), "the first run is under way all the time")
                first.send_signal(signal.SIGCONT)
                code, output, errors = self.finish(first)
                self.assertEqual(code, program.EXIT_FINISHED, (output, errors))
                self.assertNothingLeft(target)
                self.assertFreeAgain(target, freeBefore)

    def testOfTwoRunsStartedAtTheSameMomentOneIsRefused(self):
        target = self.makeVolume("ext4", 48)
        runs = [self.startWipe(target, LONG), self.startWipe(target, LONG)]
        ended = sorted((self.finish(run) for run in runs), key=lambda result: result[0])
        self.assertEqual([code for code, _, _ in ended], [program.EXIT_FINISHED, program.EXIT_REFUSED], ended)
        self.assertOneLine(ended[1][2], "another", "wip")
        self.assertNothingLeft(target)

    def testTwoVolumesAreWipedAtTheSameTime(self):
        first, second = self.makeVolume("ext4", 160), self.makeVolume("xfs", 320)
        self.assertGreater(second.freeBytes(), FILLER_BYTES)
        runs = [self.startWipe(first), self.startWipe(second)]
        for run in runs:
            code, output, errors = self.finish(run)
            self.assertEqual(code, program.EXIT_FINISHED, (output, errors))
        self.assertNothingLeft(first)
        self.assertNothingLeft(second)
