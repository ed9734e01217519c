"""Orders that are waited for, and those of other programs: what is watched, called off and told."""

import os
import re
import shutil
import subprocess

from order_case import FAIL, FINISH, FOLLOW_A_REQUEST, NOTHING_LEFT, WAIT_TO_GO, OrderTest
from remote_case import BUS_VARIABLE
from testkit import program
from testkit.program import TerminalProgram, startedAs

NO_RESULT = {"grade": None, "bytesOverwritten": None, "shortBy": None}


class WaitingForAnOrder(OrderTest):
    def startOrder(self, target, *arguments):
        return self.startProgram("order", target.name, "--method", "dod", "--wait", *arguments)

    def testLastsUntilTheProgramHasEndedAndSaysWhatBecameOfIt(self):
        target = self.makeVolume()
        for body, code, words in ((FINISH, program.EXIT_FINISHED, ("Finished", target.path, "dod", "cli clear")),
                                  (FAIL, program.EXIT_FAILED, ("Failed", target.path, "remain readable")),
                                  (FOLLOW_A_REQUEST, program.EXIT_CANCELLED, ("Cancelled", target.path)),
                                  ("sys.exit(3)\n", program.EXIT_FAILED, ("without a status", "exit code 3")),
                                  ("os.kill(os.getpid(), 9)\n", program.EXIT_FAILED, ("without a status", "signal 9"))):
            with self.subTest(body):
                self.standIn(body + "write('ended', 'yes')\n")
                self.setTags(ended="no")
                started = self.startOrder(target)
                if body == FOLLOW_A_REQUEST:
                    self.waitForStart()
                    self.assertEqual(self.runProgram("cancel").returncode, program.EXIT_FINISHED)
                self.assertEndsWith(self.finish(started), code, *words)
                self.assertEqual(self.tags()["ended"], "no" if "status" in words[0] else "yes")
                self.assertEqual(self.tags()["cvrOnline"], "1", "an order stays pending")
                os.remove(self.file("started"))
                self.assertEqual(self.runProgram("clear").returncode, program.EXIT_FINISHED)

    def testEndsWithTheTimeoutThoughTheRunGoesOn(self):
        target = self.makeVolume()
        self.standIn(WAIT_TO_GO + FINISH)
        self.assertEndsWith(self.finish(self.startOrder(target, "--timeout", "1")), program.EXIT_FAILED,
                            "Not ended within 1 s", "goes on")
        self.assertEqual(self.tags()["cvrStatus"], "")
        self.go()
        program.waitUntil(lambda: self.tags()["cvrStatus"] == "2", "the end of the run")

    def testEndsWithCtrlCThoughTheRunGoesOn(self):
        target = self.makeVolume()
        self.standIn(WAIT_TO_GO + FINISH)
        started = TerminalProgram([self.command, "order", target.name, "--method", "1", "--wait"])
        self.addCleanup(started.close)
        started.readUntil("Ordered: ")
        started.answer("\x03")
        self.assertEqual(started.waitForEnd(), program.EXIT_FAILED, started.text)
        self.assertIn("No longer waiting", started.text)
        self.waitForStart()
        self.assertEqual(self.tags()["CVRCANCEL"], "")
        self.go()
        program.waitUntil(lambda: self.tags()["cvrStatus"] == "2", "the end of the run")


class OrdersOfOthers(OrderTest):
    """The commands about an order that another program wrote."""

    def testTheStatusFollowsTheRun(self):
        target = self.makeVolume()
        self.setOrder(target.name, "9")
        expected = {"pending": True, "volume": target.name, "method": 9, "mountPath": None, "volumeUuid": None,
                    "running": False, "cancelAsked": False, "status": None, "outcome": "none", **NO_RESULT}
        self.assertEqual(self.statusOf(), expected)
        end = self.hold(target)
        self.setTags(CVRCANCEL="1")
        self.assertEqual(self.statusOf(), expected | {"running": True, "cancelAsked": True})
        text = self.runProgram("status").stdout
        self.assertEqual(text, f'Order:  "{target.name}" with method 9 (gutmann-dod), pending\nRun:    under way\n'
                               "Cancel: asked for\nStatus: none yet\n")
        end()
        self.setTags(cvrStatus="3")
        self.assertEqual(self.statusOf(), expected | {"cancelAsked": True, "status": 3, "outcome": "failed"})

    def testARunKeepsItsOrderFromBeingRemoved(self):
        target = self.makeVolume()
        self.setOrder(target.name)
        before = self.tags()
        end = self.hold(target)
        self.assertRefused(self.runProgram("clear"), target.name, "under way")
        self.assertEqual(self.tags(), before)
        end()
        self.assertEqual(self.runProgram("clear").returncode, program.EXIT_FINISHED)
        self.assertEqual(self.tags(), NOTHING_LEFT)

    def testACancelMayWaitForTheStatus(self):
        target = self.makeVolume()
        self.setOrder(target.name)
        end, giveUp = self.hold(target), self.claim()
        started = self.startProgram("cancel", "--wait")
        program.waitUntil(lambda: self.tags().get("CVRCANCEL") == "1", "the request")
        self.assertIsNone(started.poll())
        end()
        self.setTags(CVRCANCEL="0", cvrStatus="3")
        giveUp()
        self.assertEndsWith(self.finish(started), program.EXIT_FINISHED, "Cancelled", target.name)

    def testACancelThatComesTooLateLeavesNoRequestForTheNextRun(self):
        target = self.makeVolume()
        self.setOrder(target.name)
        end, giveUp = self.hold(target), self.claim()
        started = self.startProgram("cancel", "--wait")
        program.waitUntil(lambda: self.tags().get("CVRCANCEL") == "1", "the request")
        end()
        self.setTags(cvrStatus="2")
        giveUp()
        self.assertEndsWith(self.finish(started), program.EXIT_FINISHED, "Finished", target.name)
        self.assertEqual(self.tags()["CVRCANCEL"], "0")

    def testACancelThatNoBusCarriesReturnsAtOnceAndLeavesTheRequestToTheRun(self):
        target = self.makeVolume()
        self.setOrder(target.name)
        self.claim()
        ended = self.runProgram("cancel")
        self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
        self.assertOneLine(ended.stdout, target.name, "asked to end")
        self.assertEqual(self.tags()["CVRCANCEL"], "1")

    def testWhereNoClaimCanBeMadeTheVolumeTellsOfTheRun(self):
        target = self.makeVolume()
        self.setOrder(target.name)
        os.mkdir(self.store + "-order")
        self.assertRefused(self.runProgram("cancel"), target.name, "no run")
        self.hold(target)
        self.assertEqual(self.runProgram("cancel").returncode, program.EXIT_FINISHED)
        self.assertEqual(self.tags()["CVRCANCEL"], "1")

    def testACancelIsRefusedOnceTheRunHasEnded(self):
        target = self.makeVolume()
        self.setOrder(target.name, cvrStatus="2")
        self.assertRefused(self.runProgram("cancel"), target.name, "ended")
        self.assertNotIn("CVRCANCEL", self.tags())
        self.claim()
        self.assertEqual(self.runProgram("cancel").returncode, program.EXIT_FINISHED, "it runs again")
        self.assertEqual(self.tags()["CVRCANCEL"], "1")

    def testACancelWithoutARunIsRefusedThoughSomebodyElseWipesTheVolume(self):
        target = self.makeVolume()
        self.setOrder(target.name)
        before = self.tags()
        self.hold(target)
        for arguments in (("cancel",), ("cancel", "--wait")):
            self.assertRefused(self.runProgram(*arguments), target.name, "no run", "calvero-cli clear")
        self.assertEqual(self.tags(), before)


class Notifications(OrderTest):
    def setUp(self):
        super().setUp()
        if reason := next((name for name in ("dbus-daemon", "dbus-monitor") if shutil.which(name) is None), None):
            self.skipTest(f"{reason} is not installed")
        address = f"unix:path={self.file('bus')}"
        self.background("dbus-daemon", "--session", "--nofork", f"--address={address}")
        os.environ[BUS_VARIABLE] = address

    def background(self, *command, output=subprocess.DEVNULL):
        started = subprocess.Popen(command, stdout=output, stderr=subprocess.DEVNULL, **startedAs(plainUser=False))
        self.addCleanup(started.wait)
        self.addCleanup(started.kill)

    def testACancelIsSentToTheSessionToo(self):
        program.waitUntil(lambda: os.path.exists(self.file("bus")), "the bus")
        with open(self.file("heard"), "w") as heard:
            self.background("dbus-monitor", "--session", "type='signal',member='Posted'", output=heard)
        self.setOrder("not there")
        self.claim()

        def isHeard():
            # Anew, until the monitor listens.
            self.assertEqual(self.runProgram("cancel").returncode, program.EXIT_FINISHED)
            with open(self.file("heard")) as heard:
                return re.search(r'string "cancel wipe"\s+string "cancel"\n', heard.read())

        program.waitUntil(isHeard, "the notification", seconds=30)
        self.assertEqual(self.tags()["CVRCANCEL"], "1")


class WithoutVolumes(OrderTest):
    """What needs no volume and no rights."""

    def testWithoutAnOrderThereIsNothingToShowToCancelOrToRemove(self):
        self.assertEqual(self.runProgram("status").stdout, "Order:  none\nRun:    none\nStatus: none\n")
        self.assertEqual(self.statusOf(), {"pending": False, "volume": None, "method": None, "mountPath": None,
                                           "volumeUuid": None, "running": False, "cancelAsked": False, "status": None,
                                           "outcome": "none", **NO_RESULT})
        self.assertRefused(self.runProgram("cancel"), "no order")
        self.assertRefused(self.runProgram("cancel", "--wait"), "no order")
        ended = self.runProgram("clear")
        self.assertEqual((ended.returncode, ended.stdout), (program.EXIT_FINISHED, "There is no order.\n"))
        self.assertFalse(os.path.exists(self.store), "asking makes no store")

    def testAnOrderForAVolumeThatIsNotThereIsShownAndRemoved(self):
        self.setOrder("not there", "abc", LANG="fr")
        self.assertIn('"not there" with method 1 (zero), since "abc" names none, pending',
                      self.runProgram("status").stdout)
        self.assertRefused(self.runProgram("cancel"), "not there", "no run")
        self.assertNotIn("CVRCANCEL", self.tags())
        ended = self.runProgram("clear")
        self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
        self.assertEqual(self.tags(), NOTHING_LEFT | {"LANG": "fr"})

    def testHostileTextsAreShownAsEscapes(self):
        self.setOrder("a\x1b[2J\nb", "\x07", cvrStatus="\x9b1m")
        for arguments in (("status",), ("status", "--json"), ("clear",)):
            with self.subTest(arguments):
                ended = self.runProgram(*arguments)
                self.assertEqual(ended.returncode, program.EXIT_FINISHED, ended)
                self.assertNotRegex(ended.stdout + ended.stderr, r"[\x00-\x09\x0b-\x1f\x7f-\x9f]")

    def testAStoreThatCannotBeUsedIsToldInOneLine(self):
        with open(self.store, "w") as file:
            file.write("A text that is no database, however long it goes on. " * 20)
        for command in ("status", "cancel", "clear"):
            with self.subTest(command):
                ended = self.runProgram(command)
                self.assertEqual(ended.returncode, program.EXIT_FAILED, ended)
                self.assertOneLine(ended.stderr, self.store)
                self.assertEqual(ended.stdout, "")

    def testTheExitCodesOfAnOrderAreInItsHelp(self):
        ended = self.runProgram("order", "--help")
        self.assertEqual(ended.returncode, program.EXIT_FINISHED)
        for word in ("ordered", "failed", "usage", "refused", "cancelled"):
            self.assertIn(word, ended.stdout.lower())
