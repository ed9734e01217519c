"""How the programs are hardened, read back from them: hardening_test.py PROGRAM ..."""

import subprocess
import sys
import unittest

programs = sys.argv[1:]


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

    def testTheTestBuildChecksTheUseOfTheStandardLibrary(self):
        self.checkEach(self.assertRegex, "--dyn-syms", r"__glibcxx_assert_fail")


if __name__ == "__main__":
    if not programs:
        sys.exit("hardening_test: name the programs")
    unittest.main(argv=[sys.argv[0], "-v"])
