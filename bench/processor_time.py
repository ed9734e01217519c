"""Processor time of a running program, read from outside."""

import pathlib

WORKER = "calvero-wipe"


def threadSeconds(pid):
    """Processor seconds of each live thread, by its number, and whether it is the worker."""
    seconds = {}
    for task in pathlib.Path(f"/proc/{pid}/task").iterdir():
        try:
            name = (task / "comm").read_text().strip()
            seconds[task.name] = (name == WORKER, int((task / "schedstat").read_text().split()[0]) / 1e9)
        except OSError:
            pass  # it has just ended
    return seconds


def allSeconds(pid):
    return sum(seconds for _, seconds in threadSeconds(pid).values())


def hasWorker(threads):
    return any(isWorker for isWorker, _ in threads.values())
