#!/usr/bin/env python3
"""Draws the pictures kvWin.dll carries and writes them as the binary files that
kvWin.rc names: the hand cursor, the focus pattern and the calendar glyph.
Run it after changing a drawing; the generated files are kept beside it."""
import os
import struct

HERE = os.path.dirname(os.path.abspath(__file__))

# Pointing hand, 'X' black outline, '.' white, ' ' transparent. Hot spot: the fingertip.
HAND = [
    "      XX",
    "     X..X",
    "     X..X",
    "     X..X",
    "     X..X",
    "     X..XXX",
    "     X..X..XXX",
    "     X..X..X..XX",
    "     X..X..X..X..X",
    "  XX X..X..X..X..X",
    " X..XX...........X",
    " X...X...........X",
    "  X..............X",
    "   X.............X",
    "   X............X",
    "    X...........X",
    "    X..........X",
    "     X.........X",
    "     X.........X",
    "     XXXXXXXXXXX",
]
HAND_HOTSPOT = (6, 0)
CURSOR_SIZE = 32

# Calendar glyph on light gray: binder rings, red title band, days, shadow.
CALENDAR = [
    "..k.....k...",
    "kkkkkkkkkkk.",
    "kRRRRRRRRRk.",
    "kRRRRRRRRRkd",
    "kkkkkkkkkkkd",
    "kWWWWWWWWWkd",
    "kWbWbWbWbWkd",
    "kWWWWWWWWWkd",
    "kWbWbWbWbWkd",
    "kWWWWWWWWWkd",
    "kkkkkkkkkkkd",
    ".ddddddddddd",
]
CALENDAR_COLOURS = {  # (red, green, blue)
    ".": (192, 192, 192),
    "k": (0, 0, 0),
    "R": (192, 0, 0),
    "W": (255, 255, 255),
    "b": (0, 0, 128),
    "d": (128, 128, 128),
}

# Alternate pixels: the dotted line of a focus rectangle.
FOCUS = ["X." * 4 if row % 2 == 0 else ".X" * 4 for row in range(8)]


def bitmap_info_header(width, height, bits, colours):
    return struct.pack("<IiiHHIIiiII", 40, width, height, 1, bits, 0, 0, 0, 0, colours, 0)


def mono_rows(pixels, width, height, is_set):
    """1-bit rows, bottom-up, padded to 32 bits; pixels outside the drawing are not set."""
    stride = (width + 31) // 32 * 4
    rows = []
    for y in reversed(range(height)):
        line = pixels[y] if y < len(pixels) else ""
        bits = bytearray(stride)
        for x in range(width):
            if is_set(line[x] if x < len(line) else " "):
                bits[x // 8] |= 0x80 >> (x % 8)
        rows.append(bytes(bits))
    return b"".join(rows)


def cursor_file():
    black_white = struct.pack("<4B4B", 0, 0, 0, 0, 255, 255, 255, 0)
    xor_mask = mono_rows(HAND, CURSOR_SIZE, CURSOR_SIZE, lambda c: c == ".")
    and_mask = mono_rows(HAND, CURSOR_SIZE, CURSOR_SIZE, lambda c: c == " ")
    image = (bitmap_info_header(CURSOR_SIZE, 2 * CURSOR_SIZE, 1, 2) + black_white + xor_mask + and_mask)
    header = struct.pack("<HHH", 0, 2, 1)
    entry = struct.pack("<BBBBHHII", CURSOR_SIZE, CURSOR_SIZE, 0, 0, *HAND_HOTSPOT, len(image), 6 + 16)
    return header + entry + image


def with_file_header(dib, palette_bytes):
    pixel_offset = 14 + 40 + palette_bytes
    return struct.pack("<2sIHHI", b"BM", 14 + len(dib), 0, 0, pixel_offset) + dib


def focus_file():
    black_white = struct.pack("<4B4B", 0, 0, 0, 0, 255, 255, 255, 0)
    pixels = mono_rows(FOCUS, 8, 8, lambda c: c == ".")
    return with_file_header(bitmap_info_header(8, 8, 1, 2) + black_white + pixels, len(black_white))


def calendar_file():
    size = len(CALENDAR)
    stride = (size * 3 + 3) // 4 * 4
    rows = []
    for line in reversed(CALENDAR):
        row = bytearray()
        for c in line:
            r, g, b = CALENDAR_COLOURS[c]
            row += bytes((b, g, r))
        rows.append(bytes(row.ljust(stride, b"\0")))
    return with_file_header(bitmap_info_header(size, size, 24, 0) + b"".join(rows), 0)


def main():
    for name, content in (("hand.cur", cursor_file()), ("focus.bmp", focus_file()),
                          ("calendar.bmp", calendar_file())):
        with open(os.path.join(HERE, name), "wb") as out:
            out.write(content)


if __name__ == "__main__":
    main()
