#!/usr/bin/env python3
"""Makes the library's icons and bitmaps from their drawings.

    icons/ID_NAME.svg    ->  ico/ID_NAME.ico   one image, 32-bit colour with alpha, and its 1-bit mask
    bitmaps/ID_NAME.svg  ->  bmp/ID_NAME.bmp   1-bit, black on white

ID is the resource id. A drawing's own width and height, in pixels, are the size of what is made.

    make.py            makes every file that is missing or differs
    make.py --check    makes nothing; fails if a made file is stale or breaks a rule of this folder

Needs rsvg-convert (Debian package librsvg2-bin).
"""

import re
import struct
import subprocess
import sys
import zlib
from pathlib import Path

HERE = Path(__file__).resolve().parent
ICON_COUNT = 109
BITMAP_COUNT = 64
LARGE_ICONS = {"hIconInformation", "hIconQuestion", "hIconWarning", "hIconError", "hOstrelWorks"}

# A pixel fainter than this is left out of an icon: where only the 1-bit mask is at hand
# (grey and darker copies), a faint edge pixel would come out in full colour.
FAINTEST_ALPHA = 80


# --- Drawing to pixels ---------------------------------------------------------------------------


def rasterize(drawing):
    """The drawing's pixels at its own size: width, height, rows of (red, green, blue, alpha)."""
    png = subprocess.run(["rsvg-convert", drawing], check=True, capture_output=True).stdout
    return decode_png(png)


def decode_png(png):
    """Decodes the one kind of PNG that rsvg-convert writes: 8-bit RGBA, not interlaced."""
    width, height, depth, colour, _, _, interlace = struct.unpack(">IIBBBBB", png[16:29])
    if (depth, colour, interlace) != (8, 6, 0):
        raise ValueError("the PNG is not plain 8-bit RGBA")
    data, position = b"", 8
    while position < len(png):
        length, kind = struct.unpack(">I4s", png[position : position + 8])
        if kind == b"IDAT":
            data += png[position + 8 : position + 8 + length]
        position += length + 12
    data = zlib.decompress(data)

    stride = width * 4
    above, rows = bytearray(stride), []
    for start in range(0, len(data), stride + 1):
        above = unfilter(data[start], data[start + 1 : start + 1 + stride], above)
        rows.append([tuple(above[i : i + 4]) for i in range(0, stride, 4)])
    return width, height, rows


def unfilter(kind, line, above):
    """One row of a PNG with its filter undone; `above` is the row before it, undone already."""
    row = bytearray(line)
    for i, value in enumerate(line):
        left = row[i - 4] if i >= 4 else 0
        corner = above[i - 4] if i >= 4 else 0
        predicted = (0, left, above[i], (left + above[i]) // 2, paeth(left, above[i], corner))[kind]
        row[i] = (value + predicted) & 0xFF
    return row


def paeth(left, above, corner):
    estimate = left + above - corner
    return min((left, above, corner), key=lambda candidate: abs(estimate - candidate))


# --- Pixels to files -----------------------------------------------------------------------------


def pack_bits(bits):
    """A row of 1-bit pixels, leftmost in the highest bit, padded to four bytes as a DIB wants it."""
    padded = list(bits) + [0] * (-len(bits) % 32)
    return bytes(
        sum(bit << (7 - place) for place, bit in enumerate(padded[i : i + 8])) for i in range(0, len(padded), 8)
    )


def icon_file(drawing):
    width, height, rows = rasterize(drawing)
    colour, mask = b"", b""
    for row in reversed(rows):
        seen = [alpha >= FAINTEST_ALPHA for *_, alpha in row]
        for (red, green, blue, alpha), visible in zip(row, seen):
            colour += bytes((blue, green, red, alpha)) if visible else bytes(4)
        mask += pack_bits([not visible for visible in seen])
    # An icon's DIB header counts the rows of colour and mask together.
    dib = struct.pack("<IiiHHIIiiII", 40, width, height * 2, 1, 32, 0, len(colour) + len(mask), 0, 0, 0, 0)
    image = dib + colour + mask
    directory = struct.pack("<HHH", 0, 1, 1)
    entry = struct.pack("<BBBBHHII", width, height, 0, 0, 1, 32, len(image), 22)
    return directory + entry + image


def bitmap_file(drawing):
    width, height, rows = rasterize(drawing)
    bits = b"".join(pack_bits([is_white(pixel) for pixel in row]) for row in reversed(rows))
    # Black as 0 and white as 1: LoadBitmap then answers a monochrome bitmap, which takes on the
    # text and background colours of the device context that it is copied to.
    palette = struct.pack("<II", 0x000000, 0xFFFFFF)
    header = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 1, 0, len(bits), 0, 0, 2, 2)
    offset = 14 + len(header) + len(palette)
    return struct.pack("<2sIHHI", b"BM", offset + len(bits), 0, 0, offset) + header + palette + bits


def is_white(pixel):
    """Whether a pixel laid over white is nearer to white than to black."""
    red, green, blue, alpha = pixel
    return (red + green + blue) / 3 * alpha / 255 + (255 - alpha) >= 128


# --- Rules ---------------------------------------------------------------------------------------


def icon_size(name):
    """The side of an icon, in pixels, by the name of the member that holds it."""
    if name in LARGE_ICONS:
        return 32
    return 24 if name.startswith("h24") else 16


def icon_faults(name, data):
    """What keeps an icon file from working in each way that the library uses one."""
    images, width, height = struct.unpack("<4xHBB", data[:8])
    bits_per_pixel, size, offset = struct.unpack("<HII", data[12:22])
    if images != 1:
        yield f"holds {images} images; size 0 in LoadImage would not name one"
    if (width, height) != (icon_size(name), icon_size(name)):
        yield f"is {width} by {height}, not {icon_size(name)} by {icon_size(name)}"
    if bits_per_pixel != 32 or offset + size != len(data):
        yield "is not one 32-bit image"
        return
    stride = (width + 31) // 32 * 4
    colour, mask = data[offset + 40 :][: width * height * 4], data[offset + 40 + width * height * 4 :]
    for row in range(height):
        for column in range(width):
            blue, green, red, alpha = colour[(row * width + column) * 4 :][:4]
            masked = mask[row * stride + column // 8] >> (7 - column % 8) & 1
            y = height - 1 - row
            if masked != (alpha == 0):
                yield f"mask and alpha differ at ({column}, {y})"
            if (red, green, blue) == (0, 0, 0) and alpha:
                yield f"is pure black at ({column}, {y}), which grey and darker copies take for transparent"
            if (column, y) == (0, 0) and alpha:
                yield "covers its top-left pixel, from which a disabled button takes its background"


def bitmap_faults(_name, data):
    bits_per_pixel, compression = struct.unpack("<HI", data[28:34])
    if (bits_per_pixel, compression) != (1, 0) or data[54:62] != struct.pack("<II", 0x000000, 0xFFFFFF):
        yield "is not plain 1-bit black and white"
    if not any(byte != 0xFF for byte in data[62:]):
        yield "is empty"


def count_faults(drawings, count):
    ids = [drawing.name.split("_")[0] for drawing in drawings]
    if len(ids) != count or len(set(ids)) != count:
        yield f"{len(ids)} drawings with {len(set(ids))} ids, not {count}"
    for drawing in drawings:
        if not re.fullmatch(r"1\d{4}_\w+\.svg", drawing.name):
            yield f"{drawing.name}: not named ID_NAME.svg"


def class_faults(drawings):
    """The pictures of one picker stand in one menu, so they are of one size."""
    sizes = {}
    for drawing in drawings:
        picker = drawing.stem.split("_")[1].rstrip("0123456789")
        width, height = re.search(r'width="(\d+)" height="(\d+)"', drawing.read_text(encoding="utf-8")).groups()
        sizes.setdefault(picker, set()).add((width, height))
    for picker, found in sizes.items():
        if len(found) > 1:
            yield f"{picker}: pictures of {len(found)} sizes"


# --- Making and checking -------------------------------------------------------------------------


KINDS = [
    # sources, made files, suffix, count, maker, faults of a made file
    ("icons", "ico", ".ico", ICON_COUNT, icon_file, icon_faults),
    ("bitmaps", "bmp", ".bmp", BITMAP_COUNT, bitmap_file, bitmap_faults),
]


def process(check):
    """Makes what differs, or only looks with `check`; answers the faults found."""
    faults, written = [], 0
    for sources, made, suffix, count, maker, faults_of in KINDS:
        drawings = sorted((HERE / sources).glob("*.svg"))
        targets = [HERE / made / (drawing.stem + suffix) for drawing in drawings]
        faults += count_faults(drawings, count)
        faults += [f"{path.name}: has no drawing" for path in (HERE / made).glob("*") if path not in targets]
        for drawing, target in zip(drawings, targets):
            data = maker(drawing)
            faults += [f"{target.name}: {fault}" for fault in faults_of(drawing.stem.split("_", 1)[1], data)]
            if target.exists() and target.read_bytes() == data:
                continue
            if check:
                faults.append(f"{target.name}: is missing or not what its drawing makes")
                continue
            target.parent.mkdir(exist_ok=True)
            target.write_bytes(data)
            written += 1
    faults += class_faults(sorted((HERE / "bitmaps").glob("*.svg")))
    if not check:
        print(f"{written} files made")
    return faults


def main(arguments):
    if arguments not in ([], ["--check"]):
        sys.exit(__doc__)
    faults = process(check=bool(arguments))
    for fault in faults:
        print(fault, file=sys.stderr)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
