"""The suite's language, which the tag store tells."""

import configparser
import os
import subprocess
import tempfile

from tag_store import Tags
from window_case import WindowTest

STORE = "Ondrel Software/Ondrel MORE/tags.sqlite"
SETTINGS = "Ondrel Software/Calvero.ini"


class Language(WindowTest):
    def homeWithTags(self, **tags):
        home = self.screen.newHome()
        path = os.path.join(home["XDG_DATA_HOME"], STORE)
        self.writeTags(path, tags)
        return home

    def writeTags(self, path, tags):
        os.makedirs(os.path.dirname(path), mode=0o700, exist_ok=True)
        Tags(path).set(**tags)

    def languageStored(self, home):
        settings = configparser.ConfigParser()
        settings.optionxform = str
        self.assertEqual(len(settings.read(os.path.join(home["XDG_CONFIG_HOME"], SETTINGS))), 1)
        return settings["General"]["AppleLanguages"]

    def checkLanguage(self, home, language, nextText, reload, env=None):
        window = self.startWindow(home=home, env=env)
        window.find("push button", nextText)
        window.find("push button", reload)
        self.assertEqual(self.languageStored(home), language)
        self.quit(window)

    def testTheTextsAreInTheLanguageOfTheSuite(self):
        self.checkLanguage(self.homeWithTags(LANG="de"), "de", "Weiter", "Laufwerke neu laden")

    def testTheStoreThatTheEnvironmentNamesIsRead(self):
        path = os.path.join(self.screen.newHome()["HOME"], "own", "tags")
        self.writeTags(path, {"LANG": "de"})
        home = self.homeWithTags(LANG="fr")
        self.checkLanguage(home, "de", "Weiter", "Laufwerke neu laden", env={"CALVERO_TAG_STORE": path})

    def testWithoutALanguageOfTheSuiteTheTextsAreEnglishWhateverTheSystemSpeaks(self):
        home = self.screen.newHome()
        self.checkLanguage(home, "en", "Next", "Reload Drives", env={"LANG": "de_DE.UTF-8", "LANGUAGE": "de"})
        self.assertFalse(os.path.exists(os.path.join(home["XDG_DATA_HOME"], STORE)), "reading makes no store")

    def testALanguageWithoutTextsIsEnglish(self):
        self.checkLanguage(self.homeWithTags(LANG="tlh"), "tlh", "Next", "Reload Drives")

    def testSizesHaveADecimalPointWhereTheSystemsLocaleHasAComma(self):
        locales = tempfile.mkdtemp(prefix="calvero-locales-")
        made = subprocess.run(["localedef", "-i", "de_DE", "-f", "UTF-8", os.path.join(locales, "de_DE.UTF-8")],
                              capture_output=True, text=True)
        if made.returncode != 0:
            self.skipTest(f"localedef makes no locale with a decimal comma: {made.stderr}")
        env = {"LC_ALL": "de_DE.UTF-8", "LOCPATH": locales}
        shown = subprocess.run(["locale", "decimal_point"], env=os.environ | env, capture_output=True, text=True)
        self.assertEqual(shown.stdout, ",\n")
        target = self.makeVolume("ext4", 16)
        window = self.startWindow(env=env)
        self.choose(window, target)
        description = self.description(window)
        for caption in ("Drive Space :", "Free Space :"):
            self.assertRegex(description[caption], r"^\d+\.\d\d [KMG]B$")
        self.quit(window)

    def testTheQuestionAndTheRefusalAreInTheLanguageOfTheSuite(self):
        target = self.makeVolume("ext4", 16)
        window = self.startWindow(home=self.homeWithTags(LANG="de"))
        tile = window.find("list item", target.name)
        window.click(tile)
        window.waitForState(tile, "selected")
        window.pressButton("Weiter")
        window.pressButton("Fortfahren")
        question = window.find("dialog", "Achtung!")
        window.pressButton("Nein", within=question)
        window.waitUntilGone("dialog", "Achtung!")
        target.remount("ro")
        window.pressButton("Weiter")
        self.assertRefusal(window, "schreibgeschützt", title="Hinweis")
        self.quit(window)
        self.assertNothingLeft(target)
