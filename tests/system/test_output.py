"""Output that cannot be written: told on standard error and by the exit code, and in nobody's way."""

import fcntl
import json
import os
import subprocess
import time

from case import SystemTest, isWriting
from tag_store import STORE_VARIABLE
from testkit import program

LONGEST_WAIT_SECONDS = 30
_F_SETPIPE_SZ = 1031


class Output(SystemTest):
    def setUp(self):
        self.target = self.makeVolume(mebibytes=16)
        self.env = os.environ | {STORE_VARIABLE: os.path.join(self.makeFolder(), "tags.sqlite")}

    def makeFolder(self):
        """Beside the volume, since nothing may be left on it."""
        folder = self.target.path + "-store"
        os.mkdir(folder)
        self.addCleanup(subprocess.run, ["rm", "-r", folder], check=True)
        return folder

    def commands(self):
        wipe = ["wipe", self.target.path, "--method", "1", "--yes"]
        return [["volumes"], ["volumes", "--json"], ["methods"], ["methods", "--json"], ["status"],
                ["status", "--json"], ["clear"], ["--help"], ["wipe", "--help"], ["--version"], wipe,
                [*wipe, "--quiet"], [*wipe, "--json"]]

    def runWith(self, arguments, path=None, **streams):
        return subprocess.run([path or program.programPath(), *arguments], env=self.env, stdin=subprocess.DEVNULL,
                              stderr=subprocess.PIPE, text=True, timeout=120, **streams)

    def assertTold(self, ended, reason):
        self.assertEqual(ended.returncode, program.EXIT_FAILED, ended)
        self.assertOneLine(ended.stderr, "The output could not be written", reason)

    def testAFullDiskIsToldForEveryCommand(self):
        for arguments in self.commands():
            with self.subTest(arguments), open("/dev/full", "w") as full:
                self.assertTold(self.runWith(arguments, stdout=full), "No space left")
        self.assertNothingLeft(self.target)

    def testAClosedPipeIsToldForEveryCommand(self):
        for arguments in self.commands():
            with self.subTest(arguments):
                self.assertTold(self.runWith(arguments, stdout=self.closedPipe()), "Broken pipe")
        self.assertNothingLeft(self.target)

    def closedPipe(self):
        reading, writing = os.pipe()
        os.close(reading)
        self.addCleanup(os.close, writing)
        return writing

    def testAClosedDescriptorIsToldForEveryCommandAndTakenByNoFile(self):
        for arguments in self.commands():
            with self.subTest(arguments):
                ended = self.runWith(arguments, preexec_fn=lambda: os.close(1))
                self.assertTold(ended, "Bad file descriptor")
        self.assertNothingLeft(self.target)

    def testTheWindowsProgramTellsItToo(self):
        for option in ("--help", "--version"):
            with self.subTest(option), open("/dev/full", "w") as full:
                self.assertTold(self.runWith([option], program.windowProgramPath(), stdout=full), "No space left")

    def testARefusalStaysOne(self):
        with open("/dev/full", "w") as full:
            ended = self.runWith(["wipe", "/nowhere", "--yes", "--json"], stdout=full)
        self.assertEqual(ended.returncode, program.EXIT_REFUSED, ended)
        self.assertIn("could not be written", ended.stderr)

    def testAReaderThatLeavesDoesNotEndTheRun(self):
        command = [program.programPath(), "wipe", self.target.path, "--method", "9", "--yes"]
        process = self.startCommand(command)
        program.waitUntil(lambda: isWriting(self.target, 0), "the first filler file being written")
        process.stdout.close()
        process.stdout = None
        code, _, errors = self.finish(process)
        self.assertEqual(code, program.EXIT_FAILED, errors)
        self.assertOneLine(errors, "The output could not be written", "Broken pipe")
        self.assertNothingLeft(self.target)

    # A pipe that is full

    def fullPipe(self):
        """Both ends of a pipe that takes nothing more, and what stands in it."""
        reading, writing = os.pipe()
        for end in (reading, writing):
            self.addCleanup(os.close, end)
        fcntl.fcntl(writing, _F_SETPIPE_SZ, 4096)
        size = os.write(writing, bytes(4096))
        return reading, writing, size

    def testAFullPipeThatNobodyReadsIsNotWaitedForForEver(self):
        _, writing, _ = self.fullPipe()
        begin = time.monotonic()
        processes = [subprocess.Popen([program.programPath(), *arguments], env=self.env, stdout=writing, text=True,
                                      stdin=subprocess.DEVNULL, stderr=subprocess.PIPE)
                     for arguments in (["methods"], ["--help"], self.commands()[-1])]
        for process in processes:
            _, errors = process.communicate(timeout=120)
            self.assertEqual(process.returncode, program.EXIT_FAILED)
            self.assertOneLine(errors, "The output could not be written", "nobody reads it")
        self.assertLess(time.monotonic() - begin, LONGEST_WAIT_SECONDS)
        self.assertNothingLeft(self.target)

    def testASlowReaderGetsEverything(self):
        reading, writing, size = self.fullPipe()
        whole = subprocess.run([program.programPath(), "methods", "--json"], capture_output=True, check=True).stdout
        process = subprocess.Popen([program.programPath(), "methods", "--json"], stdout=writing,
                                   stderr=subprocess.PIPE)
        got = b""
        while len(got) < size + len(whole):
            got += os.read(reading, 100)
        _, errors = process.communicate(timeout=60)
        self.assertEqual((process.returncode, errors), (0, b""))
        self.assertEqual(got[size:], whole)
        self.assertEqual(len(json.loads(whole)), 9)
