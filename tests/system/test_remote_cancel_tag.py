"""A cancel through the tag store, which is looked at once a minute."""

import time

from case import SLOWEST
from remote_case import RemoteTest
from testkit.volume import MEBIBYTE

POLL_SECONDS = 60
SPARE_SECONDS = 8
# Still being written after a poll, on a fast machine too; only what is written of it takes memory.
MEBIBYTES = 4000
NEEDED_BYTES = 1200 * MEBIBYTE


class CancelTag(RemoteTest):
    def testIsFollowedAtTheNextLookOfOneAMinuteAndSetBackAndNothingElseCancels(self):
        # The one that goes on is started first, so that it has looked by the time the other one does.
        other, target = (self.makeVolume("ext4", MEBIBYTES, neededBytes=NEEDED_BYTES) for _ in range(2))
        goesOn = self.startOrder(other, SLOWEST)
        self.waitUntilWriting(other)
        order = self.startOrder(target, SLOWEST)
        self.waitUntilWriting(target)
        goesOn.tags.set(CVRCANCEL="yes")
        order.tags.set(CVRCANCEL="1")
        asked = time.monotonic()
        self.assertStillWriting(order, target)
        self.expectAbort(order, target, POLL_SECONDS + SPARE_SECONDS)
        self.assertLess(time.monotonic() - asked, POLL_SECONDS + 2 * SPARE_SECONDS)
        self.assertEqual(order.tags.read()["CVRCANCEL"], "0")
        self.assertEqual(order.tags.read()["cvrOnline"], "1")
        self.assertStillWriting(goesOn, other)
        self.assertEqual(goesOn.tags.read()["CVRCANCEL"], "yes")
