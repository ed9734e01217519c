#!/usr/bin/env python3
"""Every table is complete, and each text can stand in for its key."""

import collections
import re
import unittest

from source_keys import CATALOGUE, FOLDERS, catalogueKeys, sourceKeys
from tables import FOLDER, LOCALES, ROOT, pairs, readTable, tablePath

TRANSLATED = [locale for locale in LOCALES if locale != "en"]

NAMES = ("DOD 5220.22.M", "DoD 5220.22-M", "N.A.V.S.O.- RLL", "N.A.T.O.", "V.S.I.T.R.", "Peter Guttman", "Facebook",
         "Twitter", "Google+", "Ondrel More", "Ondrel MORE", "Calvero")
# Keys that read the same in a language; in every language: names.
SAME_EVERYWHERE = {"Ondrel More", "Facebook", "Twitter", "Google+"}
SAME = {
    "OK": "de fr it pt_BR nl pl sv uk ja",
    "Peter Guttman + (DoD 5220.22-M)": "de fr es it pt_BR nl pl sv tr uk ja ko zh_CN",
    "Information": "fr sv",
    "Help": "nl",
    "Home": "it",
}
# Buttons that another text mentions.
MENTIONS = {"Click next to continue": "Next", **dict.fromkeys((
    'Connect a drive, then press "Reload Drives".',
    'This drive is not connected any more. Press "Reload Drives".',
    'This drive does not respond. Check its connection, then press "Reload Drives".'), "Reload Drives")}
QUOTES = {"de": "„“", "fr": "«»", "es": "«»", "it": "«»", "pt_BR": "“”", "nl": "‘’", "pl": "„”", "sv": "””", "tr": "“”",
          "uk": "«»", "ja": "「」", "ko": "‘’", "zh_CN": "“”", "ar": "«»"}
NO_BREAK_SPACE = "\u00a0"
COLONS = {"fr": NO_BREAK_SPACE + ":", "ja": "：", "zh_CN": "："}

# The first alert of a run is passed through formatting, so that a "%" of its own would break it.
PLACEHOLDER = re.compile(r"%(?:@|\d+)|%")
# Apart from line breaks; with marks and overrides of the writing direction.
CONTROL = re.compile("[\u0000-\u0009\u000b-\u001f\u007f-\u009f\u061c\u200b-\u200f\u2028-\u202e\u2060-\u206f\ufeff]")


def edges(text):
    """The blanks around a text."""
    return text[:len(text) - len(text.lstrip())], text[len(text.rstrip()):]


def placeholders(text):
    return collections.Counter(PLACEHOLDER.findall(text))


class Tables(unittest.TestCase):
    maxDiff = None

    def testExactlyTheKnownLocalesHaveATable(self):
        self.assertEqual({path.name for path in FOLDER.glob("*.ts")}, {tablePath(locale).name for locale in LOCALES})

    def testATableNamesItsLanguageAndHasOneContextOfFinishedMessages(self):
        for locale in LOCALES:
            with self.subTest(locale):
                table = readTable(locale)
                self.assertEqual((table.tag, table.attrib),
                                 ("TS", {"version": "2.1", "language": locale, "sourcelanguage": "en"}))
                self.assertEqual([context.findtext("name") for context in table], ["Calvero"])
                for message in table.iter("message"):
                    self.assertEqual([(part.tag, part.attrib) for part in message],
                                     [("source", {}), ("translation", {})])

    def testAllTablesHaveTheSameKeysInTheSameOrder(self):
        expected = [key for key, _ in pairs(readTable("en"))]
        self.assertEqual(len(expected), len(set(expected)), "a key twice")
        for locale in TRANSLATED:
            with self.subTest(locale):
                self.assertEqual([key for key, _ in pairs(readTable(locale))], expected)

    def testNoTableHasTheEmptyKey(self):
        for locale in LOCALES:
            with self.subTest(locale):
                self.assertNotIn("", [(key or "").strip() for key, _ in pairs(readTable(locale))])


class Keys(unittest.TestCase):
    maxDiff = None

    def testTheFoldersThatAreSearchedExist(self):
        for folder in FOLDERS:
            with self.subTest(folder):
                self.assertTrue((ROOT / folder).is_dir())

    def testTheLabelsOfAllNineMethodsAreFound(self):
        self.assertEqual(len(catalogueKeys((ROOT / CATALOGUE).read_text())), 9)

    def testEveryKeyOfTheSourcesIsInEveryTable(self):
        for locale in LOCALES:
            with self.subTest(locale):
                self.assertEqual(sorted(sourceKeys(ROOT) - dict(pairs(readTable(locale))).keys()), [])

    def testNoTableHasAKeyThatTheSourcesDoNotUse(self):
        for locale in LOCALES:
            with self.subTest(locale):
                self.assertEqual(sorted(dict(pairs(readTable(locale))).keys() - sourceKeys(ROOT)), [])


class Texts(unittest.TestCase):
    maxDiff = None

    def forEveryPair(self, check, locales=LOCALES):
        for locale in locales:
            for key, text in pairs(readTable(locale)):
                with self.subTest(locale=locale, key=key, text=text):
                    check(locale, key, text)

    def testEnglishIsTheKeyItself(self):
        self.forEveryPair(lambda _, key, text: self.assertEqual(text, key), ["en"])

    def testATextKeepsItsKeysPlaceholders(self):
        self.forEveryPair(lambda _, key, text: self.assertEqual(placeholders(text), placeholders(key)))

    def testATextKeepsItsKeysLineBreaks(self):
        self.forEveryPair(lambda _, key, text: self.assertEqual(text.count("\n"), key.count("\n")))

    def testATextKeepsTheBlanksAroundItsKey(self):
        self.forEveryPair(lambda _, key, text: self.assertEqual(edges(text), edges(key)))

    def testNoTextIsEmpty(self):
        self.forEveryPair(lambda _, key, text: self.assertTrue(text.strip()))

    def testATextHasNoControlCharacters(self):
        self.forEveryPair(lambda _, key, text: self.assertIsNone(CONTROL.search(text)))

    def testATextKeepsNames(self):
        self.forEveryPair(
            lambda _, key, text: self.assertEqual([name for name in NAMES if name in key and name not in text], []))

    def testACaptionEndsWithTheColonOfItsLanguage(self):
        def check(locale, key, text):
            caption = text.rstrip()
            if not key.rstrip().endswith(":"):
                self.assertNotIn(caption[-1], ":：")
                return
            colon = COLONS.get(locale, ":")
            self.assertTrue(caption.endswith(colon))
            self.assertFalse(caption[:-len(colon)][-1].isspace())

        self.forEveryPair(check, TRANSLATED)

    def testUnderWayIsShownByAnEllipsis(self):
        self.forEveryPair(lambda _, key, text: self.assertEqual(text.endswith("…"), key.endswith("..")), TRANSLATED)

    def testOnlyNamesAndWordsOfTheLanguageReadLikeTheirKey(self):
        for locale in TRANSLATED:
            with self.subTest(locale):
                same = {key for key, text in pairs(readTable(locale)) if key == text}
                expected = {key for key, where in SAME.items() if locale in where.split()}
                self.assertEqual(same, SAME_EVERYWHERE | expected)

    def testAButtonIsMentionedAsItReads(self):
        for locale in TRANSLATED:
            table = dict(pairs(readTable(locale)))
            for key, button in MENTIONS.items():
                with self.subTest(locale=locale, key=key):
                    opening, closing = QUOTES[locale]
                    blank = NO_BREAK_SPACE if locale == "fr" else ""
                    self.assertIn(opening + blank + table[button] + blank + closing, table[key])

    def testEveryMentionOfAButtonIsKnown(self):
        self.forEveryPair(
            lambda _, key, text: self.assertEqual(key in MENTIONS, '"Reload Drives"' in key or "Click" in key), ["en"])


if __name__ == "__main__":
    unittest.main()
