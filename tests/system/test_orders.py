"""Orders through the tag store: what is written, what is refused."""

import os
from unittest import mock

from case import everything
from order_case import FINISH, WAIT_TO_GO, OrderTest
from testkit import program


def pinned(target):
    """What an order says of its volume beside the name."""
    return {"cvrNamed": target.name, "cvrMountPath": target.path, "cvrVolumeUuid": target.uuid()}


class Order(OrderTest):
    def order(self, target, *arguments, method="3"):
        return self.runProgram("order", target.path, "--method", method, *arguments)

    def assertNothingOrdered(self):
        self.assertFalse(os.path.exists(self.store), "a store was made")
        self.assertFalse(os.path.exists(self.file("started")), "the program was started")

    def starts(self):
        if not os.path.exists(self.file("starts")):
            return []
        with open(self.file("starts")) as file:
            return file.read().splitlines()

    def testIsStoredBeforeTheProgramIsStarted(self):
        target = self.makeVolume()
        self.standIn("")
        for given, method, number in ((target.name, "3", "3"), (target.path + "/", "GUTMANN-dod", "9")):
            with self.subTest(given):
                ended = self.runProgram("order", given, "--method", method)
                self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
                self.assertOneLine(ended.stdout, target.name, "calvero-cli status", "calvero-cli clear")
                self.assertEqual(self.waitForStart(), f"cvrOnline=1 cvrDrive={target.name} cvrAlgo={number} cvrStatus="
                                                      " CVRCANCEL=")
                self.assertEqual(self.tags(), {"cvrOnline": "1", "cvrDrive": target.name, "cvrAlgo": number,
                                               "cvrStatus": "", "cvrResult": "", "CVRCANCEL": ""} | pinned(target))
                os.remove(self.file("started"))
                self.assertEqual(self.runProgram("clear").returncode, program.EXIT_FINISHED)

    def testMayReplaceOneThatHasEnded(self):
        target = self.makeVolume()
        self.standIn("")
        self.setOrder("another volume", "8", cvrStatus="3", CVRCANCEL="1", LANG="de")
        self.assertEqual(self.order(target).returncode, program.EXIT_FINISHED)
        self.assertEqual(self.tags(), {"cvrOnline": "1", "cvrDrive": target.name, "cvrAlgo": "3", "cvrStatus": "",
                                       "cvrResult": "", "CVRCANCEL": "", "LANG": "de"} | pinned(target))

    def testByALabelThatTwoVolumesCarryIsRefusedAndTakenByTheMountPath(self):
        self.standIn("")
        targets = [self.makeVolume(label="twice", mebibytes=16) for _ in range(2)]
        for name in ("twice", "twice 1"):
            self.assertRefused(self.runProgram("order", name, "--method", "1"), "mount path",
                               *(target.path for target in targets))
        self.assertNothingOrdered()
        self.assertEqual(self.order(targets[1]).returncode, program.EXIT_FINISHED)
        tags = self.tags()
        self.assertEqual((tags["cvrMountPath"], tags["cvrVolumeUuid"]), (targets[1].path, targets[1].uuid()))
        status = self.statusOf()
        self.assertEqual((status["mountPath"], status["volumeUuid"]), (targets[1].path, targets[1].uuid()))

    def testIsRefusedWhereAWipeWouldBe(self):
        self.standIn("")
        target = self.makeVolume()
        before = everything(target.path)
        self.assertRefused(self.runProgram("order", "no such volume", "--method", "1"), "no such volume", target.name)
        self.assertNothingOrdered()
        os.mkdir(target.fillerDirectory())
        os.chown(target.fillerDirectory(), program.PLAIN_USER, program.PLAIN_USER)
        target.remount("ro")
        self.assertRefused(self.order(target), "Read only drive, please select other drives")
        self.assertRefused(self.runProgram("wipe", target.path, "--yes"), "Read only drive, please select other drives")
        self.assertNothingOrdered()
        target.remount("rw")
        os.rmdir(target.fillerDirectory())
        end = self.hold(target)
        self.assertRefused(self.order(target), "another run")
        self.assertNothingOrdered()
        end()
        self.assertEqual(everything(target.path), before)

    def testIsRefusedWhileAnotherHasNotEnded(self):
        target, other = self.makeVolume(), self.makeVolume()
        self.standIn("")
        self.setOrder(other.name)
        before = self.tags()
        self.assertRefused(self.order(target), other.name, "calvero-cli clear")
        self.assertEqual(self.tags(), before)
        self.hold(other)
        self.setOrder(other.name, cvrStatus="2")
        before = self.tags()
        self.assertRefused(self.order(target), other.name, "under way")
        self.assertEqual(self.tags(), before)
        self.assertFalse(os.path.exists(self.file("started")))

    def testOfSeveralAtTheSameMomentOneIsCarriedOutAndTheOthersAreRefused(self):
        targets = [self.makeVolume() for _ in range(2)]
        self.standIn('with (files / "starts").open("a") as starts:\n    starts.write(read("cvrDrive") + "\\n")\n')
        orders = []
        for _ in range(5):
            started = [(target, self.startProgram("order", target.name, "--method", "1"))
                       for target in targets for _ in range(4)]
            ended = [(target, self.finish(process)) for target, process in started]
            placed = [target.name for target, (code, _, _) in ended if code == program.EXIT_FINISHED]
            self.assertEqual(len(placed), 1, ended)
            for _, how in ended:
                if how[0] != program.EXIT_FINISHED:
                    self.assertEndsWith(how, program.EXIT_REFUSED, placed[0], "calvero-cli")
            self.assertEqual(self.tags()["cvrDrive"], placed[0])
            orders += placed
            program.waitUntil(lambda: len(self.starts()) >= len(orders), "the start of the program")
            self.assertEqual(self.runProgram("clear").returncode, program.EXIT_FINISHED)
        self.assertEqual(self.starts(), orders)

    def testIsUnderWayFromItsStartToTheEndOfItsProgram(self):
        target = self.makeVolume()
        self.standIn(WAIT_TO_GO + FINISH + 'waitUntil((files / "end").exists)\n')
        self.assertEqual(self.order(target).returncode, program.EXIT_FINISHED)
        for _ in range(2):
            self.assertTrue(self.statusOf()["running"])
            before = self.tags()
            self.assertRefused(self.order(target), target.name, "under way")
            self.assertRefused(self.runProgram("clear"), target.name, "under way")
            self.assertEqual(self.tags(), before)
            self.go()
            program.waitUntil(lambda: self.tags()["cvrStatus"] == "2", "the status")
        open(self.file("end"), "w").close()
        self.assertEqual(self.runProgram("clear").returncode, program.EXIT_FINISHED)
        self.assertFalse(self.statusOf()["running"])

    def testWhereNoClaimCanBeMadeIsCarriedOutWithout(self):
        target = self.makeVolume()
        self.standIn("")
        os.mkdir(self.store + "-order")
        self.assertEqual(self.order(target).returncode, program.EXIT_FINISHED)
        self.waitForStart()
        self.assertFalse(self.statusOf()["running"])

    def testIsRefusedWhileTheRunOfAnOrderThatWasCalledOffGoesOn(self):
        target, other = self.makeVolume(), self.makeVolume()
        self.standIn("")
        self.setOrder(other.name)
        self.setTags(cvrOnline="0")
        self.hold(other)
        before = self.tags()
        self.assertRefused(self.order(target), other.name, "under way")
        self.assertEqual(self.tags(), before)
        self.assertFalse(os.path.exists(self.file("started")))

    def testIsWrongUsageWithoutAMethodOrWithAnUnknownOne(self):
        self.standIn("")
        target = self.makeVolume()
        for method in ("0", "10", "abc", ""):
            with self.subTest(method):
                self.assertWrongUsage(self.order(target, method=method), "1", "9")
        self.assertWrongUsage(self.runProgram("order", target.path), "--method")
        self.assertWrongUsage(self.runProgram("order", "--method", "1"), "VOLUME")
        self.assertWrongUsage(self.order(target, "--timeout", "5"), "--wait")
        self.assertWrongUsage(self.order(target, "--wait", "--timeout", "0"), "--timeout")
        self.assertNothingOrdered()

    def testStoresNothingWhereThereIsNoProgramToCarryItOut(self):
        target = self.makeVolume()
        with mock.patch.dict(os.environ, {"PATH": "/nowhere"}):
            ended = self.order(target)
        self.assertEqual(ended.returncode, program.EXIT_FAILED, ended)
        self.assertOneLine(ended.stderr, "calvero", "PATH")
        self.assertNothingOrdered()

    def testFindsTheProgramInThePath(self):
        target = self.makeVolume()
        elsewhere = os.path.join(self.folder, "bin")
        os.mkdir(elsewhere)
        self.standIn('files.parent.joinpath("started").write_text("elsewhere")\n', elsewhere)
        with mock.patch.dict(os.environ, {"PATH": f"{elsewhere}:{os.environ['PATH']}"}):
            self.assertEqual(self.order(target).returncode, program.EXIT_FINISHED)
        self.assertEqual(self.waitForStart(), "elsewhere")

    def testIsCalledOffWhenTheProgramCannotBeStarted(self):
        target = self.makeVolume()
        with open(self.file("calvero"), "w") as file:
            file.write("no program")
        os.chmod(self.file("calvero"), 0o755)
        ended = self.order(target)
        self.assertEqual(ended.returncode, program.EXIT_FAILED, ended)
        self.assertOneLine(ended.stderr, "cannot be started")
        self.assertEqual(self.tags()["cvrOnline"], "0")

    def testStartsNothingWhenTheStoreCannotBeUsed(self):
        target = self.makeVolume()
        self.standIn("")
        with open(self.store, "w") as file:
            file.write("A text that is no database, however long it goes on. " * 20)
        with open(self.store, "rb") as file:
            before = file.read()
        ended = self.order(target)
        self.assertEqual(ended.returncode, program.EXIT_FAILED, ended)
        self.assertOneLine(ended.stderr, self.store)
        with open(self.store, "rb") as file:
            self.assertEqual(file.read(), before)
        self.assertFalse(os.path.exists(self.file("started")))

    def testLeavesAWipeThatIsTypedAsItIs(self):
        target, other = self.makeVolume(), self.makeVolume()
        self.setOrder(other.name, "5", CVRCANCEL="1")
        before, untouched = self.tags(), everything(other.path)
        report = self.wipe(target, method="2")
        self.assertEqual((report["volume"], report["method"]), (target.name, 2))
        self.assertEqual(self.tags(), before)
        self.assertEqual(everything(other.path), untouched)
