"""Data that can be found again on the raw medium, and files that must not change."""

import errno
import hashlib
import os
import shutil

SECTOR_BYTES = 512
_MARKER_BYTES = 32
_KIBIBYTE = 1024
_FOLDERS = 8
_SIZES_KIBIBYTES = (8, 100, 1024, 7 * 1024)
_TOP_UP_KIBIBYTES = (1024, 64, 4)


class MarkedData:
    """Files of which every sector starts with a marker of this object's own, so that a sector of them that is still
    on the medium is recognised wherever it lies."""

    def __init__(self, root):
        self._root = os.path.join(root, "marked")
        self.marker = os.urandom(_MARKER_BYTES)
        sector = self.marker + os.urandom(SECTOR_BYTES - _MARKER_BYTES)
        self._block = sector * (1024 * _KIBIBYTE // SECTOR_BYTES)
        self._written = 0

    def fill(self):
        """Writes files of several sizes into several folders until the volume takes not one block more."""
        for number in range(_FOLDERS):
            os.makedirs(os.path.join(self._root, f"folder{number}"))
        number = 0
        while self._write(_SIZES_KIBIBYTES[number % len(_SIZES_KIBIBYTES)]):
            number += 1
        for kibibytes in _TOP_UP_KIBIBYTES:
            while self._write(kibibytes):
                pass

    def writeAtLeast(self, totalBytes):
        """Writes files of several sizes of `totalBytes` together."""
        for number in range(_FOLDERS):
            os.makedirs(os.path.join(self._root, f"folder{number}"))
        number = 0
        while totalBytes > 0:
            kibibytes = _SIZES_KIBIBYTES[number % len(_SIZES_KIBIBYTES)]
            if not self._write(kibibytes):
                raise OSError(errno.ENOSPC, "the volume is too small")
            totalBytes -= kibibytes * _KIBIBYTE
            number += 1

    def _write(self, kibibytes):
        path = os.path.join(self._root, f"folder{self._written % _FOLDERS}", f"file{self._written}")
        self._written += 1
        left = kibibytes * _KIBIBYTE
        try:
            with open(path, "wb", buffering=0) as file:
                while left > 0:
                    left -= file.write(memoryview(self._block)[:left])
        except OSError as error:
            if error.errno != errno.ENOSPC:
                raise
            return False
        return True

    def delete(self):
        shutil.rmtree(self._root)

    def leaveDeleted(self, volume):
        """Fills the mounted volume, deletes it all and returns how much of it the medium still holds."""
        self.fill()
        self.delete()
        volume.unmount()
        readable = self.bytesReadable(volume)
        volume.mount()
        return readable

    def bytesReadable(self, volume):
        """Bytes of marked sectors on the unmounted volume's medium."""
        return volume.count(self.marker) * SECTOR_BYTES


class KeptFiles:
    """Files without the marker that belong to the user and must survive unchanged."""

    def __init__(self, root, count=300):
        self._root = os.path.join(root, "kept")
        self.count = count
        for number in range(count):
            folder = os.path.join(self._root, f"folder{number % 7}")
            os.makedirs(folder, exist_ok=True)
            with open(os.path.join(folder, f"file{number}"), "wb") as file:
                file.write(os.urandom(number * 97 % 40_000))
        self._digests = self._digestsNow()

    def _digestsNow(self):
        digests = {}
        for folder, _, names in os.walk(self._root):
            for name in names:
                path = os.path.join(folder, name)
                with open(path, "rb") as file:
                    digests[path] = hashlib.sha256(file.read()).hexdigest()
        return digests

    def differences(self):
        """Paths that were changed, added or lost."""
        now = self._digestsNow()
        return sorted(path for path in self._digests.keys() | now.keys() if self._digests.get(path) != now.get(path))
