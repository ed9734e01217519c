"""Root with the environment of another user, as sudo -E leaves it: nothing is made or followed in that user's
folders."""

import os
import pwd
import shutil
import subprocess
import tempfile

from case import SystemTest, everything
from tag_store import STORE_VARIABLE, Tags
from testkit import program


class AnothersHome(SystemTest):
    def setUp(self):
        if os.geteuid() != 0:
            self.skipTest("acting as another user needs root")
        self.home = tempfile.mkdtemp(prefix="calvero-home-")
        self.addCleanup(shutil.rmtree, self.home)
        os.chmod(self.home, 0o755)
        self.data = os.path.join(self.home, ".local/share")
        os.makedirs(self.data)
        self.giveAway(self.home)

    def giveAway(self, path):
        for folder, folders, files in os.walk(path):
            for entry in (folder, *(os.path.join(folder, name) for name in folders + files)):
                os.chown(entry, program.PLAIN_USER, program.PLAIN_USER, follow_symlinks=False)

    def runWith(self, *arguments, path=None, plainUser=False, **env):
        """Root has a home folder of its own that ends with the program; what is left in it is printed."""
        words = [path or self.programFor(plainUser), *arguments]
        if not plainUser:
            words = ["unshare", "--mount", "sh", "-c",
                     'mount -t tmpfs -o mode=700 home "$0" && "$@" && cd "$0" && find . -name "tags.sqlite"',
                     pwd.getpwuid(0).pw_dir, *words]
        given = {name: value for name, value in os.environ.items() if not name.startswith(("XDG_", "CALVERO_TAG"))}
        return subprocess.run(words, env=given | env, stdin=subprocess.DEVNULL, capture_output=True, text=True,
                              timeout=60, **program.startedAs(plainUser))

    def testAnOrderIsStoredInRootsOwnFolder(self):
        target = self.makeVolume()
        copy = self.programFor(True)
        with open(os.path.join(os.path.dirname(copy), "calvero"), "w") as standIn:
            standIn.write("#!/bin/sh\nexit 3\n")
        os.chmod(standIn.name, 0o755)
        for env in ({"HOME": self.home}, {"XDG_DATA_HOME": self.data}, {"XDG_DATA_HOME": self.data + "/new"}):
            with self.subTest(env):
                before = everything(self.home)
                ended = self.runWith("order", target.path, "--method", "1", path=copy, **env)
                self.assertEqual((ended.returncode, ended.stderr), (program.EXIT_FINISHED, ""), ended)
                self.assertEqual(everything(self.home), before)
                if "HOME" in env:
                    self.assertIn("./.local/share/Ondrel Software/Ondrel MORE/tags.sqlite", ended.stdout)

    def testTheirOrderIsNeitherReadNorChangedAndTheirLinkNotFollowed(self):
        elsewhere = os.path.join(self.home, "elsewhere", "Ondrel MORE")
        os.makedirs(elsewhere)
        Tags(os.path.join(elsewhere, "tags.sqlite")).set(cvrOnline="1", cvrDrive="theirs", cvrAlgo="1")
        os.symlink(os.path.dirname(elsewhere), os.path.join(self.data, "Ondrel Software"))
        self.giveAway(self.home)
        self.assertIn("theirs", self.runWith("status", plainUser=True, HOME=self.home).stdout)
        before = everything(self.home)
        for command in ("status", "clear"):
            ended = self.runWith(command, HOME=self.home)
            self.assertEqual((ended.returncode, ended.stderr), (program.EXIT_FINISHED, ""), ended)
            self.assertNotIn("theirs", ended.stdout)
        self.assertEqual(everything(self.home), before)

    def testTheSettingsOfTheWindowAreStoredInRootsOwnFolder(self):
        # They are stored before a display is looked for.
        config = os.path.join(self.home, ".config")
        for env in ({"HOME": self.home}, {"XDG_CONFIG_HOME": config}):
            with self.subTest(env):
                before = everything(self.home)
                ended = self.runWith(path=program.windowProgramPath(), DISPLAY="", WAYLAND_DISPLAY="",
                                     QT_QPA_PLATFORM="offscreen", **env)
                self.assertIn("there is no display", ended.stderr)
                self.assertEqual(everything(self.home), before)

    def testAStoreThatIsNamedIsNotLookedForThroughTheirLink(self):
        store = os.path.join(self.home, "tags.sqlite")
        target = os.path.join(self.home, "target")
        os.symlink(target, store)
        os.lchown(store, program.PLAIN_USER, program.PLAIN_USER)
        for path in (program.programPath(), program.windowProgramPath()):
            ended = subprocess.run([path], env=os.environ | {STORE_VARIABLE: store}, stdin=subprocess.DEVNULL,
                                   capture_output=True, text=True, timeout=60)
            self.assertRefused(ended, "link of another user", store)
        self.assertFalse(os.path.lexists(target))
