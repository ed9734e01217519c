"""The fault sweep: python3 tests/faults [--all | KIND:CALL:ACTION ...]

An undisturbed run counts the calls of each kind that reach the file system. Then one whole run is made for every single
call, in which that call fails, and another without a fault on what it left. --all tries every action on every call, as
root and as a plain user, with one pass and with more; otherwise the actions take turns. Named faults are tried alone.
"""

import concurrent.futures
import dataclasses
import itertools
import os
import pathlib
import sys
import time

here = pathlib.Path(__file__).resolve().parent
sys.path[:0] = [str(here), str(here.parent / "system"), str(here.parent.parent / "tools")]

from fault_volume import FaultVolume, whyUnavailable  # noqa: E402
from testkit import scratch  # noqa: E402
from testkit.program import EXIT_FINISHED, PLAIN_USER, PublicCopy, endWithParent  # noqa: E402
from testkit.volume import usePrivateMounts  # noqa: E402
from truths import FILLER_FILES, Fault, untruths, untruthsOfNextRun  # noqa: E402

SKIPPED = 77
KINDS = ("lookup", "getattr", "setattr", "create", "open", "write", "fsync", "unlink", "mkdir", "rmdir", "opendir",
         "readdir", "statfs")
ACTIONS = ("EIO", "ENOSPC", "EROFS", "ENODEV", "EDQUOT", "delay", "die", "EIO+", "EROFS+")
# What is tried on each call of these kinds besides.
MORE_ACTIONS = {"write": ("tear", "ENOSPC+"), "fsync": ("ENOSPC+",), "unlink": ("ENOSPC+",), "rmdir": ("ENOSPC+",)}
# Unless all are tried. Looks at names and attributes are by far the most.
ACTIONS_A_CALL = 2
ACTIONS_A_LOOK = 1
# A run looks at its volume from time to time, so that one may make a few looks less than the one that was counted.
LEAST_MET = 0.97
# The runs wait more than they work.
RUNS_AT_ONCE = 14 * (os.cpu_count() or 1)


@dataclasses.dataclass(frozen=True)
class Scene:
    """The kind of run that is disturbed."""
    method: str = "1"
    plainUser: bool = False
    leftovers: bool = False  # it takes over what an interrupted run left

    def __str__(self):
        user = "a plain user" if self.plainUser else "root"
        return f"method {self.method} as {user}" + (", taking over a directory" if self.leftovers else "")

    def makeVolume(self, means):
        leftoversOf = (PLAIN_USER if self.plainUser else 0) if self.leftovers else None
        return FaultVolume(os.environ["CALVERO_FAULTFS"], means.folder, leftoversOf)


@dataclasses.dataclass(frozen=True)
class Means:
    program: str
    folder: str  # where volumes are made


USUAL_SCENES = (Scene(), Scene(leftovers=True))
ALL_SCENES = (*USUAL_SCENES, Scene(method="3", plainUser=True), Scene(plainUser=True, leftovers=True))


def attempt(means, scene, faultText):
    """One run with the fault and one after it; returns whether the fault was met and what was untrue."""
    fault = Fault(faultText)
    volume = scene.makeVolume(means)
    try:
        ended = volume.run(means.program, scene.method, scene.plainUser, faultText)
        complaints = untruths(fault, ended, scene.leftovers)
        complaints += untruthsOfNextRun(volume.runUndisturbed(means.program, scene.method, scene.plainUser))
        return ended.calls["hits"] > 0, complaints
    except Exception as failure:
        return True, [f"{type(failure).__name__}: {failure}"]
    finally:
        volume.close()


def countCalls(means, scene):
    """The undisturbed run: what every other one is measured against."""
    volume = scene.makeVolume(means)
    try:
        ended = volume.runUndisturbed(means.program, scene.method, scene.plainUser)
    finally:
        volume.close()
    complaints = [*untruthsOfNextRun(ended)]
    if complaints or ended.exitCode != EXIT_FINISHED or not (
            ended.calls["create"] == ended.calls["filesBegun"] == FILLER_FILES):
        raise SystemExit(f"the undisturbed run is not as it should be: {complaints} {ended}")
    return {kind: ended.calls[kind] for kind in KINDS}


def pointsOf(calls, everyAction):
    """The faults to try, in an order in which each kind meets each action."""
    for kind in KINDS:
        actions = (*ACTIONS, *MORE_ACTIONS.get(kind, ()))
        turns = itertools.cycle(actions)
        actionsACall = ACTIONS_A_LOOK if kind in ("lookup", "getattr") else ACTIONS_A_CALL
        points = [(call, action) for call in range(1, calls[kind] + 1)
                  for action in (actions if everyAction else itertools.islice(turns, actionsACall))]
        # A kind with few calls has not met them all yet.
        met = {action for _, action in points}
        points += [(calls[kind], action) for action in actions if calls[kind] > 0 and action not in met]
        yield from (f"{kind}:{call}:{action}" for call, action in points)


def sweep(pool, means, scene, faultTexts):
    """Tries the faults and prints the untruths; returns how many faults were met, and how many untruths there are."""
    attempts = {pool.submit(attempt, means, scene, text): text for text in faultTexts}
    met, untrue = 0, 0
    for done in concurrent.futures.as_completed(attempts):
        wasMet, found = done.result()
        met += wasMet
        untrue += len(found)
        for complaint in found:
            print(f"UNTRUE {attempts[done]}, {scene}: {complaint}", flush=True)
    return met, untrue


def sweepAll(pool, means, scenes, everyAction, named):
    """Whether nothing was wrong."""
    isAllTrue = True
    for scene in scenes:
        startedAt = time.monotonic()
        calls = pool.submit(countCalls, means, scene).result()
        faultTexts = named or list(pointsOf(calls, everyAction))
        met, untrue = sweep(pool, means, scene, faultTexts)
        print(f"{scene}: {sum(calls.values())} calls, {len(faultTexts)} faults tried, {met} met, "
              f"{untrue} untruths, {time.monotonic() - startedAt:.0f} s", flush=True)
        print("  calls: " + ", ".join(f"{kind} {count}" for kind, count in calls.items()), flush=True)
        isAllTrue &= untrue == 0 and met >= len(faultTexts) * LEAST_MET
    return isAllTrue


def main(arguments):
    reason = whyUnavailable()
    if reason:
        print(f"skipped: {reason}")
        return SKIPPED
    everyAction = arguments == ["--all"]
    named = [] if everyAction else arguments
    scratch.use()
    inMemory = scratch.folder("/dev/shm" if os.path.isdir("/dev/shm") else None)
    means = Means(PublicCopy(os.environ["CALVERO_CLI_SCALED"]).path, inMemory)
    with concurrent.futures.ProcessPoolExecutor(RUNS_AT_ONCE, initializer=beginWorker) as pool:
        isAllTrue = sweepAll(pool, means, ALL_SCENES if everyAction else USUAL_SCENES, everyAction, named)
    return 0 if isAllTrue else 1


def beginWorker():
    endWithParent()
    usePrivateMounts()


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
