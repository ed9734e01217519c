"""What starts ordered wipes without anybody at the screen: the script with the real programs, and the files that name
it."""

import configparser
import os
import pathlib
import shutil
import subprocess

from case import SLOWEST
from remote_case import FINISHED, RemoteTest, killProgramsOf
from testkit import program
from testkit.program import startedAs

PACKAGING = pathlib.Path(__file__).resolve().parents[2] / "packaging"
STARTER = "calvero-order"


class Starter(RemoteTest):
    def setUp(self):
        super().setUp()
        self.folder = self.makeFolder()
        self.addCleanup(killProgramsOf, self.folder)
        for path in (program.windowProgramPath(), program.programPath(), PACKAGING / STARTER):
            shutil.copy(path, self.folder)

    def prepare(self, target, **tags):
        order = self.makeOrder(target)
        order.env["PATH"] = f"{self.folder}:{os.environ['PATH']}"
        order.tags.set(**tags)
        return order

    def carryOut(self, order):
        return subprocess.run([STARTER], env=order.env, stdin=subprocess.DEVNULL, capture_output=True, text=True,
                              timeout=60, **startedAs(plainUser=False))

    def assertStartsNothing(self, order):
        ended = self.carryOut(order)
        # Calvero itself would say that there is no display.
        self.assertEqual((ended.returncode, ended.stdout, ended.stderr), (0, "", ""))

    def testCarriesOutAPendingOrder(self):
        target = self.makeVolume("ext4", 16)
        order = self.prepare(target)
        ended = self.carryOut(order)
        self.assertEqual((ended.returncode, ended.stdout, ended.stderr), (0, "", ""))
        self.assertEqual(order.status, FINISHED)
        self.assertNothingLeft(target)

    def testStartsNothingWhileTheOrderIsCarriedOut(self):
        target = self.makeVolume("ext4", 256)
        order = self.prepare(target)
        order.tags.set(cvrAlgo=SLOWEST)
        order.start([STARTER])
        self.waitUntilWriting(target)
        before = order.tags.read()
        self.assertStartsNothing(order)
        self.assertEqual(order.tags.read(), before)
        self.assertStillWriting(order, target)
        order.process.terminate()
        self.expectAbort(order, target)

    def testStartsNothingWhereNoOrderIsPending(self):
        for tags in ({"cvrOnline": "0"}, {"cvrOnline": ""}, {"cvrOnline": "0", "cvrDrive": '"pending": true'}):
            with self.subTest(tags):
                self.assertStartsNothing(self.prepare("not there", **tags))

    def testStartsNothingAndMakesNoStoreWhereThereIsNone(self):
        order = self.prepare("not there")
        os.remove(order.tags.path)
        self.assertStartsNothing(order)
        self.assertFalse(os.path.exists(order.tags.path))

    def testTellsAStoreThatCannotBeUsed(self):
        order = self.prepare("not there")
        with open(order.tags.path, "w") as file:
            file.write("A text that is no database, however long it goes on. " * 20)
        ended = self.carryOut(order)
        self.assertEqual((ended.returncode, ended.stdout), (program.EXIT_FAILED, ""))
        self.assertOneLine(ended.stderr, order.tags.path)


class Files(RemoteTest):
    def testTheSystemdUnitsAreUnderstoodWhole(self):
        if shutil.which("systemd-analyze") is None:
            self.skipTest("systemd-analyze is not installed")
        folder = self.makeFolder()
        starter = shutil.copy(PACKAGING / STARTER, folder)
        service = (PACKAGING / f"{STARTER}.service").read_text()
        self.assertIn(f"ExecStart={STARTER}\n", service)
        # It is looked for in the system's folders only.
        pathlib.Path(folder, f"{STARTER}.service").write_text(service.replace(f"={STARTER}\n", f"={starter}\n"))
        shutil.copy(PACKAGING / f"{STARTER}.timer", folder)
        units = [os.path.join(folder, f"{STARTER}.{kind}") for kind in ("service", "timer")]
        ended = subprocess.run(["systemd-analyze", "--user", "--man=no", "verify", *units], capture_output=True,
                               text=True, timeout=60, env=os.environ | {"XDG_RUNTIME_DIR": folder})
        self.assertEqual((ended.returncode, ended.stdout, ended.stderr), (0, "", ""))

    def testTheAutostartEntryStartsTheScriptWithoutATerminal(self):
        entries = configparser.ConfigParser(interpolation=None)
        entries.optionxform = str
        entries.read(PACKAGING / f"{STARTER}-autostart.desktop")
        entry = entries["Desktop Entry"]
        self.assertEqual(entries.sections(), ["Desktop Entry"])
        self.assertEqual((entry["Type"], entry["Exec"], entry["Terminal"]), ("Application", STARTER, "false"))
        self.assertTrue(entry["Name"])
        if shutil.which("desktop-file-validate") is None:
            self.skipTest("desktop-file-validate is not installed")
        subprocess.run(["desktop-file-validate", PACKAGING / f"{STARTER}-autostart.desktop"], check=True)
