"""When something is on the screen: seen in the file in which the screen's server keeps the pixels."""

import mmap
import time

from testkit.screenshot import Layout

_POLL_SECONDS = 0.0005
_ACROSS, _DOWN = 40, 20
_LIKE = 0.95  # of the spots; the pointer may stand before some
_STEADY_SECONDS = 0.5
_LIMIT_SECONDS = 30


class Screen:
    """What is at some spots of an area, without asking the server."""

    def __init__(self, path):
        with open(path, "rb") as file:
            self._pixels = mmap.mmap(file.fileno(), 0, prot=mmap.PROT_READ)
        self._layout = Layout(self._pixels)

    def spots(self, area):
        """Where to look in `area` (x, y, width, height)."""
        left, top, width, height = area
        start, lineBytes = self._layout.start, self._layout.lineBytes
        return [start + (top + height * (2 * row + 1) // (2 * _DOWN)) * lineBytes
                + 4 * (left + width * (2 * column + 1) // (2 * _ACROSS))
                for row in range(_DOWN) for column in range(_ACROSS)]

    def look(self, spots):
        return [self._pixels[spot:spot + 3] for spot in spots]

    def waitFor(self, spots, picture):
        """Waits until nearly all spots look so, and returns when they did."""
        deadline = time.monotonic() + _LIMIT_SECONDS
        while True:
            seen = self.look(spots)
            now = time.monotonic()
            if sum(map(bytes.__eq__, seen, picture)) >= _LIKE * len(spots):
                return now
            assert now < deadline, "the picture never came"
            time.sleep(_POLL_SECONDS)

    def waitUntilSteady(self, spots):
        """Waits until nothing changes any more, and returns what is there."""
        last, since = self.look(spots), time.monotonic()
        deadline = since + _LIMIT_SECONDS
        while time.monotonic() - since < _STEADY_SECONDS:
            assert time.monotonic() < deadline, "the picture keeps changing"
            time.sleep(_POLL_SECONDS)
            seen = self.look(spots)
            if seen != last:
                last, since = seen, time.monotonic()
        return last
