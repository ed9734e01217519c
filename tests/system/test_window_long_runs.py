"""What may happen to the window while a long run goes on: it is halted for a while, the system clock is set."""

import re
import time

import shifted_clock
from figures import secondsOf
from pulled_case import CLEAN_UP, PHASE_1, PHASE_2, PulledTest
from testkit import program
from testkit.marks import KeptFiles
from window_case import DOD, FAST, PHASE_2 as SHOWN_PHASE_2, REQUEST, RUN_SECONDS, WindowTest

HALT_SECONDS = 3
TIME = re.compile(r"^(\d\d):(\d\d):(\d\d)$")


class LongRuns(PulledTest, WindowTest):
    def elapsed(self, window):
        labels = [label.name for label in window.findAll("label")]
        found = TIME.match(labels[labels.index("Elapsed Time:") + 1])
        return secondsOf(*found.groups()) if found else None

    def watchElapsed(self, window):
        """The times that are shown until the completion window comes."""
        seen = []

        def look():
            seconds = self.elapsed(window)
            if seconds is not None and seconds not in seen[-1:]:
                seen.append(seconds)
            return len(window.windows()) > 1

        window.waitFor(look, "the completion window", RUN_SECONDS)
        return seen

    def proceedWithoutWaiting(self, window, target, method):
        self.toMethods(window, target, method)
        self.proceed(window)
        # Not waiting for the alert to go: the program may have stopped by then.
        window.pressButton("OK", within=window.find("dialog", REQUEST))

    def checkTimes(self, seen, began):
        self.assertEqual(seen, sorted(seen))
        self.assertGreater(len(seen), 0)
        self.assertLessEqual(seen[-1], time.monotonic() - began + 1)

    def testARunHaltedInAnyPhaseGoesOnAndFinishes(self):
        for phase in (PHASE_1, PHASE_2, CLEAN_UP):
            with self.subTest(phase):
                target = self.makeTarget()
                kept = KeptFiles(target.path)
                command, waitUntilStopped = self.stopping([program.windowProgramPath()], target, phase)
                window = self.startWindow(command=command)
                began = time.monotonic()
                self.proceedWithoutWaiting(window, target, FAST)
                waitUntilStopped()
                time.sleep(HALT_SECONDS)
                self.goOn(window.process)
                seen = self.watchElapsed(window)
                self.checkTimes(seen, began)
                self.assertGreaterEqual(seen[-1], HALT_SECONDS - 1)
                self.expectSuccess(window, target)
                self.quit(window)
                self.assertNothingLeft(target)
                self.assertEqual(kept.differences(), [])

    def testAClockThatIsSetAllThroughARunDisturbsNeitherItNorItsTime(self):
        target = self.makeVolume("ext4", 100)
        window = self.startWindow(env=shifted_clock.environment(self))
        began = time.monotonic()
        self.proceedWithoutWaiting(window, target, DOD)
        window.find("label", SHOWN_PHASE_2, timeout=60)
        self.checkTimes(self.watchElapsed(window), began)
        self.expectSuccess(window, target)
        self.quit(window)
        self.assertNothingLeft(target)
