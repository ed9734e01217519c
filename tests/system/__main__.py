"""Runs one file of system tests: python3 tests/system NAME. Ends with 77 when a test had to be skipped."""

import pathlib
import sys
import unittest

SKIPPED = 77
NO_TESTS = 5

here = pathlib.Path(__file__).resolve().parent
sys.path[:0] = [str(here), str(here.parent.parent / "tools")]

from testkit import scratch  # noqa: E402

scratch.use()
run = unittest.main(module=None, argv=[sys.argv[0], "-v", *sys.argv[1:]], exit=False).result
if not run.wasSuccessful():
    sys.exit(1)
if run.testsRun == 0:
    sys.exit(NO_TESTS)
sys.exit(SKIPPED if run.skipped else 0)
