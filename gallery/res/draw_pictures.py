#!/usr/bin/env python3
"""Draws the toolbar pictures of the gallery's buttons page and writes them as
the files gallery.rc names: 8-bit palettized bitmaps (the bitmap buttons gray
them through their colour table), one icon, and a 24-bit bitmap for the image
hover button. Magenta is the transparent colour. Run it after changing a
drawing; the generated files are kept beside it."""
import os
import struct
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
# The library's own drawing script writes the same file formats.
sys.path.insert(0, os.path.join(HERE, "..", "..", "library", "res"))
from draw_resources import bitmap_info_header, mono_rows, with_file_header  # noqa: E402

COLOURS = {  # (red, green, blue); "." is transparent
    ".": (255, 0, 255),
    "k": (0, 0, 0),
    "w": (255, 255, 255),
    "g": (192, 192, 192),
    "d": (128, 128, 128),
    "b": (0, 0, 192),
    "B": (96, 160, 255),
    "y": (255, 208, 64),
    "Y": (192, 128, 0),
    "r": (208, 0, 0),
    "G": (0, 144, 0),
}

NEW = [
    "................",
    "...kkkkkkk......",
    "...kwwwwwkk.....",
    "...kwwwwwkwk....",
    "...kwwwwwkkkk...",
    "...kwwwwwwwwk...",
    "...kwddddddwk...",
    "...kwwwwwwwwk...",
    "...kwddddddwk...",
    "...kwwwwwwwwk...",
    "...kwddddddwk...",
    "...kwwwwwwwwk...",
    "...kwwwwwwwwk...",
    "...kkkkkkkkkk...",
    "................",
    "................",
]

OPEN = [
    "................",
    "................",
    "..kkkk..........",
    ".kyyyyk.........",
    ".kyyyyykkkkkkk..",
    ".kyyyyyyyyyyyk..",
    ".kyykkkkkkkkkkkk",
    ".kyykYYYYYYYYYYk",
    ".kykkYYYYYYYYYk.",
    ".kykkYYYYYYYYYk.",
    ".kkkYYYYYYYYYk..",
    ".kkYYYYYYYYYYk..",
    ".kkkkkkkkkkkk...",
    "................",
    "................",
    "................",
]

SAVE = [
    "................",
    ".kkkkkkkkkkkkk..",
    ".kbkwwwwwwwkbbk.",
    ".kbkwwwwwwwkbbk.",
    ".kbkwwwwwwwkbbk.",
    ".kbkwwwwwwwkbbk.",
    ".kbbkkkkkkkbbbk.",
    ".kbbbbbbbbbbbbk.",
    ".kbbkkkkkkkkbbk.",
    ".kbbkgggkddkbbk.",
    ".kbbkgggkddkbbk.",
    ".kbbkgggkddkbbk.",
    "..kkkkkkkkkkkkk.",
    "................",
    "................",
    "................",
]

PRINT = [
    "................",
    "....kkkkkkkk....",
    "....kwwwwwwk....",
    "....kwddddwk....",
    "....kwwwwwwk....",
    "..kkkkkkkkkkkk..",
    ".kggggggggggggk.",
    ".kggggggggGGggk.",
    ".kggggggggggggk.",
    ".kkkkkkkkkkkkkk.",
    ".kgkwwwwwwwwkgk.",
    "..kkwddddddwkk..",
    "....kwwwwwwk....",
    "....kkkkkkkk....",
    "................",
    "................",
]

HELP = [
    "................",
    ".....kkkkkk.....",
    "...kkBBBBBBkk...",
    "..kBBBwwwwBBBk..",
    "..kBBwwBBwwBBk..",
    ".kBBBBBBBwwBBBk.",
    ".kBBBBBBwwBBBBk.",
    ".kBBBBBwwBBBBBk.",
    ".kBBBBBwwBBBBBk.",
    ".kBBBBBBBBBBBBk.",
    "..kBBBBwwBBBBk..",
    "..kBBBBwwBBBBk..",
    "...kkBBBBBBkk...",
    ".....kkkkkk.....",
    "................",
    "................",
]

PALETTE = list(COLOURS.values())


def scaled(picture, factor):
    return ["".join(c * factor for c in line) for line in picture for _ in range(factor)]


def palette_bytes():
    entries = PALETTE + [(0, 0, 0)] * (256 - len(PALETTE))
    return b"".join(bytes((b, g, r, 0)) for r, g, b in entries)


def indexed_rows(picture):
    """8-bit rows, bottom-up, padded to 32 bits."""
    keys = list(COLOURS)
    width = len(picture[0])
    stride = (width + 3) // 4 * 4
    return b"".join(bytes(keys.index(c) for c in line).ljust(stride, b"\0") for line in reversed(picture))


def bitmap_8bit(picture):
    size = len(picture)
    return with_file_header(bitmap_info_header(size, size, 8, 256) + palette_bytes() + indexed_rows(picture), 1024)


def bitmap_24bit(picture):
    size = len(picture)
    stride = (size * 3 + 3) // 4 * 4
    rows = b"".join(b"".join(bytes(COLOURS[c][::-1]) for c in line).ljust(stride, b"\0")
                    for line in reversed(picture))
    return with_file_header(bitmap_info_header(size, size, 24, 0) + rows, 0)


def icon(picture):
    size = len(picture)
    # Transparent pixels are black in the colour image, so that the mask shows the background.
    colour = [line.replace(".", "k") for line in picture]
    image = bitmap_info_header(size, 2 * size, 8, 256) + palette_bytes() + indexed_rows(colour)
    image += mono_rows(picture, size, size, lambda c: c == ".")
    entry = struct.pack("<BBBBHHII", size, size, 0, 0, 1, 8, len(image), 6 + 16)
    return struct.pack("<HHH", 0, 1, 1) + entry + image


def main():
    files = {
        "new.bmp": bitmap_8bit(scaled(NEW, 2)),
        "open.bmp": bitmap_8bit(scaled(OPEN, 2)),
        "save.bmp": bitmap_8bit(scaled(SAVE, 2)),
        "print.bmp": bitmap_8bit(scaled(PRINT, 2)),
        "help.ico": icon(scaled(HELP, 2)),
        "save24.bmp": bitmap_24bit(SAVE),
    }
    for name, content in files.items():
        with open(os.path.join(HERE, name), "wb") as out:
            out.write(content)


if __name__ == "__main__":
    main()
