"""The face towards a person and towards a pipe."""

import re

from case import SystemTest, everything
from testkit import program
from testkit.program import TerminalProgram

QUESTION = "Are you sure , you want to erase the free space of selected drive?"
NOTICE = "Close all the files related to drive , as well as do not add any data to drive during process."
READ_ONLY = "Read only drive, please select other drives"
MOST_REFRESHES_A_SECOND = 10
PERCENT = re.compile(r"(\d+) ?%")


class Terminal(SystemTest):
    def onTerminal(self, *arguments):
        started = TerminalProgram([program.programPath(), *arguments])
        self.addCleanup(started.close)
        return started

    def testOutputIntoAPipeHasNoControlCharacters(self):
        target = self.makeVolume("ext4", 160)
        for arguments in (("volumes",), ("methods",), ("wipe", target.path, "--method", "1", "--yes")):
            with self.subTest(arguments[0]):
                ended = self.runProgram(*arguments)
                self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
                self.assertGreater(len(ended.stdout.splitlines()), 1)
                self.assertNotRegex(ended.stdout + ended.stderr, r"[\x00-\x09\x0b-\x1f\x7f]")

    def testTheBarMovesInsideOneFillerFileAndAtMostTenTimesASecond(self):
        target = self.makeVolume("ext4", 400)
        # Seven passes: with one, a fast medium is full within a few refreshes.
        started = self.onTerminal("wipe", target.path, "--method", "5", "--yes")
        self.assertEqual(started.waitForEnd(), program.EXIT_FINISHED, started.text)
        moments = [seconds for seconds, data in started.reads for _ in range(data.count(b"\r") - data.count(b"\r\n"))]
        self.assertGreater(len(moments), 5)
        # Over the whole run: a reader that is held up for a moment finds several at once.
        self.assertLessEqual(len(moments), MOST_REFRESHES_A_SECOND * (moments[-1] - moments[0] + 1))
        # The first filler file is about a third of this volume.
        inFirstFile = {int(percent) for percent in PERCENT.findall(started.text) if 0 < int(percent) < 30}
        self.assertGreater(len(inFirstFile), 3)
        self.assertIn("100", PERCENT.findall(started.text))

    def testAnsweringYesErases(self):
        target = self.makeVolume("ext4", 64)
        started = self.onTerminal("wipe", target.path, "--method", "1")
        started.readUntil(QUESTION)
        started.readUntil("NO")
        started.answer("YES")
        started.readUntil(NOTICE)
        started.answer("")
        self.assertEqual(started.waitForEnd(), program.EXIT_FINISHED, started.text)
        self.assertNothingLeft(target)

    def testAnsweringNoCreatesNothing(self):
        target = self.makeVolume("ext4", 64)
        before = everything(target.path)
        started = self.onTerminal("wipe", target.path, "--method", "1")
        started.readUntil(QUESTION)
        started.readUntil("NO")
        started.answer("NO")
        self.assertEqual(started.waitForEnd(), program.EXIT_CANCELLED, started.text)
        self.assertEqual(everything(target.path), before)

    def testEnterAloneDoesNotConfirm(self):
        target = self.makeVolume("ext4", 64)
        before = everything(target.path)
        started = self.onTerminal("wipe", target.path, "--method", "1")
        started.readUntil("NO")
        started.answer("")
        started.readUntil("NO")
        started.answer("NO")
        self.assertEqual(started.waitForEnd(), program.EXIT_CANCELLED, started.text)
        self.assertEqual(everything(target.path), before)

    def testControlCAtTheQuestionCreatesNothing(self):
        target = self.makeVolume("ext4", 64)
        before = everything(target.path)
        started = self.onTerminal("wipe", target.path, "--method", "1")
        started.readUntil("NO")
        started.answer("\x03")
        self.assertEqual(started.waitForEnd(), program.EXIT_CANCELLED, started.text)
        self.assertEqual(everything(target.path), before)

    def testLeavingTheNoticeOfAVolumeThatTurnedReadOnlyMeanwhileCancels(self):
        for answer in ("\x03", "\x04"):
            with self.subTest(answer):
                target = self.makeVolume("ext4", 64)
                started = self.onTerminal("wipe", target.path)
                started.readUntil("Method (")
                target.remount("ro")
                started.answer("2")
                started.readUntil(READ_ONLY)
                started.readUntil("[Enter]")
                started.answer(answer)
                self.assertEqual(started.waitForEnd(), program.EXIT_CANCELLED, started.text)
                self.assertIn("Cancelled: nothing was written.", started.text)

    def testAVolumeThatTurnedReadOnlyByItselfIsRefusedBeforeAnythingIsAsked(self):
        target = self.makeVolume("ext4", 64)
        target.remount("abort")
        started = self.onTerminal("wipe", target.path)
        self.assertEqual(started.waitForEnd(), program.EXIT_REFUSED, started.text)
        self.assertIn(READ_ONLY, started.text)
        self.assertNotIn("Method (", started.text)

    def testTheWizardAsksForVolumeAndMethod(self):
        target = self.makeVolume("ext4", 64)
        started = self.onTerminal()
        started.readUntil(target.name)
        row = re.search(r"^\s*\[?(\d+)[.)\]]?\s.*" + re.escape(target.name), started.text, re.MULTILINE)
        self.assertIsNotNone(row, started.text)
        started.readUntil("Volume (")
        started.answer(row[1])
        started.readUntil("Method (")
        started.answer("2")
        started.readUntil(QUESTION)
        started.readUntil("NO")
        started.answer("YES")
        started.readUntil(NOTICE)
        started.answer("")
        self.assertEqual(started.waitForEnd(), program.EXIT_FINISHED, started.text)
        self.assertRegex(started.text, rf"Finished: .* on {re.escape(target.name)} \S+ with method random, 1 pass")
        self.assertNothingLeft(target)
