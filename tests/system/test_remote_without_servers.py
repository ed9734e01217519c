"""An ordered run without what a desktop offers: no session bus, no display, no home."""

import contextlib
import os
import shutil
import socket

from case import SLOWEST
from remote_case import BUS_VARIABLE, FINISHED, RemoteTest
from testkit import program


class WithoutServers(RemoteTest):
    def testNeitherABusNorADisplayIsNeeded(self):
        # Beside each other, since each takes the time to read a message that nobody sees.
        variants = ({BUS_VARIABLE: "unix:path=/nowhere/bus"}, {BUS_VARIABLE: "no address"}, {BUS_VARIABLE: ""},
                    {"XDG_RUNTIME_DIR": None}, {"DISPLAY": ":4711"}, {"WAYLAND_DISPLAY": "wayland-4711"},
                    {"HOME": None})
        started = []
        for variant in variants:
            target = self.makeVolume("ext4", 8)
            order = self.makeOrder(target)
            order.env = {name: value for name, value in (order.env | variant).items() if value is not None}
            order.start([program.windowProgramPath()])
            started.append((variant, order, target))
        for variant, order, target in started:
            with self.subTest(variant):
                self.assertEqual(order.waitForStatus()[0], FINISHED)
                self.assertEqual(order.waitForEnd()[0], 0)
                self.assertNothingLeft(target)

    def testTheMessagesAreInTheSystemLogWhereThereIsNoDisplay(self):
        finishing, cancelled = self.makeVolume("ext4", 8), self.makeVolume("ext4", 256)
        logs = []
        for target, method in ((finishing, "1"), (cancelled, SLOWEST)):
            order = self.makeOrder(target, method)
            logs.append((order, self.startWithLog(order)))
        self.waitUntilWriting(cancelled)
        logs[1][0].process.terminate()
        self.expectAbort(logs[1][0], cancelled)
        self.expectFinish(logs[0][0], finishing)
        self.assertEqual(self.linesWith(logs[0][1], "Calvero on:"), [
            f"Your admin successfuly completed\n Calvero on:{finishing.name}"])
        self.assertEqual(self.linesWith(logs[1][1], "aborted"), ["Remote Wiping Process has been aborted."])

    def startWithLog(self, order):
        """Starts the order's program with a log service of its own; returns the service's socket."""
        log = socket.socket(socket.AF_UNIX, socket.SOCK_DGRAM)
        self.addCleanup(log.close)
        log.setblocking(False)
        path = os.path.join(order.folder, "log")
        log.bind(path)
        order.start(["unshare", "--mount", "sh", "-c",
                     'mount -t tmpfs log /dev && : >/dev/log && mount --bind "$0" /dev/log && exec "$1"',
                     path, shutil.copy(program.windowProgramPath(), order.folder)])  # the build may be below /dev
        return log

    def linesWith(self, log, part):
        """What of the lines follows the program's name and process id, of those that hold `part`."""
        lines = []
        with contextlib.suppress(BlockingIOError):
            while True:
                lines.append(log.recv(4096).decode().split("]: ", 1)[1])
        return [line for line in lines if part in line]

    def testABusThatGoesAwayMeanwhileEndsNothing(self):
        target = self.makeVolume("ext4", 24)
        order = self.makeOrder(target, "6")
        bus = self.startBus(order)
        order.start([program.windowProgramPath()])
        self.waitUntilWriting(target)
        bus.kill()
        bus.wait()
        self.assertStillWriting(order, target)
        self.expectFinish(order, target)
