"""The figures of a run as a terminal shows them."""

import re

COLUMNS = 200  # room for all of them
_BAR = re.compile(r"(Phase \d).*?(\d+) %  \[[#-]*\].*?  (\d\d):(\d\d):(\d\d)")
_CLOSING_LINE = re.compile(r"in (\d\d):(\d\d):(\d\d)\.")


def secondsOf(hours, minutes, seconds):
    return int(hours) * 3600 + int(minutes) * 60 + int(seconds)


def checkFigures(test, text, leastSeconds, mostSeconds):
    """Neither the percentage of a phase nor the time runs backwards, and a finished run took so long as it says, which
    is the last figure and the closing line alike."""
    bars = [(phase, int(percent), secondsOf(*time)) for phase, percent, *time in _BAR.findall(text)]
    test.assertGreater(len(bars), 1, text)
    percentages = [percent for phase, percent, _ in bars if phase == "Phase 2"]
    test.assertEqual(percentages, sorted(percentages), text)
    times = [seconds for _, _, seconds in bars]
    test.assertEqual(times, sorted(times), text)
    took = secondsOf(*_CLOSING_LINE.search(text).groups())
    test.assertEqual(took, times[-1], text)
    test.assertGreaterEqual(took, leastSeconds - 2, text)  # each is rounded to a second
    test.assertLessEqual(took, mostSeconds + 1, text)
