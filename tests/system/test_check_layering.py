import pathlib
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
CHECK = ROOT / "tools" / "check-layering"


class CheckLayering(unittest.TestCase):
    def check(self, **sources):
        """Exit code and errors for a tree of one-line sources, given as folder__file=line."""
        with tempfile.TemporaryDirectory() as folder:
            for name, line in sources.items():
                path = pathlib.Path(folder, name.replace("__", "/") + ".cpp")
                path.parent.mkdir(parents=True)
                path.write_text(line + "\n")
            ended = subprocess.run([CHECK, folder], capture_output=True, text=True)
            return ended.returncode, ended.stderr

    def assertForbidden(self, **sources):
        code, errors = self.check(**sources)
        self.assertEqual(code, 1)
        self.assertIn(":1: #include", errors)

    def assertAllowed(self, **sources):
        self.assertEqual(self.check(**sources), (0, ""))

    def testTheCoreMayNotIncludeTheOperatingSystem(self):
        for header in ("<unistd.h>", "<sys/stat.h>", "<linux/fs.h>", "<QWidget>", "<asio.hpp>"):
            with self.subTest(header):
                self.assertForbidden(wipe__writer=f"#include {header}")

    def testTheCoreMayNotIncludeThePlatform(self):
        self.assertForbidden(app__controller='#include "platform/linux/files/linux_files.h"')

    def testPortsMayNotIncludeTheCore(self):
        self.assertForbidden(ports__files='#include "wipe/wipe_run.h"')

    def testTheLinuxAdaptersMayNotIncludeTheCore(self):
        self.assertForbidden(platform__linux__files__claim='#include "app/app_delegate.h"')

    def testTheAdaptersOfOneKindMayNotIncludeAnother(self):
        self.assertForbidden(platform__dbus__listener='#include "platform/linux/system/descriptor.h"')
        self.assertForbidden(platform__threads__signals='#include "platform/linux/system/descriptor.h"')

    def testTheTerminalAdaptersMayNotIncludeTheCore(self):
        self.assertForbidden(terminal__alerts='#include "app/app_delegate.h"')

    def testNoFaceMayIncludeTheOther(self):
        self.assertForbidden(terminal__main='#include "window/main_window.h"')
        self.assertForbidden(window__main='#include "terminal/output.h"')

    def testTheFoldersOfTheSystemsAdaptersIncludeInOneDirectionOnly(self):
        self.assertForbidden(platform__linux__volumes__label='#include "platform/linux/files/open_folder.h"')
        self.assertForbidden(platform__linux__system__descriptor='#include "platform/linux/volumes/mount_table.h"')
        self.assertAllowed(platform__linux__files__claim='#include "platform/linux/volumes/mount_table.h"')

    def testTheAdaptersMayNotIncludeAFace(self):
        self.assertForbidden(platform__suite__store='#include "terminal/output.h"')

    def testTheInwardArrowsAreAllowed(self):
        self.assertAllowed(wipe__writer="#include <cstdint>")
        self.assertAllowed(wipe__writer='#include "ports/files.h"')
        self.assertAllowed(platform__linux__files__claim="#include <unistd.h>")
        self.assertAllowed(platform__linux__files__claim='#include "ports/files.h"')
        self.assertAllowed(platform__linux__files__claim='#include "platform/threads/stop_signals_blocked.h"')
        self.assertAllowed(terminal__main='#include "app/app_delegate.h"')
        self.assertAllowed(terminal__wipe_command='#include "app/app_delegate.h"')

    def testThisTreeKeepsToTheLayers(self):
        ended = subprocess.run([CHECK, ROOT], capture_output=True, text=True)
        self.assertEqual((ended.returncode, ended.stderr), (0, ""))
