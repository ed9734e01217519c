"""A signal is a cancel of an ordered run."""

import signal

from case import SLOWEST
from remote_case import RemoteTest


class Signals(RemoteTest):
    def testASignalIsACancelAndLeavesNothing(self):
        started = []
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP, signal.SIGQUIT):
            target = self.makeVolume("ext4", 256)
            freeBefore = target.freeBytes()
            started.append((number, self.startOrder(target, SLOWEST), target, freeBefore))
            self.waitUntilWriting(target)

        def cancel(number, order, target, freeBefore):
            self.assertStillWriting(order, target)
            order.process.send_signal(number)
            self.expectAbort(order, target)
            self.assertFreeAgain(target, freeBefore)

        self.besideEachOther(cancel, started)
