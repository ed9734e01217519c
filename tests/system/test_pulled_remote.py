"""A volume that is taken from an ordered run in any phase, or hangs in it."""

import signal

from case import NOTICED_WITHIN_SECONDS, SLOWEST
from pulled_case import CLEAN_UP, PHASE_1, PHASE_2, PulledTest
from remote_case import FAILED, RemoteTest
from testkit import program
from testkit.fuse_volume import FuseVolume

# A cancel waits eight seconds for a sign of life before it tells.
CANCELLED_WITHIN_SECONDS = 30


class PulledVolume(PulledTest, RemoteTest):
    def startStopping(self, target, phase, method="1"):
        """An ordered run that stops in that phase, and what waits for that."""
        command, waitUntilStopped = self.stopping([program.windowProgramPath()], target, phase)
        order = self.makeOrder(target, method)
        order.start(command)
        if isinstance(target, FuseVolume):  # else a program that it keeps from ending would not end with the test
            self.addCleanup(target.die)
        return order, waitUntilStopped

    def checkTold(self, phase, method="1"):
        started = [(how, lose, *self.startStopping(target, phase, method)) for how, target, lose in self.losses(phase)]
        for how, lose, order, waitUntilStopped in started:
            with self.subTest(how):
                waitUntilStopped()
                self.assertIsNone(order.status)
                lose()
                self.goOn(order.process)
                self.assertEqual(order.waitForStatus(NOTICED_WITHIN_SECONDS)[0], FAILED)
                self.assertEndedSilently(order, program.EXIT_FAILED)
                self.assertEqual(order.status, FAILED)

    def testIsToldWhenItGoesWhileTheFilesAreLaidOut(self):
        self.checkTold(PHASE_1)

    def testIsToldWhenItGoesWhileAFileIsWritten(self):
        self.checkTold(PHASE_2, SLOWEST)

    def testIsToldWhenItGoesBeforeTheCleanUp(self):
        self.checkTold(CLEAN_UP)

    def testThatHangsDoesNotKeepTheCancelledRun(self):
        started = []
        for phase in (PHASE_1, PHASE_2, CLEAN_UP):
            target = self.makeFuseTarget()
            started.append((phase, target, *self.startStopping(target, phase)))
        for _, target, order, waitUntilStopped in started:
            waitUntilStopped()
            target.hang()
            self.goOn(order.process)
            order.process.send_signal(signal.SIGTERM)
        for phase, target, order, _ in started:
            with self.subTest(phase):
                self.assertEqual(order.waitForStatus(CANCELLED_WITHIN_SECONDS)[0], FAILED)
                program.waitUntil(lambda: program.hasLeft(order.process), "the program leaving without its threads",
                                  CANCELLED_WITHIN_SECONDS)
                target.die()
                self.assertEndedSilently(order, program.EXIT_CANCELLED)
                self.assertEqual(order.status, FAILED)
