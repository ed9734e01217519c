"""Throwaway volumes that leave nothing behind, however the process ends.

The image is a file without a name, the loop device detaches itself when its last user is gone, and the volume is
mounted in a mount table of this process's own. So even SIGKILL frees all three; what then stays is the empty folder on
which the volume was mounted, unless scratch.use() was called before.
"""

import ctypes
import errno
import fcntl
import os
import re
import shutil
import struct
import subprocess
import tempfile
import time

MEGABYTE = 1_000_000
MEBIBYTE = 1 << 20
FILLER_BYTES = 128 * MEGABYTE
FILLER_NAME = ".$$XE8AQU"
EXT4_RESERVE_BYTES = 17_000_000  # it keeps back up to 4096 clusters for itself

_LOOP_CTL_GET_FREE = 0x4C82
_LOOP_CONFIGURE = 0x4C0A
_LOOP_CLR_FD = 0x4C01
_LO_FLAGS_AUTOCLEAR = 4
_CLONE_NEWNS = 0x00020000

_SEARCH_PATH = os.environ.get("PATH", "") + ":/usr/sbin:/sbin"

_MKFS = {
    # Everything is initialised at once: no kernel thread writes to the volume later on.
    "ext4": ["mkfs.ext4", "-q", "-F", "-E", "nodiscard,lazy_itable_init=0,lazy_journal_init=0"],
    "xfs": ["mkfs.xfs", "-q", "-f", "-K"],
    "btrfs": ["mkfs.btrfs", "-q", "-f", "-K"],
    # What else it would look for on a disk, and complain that it is not there.
    "ntfs": ["mkfs.ntfs", "-q", "-Q", "-F", "-p", "0", "-H", "255", "-S", "63"],
}
# What is mounted through a program of its own; see fuse_volume.
_KERNEL_NAMES = {"ntfs": "fuseblk"}
_MODULES = {"ntfs": "fuse"}

# Disks, though the kernel needs no block device for them.
_DISKS_WITHOUT_DEVICE = {"9p", "ceph", "cifs", "nfs", "nfs4", "overlay", "smb3", "vboxsf", "virtiofs", "zfs"}


class Unavailable(Exception):
    """This machine cannot make such a volume."""


def whyUnavailable(fs):
    """Why volumes of that kind cannot be made here, or None."""
    if os.geteuid() != 0:
        return "mounting a volume needs root"
    if not os.path.exists("/dev/loop-control"):
        return "no loop devices"
    if shutil.which(_MKFS[fs][0], path=_SEARCH_PATH) is None:
        return f"{_MKFS[fs][0]} is not installed"
    with open("/proc/filesystems") as known:
        listed = any(line.split()[-1] == _KERNEL_NAMES.get(fs, fs) for line in known)
    if not listed and subprocess.run(["modprobe", _MODULES.get(fs, fs)], capture_output=True).returncode != 0:
        return f"the kernel has no {fs}"
    return None


_privateMounts = False


def usePrivateMounts():
    global _privateMounts
    if _privateMounts:
        return
    libc = ctypes.CDLL(None, use_errno=True)
    if libc.unshare(_CLONE_NEWNS) != 0:
        raise Unavailable(f"no mount table of our own: {os.strerror(ctypes.get_errno())}")
    # Slave, not private: what the system unmounts goes here too, so that this process keeps no disk of it busy.
    subprocess.run(["mount", "--make-rslave", "/"], check=True)
    _privateMounts = True


_protected = False


def protectDisks():
    """Makes the machine's own disks read-only for this process and what it starts, but for the temporary folders: a
    slip of the hand in a window that offers all volumes must not fill or change them."""
    global _protected
    if _protected:
        return
    usePrivateMounts()
    kept = {"/tmp", tempfile.gettempdir()}  # the screen's server knows only the first
    disks = [path for path in _disks() if path not in kept]
    for path in kept:
        subprocess.run(["mount", "--rbind", path, path], check=True)
    for path in disks:
        subprocess.run(["mount", "-o", "remount,bind,ro", path], check=True)
    _protected = True


def _disks():
    """Where the machine's own disks are mounted."""
    with open("/proc/filesystems") as known:
        onDevices = {line.split()[-1] for line in known if not line.startswith("nodev")}
    paths = set()
    with open("/proc/self/mountinfo") as mounts:
        for line in mounts:
            before, _, after = line.partition(" - ")
            path = re.sub(r"\\(\d{3})", lambda octal: chr(int(octal[1], 8)), before.split()[4])
            kind = after.split()[0]
            if path == "/" or kind in onDevices or kind in _DISKS_WITHOUT_DEVICE:
                paths.add(path)
    return sorted(paths)


def _memoryAvailable():
    with open("/proc/meminfo") as lines:
        for line in lines:
            if line.startswith("MemAvailable:"):
                return int(line.split()[1]) * 1024
    return 0


def _imageFolder(neededBytes):
    """Memory if it has ample room, else the temporary folder, which may live on the machine's own disk and is
    therefore never filled."""
    if os.path.isdir("/dev/shm"):
        if min(shutil.disk_usage("/dev/shm").free, _memoryAvailable()) > neededBytes * 3 // 2:
            return "/dev/shm"
    folder = tempfile.gettempdir()
    if shutil.disk_usage(folder).free > neededBytes * 2:
        return folder
    raise Unavailable(f"no room for an image of {neededBytes // MEBIBYTE} MiB")


def _attach(imageDescriptor):
    """Attaches the image to a free loop device and returns the device's descriptor and path."""
    info = struct.pack("=5Q4I64s64s32s2Q", 0, 0, 0, 0, 0, 0, 0, 0, _LO_FLAGS_AUTOCLEAR, b"calvero", b"", b"", 0, 0)
    config = struct.pack("=2I", imageDescriptor, 0) + info + bytes(64)
    with open("/dev/loop-control") as control:
        for _ in range(100):
            number = fcntl.ioctl(control, _LOOP_CTL_GET_FREE)
            device = f"/dev/loop{number}"
            descriptor = os.open(device, os.O_RDWR | os.O_CLOEXEC)
            try:
                fcntl.ioctl(descriptor, _LOOP_CONFIGURE, config)
                return descriptor, device
            except OSError as error:
                os.close(descriptor)
                if error.errno != errno.EBUSY:  # busy: another process took the same free device
                    raise
    raise Unavailable("no free loop device")


class Volume:
    """A mounted volume. `neededBytes` is what the image may grow to, where the volume itself is larger (sparse).
    `label` may be bytes; where it holds what cannot be shown the program gives the volume another name. The image has
    no name, or stays under `imagePath`, where it may be already."""

    _made = 0

    def __init__(self, fs, sizeBytes, neededBytes=None, mkfsOptions=(), label=None, imagePath=None):
        reason = whyUnavailable(fs)
        if reason:
            raise Unavailable(reason)
        usePrivateMounts()
        self.fs = fs
        self.sizeBytes = sizeBytes
        Volume._made += 1
        self.name = f"cv{os.getpid() % 1_000_000}n{Volume._made}"
        self._mounted = False
        if imagePath:
            self._image = open(imagePath, "r+b" if os.path.exists(imagePath) else "w+b", buffering=0)
        else:
            self._image = tempfile.TemporaryFile(dir=_imageFolder(neededBytes or sizeBytes), buffering=0)
        self._image.truncate(sizeBytes)
        self._loop, self._device = _attach(self._image.fileno())
        self.path = tempfile.mkdtemp(prefix="calvero-volume-")
        try:
            subprocess.run([*_MKFS[fs], "-L", label or self.name, *mkfsOptions, self._device], check=True,
                           stdout=subprocess.DEVNULL, env=os.environ | {"PATH": _SEARCH_PATH})
            self.mount()
        except BaseException:
            self.close()
            raise

    def mount(self, options="rw"):
        # Without nodiscard freed blocks would be punched out of the image, and no deleted data be left to find.
        subprocess.run(["mount", "-t", self.fs, "-o", f"{options},nodiscard", self._device, self.path], check=True)
        self._mounted = True

    def remount(self, options):
        subprocess.run(["mount", "-o", f"remount,{options}", self.path], check=True)

    def unmount(self):
        subprocess.run(["umount", self.path], check=True)
        self._mounted = False

    def mountAt(self, path):
        """From now on at a folder of that name, which is made."""
        self.unmount()
        os.rename(self.path, path)
        self.path = path
        self.mount()

    def mountInPlaceOf(self, other):
        """Both are unmounted; they change places."""
        self.path, other.path = other.path, self.path
        self.mount()

    def noteUnmounted(self):
        """Somebody else has unmounted it."""
        self._mounted = False

    def detach(self):
        """Takes the volume out of the tree while it is in use; it lives on until its last file is closed."""
        subprocess.run(["umount", "-l", self.path], check=True)
        self._mounted = False

    def settle(self):
        """Waits until what was freed counts as free."""
        subprocess.run(["sync", "-f", self.path], check=True)
        if self.fs == "btrfs":
            subprocess.run(["btrfs", "filesystem", "sync", self.path], check=True, stdout=subprocess.DEVNULL)

    def freeBytes(self):
        figures = os.statvfs(self.path)
        return figures.f_bfree * figures.f_frsize

    def waitUntilFree(self, freeBytes, seconds=20):
        """Whether so much is free within that time: file systems free nameless files' blocks in the background."""
        deadline = time.monotonic() + seconds
        self.settle()
        while self.freeBytes() < freeBytes and time.monotonic() < deadline:
            time.sleep(0.05)
            self.settle()
        return self.freeBytes() >= freeBytes

    def bytesReservedForRoot(self):
        if self.fs != "ext4":
            return 0
        figures = os.statvfs(self.path)
        return (figures.f_bfree - figures.f_bavail) * figures.f_frsize

    def uuid(self):
        """The file system's own, as its superblock has it."""
        return subprocess.run(["blkid", "-p", "-o", "value", "-s", "UUID", self._device], check=True, text=True,
                              stdout=subprocess.PIPE, env=os.environ | {"PATH": _SEARCH_PATH}).stdout.strip()

    def isReadOnly(self):
        return bool(os.statvfs(self.path).f_flag & os.ST_RDONLY)

    def fillerDirectory(self):
        return os.path.join(self.path, FILLER_NAME)

    def count(self, needle):
        """How often `needle` is on the unmounted medium. Needles lie within one sector."""
        assert not self._mounted, "what is on a mounted medium is not settled"
        os.fsync(self._loop)
        found = 0
        offset = 0
        while chunk := os.pread(self._image.fileno(), 8 * MEBIBYTE, offset):
            found += chunk.count(needle)
            offset += len(chunk)
        return found

    def close(self):
        if self._mounted:
            subprocess.run(["umount", "-l", self.path], check=False)
            self._mounted = False
        if self._loop is not None:
            try:
                fcntl.ioctl(self._loop, _LOOP_CLR_FD)
            except OSError as error:
                if error.errno not in (errno.ENXIO, errno.EBUSY):  # busy: it detaches itself with its last user
                    raise
            os.close(self._loop)
            self._loop = None
            self._image.close()
            os.rmdir(self.path)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()
