"""Pictures of a screen whose server keeps it in a file, as Xvfb does with -fbdir."""

import struct
import zlib


class Layout:
    """Where the pixels of such a file are: four bytes each, from `start`, in lines of `lineBytes`."""

    def __init__(self, content):
        header = struct.unpack(">25I", content[:100])  # X11's XWDFile.h
        headerBytes, colours = header[0], header[19]
        self.start = headerBytes + colours * 12
        self.lineBytes = header[12]
        self.width, self.height, bitsPerPixel = header[4], header[5], header[11]
        assert bitsPerPixel == 32, f"{bitsPerPixel} bits per pixel"


class _Screen(Layout):
    def __init__(self, path):
        with open(path, "rb") as file:
            self._content = file.read()
        super().__init__(self._content)

    def row(self, line, left, right):
        """The pixels of a line as red, green, blue."""
        start = self.start + line * self.lineBytes
        pixels = self._content[start + 4 * left:start + 4 * right]
        row = bytearray(3 * (right - left))
        row[0::3], row[1::3], row[2::3] = pixels[2::4], pixels[1::4], pixels[0::4]
        return row


def _chunk(kind, content):
    return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))


def savePng(screenPath, pngPath, area=None):
    """Writes the screen, or what of `area` (x, y, width, height) is on it, as PNG."""
    screen = _Screen(screenPath)
    x, y, width, height = area or (0, 0, screen.width, screen.height)
    left, top, right, bottom = max(x, 0), max(y, 0), min(x + width, screen.width), min(y + height, screen.height)
    rows = b"".join(b"\0" + screen.row(line, left, right) for line in range(top, bottom))
    header = struct.pack(">2I5B", right - left, bottom - top, 8, 2, 0, 0, 0)  # 8 bits each of red, green, blue
    with open(pngPath, "wb") as file:
        file.write(b"\x89PNG\r\n\x1a\n" + _chunk(b"IHDR", header) + _chunk(b"IDAT", zlib.compress(rows))
                   + _chunk(b"IEND", b""))
