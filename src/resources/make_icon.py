#!/usr/bin/env python3
"""Makes quorl.ico from quorl_icon.txt, both beside this script; with --check only tells whether it is up to date."""
import pathlib
import struct
import sys

HERE = pathlib.Path(__file__).resolve().parent
UNITS = 16
SIZES = (16, 32, 48)  # whole multiples of the grid, so that every edge falls between two pixels


def boxes():
    for line in (HERE / "quorl_icon.txt").read_text().splitlines():
        fields = line.split("#")[0].split()
        if fields:
            yield bytes.fromhex(fields[0])[::-1] + b"\xff", [int(field) for field in fields[1:]]


def pixels(size):
    """Rows from the top; each pixel is blue, green, red, alpha."""
    scale = size // UNITS
    rows = [[bytes(4)] * size for _ in range(size)]
    for color, (left, top, right, bottom) in boxes():
        for row in rows[top * scale : bottom * scale]:
            row[left * scale : right * scale] = [color] * ((right - left) * scale)
    return rows


def mask(row):
    """One bit a pixel, set where it is transparent, for systems that do not look at alpha."""
    bits = "".join("0" if pixel[3] else "1" for pixel in row)
    padded = bits.ljust((len(bits) + 31) // 32 * 32, "0")
    return int(padded, 2).to_bytes(len(padded) // 8, "big")


def picture(size):
    upwards = pixels(size)[::-1]
    data = b"".join(b"".join(row) for row in upwards) + b"".join(mask(row) for row in upwards)
    # The height counts the colours and the mask.
    return struct.pack("<IiiHHIIiiII", 40, size, 2 * size, 1, 32, 0, len(data), 0, 0, 0, 0) + data


def icon():
    pictures = [picture(size) for size in SIZES]
    head = struct.pack("<HHH", 0, 1, len(pictures))
    at = len(head) + 16 * len(pictures)
    for size, data in zip(SIZES, pictures):
        head += struct.pack("<BBBBHHII", size, size, 0, 0, 1, 32, len(data), at)
        at += len(data)
    return head + b"".join(pictures)


def main():
    target = HERE / "quorl.ico"
    if sys.argv[1:] == ["--check"]:
        return 0 if target.read_bytes() == icon() else "quorl.ico is not what make_icon.py makes: run it"
    target.write_bytes(icon())
    return 0


sys.exit(main())
