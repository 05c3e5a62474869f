#!/usr/bin/env python3
"""Draws the Tarvex application icon: a cascade of two menu panels on a rounded,
gradient tile. Writes a multi-size .ico (32-bit BGRA images with AND masks).
Usage: make-icon.py OUTPUT.ico"""
import struct
import sys

SIZES = (16, 24, 32, 48, 64)
SUPER = 4  # supersampling per axis for smooth edges


def rounded_rect(x, y, x0, y0, x1, y1, r):
    if x < x0 or x > x1 or y < y0 or y > y1:
        return False
    cx = min(max(x, x0 + r), x1 - r)
    cy = min(max(y, y0 + r), y1 - r)
    return (x - cx) ** 2 + (y - cy) ** 2 <= r * r


def mix(a, b, t):
    return tuple(int(round(a[i] + (b[i] - a[i]) * t)) for i in range(3))


def sample(u, v):
    """Colour (r, g, b, a) at unit coordinates u, v in [0, 1)."""
    if not rounded_rect(u, v, 0.03, 0.03, 0.97, 0.97, 0.2):
        return (0, 0, 0, 0)
    # Back panel: the opened menu, with a title strip and three item bars.
    if rounded_rect(u, v, 0.14, 0.16, 0.60, 0.84, 0.06):
        if v < 0.30:
            return (255, 196, 72, 255)
        for top in (0.38, 0.53, 0.68):
            if top <= v <= top + 0.08 and 0.21 <= u <= 0.53:
                return (44, 52, 120, 255)
        return (246, 247, 252, 255)
    # Front panel: the cascaded sub-menu.
    if rounded_rect(u, v, 0.55, 0.46, 0.88, 0.84, 0.05):
        if 0.55 <= v <= 0.62 and 0.62 <= u <= 0.81:
            return (255, 196, 72, 255)
        for top in (0.67, 0.75):
            if top <= v <= top + 0.05 and 0.62 <= u <= 0.81:
                return (44, 52, 120, 255)
        return (226, 236, 250, 255)
    # The tile: indigo at the top-left to teal at the bottom-right.
    return mix((43, 47, 119), (31, 162, 168), (u + v) / 2) + (255,)


def render(size):
    pixels = []
    n = size * SUPER
    for y in range(size):
        row = []
        for x in range(size):
            acc = [0, 0, 0, 0]
            for sy in range(SUPER):
                for sx in range(SUPER):
                    r, g, b, a = sample((x * SUPER + sx + 0.5) / n, (y * SUPER + sy + 0.5) / n)
                    acc[0] += r * a
                    acc[1] += g * a
                    acc[2] += b * a
                    acc[3] += a
            alpha = acc[3] / (SUPER * SUPER)
            if acc[3]:
                row.append(tuple(int(round(c / acc[3])) for c in acc[:3]) + (int(round(alpha)),))
            else:
                row.append((0, 0, 0, 0))
        pixels.append(row)
    return pixels


def dib(size, pixels):
    header = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 32, 0, 0, 0, 0, 0, 0)
    body = bytearray()
    for row in reversed(pixels):  # bottom-up
        for r, g, b, a in row:
            body += bytes((b, g, r, a))
    mask_stride = ((size + 31) // 32) * 4
    mask = bytearray()
    for row in reversed(pixels):
        bits = bytearray(mask_stride)
        for x, (_, _, _, a) in enumerate(row):
            if a == 0:
                bits[x // 8] |= 0x80 >> (x % 8)
        mask += bits
    return header + bytes(body) + bytes(mask)


def main():
    images = [dib(s, render(s)) for s in SIZES]
    out = struct.pack("<HHH", 0, 1, len(images))
    offset = 6 + 16 * len(images)
    for s, data in zip(SIZES, images):
        out += struct.pack("<BBBBHHII", s % 256, s % 256, 0, 0, 1, 32, len(data), offset)
        offset += len(data)
    for data in images:
        out += data
    with open(sys.argv[1], "wb") as f:
        f.write(out)


if __name__ == "__main__":
    main()
