"""What polkit is told about a wipe by the administrator: policy_test.py POLICY INSTALLED-PROGRAM"""

import pathlib
import re
import sys
import unittest
import xml.etree.ElementTree as ElementTree

LANGUAGE = "{http://www.w3.org/XML/1998/namespace}lang"
TABLES = pathlib.Path(__file__).resolve().parent.parent.parent / "resources" / "i18n"
LANGUAGES = {path.stem.removeprefix("calvero_") for path in TABLES.glob("*.ts")} - {"en"}
ANNOTATION = "org.freedesktop.policykit.exec."


class Policy(unittest.TestCase):
    def setUp(self):
        self.action = ElementTree.parse(policy).getroot().find("action")
        self.annotations = {one.get("key"): one.text for one in self.action.findall("annotate")}

    def testItsNameIsThatOfItsActionAsPolkitWantsIt(self):
        name = self.action.get("id")
        self.assertRegex(name, r"^[a-z]+(\.[a-z]+)+$")
        self.assertEqual(name.rpartition(".")[0] + ".policy", pathlib.Path(policy).name)

    def testItIsAboutTheInstalledProgramAndItsWipeAlone(self):
        self.assertEqual(self.annotations, {ANNOTATION + "path": program, ANNOTATION + "argv1": "wipe"})
        self.assertTrue(pathlib.PurePosixPath(program).is_absolute())

    def testOnlyAnAdministratorsPasswordAllowsItWhereverTheUserSits(self):
        allowed = {one.tag: one.text for one in self.action.find("defaults")}
        self.assertEqual(allowed, dict.fromkeys(("allow_any", "allow_inactive", "allow_active"), "auth_admin"))

    def testItSpeaksEveryLanguageOfTheWindow(self):
        self.assertEqual(len(LANGUAGES), 14)
        for tag in ("description", "message"):
            with self.subTest(tag):
                texts = {one.get(LANGUAGE): one.text.strip() for one in self.action.findall(tag)}
                self.assertEqual(texts.keys(), LANGUAGES | {None})
                self.assertEqual(len(set(texts.values())), len(texts), "a text of two languages")
                self.assertEqual(len(texts), len(self.action.findall(tag)), "a language twice")
                for text in texts.values():
                    self.assertRegex(text, re.compile(r"^\S.{10,}\S$"))

    def testEveryMessageNamesTheCommandThatIsAllowed(self):
        for message in self.action.findall("message"):
            with self.subTest(language=message.get(LANGUAGE)):
                self.assertEqual(re.findall(r"\$\([^)]*\)", message.text), ["$(command_line)"])


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    policy, program = sys.argv[1:]
    unittest.main(argv=[sys.argv[0], "-v"])
