"""How the program ends when it is told to from outside, and what it says where it cannot begin."""

import signal
import subprocess

from testkit import program
from window_case import ENDS_WITHIN_SECONDS, QUESTION, WindowTest

SIGNALS = (signal.SIGTERM, signal.SIGINT, signal.SIGHUP, signal.SIGQUIT)
MEANINGLESS = (signal.SIGXCPU, signal.SIGALRM, signal.SIGUSR1, signal.SIGUSR2, signal.SIGVTALRM, signal.SIGPWR)


class Signals(WindowTest):
    def testASignalDuringARunLeavesNothingAndEndsTheProgram(self):
        for number in SIGNALS:
            with self.subTest(number.name):
                target = self.makeVolume("ext4", 64)
                freeBefore = target.freeBytes()
                window = self.startWindow()
                self.startWriting(window, target)
                window.process.send_signal(number)
                self.assertEqual(window.waitForEnd(10), (0, "", ""))
                self.assertNothingLeft(target)
                self.assertFreeAgain(target, freeBefore)

    def testSeveralSignalsDuringARunDoNotSkipTheCleanUp(self):
        target = self.makeVolume("ext4", 200)
        freeBefore = target.freeBytes()
        window = self.startWindow()
        self.startWriting(window, target)
        for name, blocked in program.otherThreads(window.process):
            if name.startswith("calvero-"):  # the toolkit has some of its own
                self.assertLessEqual(set(SIGNALS), blocked, name)
        for number in MEANINGLESS + SIGNALS:
            window.process.send_signal(number)
        self.assertEqual(window.waitForEnd(10), (0, "", ""))
        self.assertNothingLeft(target)
        self.assertFreeAgain(target, freeBefore)

    def testASignalWithoutARunEndsTheProgramAtOnce(self):
        for number in SIGNALS:
            with self.subTest(number.name):
                window = self.startWindow()
                window.process.send_signal(number)
                self.assertEqual(window.waitForEnd(ENDS_WITHIN_SECONDS), (0, "", ""))

    def testASignalWhileTheQuestionIsUpStartsNothingAndEndsTheProgram(self):
        target = self.makeVolume("ext4", 16)
        window = self.startWindow()
        self.toMethods(window, target)
        window.pressButton("Proceed")
        window.find("dialog", *QUESTION)
        window.process.send_signal(signal.SIGTERM)
        self.assertEqual(window.waitForEnd(ENDS_WITHIN_SECONDS), (0, "", ""))
        self.assertNothingLeft(target)

    def testASignalAfterARunHasFinishedEndsTheProgram(self):
        target = self.makeVolume("ext4", 16)
        window = self.startWindow()
        self.startRun(window, target)
        self.outcome(window)
        window.process.send_signal(signal.SIGTERM)
        self.assertEqual(window.waitForEnd(ENDS_WITHIN_SECONDS), (0, "", ""))
        self.assertNothingLeft(target)


class CommandLine(WindowTest):
    def started(self, *arguments, env=None):
        return subprocess.run([program.windowProgramPath(), *arguments], env=env or self.screen.env, text=True,
                              stdin=subprocess.DEVNULL, capture_output=True, timeout=10)

    def withoutDisplay(self):
        return {name: value for name, value in self.screen.env.items()
                if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}

    def testWithoutADisplayItNamesTheTerminalsProgram(self):
        for chosen in ({}, {"QT_QPA_PLATFORM": "offscreen"}, {"QT_QPA_PLATFORM": "minimal"}):
            with self.subTest(chosen):
                ended = self.started(env=self.withoutDisplay() | chosen)
                self.assertEqual((ended.returncode, ended.stdout), (1, ""))
                self.assertOneLine(ended.stderr, "display", "calvero-cli")

    def testAWrongArgumentIsToldInOneLine(self):
        for arguments in (["--nonsense"], ["/"], ["wipe", "/"]):
            with self.subTest(arguments):
                ended = self.started(*arguments)
                self.assertEqual((ended.returncode, ended.stdout), (2, ""))
                self.assertOneLine(ended.stderr, "calvero: ", "--help")

    def testHelpAndVersionNeedNoDisplay(self):
        for option, words in (("--help", "calvero-cli"), ("--version", "calvero ")):
            with self.subTest(option):
                ended = self.started(option, env=self.withoutDisplay())
                self.assertEqual((ended.returncode, ended.stderr), (0, ""))
                self.assertIn(words, ended.stdout)
        self.assertRegex(ended.stdout, r"^calvero \d+\.\d+\S*\n$")
