"""The promise of every pass in its order, each flushed before the next, seen from outside the program."""

import os
import tempfile
import unittest
from itertools import pairwise

from case import SystemTest
from testkit import program, trace
from testkit.volume import FILLER_BYTES

BLOCK_BYTES = 32768
LAST_BLOCK_OFFSET = 127_991_808
LAST_BLOCK_BYTES = 8192
BLOCKS = 3907


@unittest.skipUnless(trace.available(), "strace is not installed")
class SystemCalls(SystemTest):
    def traceWipe(self, target, method):
        with tempfile.TemporaryDirectory(prefix="calvero-trace-") as folder:
            output = os.path.join(folder, "calls")
            ended = self.runTraced(output, target, method)
            self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
            return trace.calls(output)

    def runTraced(self, output, target, method):
        command = trace.command(output, [program.programPath()])
        return self.runCommand([*command, "wipe", target.path, "--method", method, "--yes", "--json"])

    def onVolume(self, calls, target):
        return [call for call in calls if trace.under(call.path, target.path)]

    def writesOf(self, calls, target):
        return [call for call in self.onVolume(calls, target) if call.name in trace.WRITES]

    def creations(self, calls, target):
        return [call for call in self.onVolume(calls, target) if call.name == "openat" and "O_CREAT" in call.arguments]

    def callsByFile(self, calls, target):
        """Positioned writes and flushes of each filler file, in their order."""
        files = {}
        for call in self.onVolume(calls, target):
            if call.name in ("pwrite64", "fsync"):
                files.setdefault(call.path, []).append(call)
        return files

    def testEveryBlockGetsItsThreePassesInOrderEachFlushedBeforeTheNext(self):
        target = self.makeVolume("ext4", 300)
        calls = self.traceWipe(target, "3")
        files = self.callsByFile(calls, target)
        full = [path for path, list_ in files.items() if self.isFull(list_)]
        self.assertEqual([os.path.basename(path) for path in full], [".temp0", ".temp1"])
        randomBlocks = set()
        for path in full:
            randomBlocks |= self.checkFullFile(files[path])
        self.assertEqual(len(randomBlocks), 1, "one random block serves the whole launch")
        self.assertEqual({call.name for call in self.writesOf(calls, target)}, {"pwrite64"})
        self.assertEqual({os.path.basename(path)[:5] for path in files}, {".temp"})

    def isFull(self, calls):
        writes = [call for call in calls if call.name == "pwrite64"]
        return len(writes) == 3 * BLOCKS and all(call.result > 0 for call in writes)

    def checkFullFile(self, calls):
        """Checks the whole sequence and returns the beginnings of the random passes."""
        self.assertEqual(len(calls), 2 * 3 * BLOCKS)
        self.assertEqual([call.name for call in calls], ["pwrite64", "fsync"] * (3 * BLOCKS))
        self.assertEqual(len({call.descriptor for call in calls}), 1, "one descriptor for the whole file")
        self.assertEqual({call.result for call in calls if call.name == "fsync"}, {0})
        expected = [(block * BLOCK_BYTES, LAST_BLOCK_BYTES if block == BLOCKS - 1 else BLOCK_BYTES)
                    for block in range(BLOCKS) for _ in range(3)]
        written = [call.positionedWrite for call in calls if call.name == "pwrite64"]
        self.assertEqual([(offset, length) for _, length, offset in written], expected)
        self.assertEqual(expected[-1], (LAST_BLOCK_OFFSET, LAST_BLOCK_BYTES))
        self.assertEqual(LAST_BLOCK_OFFSET + LAST_BLOCK_BYTES, FILLER_BYTES)
        self.assertEqual({data for data, _, _ in written[0::3]}, {b"\x55" * 8})
        self.assertEqual({data for data, _, _ in written[1::3]}, {b"\xaa" * 8})
        return {data for data, _, _ in written[2::3]} - {b"\x55" * 8, b"\xaa" * 8, bytes(8)}

    def testAMethodWithoutPassesWritesNothing(self):
        target = self.makeVolume("ext4", 150)
        calls = self.traceWipe(target, "7")
        self.assertEqual(self.writesOf(calls, target), [])
        created = self.creations(calls, target)
        self.assertEqual(len(created), target.freeBytes() // FILLER_BYTES + 1, "yet the files were laid out")

    def testFillerFilesAreCreatedNewAndForTheUserAlone(self):
        target = self.makeVolume("ext4", 64)
        calls = self.traceWipe(target, "1")
        created = self.creations(calls, target)
        self.assertGreater(len(created), 0)
        for call in created:
            self.assertIn("O_EXCL", call.arguments)
            self.assertIn("O_NOFOLLOW", call.arguments)
            self.assertTrue(call.arguments.endswith("0600"), call)

    def testAWrittenFileLosesItsNameBeforeTheNextOneIsWritten(self):
        target = self.makeVolume("ext4", 300)
        calls = self.onVolume(self.traceWipe(target, "1"), target)
        firstWrite, unlinked = {}, {}
        for position, call in enumerate(calls):
            if call.name == "pwrite64":
                firstWrite.setdefault(os.path.basename(call.path), position)
            elif call.name == "unlinkat" and call.result == 0:
                name = call.arguments.split('"')[1]
                if name in firstWrite:
                    unlinked.setdefault(name, position)
        names = [f".temp{number}" for number in range(len(firstWrite))]
        self.assertEqual(list(firstWrite), names)
        self.assertGreaterEqual(len(names), 2)
        for this, following in pairwise(names):
            self.assertLess(unlinked[this], firstWrite[following])
