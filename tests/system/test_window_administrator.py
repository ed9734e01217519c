"""A drive that only root may fill, in a plain user's window: the refusal comes with the administrator's command."""

import os
import re
import shlex
import shutil

from fake_pkexec import FakePkexec, environmentByPkexec
from testkit import program
from testkit.program import TerminalProgram
from window_case import WindowTest


class Administrator(WindowTest):
    plainUser = True

    def setUp(self):
        super().setUp()
        self.pkexec = FakePkexec()
        self.addCleanup(self.pkexec.remove)
        self.forbidden = self.makeVolume("ext4", 64)
        os.chmod(self.forbidden.path, 0o755)

    def refusal(self, window):
        self.choose(window, self.forbidden)
        window.pressButton("Next")
        alert = window.find("dialog", "Information")
        self.assertIn("You are not allowed to write to this drive.", alert.description)
        return alert

    def close(self, window, alert):
        window.pressButton("OK", within=alert)
        window.waitUntilGone("dialog", "Information")
        self.assertOnFirstPage(window)
        self.assertNothingLeft(self.forbidden)
        self.assertEqual(self.pkexec.words(), [], "started without being asked")

    def testTheCommandIsShownAndErasesTheDriveInATerminal(self):
        terminalProgram = shutil.copy(program.programPath(), self.pkexec.folder)
        window = self.startWindow(env=self.pkexec.env)
        alert = self.refusal(window)
        command = window.text(window.find("text", "Command", within=alert))
        self.assertEqual(shlex.split(command), [os.path.join(self.pkexec.folder, "pkexec"), terminalProgram, "wipe", self.forbidden.path])
        window.pressButton("Copy Command", within=alert)
        self.close(window, alert)
        self.quit(window)
        self.eraseAsPkexecWould(shlex.split(command)[1:])

    def eraseAsPkexecWould(self, words):
        started = TerminalProgram(words, env=environmentByPkexec())
        self.addCleanup(started.close)
        for prompt, answer in (("Method (", "1"), ("[YES/NO]", "YES"), ("[Enter]", "")):
            started.readUntil(prompt)
            started.answer(answer)
        self.assertEqual(started.waitForEnd(), program.EXIT_FINISHED, started.text)
        self.assertNothingLeft(self.forbidden)

    def testAProgramThatAUserCanChangeIsNamedAndNotOffered(self):
        terminalProgram = shutil.copy(program.programPath(), self.pkexec.folder)
        os.chown(terminalProgram, program.PLAIN_USER, program.PLAIN_USER)
        window = self.startWindow(env=self.pkexec.env)
        alert = self.refusal(window)
        self.assertIn(terminalProgram, alert.description)
        self.assertIn("Have the administrator install Calvero", alert.description)
        self.assertEqual(window.findAll("push button", re.compile("Copy"), within=alert), [])
        self.close(window, alert)
        self.quit(window)

    def testWithoutTheTerminalsProgramThereIsNoCommand(self):
        window = self.startWindow(env={"PATH": self.pkexec.folder})
        alert = self.refusal(window)
        self.assertIn("ask its administrator", alert.description)
        self.assertEqual(window.findAll("push button", re.compile("Copy"), within=alert), [])
        self.close(window, alert)
        self.quit(window)
