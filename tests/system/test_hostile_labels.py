"""A volume's label and the name of the folder where it is mounted are text from a stranger: on a terminal and in JSON
they are shown as text, and the name that is shown leads back to the volume."""

import fcntl
import json
import os
import re
import tempfile

from case import SystemTest
from testkit import program
from testkit.program import TerminalProgram

REPLACEMENT = "\N{REPLACEMENT CHARACTER}"
CONTROLS = "\x00-\x1f\x7f-\x9f"
TURNING = "\u061c\u200e\u200f\u202a-\u202e\u2066-\u2069"
BREAKING = "\u2028\u2029"
HARMFUL = re.compile(f"[{CONTROLS}{TURNING}{BREAKING}]")
SHORT = 16  # MiB
QUESTION = "Are you sure"

# file system, its size in MiB, label
LABELS = (
    ("ext4", SHORT, b"\x1b[2J\x1b[31m\x07\b\x7f\r"),
    ("ext4", SHORT, b"a\nb\tc\x0b\x0c"),
    ("ext4", SHORT, b"\x1b]0;title\x07x"),
    ("ext4", SHORT, b"\xc2\x9b2J\xc2\x9d0;t\xc2\x9c"),
    ("ext4", SHORT, "a\u202egpj.exe"),
    ("ext4", SHORT, "\u2067x\u2069\u2028y\u061c"),
    ("ext4", SHORT, b"\xff\xfe\xc0\xaf\xed\xa0\x80\xf0\x9f"),
    ("ext4", SHORT, b"%s%n%1\\033\"'`$()"),
    ("ext4", SHORT, "--json"),
    ("ext4", SHORT, ".."),
)
# Too large to be erased here; what is shown is all there is to see.
LARGE_LABELS = (
    ("xfs", 300, b"\x1b[2J\x9b\xff\xe2\x80\xae"),
    ("btrfs", 128, b"\x1b[2J\x07" + "\u202e\u009b".encode() + b"\xff\n" + b"W" * 240 + b"end"),
)
# Btrfs stores more than mkfs.btrfs takes: line breaks, and the last of 255 bytes.
SET_LABEL = 0x41009432  # FS_IOC_SETFSLABEL
LABEL_ROOM = 256
# The last part of the path where a volume without a label is mounted.
FOLDERS = (
    b"\x1b[2J\x1b]0;title\x07",
    b"a\nb\tc\r\x7f",
    b"\xc2\x9b2J",
    "a\u202egpj.exe\u2028\u2069".encode(),
    b"\xff\xfe \\x",
    b"\x1b" * 255,
)


def shownAs(raw):
    """The name of that label or folder."""
    raw = raw.encode() if isinstance(raw, str) else raw
    text, place = "", 0
    while place < len(raw):
        for length in range(1, 5):
            try:
                text += HARMFUL.sub(REPLACEMENT, raw[place:place + length].decode())
                break
            except UnicodeDecodeError:
                continue
        else:
            text, length = text + REPLACEMENT, 1
        place += length
    return text.strip(" ")


def pathInJson(target):
    return os.fsencode(target.path).decode(errors="replace")


class HostileText(SystemTest):
    def assertHarmless(self, text):
        self.assertIsNone(HARMFUL.search(text.replace("\n", "")), ascii(text))

    def listed(self, target):
        """The volume as JSON lists it."""
        ended = self.runProgram("volumes", "--json")
        self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
        self.assertHarmless(ended.stdout)
        volumes = [volume for volume in json.loads(ended.stdout) if volume["mountPath"] == pathInJson(target)]
        self.assertEqual(len(volumes), 1, ended.stdout)
        return volumes[0]

    def checkListed(self, target, name):
        self.assertEqual(self.listed(target)["name"], name)
        ended = self.runProgram("volumes")
        self.assertHarmless(ended.stdout)
        rows = [row for row in ended.stdout.splitlines() if row.startswith(name + "  ")]
        self.assertEqual(len(rows), 1, ended.stdout)
        # Refusals name all volumes.
        refused = self.runProgram("wipe", "there is no such volume", "--yes")
        self.assertRefused(refused, name)
        self.assertHarmless(refused.stderr)

    def checkAsked(self, name):
        """On a terminal, in the list, the announcement and the end."""
        for arguments, answers in (((), ("\x03",)), (("wipe", "--method", "1", "--", name), ("NO",))):
            started = TerminalProgram([program.programPath(), *arguments], columns=250)
            self.addCleanup(started.close)
            started.readUntil(name)
            started.readUntil(QUESTION if arguments else "Volume (1 to ")
            for answer in answers:
                started.answer(answer)
            self.assertEqual(started.waitForEnd(), program.EXIT_CANCELLED, started.text)
            self.assertHarmless(started.text.replace("\r", ""))

    def startErasing(self, *volumes):
        """Each by its name; they go on beside each other."""
        return [self.startProgram("wipe", "--method", "1", "--yes", "--json", "--", volume) for volume in volumes]

    def checkErased(self, target, name, process):
        code, output, errors = self.finish(process)
        self.assertEqual(code, program.EXIT_FINISHED, (output, errors))
        self.assertHarmless(output + errors)
        report = json.loads(output)
        self.assertEqual((report["volume"], report["mountPath"]), (name, pathInJson(target)))
        self.assertNothingLeft(target)


class HostileLabels(HostileText):
    def testALabelIsShownHarmlesslyAndItsNameLeadsBackToItsVolume(self):
        targets = [(self.makeVolume(fs, mebibytes, label=label), label) for fs, mebibytes, label in LABELS]
        for target, label in targets:
            with self.subTest(label):
                self.checkListed(target, shownAs(label))
                self.checkAsked(shownAs(label))
        started = self.startErasing(*(shownAs(label) for _, label in targets))
        for (target, label), process in zip(targets, started):
            with self.subTest(label):
                self.checkErased(target, shownAs(label), process)

    def testALabelOfAnyFileSystemIsShownHarmlessly(self):
        for fs, mebibytes, label in LARGE_LABELS:
            with self.subTest(label):
                target = self.makeVolume(fs, mebibytes, label=label if fs == "xfs" else None)
                if fs == "btrfs":
                    self.relabel(target, label)
                self.checkListed(target, shownAs(label))
                self.checkAsked(shownAs(label))
                target.close()

    def relabel(self, target, label):
        folder = os.open(target.path, os.O_RDONLY)
        fcntl.ioctl(folder, SET_LABEL, label.ljust(LABEL_ROOM, b"\0"))
        os.close(folder)

    def testALabelThatIsAnothersMountPathDoesNotStandForIt(self):
        meant = self.makeVolume("ext4", SHORT)
        for ending in ("", "/", "//"):
            with self.subTest(ending):
                hostile = self.makeVolume("btrfs", 128, label=meant.path + ending)
                self.assertEqual(self.listed(hostile)["name"], REPLACEMENT + (meant.path + ending)[1:])
                ended = self.runProgram("wipe", meant.path + ending, "--method", "1", "--yes", "--json")
                self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
                self.assertEqual(json.loads(ended.stdout)["mountPath"], meant.path)
                hostile.close()

    def testTwoVolumesOfOneHostileLabelAreToldApart(self):
        label = b"\x1b[2J\xff"
        targets = [self.makeVolume("ext4", SHORT, label=label) for _ in range(2)]
        names = [self.listed(target)["name"] for target in targets]
        self.assertEqual(sorted(names), [shownAs(label), shownAs(label) + " 1"])
        for target, name, process in zip(targets, names, self.startErasing(*names)):
            self.checkErased(target, name, process)


class HostileMountPaths(HostileText):
    def mountedAt(self, folder):
        parent = tempfile.mkdtemp(prefix="calvero-parent-")
        self.addCleanup(os.rmdir, parent)
        target = self.makeVolume("ext4", SHORT, label=" ")
        target.mountAt(os.path.join(parent, os.fsdecode(folder)))
        return target

    def testAMountPathIsShownHarmlesslyAndItsNameLeadsBackToItsVolume(self):
        targets = [(self.mountedAt(folder), folder) for folder in FOLDERS]
        names = []
        for target, folder in targets:
            with self.subTest(folder):
                names.append(self.listed(target)["name"])
                self.assertEqual(names[-1], shownAs(folder))
                self.checkListed(target, names[-1])
                self.checkAsked(names[-1])
        for (target, folder), name, process in zip(targets, names, self.startErasing(*names)):
            with self.subTest(folder):
                self.checkErased(target, name, process)
        byPath = [self.startProgram("wipe", os.fsencode(target.path), "--method", "1", "--yes")
                  for target, _ in targets]
        for folder, name, process in zip(FOLDERS, names, byPath):
            with self.subTest(folder):
                code, output, errors = self.finish(process)
                self.assertEqual(code, program.EXIT_FINISHED, (output, errors))
                self.assertIn(name, output)
                self.assertHarmless(output + errors)
