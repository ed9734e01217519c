#!/usr/bin/env python3
import pathlib
import tempfile
import unittest

from source_keys import FOLDERS, catalogueKeys, lookedUpKeys, sourceKeys


class LookedUpKeys(unittest.TestCase):
    def assertKeys(self, source, *keys):
        self.assertEqual(lookedUpKeys(source), set(keys))

    def testALiteralInACallIsAKey(self):
        for name in ("localised", "localise", "textFor", "setPhase"):
            with self.subTest(name):
                self.assertKeys(f'f({name}("Random "));', "Random ")
                self.assertKeys(f'ports.table->{name} ( "Random " )', "Random ")

    def testALiteralElsewhereIsNone(self):
        self.assertKeys('log("one"); notlocalised("two"); localised2("three"); "localised(";')
        self.assertKeys('localised(key) + "after"; textFor(one()), "after"')

    def testAdjacentLiteralsAreOneKey(self):
        self.assertKeys('localised("Close all "\n   "the files")', "Close all the files")

    def testAQuoteAndALineBreakAreUnescaped(self):
        self.assertKeys(r'localised("press \"Reload Drives\".\n Now \\")', 'press "Reload Drives".\n Now \\')

    def testAnEscapeThatIsNotKnownIsRefused(self):
        self.assertRaises(KeyError, lookedUpKeys, r'localised("\x41")')

    def testARawLiteralIsTakenAsItStands(self):
        self.assertKeys(r'localised(R"(a "b" \n)")', r'a "b" \n')
        self.assertKeys('localised(R"x(a)")x")', 'a)"')

    def testBothArmsOfAConditionAreKeys(self):
        self.assertKeys('textFor(isFixed(drive) ? "Fixed drive" : "Network drive")', "Fixed drive", "Network drive")

    def testACallEndsAtItsOwnParenthesis(self):
        self.assertKeys('f(localised("A(").arg("B"), localise(g("C")), "D")', "A(", "C")

    def testCommentsAndCharactersAndNumbersHideNothing(self):
        self.assertKeys("""/* localised("A") */ // localised("B")
            char quote = '"'; int n = 1'000'000; localised("C"); char other = '\\''; localised("D");""", "C", "D")


class CatalogueKeys(unittest.TestCase):
    def testOnlyTheLabelColumnIsTaken(self):
        rows = """#include "methods/method_catalogue.h"
                  {0, "zero", "Fast " "Zero ", 1, always0x00},
                  {1, "random", "Random", 1, [](int pass) { return alwaysRandom(pass); }},"""
        self.assertEqual(catalogueKeys(rows), ["Fast Zero ", "Random"])


class SourceKeys(unittest.TestCase):
    def testEveryFolderIsReadAndTheEmptyKeyIsLeftOut(self):
        with tempfile.TemporaryDirectory() as name:
            root = pathlib.Path(name)
            for number, folder in enumerate(FOLDERS):
                (root / folder / "deep").mkdir(parents=True)
                (root / folder / "deep" / "source.cpp").write_text(f'localised("{number}"); localised("");')
                (root / folder / "header.h").write_text(f'localised("{number}h");')
                (root / folder / "README.md").write_text('localised("no")')
            (root / "methods" / "method_catalogue.cpp").write_text('{0, "word", "label", 1, plan}')
            numbers = [str(number) for number in range(len(FOLDERS))]
            self.assertEqual(sourceKeys(root), {*numbers, *(number + "h" for number in numbers), "label"})


if __name__ == "__main__":
    unittest.main()
