"""A volume that only root may fill: what a plain user is told, and what root's program takes from that user."""

import os
import shlex
import socket
import subprocess
import tempfile

from case import FILL_TIMEOUT_SECONDS, SystemTest, everything
from fake_pkexec import DISMISSED, FakePkexec, environmentByPkexec
from testkit import program
from testkit.program import TerminalProgram, startedAs

QUESTION = "Wipe it as administrator, with:"


class Administrator(SystemTest):
    def setUp(self):
        if os.geteuid() != 0:
            self.skipTest("starting a program as another user needs root")
        self.pkexec = FakePkexec()
        self.addCleanup(self.pkexec.remove)

    def makeForbidden(self):
        target = self.makeVolume()
        os.chmod(target.path, 0o755)
        return target

    def runWith(self, env, *arguments, plainUser=False, cwd="/"):
        return subprocess.run([self.programFor(plainUser), *arguments], env=os.environ | env, cwd=cwd, text=True,
                              stdin=subprocess.DEVNULL, capture_output=True, timeout=FILL_TIMEOUT_SECONDS,
                              **startedAs(plainUser))

    def refusedCommand(self, target, *arguments):
        """The command that a plain user is told."""
        before = everything(target.path)
        ended = self.runWith(self.pkexec.env, "wipe", *arguments, plainUser=True)
        self.assertRefused(ended, "root folder", target.name, target.path)
        self.assertEqual(everything(target.path), before)
        self.assertEqual(self.pkexec.words(), [], "started without being asked")
        return shlex.split(ended.stderr.partition(" as administrator: ")[2])

    def onTerminal(self, *arguments, **options):
        command = [self.programFor(options.get("plainUser", False)), *arguments]
        started = TerminalProgram(command, **options)
        self.addCleanup(started.close)
        return started, command

    # The user's side

    def testWithoutATerminalTheCommandIsPrintedAndWorks(self):
        target = self.makeForbidden()
        kept = everything(target.path)
        words = self.refusedCommand(target, target.name, "--method", "random", "--yes", "--quiet")
        self.assertEqual(words[0], os.path.join(self.pkexec.folder, "pkexec"))
        self.assertEqual(os.path.basename(words[1]), "calvero-cli")
        self.assertEqual(words[2:], ["wipe", target.path, "--method", "random", "--yes", "--quiet"])
        ended = self.runWith(environmentByPkexec(), *words[2:], cwd=target.path)
        self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
        self.assertIn("method random", ended.stdout)
        self.assertEqual(everything(target.path), kept)

    def testOnATerminalYesHandsOverToPkexec(self):
        target = self.makeForbidden()
        before = everything(target.path)
        started, command = self.onTerminal("wipe", target.name, "--method", "3", env=self.pkexec.env, plainUser=True)
        started.readUntil(QUESTION)
        started.readUntil("NO")
        started.answer("y")
        self.assertEqual(started.waitForEnd(), DISMISSED, started.text)
        self.assertEqual(self.pkexec.words(), [command[0], "wipe", target.path, "--method", "3"])
        self.assertEqual(everything(target.path), before)

    def testOnATerminalNothingButYesHandsOver(self):
        target = self.makeForbidden()
        for answers in (("", "NO"), ("\x03",), ("\x04",)):
            with self.subTest(answers):
                started, _ = self.onTerminal("wipe", target.path, env=self.pkexec.env, plainUser=True)
                for answer in answers:
                    started.readUntil("NO")
                    started.answer(answer)
                self.assertEqual(started.waitForEnd(), program.EXIT_CANCELLED, started.text)
                self.assertEqual(self.pkexec.words(), [])

    def testOnATerminalYesToEveryQuestionDoesNotHandOver(self):
        target = self.makeForbidden()
        started, _ = self.onTerminal("wipe", target.path, "--yes", env=self.pkexec.env, plainUser=True)
        self.assertEqual(started.waitForEnd(), program.EXIT_REFUSED, started.text)
        self.assertIn(f"as administrator: {self.pkexec.folder}/pkexec", started.text)
        self.assertEqual(self.pkexec.words(), [])

    def testWithoutPkexecItIsNotMentioned(self):
        target = self.makeForbidden()
        ended = self.runWith({"PATH": "/nowhere"}, "wipe", target.path, "--yes", plainUser=True)
        self.assertRefused(ended, "root", target.name)
        self.assertNotIn("pkexec", ended.stderr)

    def testAProgramThatAUserCanChangeIsNamedAndNotOffered(self):
        target = self.makeForbidden()
        copy = program.PublicCopy()
        self.addCleanup(copy.remove)
        folder = os.path.dirname(copy.path)
        for changed in (copy.path, folder):
            os.chown(changed, program.PLAIN_USER, program.PLAIN_USER)
            ended = subprocess.run([copy.path, "wipe", target.path, "--yes"], env=os.environ | self.pkexec.env,
                                   stdin=subprocess.DEVNULL, capture_output=True, text=True, timeout=60,
                                   **startedAs(True))
            self.assertRefused(ended, "root must not start", copy.path, f"can change {changed}:", "install")
            self.assertNotIn("pkexec", ended.stderr)
            started = TerminalProgram([copy.path, "wipe", target.path], env=self.pkexec.env, plainUser=True)
            self.addCleanup(started.close)
            self.assertEqual(started.waitForEnd(), program.EXIT_REFUSED, started.text)
            self.assertIn("root must not start", started.text)
            self.assertEqual(self.pkexec.words(), [])
            os.chown(changed, 0, 0)

    def testAVolumeThatNobodyMayWriteToIsNoMatterOfRights(self):
        target = self.makeForbidden()
        target.remount("ro")
        ended = self.runWith(self.pkexec.env, "wipe", target.path, "--yes", plainUser=True)
        self.assertRefused(ended, "Read only drive, please select other drives")

    # Root's side

    def testWhereNotEvenRootMayWriteRootIsNotSentToRoot(self):
        target = self.makeVolume()
        subprocess.run(["chattr", "+i", target.path], check=True)
        for arguments in (("wipe", target.path, "--yes"), ("order", target.path, "--method", "1")):
            with self.subTest(arguments[0]):
                ended = self.runProgram(*arguments)
                self.assertRefused(ended, "Not even the administrator", target.name)
                self.assertNotIn("sudo", ended.stderr)

    def testOnlyAVolumeAsItIsListedIsTakenFromTheUser(self):
        target = self.makeForbidden()
        inside = os.path.join(target.path, "folder")
        os.mkdir(inside)
        link = os.path.join(self.pkexec.folder, "link")
        os.symlink(target.path, link)
        before = everything(target.path)
        parent, name = os.path.split(target.path)
        for given in (inside, link, "./" + name, target.path + "/", f"{parent}/../{target.path}", "", "."):
            with self.subTest(given):
                ended = self.runWith(environmentByPkexec(), "wipe", given, "--yes", cwd=parent)
                self.assertRefused(ended, "exactly")
        self.assertEqual(everything(target.path), before)

    def testNoOtherCommandIsCarriedOut(self):
        for arguments in (("volumes",), ("methods",), ("status",), ("clear",), ("cancel",), ("wipe", "--yes"), (),
                          ("order", "x", "--method", "1")):
            with self.subTest(arguments):
                self.assertWrongUsage(self.runWith(environmentByPkexec(), *arguments))

    def testTheUsersSessionBusIsNotSpokenTo(self):
        target = self.makeForbidden()
        with socket.socket(socket.AF_UNIX) as bus, tempfile.TemporaryDirectory() as folder:
            bus.bind(os.path.join(folder, "bus"))
            bus.listen()
            bus.setblocking(False)
            address = {"DBUS_SESSION_BUS_ADDRESS": f"unix:path={folder}/bus", "XDG_RUNTIME_DIR": folder}
            ended = self.runWith(environmentByPkexec() | address, "wipe", target.path, "--method", "1", "--yes")
            self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
            self.assertRaises(BlockingIOError, bus.accept)

    def testControlCCancelsAndLeavesNothing(self):
        target = self.makeVolume("ext4", 256)
        os.chmod(target.path, 0o755)
        freeBefore = target.freeBytes()
        started, _ = self.onTerminal("wipe", target.path, "--method", "9", "--yes", env=environmentByPkexec())
        started.readUntil("Phase 2")
        started.answer("\x03")
        self.assertEqual(started.waitForEnd(), program.EXIT_CANCELLED, started.text)
        self.assertNothingLeft(target)
        self.assertFreeAgain(target, freeBefore)
