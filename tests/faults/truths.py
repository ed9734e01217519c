"""What must be true of every run, whatever failed under it."""

from testkit.program import EXIT_FAILED, EXIT_FINISHED, EXIT_REFUSED

# After which going on would only drop more: the storage under the volume is full, failing or gone.
_ENDS_AT_ONCE = {"ENOSPC", "EDQUOT", "EIO", "ENODEV", "EROFS"}
# What is needed to find and remove what a run has made; while it goes on failing, that stays.
_CLEANING = {"lookup", "getattr", "setattr", "open", "opendir", "readdir", "unlink", "rmdir"}
# By what a run looks at a directory that it finds, and closes it to others, before it takes it over.
_TAKING_OVER = {"lookup", "getattr", "setattr", "open", "opendir", "readdir", "statfs"}
FILLER_FILES = 3


class Fault:
    """One point of the sweep: the call of a kind, by its number, and what becomes of it."""

    def __init__(self, text):
        self.text = text
        self.kind, call, action = text.split(":")
        self.call = int(call)
        self.lasts = action.endswith("+")
        self.action = action.rstrip("+")

    def saysFull(self):
        """How a volume says that it is full, which is the normal end of a fill: it is believed even where room is left.
        A flush cannot say so: the volume had taken the data."""
        return self.kind == "write" and self.action == "ENOSPC"

    def mustFinish(self):
        """What a run gets over: a call that is answered late while it works, and a short write."""
        return (self.action == "delay" and self.kind in ("write", "fsync", "unlink") and not self.lasts
                or self.action == "tear")

    def mustReachEveryFile(self):
        """One block is lost; the rest of the volume can still be covered."""
        return self.kind == "write" and self.action in ("EIO", "EDQUOT") and not self.lasts

    def mustEndAtOnce(self):
        return self.kind == "fsync" and self.action in _ENDS_AT_ONCE

    def losesData(self):
        """Whether a write or its flush fails for another reason than a full volume."""
        return self.kind in ("write", "fsync") and self.action not in ("tear", "delay") and not self.saysFull()


def untruths(fault, ended, withLeftovers):
    """What is wrong with how the run ended, as texts."""
    return [*_untrueEnd(ended), *_givenUpEarly(fault, ended), *_goneOnWith(fault, ended), *_untrueReport(ended),
            *_untrueSuccess(fault, ended), *_leftBehind(fault, ended, withLeftovers)]


def untruthsOfNextRun(ended):
    if ended.exitCode != EXIT_FINISHED:
        yield f"the next run ended with {ended.exitCode}: {ended.errors.strip()}"
    if ended.left is not None:
        yield f"the next run left {ended.left} behind"
    if not ended.keptUnchanged:
        yield "the next run changed kept files"
    if ended.calls["fewestFreeClusters"] != 0:
        yield "the next run did not fill the volume"


def _untrueEnd(ended):
    if ended.exitCode not in (EXIT_FINISHED, EXIT_FAILED, EXIT_REFUSED):
        yield f"it ended with {ended.exitCode}"
    for word in ("Sanitizer", "runtime error", "terminate called"):
        if word in ended.errors:
            yield f"it crashed: {ended.errors}"
    if not ended.keptUnchanged:
        yield "kept files have changed"


def _givenUpEarly(fault, ended):
    if ended.calls["hits"] == 0:
        return
    if fault.mustFinish() and ended.exitCode != EXIT_FINISHED:
        yield f"it ended with {ended.exitCode}: {ended.errors.strip()}"
    if fault.mustReachEveryFile() and ended.calls["filesBegun"] < FILLER_FILES:
        yield f"it began {ended.calls['filesBegun']} of {FILLER_FILES} files"


def _goneOnWith(fault, ended):
    if ended.calls["hits"] == 0 or not fault.mustEndAtOnce():
        return
    if ended.exitCode != EXIT_FAILED or ended.report.get("outcome") != "failed":
        yield f"a flush failed, and it ended with {ended.exitCode} as {ended.report.get('outcome')}"
    if ended.calls["hits"] > 1 or ended.calls["fsync"] != fault.call:
        yield f"it went on after the failed flush, with {ended.calls['fsync'] - fault.call} more"


def _untrueReport(ended):
    report = ended.report
    if report.get("exitCode") != ended.exitCode:
        yield f"it reported {report.get('exitCode')} and ended with {ended.exitCode}"
    outcomes = {EXIT_FINISHED: {"finished"}, EXIT_FAILED: {"failed", "finished"}, EXIT_REFUSED: {"refused"}}
    if report.get("outcome") not in outcomes.get(ended.exitCode, ()):
        yield f"it reported {report.get('outcome')} and ended with {ended.exitCode}"
    flawless = report.get("faults") == 0 and report.get("remains") is None
    if (report.get("outcome") == "finished") and (ended.exitCode == EXIT_FINISHED) != flawless:
        yield f"it finished with {report['faults']} faults, {report['remains']} left, and ended with {ended.exitCode}"
    if ended.exitCode != EXIT_FINISHED and not ended.errors.strip():
        yield "it does not say why"
    if report.get("bytesWritten", 0) != ended.calls["bytesWritten"]:
        yield f"it reported {report.get('bytesWritten')} bytes written, of {ended.calls['bytesWritten']}"
    if report.get("bytesCovered", 0) * max(report.get("passes", 1), 1) > ended.calls["bytesFlushed"]:
        yield f"it reported {report['bytesCovered']} bytes covered, flushed were {ended.calls['bytesFlushed']}"
    if ended.exitCode == EXIT_REFUSED and ended.calls["bytesWritten"] != 0:
        yield "it was refused and wrote"


def _untrueSuccess(fault, ended):
    if ended.exitCode != EXIT_FINISHED:
        return
    if fault.losesData():
        yield "data may remain, and it calls itself finished"
    if fault.saysFull():
        return
    if ended.calls["fewestFreeClusters"] != 0:
        yield f"{ended.calls['fewestFreeClusters']} clusters were never taken, and it calls itself finished"
    if ended.calls["unflushedWrites"] != 0:
        yield "it did not flush every write, and calls itself finished"


def _leftBehind(fault, ended, withLeftovers):
    """What the fault itself keeps from being removed stays: all that is on a volume that has died, and all where the
    calls go on failing by which things are removed. A directory that could not be taken over is nobody's to remove. And
    what stays is never passed over in silence."""
    if ended.left is not None and ended.exitCode == EXIT_FINISHED:
        yield f"it left {ended.left} behind and calls itself finished"
        return
    if ended.left is None or fault.action == "die" or (fault.lasts and fault.kind in _CLEANING):
        return
    if withLeftovers and ended.exitCode != EXIT_FINISHED and ended.calls["create"] == 0 and fault.kind in _TAKING_OVER:
        return
    yield f"it left {ended.left} behind"
