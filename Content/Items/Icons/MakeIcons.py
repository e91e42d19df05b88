#!/usr/bin/env python3
"""Draws the demo item icons: 64x64 RGBA PNGs of flat-coloured shapes, one per item of
DT_StashItems. Run it from anywhere; it writes T_*.png beside itself."""
import os
import struct
import zlib

Size = 64


def png(pixels):
    """pixels: Size rows of Size (r, g, b, a) tuples."""
    raw = b"".join(b"\0" + bytes(c for pixel in row for c in pixel) for row in pixels)

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    header = struct.pack(">IIBBBBB", Size, Size, 8, 6, 0, 0, 0)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(raw, 9)) + chunk(b"IEND", b"")


def rect(x0, y0, x1, y1):
    return lambda x, y: x0 <= x < x1 and y0 <= y < y1


def circle(cx, cy, r):
    return lambda x, y: (x + 0.5 - cx) ** 2 + (y + 0.5 - cy) ** 2 <= r * r


def draw(layers):
    """layers: (shape, colour) pairs, later ones on top; the rest stays transparent."""
    rows = []
    for y in range(Size):
        row = []
        for x in range(Size):
            pixel = (0, 0, 0, 0)
            for shape, colour in layers:
                if shape(x, y):
                    pixel = colour + (255,)
            row.append(pixel)
        rows.append(row)
    return rows


Icons = {
    "T_Medkit": [(rect(6, 12, 58, 56), (200, 40, 40)), (rect(26, 18, 38, 50), (245, 245, 245)),
                 (rect(16, 28, 48, 40), (245, 245, 245)), (rect(22, 6, 42, 12), (140, 30, 30))],
    "T_Bandage": [(rect(8, 20, 56, 44), (226, 208, 170)), (rect(28, 20, 36, 44), (190, 170, 130)),
                  (circle(32, 32, 3), (160, 140, 100))],
    "T_Ammo556": [(rect(10 + 16 * i, 18, 20 + 16 * i, 56), (196, 150, 60)) for i in range(3)]
                 + [(circle(15 + 16 * i, 18, 5), (150, 110, 50)) for i in range(3)],
    "T_Rifle": [(rect(4, 26, 60, 34), (60, 64, 70)), (rect(8, 34, 20, 46), (110, 80, 50)),
                (rect(30, 34, 36, 48), (60, 64, 70)), (rect(40, 20, 52, 26), (40, 42, 46))],
    "T_Pistol": [(rect(12, 20, 52, 30), (70, 74, 80)), (rect(14, 30, 26, 50), (90, 70, 50)),
                 (rect(26, 30, 32, 36), (70, 74, 80))],
    "T_Water": [(rect(20, 18, 44, 58), (70, 150, 220)), (rect(26, 8, 38, 18), (70, 150, 220)),
                (rect(24, 4, 40, 10), (30, 80, 160)), (rect(20, 30, 44, 40), (230, 240, 250))],
    "T_Ration": [(rect(8, 16, 56, 50), (110, 120, 60)), (rect(8, 28, 56, 34), (80, 88, 40)),
                 (rect(20, 38, 44, 44), (210, 200, 150))],
    "T_Backpack": [(rect(12, 14, 52, 58), (120, 84, 50)), (rect(18, 6, 46, 14), (90, 60, 36)),
                   (rect(16, 34, 48, 52), (100, 68, 40)), (rect(28, 38, 36, 42), (200, 170, 90))],
}

if __name__ == "__main__":
    Here = os.path.dirname(os.path.abspath(__file__))
    for Name, Layers in Icons.items():
        with open(os.path.join(Here, Name + ".png"), "wb") as File:
            File.write(png(draw(Layers)))
