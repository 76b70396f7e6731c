#!/usr/bin/env python3
"""Makes the icons and the bitmap from the texts beside this script, one a picture.

With --check it only tells whether they are up to date. A text holds a box a line, later ones on top: colour left
top right bottom, row 0 at the top, the right and bottom edges not included; from # on it is a remark.
"""
import pathlib
import struct
import sys

HERE = pathlib.Path(__file__).resolve().parent
UNITS = 16  # the grid of an icon
SIZES = (16, 32, 48)  # whole multiples of the grid, so that every edge falls between two pixels
BITMAP_WIDTH, BITMAP_HEIGHT = 57, 42


def boxes(text):
    for line in text.splitlines():
        fields = line.split("#")[0].split()
        if fields:
            yield bytes.fromhex(fields[0])[::-1] + b"\xff", [int(field) for field in fields[1:]]


def pixels(text, width, height, scale=1):
    """Rows from the top; each pixel is blue, green, red, alpha."""
    rows = [[bytes(4)] * width for _ in range(height)]
    for color, (left, top, right, bottom) in boxes(text):
        for row in rows[top * scale : bottom * scale]:
            row[left * scale : right * scale] = [color] * ((right - left) * scale)
    return rows


def padded_bytes(bits):
    padded = bits.ljust((len(bits) + 31) // 32 * 32, "0")
    return int(padded, 2).to_bytes(len(padded) // 8, "big")


def mask(row):
    """One bit a pixel, set where it is transparent, for systems that do not look at alpha."""
    return padded_bytes("".join("0" if pixel[3] else "1" for pixel in row))


def icon_picture(text, size):
    upwards = pixels(text, size, size, size // UNITS)[::-1]
    data = b"".join(b"".join(row) for row in upwards) + b"".join(mask(row) for row in upwards)
    # The height counts the colours and the mask.
    return struct.pack("<IiiHHIIiiII", 40, size, 2 * size, 1, 32, 0, len(data), 0, 0, 0, 0) + data


def icon(text):
    pictures = [icon_picture(text, size) for size in SIZES]
    head = struct.pack("<HHH", 0, 1, len(pictures))
    at = len(head) + 16 * len(pictures)
    for size, data in zip(SIZES, pictures):
        head += struct.pack("<BBBBHHII", size, size, 0, 0, 1, 32, len(data), at)
        at += len(data)
    return head + b"".join(pictures)


def bitmap(text):
    """Of 16 colours: four bits a pixel, rows from the bottom."""
    upwards = pixels(text, BITMAP_WIDTH, BITMAP_HEIGHT)[::-1]
    palette = sorted({pixel for row in upwards for pixel in row})
    if len(palette) > 16:
        sys.exit(f"{len(palette)} colours in a bitmap of 16")
    data = b"".join(padded_bytes("".join(f"{palette.index(pixel):04b}" for pixel in row)) for row in upwards)
    colors = b"".join(color[:3] + b"\0" for color in palette).ljust(64, b"\0")
    info = struct.pack("<IiiHHIIiiII", 40, BITMAP_WIDTH, BITMAP_HEIGHT, 1, 4, 0, len(data), 0, 0, 0, 0)
    start = 14 + len(info) + len(colors)
    return struct.pack("<2sIHHI", b"BM", start + len(data), 0, 0, start) + info + colors + data


PICTURES = {
    "quorl.ico": ("quorl_icon.txt", icon),
    "arrow_down.ico": ("arrow_down_icon.txt", icon),
    "arrow_up.ico": ("arrow_up_icon.txt", icon),
    "about.bmp": ("about_bitmap.txt", bitmap),
}


def main():
    made = {name: make((HERE / source).read_text()) for name, (source, make) in PICTURES.items()}
    if sys.argv[1:] == ["--check"]:
        stale = [name for name, data in made.items() if (HERE / name).read_bytes() != data]
        return f"not what make_pictures.py makes: {', '.join(stale)}; run it" if stale else 0
    for name, data in made.items():
        (HERE / name).write_bytes(data)
    return 0


sys.exit(main())
