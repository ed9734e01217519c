"""Which passes an ordered method writes, seen from outside the program."""

import os
import unittest

from remote_case import FINISHED, RemoteTest
from testkit import program, trace

BLOCK_BYTES = 32768
ZEROS, ONES, X55, XAA, RANDOM = "00", "ff", "55", "aa", "random"
ALTERNATING = [ZEROS, ONES] * 3
GUTMANN = [RANDOM] * 4 + [ZEROS, ONES] * 13 + [ZEROS, RANDOM, ZEROS, RANDOM, RANDOM]
ZERO_FILL = [ZEROS]
EXPECTED = {
    "1": ZERO_FILL,
    "2": [RANDOM],
    "3": [X55, XAA, RANDOM],
    "4": [ZEROS],
    "5": [*ALTERNATING, RANDOM],
    "6": [*ALTERNATING, XAA],
    "7": [],
    "8": GUTMANN,
    "9": [*GUTMANN, X55, XAA, RANDOM],
    "0": ZERO_FILL,
    "10": ZERO_FILL,
    "-1": ZERO_FILL,
    "": ZERO_FILL,
    "abc": ZERO_FILL,
    None: ZERO_FILL,
    " 3": [X55, XAA, RANDOM],
    " 4": [ZEROS],
    "4x": [ZEROS],
    "6x": [*ALTERNATING, XAA],
    "+5": [*ALTERNATING, RANDOM],
    "8.9": GUTMANN,
}
AT_ONCE = 7


def patternName(data):
    byte = f"{data[0]:02x}"
    return byte if len(set(data)) == 1 and byte in (ZEROS, ONES, X55, XAA) else RANDOM


def passesByBlock(calls, target):
    """The patterns of every block that was written whole, in their order."""
    blocks = {}
    for call in calls:
        if call.name == "pwrite64" and trace.under(call.path, target.path) and call.result == BLOCK_BYTES:
            data, _, offset = call.positionedWrite
            blocks.setdefault((call.path, offset), []).append(patternName(data))
    return blocks


@unittest.skipUnless(trace.available(), "strace is not installed")
class OrderedMethods(RemoteTest):
    def start(self, method):
        target = self.makeVolume("ext4", 8)
        order = self.makeOrder(target, method)
        order.calls = os.path.join(order.folder, "calls")
        order.start(trace.command(order.calls, [program.windowProgramPath()]))
        return method, order, target

    def testEveryValueWritesThePassesOfItsMethod(self):
        values = list(EXPECTED)
        while values:
            started = [self.start(method) for method in values[:AT_ONCE]]
            del values[:AT_ONCE]
            for method, order, target in started:
                with self.subTest(method):
                    self.check(method, order, target)

    def check(self, method, order, target):
        self.assertEqual(order.waitForStatus()[0], FINISHED)
        self.assertEndedSilently(order, program.EXIT_FINISHED)
        calls = trace.calls(order.calls)
        laidOut = [call for call in calls if "O_CREAT" in call.arguments and trace.under(call.path, target.path)]
        self.assertEqual(len(laidOut), 1, "one filler file was laid out")
        blocks = list(passesByBlock(calls, target).values())
        if not EXPECTED[method]:
            self.assertEqual(blocks, [])
            return
        self.assertGreater(len(blocks) * BLOCK_BYTES, target.freeBytes() * 0.8)
        # Where the volume becomes full a block may get less.
        for passes in blocks[:-1]:
            self.assertEqual(passes, EXPECTED[method])
