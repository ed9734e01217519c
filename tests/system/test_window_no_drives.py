"""The window on a machine without any drive. A file of its own: its desktop lies elsewhere."""

import os
import subprocess
import tempfile

from testkit import program
from testkit.volume import usePrivateMounts
from window_case import WindowTest

# A root of memory, on which the parts of the system that a program needs are no volumes of their own.
WITHOUT_DRIVES = """set -e
root=$1; desktop=$2; program=$3
mount -t tmpfs none "$root"
cp "$program" "$root/calvero"
mkdir "$root/none" "$root/proc" "$root/dev" "$root/tmp"
for part in usr etc var; do
  mkdir "$root/$part"
  mount -t overlay -o "lowerdir=/$part:$root/none" none "$root/$part"
done
for name in bin lib lib64 sbin; do [ ! -L "/$name" ] || cp -a "/$name" "$root"; done
mount --rbind /proc "$root/proc"
mount --rbind /dev "$root/dev"
mkdir -p "$root$desktop"
mount --bind "$desktop" "$root$desktop"
exec chroot "$root" /calvero
"""


class NoDrives(WindowTest):
    def setUp(self):
        if os.geteuid() != 0:
            self.skipTest("a program sees a root without drives only if root makes one for it")
        # What the program needs of its desktop must not lie on a drive.
        memory = tempfile.mkdtemp(prefix="memory-")
        usePrivateMounts()
        subprocess.run(["mount", "-t", "tmpfs", "none", memory], check=True)
        tempfile.tempdir = memory
        super().setUp()

    def commandWithoutDrives(self):
        root = tempfile.mkdtemp(prefix="calvero-root-")
        self.addCleanup(os.rmdir, root)
        command = ["unshare", "--mount", "--propagation", "private", "sh", "-c", WITHOUT_DRIVES, "sh", root]
        return [*command, tempfile.gettempdir(), program.windowProgramPath()]

    def testWithoutAnyDriveTheWindowOpensAndNextSaysSo(self):
        window = self.startWindow(command=self.commandWithoutDrives())
        window.find("label", "No drives found")
        self.assertEqual(window.findAll("list item"), [])
        for _ in range(2):
            window.pressButton("Next")
            self.assertRefusal(window, "There is no drive to erase.", "Reload Drives")
            self.assertFalse(window.isShowing("push button", "Proceed"))
            window.pressButton("Reload Drives")
        window.find("label", "No drives found")
        self.quit(window)
