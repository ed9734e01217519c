#!/usr/bin/env python3
"""The tables compile and lose nothing by it. Ends with 77 where Qt's lrelease and lconvert are not installed."""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

from tables import LOCALES, pairs, readTable, tablePath

SKIPPED = 77
PLACES = os.pathsep.join([os.environ.get("PATH", ""), "/usr/lib/qt6/bin"])
LRELEASE, LCONVERT = (shutil.which(tool, path=PLACES) for tool in ("lrelease", "lconvert"))


@unittest.skipUnless(LRELEASE and LCONVERT, "lrelease or lconvert is not installed")
class Release(unittest.TestCase):
    maxDiff = None

    def runTool(self, *command):
        ended = subprocess.run(command, capture_output=True, text=True)
        self.assertEqual((ended.returncode, ended.stderr), (0, ""), ended.stdout)
        self.assertNotRegex(ended.stdout, "(?i)warning|ignored|duplicate")
        return ended.stdout

    def testEveryTableCompilesWithoutAWarningAndKeepsEveryBlank(self):
        for locale in LOCALES:
            with self.subTest(locale), tempfile.TemporaryDirectory() as folder:
                compiled, readBack = pathlib.Path(folder, "table.qm"), pathlib.Path(folder, "table.ts")
                told = self.runTool(LRELEASE, tablePath(locale), "-qm", compiled)
                expected = pairs(readTable(locale))
                self.assertIn(f"({len(expected)} finished and 0 unfinished)", told)
                self.runTool(LCONVERT, "-i", compiled, "-o", readBack)
                self.assertEqual(sorted(pairs(ElementTree.parse(readBack).getroot())), sorted(expected))


if __name__ == "__main__":
    run = unittest.main(exit=False).result
    sys.exit(SKIPPED if run.wasSuccessful() and run.skipped else not run.wasSuccessful())
