"""How the programs are hardened, read back from them:

  hardening_test.py checked|unchecked COMPILE_COMMANDS PROGRAM ...

In a checked build the standard library looks after how it is used. COMPILE_COMMANDS tells the one thing that no program
shows: the level of the C library's checks.
"""

import json
import re
import subprocess
import sys
import unittest

if len(sys.argv) < 4 or sys.argv[1] not in ("checked", "unchecked"):
    sys.exit(__doc__)
build, compileCommands, *programs = sys.argv[1:]


class Hardening(unittest.TestCase):
    def checkEach(self, check, option, expected):
        for program in programs:
            with self.subTest(program=program):
                check(subprocess.check_output(["readelf", "-W", option, program], text=True), expected)

    def testAProgramIsLoadedAtARandomPlace(self):
        self.checkEach(self.assertRegex, "-h", r"Type: +DYN ")
        self.checkEach(self.assertRegex, "-d", r"\(FLAGS_1\) .*\bPIE\b")

    def testTheAddressesOfTheLibrariesCannotBeReplaced(self):
        self.checkEach(self.assertRegex, "-l", r"GNU_RELRO")
        self.checkEach(self.assertRegex, "-d", r"\bBIND_NOW\b")

    def testNoMemoryCanBeBothWrittenAndRun(self):
        self.checkEach(self.assertRegex, "-l", r"GNU_STACK .* RW  ")
        self.checkEach(self.assertNotRegex, "-l", r" RWE ")

    def testAnOverwrittenStackIsNoticed(self):
        self.checkEach(self.assertRegex, "--dyn-syms", r"\b__stack_chk_fail@")

    def testTheCLibraryIsToldTheSizesOfBuffers(self):
        self.checkEach(self.assertRegex, "--dyn-syms", r"\b__(?!stack)\w+_chk@")

    def testTheChecksOfTheCLibraryAreThoseOfItsHighestLevel(self):
        with open(compileCommands) as file:
            commands = [entry["command"] for entry in json.load(file)]
        self.assertGreater(len(commands), 0)
        for command in commands:
            self.assertEqual(re.findall(r"-[DU]_FORTIFY_SOURCE\S*", command)[-1:], ["-D_FORTIFY_SOURCE=3"], command)
            self.assertRegex(command, r" -O[g123]\b")  # without optimisation there are none

    @unittest.skipUnless(build == "checked", "only the build that is tested")
    def testTheTestBuildChecksTheUseOfTheStandardLibrary(self):
        self.checkEach(self.assertRegex, "--dyn-syms", r"__glibcxx_assert_fail")


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], "-v"])
