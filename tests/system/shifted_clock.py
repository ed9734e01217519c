"""A system clock that is set again and again, as a program sees it: see shifted_clock.c."""

import os
import pathlib
import shutil
import subprocess
import tempfile
import time
import unittest

from testkit.program import waitUntil

_SOURCE = pathlib.Path(__file__).resolve().parent / "shifted_clock.c"
_HOUR = 3600


def environment(test):
    """What makes a program see it; skips the test where there is no compiler."""
    if shutil.which("cc") is None:
        raise unittest.SkipTest("no C compiler")
    folder = tempfile.mkdtemp(prefix="calvero-clock-")
    test.addCleanup(shutil.rmtree, folder)
    os.chmod(folder, 0o755)
    library = os.path.join(folder, "shifted_clock.so")
    subprocess.run(["cc", "-shared", "-fPIC", "-O1", "-o", library, str(_SOURCE)], check=True)
    variables = {"LD_PRELOAD": library}
    for isShifted in (lambda hours: hours > 20, lambda hours: hours < -20):
        waitUntil(lambda: isShifted(_hoursAhead(variables)), "a clock that is set ahead, and one that is set back")
    return variables


def _hoursAhead(variables):
    told = subprocess.run(["date", "+%s"], env=os.environ | variables, check=True, capture_output=True).stdout
    return (int(told) - time.time()) / _HOUR
