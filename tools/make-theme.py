#!/usr/bin/env python3
"""Draws the shipped theme "Aurora" and writes its theme file.

Writes into resources/themes/Aurora/: Aurora.wst (section [TARVEX] with the look keys
in the order of the settings catalogue, read from src/core/settings_catalogue.cpp), the
title, button, selection-bar and task-list bitmaps (24-bit .bmp), and the arrow,
command-key, title-bar button and systray icons (.ico with 32-bit BGRA images).
Everything is drawn here from shapes with plain Python; the output is deterministic.
Usage: make-theme.py [OUTPUT_FOLDER]"""
import math
import os
import re
import struct
import sys

REPO = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
THEME = "Aurora"
SUPER = 4  # supersampling per axis for smooth edges


# ---------------------------------------------------------------------------
# Colours: (r, g, b) floats in 0..1.

def rgb(hex_text):
    v = int(hex_text.lstrip("#"), 16)
    return ((v >> 16) / 255.0, ((v >> 8) & 0xFF) / 255.0, (v & 0xFF) / 255.0)


def mix(a, b, t):
    return tuple(a[i] + (b[i] - a[i]) * t for i in range(3))


def stops(points, t):
    """The colour at t along a list of (position, colour) stops."""
    t = min(max(t, points[0][0]), points[-1][0])
    for (p0, c0), (p1, c1) in zip(points, points[1:]):
        if t <= p1:
            return mix(c0, c1, (t - p0) / (p1 - p0) if p1 > p0 else 0.0)
    return points[-1][1]


def lighten(c, amount):
    return mix(c, (1.0, 1.0, 1.0), amount) if amount >= 0 else mix(c, (0.0, 0.0, 0.0), -amount)


def colorref(hex_text):
    """A settings colour: decimal 0x00BBGGRR."""
    v = int(hex_text.lstrip("#"), 16)
    r, g, b = v >> 16, (v >> 8) & 0xFF, v & 0xFF
    return str(b << 16 | g << 8 | r)


# ---------------------------------------------------------------------------
# Pictures: straight RGBA floats, composited with "over".

class Picture:
    def __init__(self, width, height, colour=(0.0, 0.0, 0.0), alpha=0.0):
        self.width = width
        self.height = height
        self.px = [[colour[0], colour[1], colour[2], alpha] for _ in range(width * height)]

    def at(self, x, y):
        return self.px[y * self.width + x]

    def over(self, x, y, colour, alpha):
        if alpha <= 0.0:
            return
        p = self.at(x, y)
        out = alpha + p[3] * (1.0 - alpha)
        for i in range(3):
            p[i] = (colour[i] * alpha + p[i] * p[3] * (1.0 - alpha)) / out
        p[3] = out

    def shade(self, fn):
        """fn(x, y) gives (colour, alpha) at the pixel's centre, laid over the pixel."""
        for y in range(self.height):
            for x in range(self.width):
                colour, alpha = fn(x + 0.5, y + 0.5)
                self.over(x, y, colour, alpha)

    def fill(self, inside, paint, alpha=1.0):
        """Lays paint(x, y) over the part where inside(x, y) holds, supersampled."""
        n = SUPER * SUPER
        for y in range(self.height):
            for x in range(self.width):
                hits = 0
                for sy in range(SUPER):
                    for sx in range(SUPER):
                        if inside(x + (sx + 0.5) / SUPER, y + (sy + 0.5) / SUPER):
                            hits += 1
                if hits:
                    self.over(x, y, paint(x + 0.5, y + 0.5), alpha * hits / n)

    def rotated_left(self):
        """Turned a quarter counter-clockwise: the top edge becomes the left edge."""
        out = Picture(self.height, self.width)
        for y in range(self.height):
            for x in range(self.width):
                out.px[(self.width - 1 - x) * out.width + y] = list(self.at(x, y))
        return out


def byte(v):
    return max(0, min(255, int(round(v * 255.0))))


def bmp_bytes(picture):
    """A 24-bit bottom-up .bmp; transparent pixels come out black, so callers fill first."""
    stride = (picture.width * 3 + 3) & ~3
    rows = []
    for y in range(picture.height - 1, -1, -1):
        row = bytearray()
        for x in range(picture.width):
            r, g, b, _ = picture.at(x, y)
            row += bytes((byte(b), byte(g), byte(r)))
        row += b"\0" * (stride - len(row))
        rows.append(bytes(row))
    pixels = b"".join(rows)
    header = struct.pack("<2sIHHI", b"BM", 14 + 40 + len(pixels), 0, 0, 14 + 40)
    info = struct.pack("<IiiHHIIiiII", 40, picture.width, picture.height, 1, 24, 0, len(pixels), 2835, 2835, 0, 0)
    return header + info + pixels


def ico_image(picture):
    size = picture.width
    xor = bytearray()
    mask_stride = ((size + 31) // 32) * 4
    mask = bytearray()
    for y in range(size - 1, -1, -1):
        bits = 0
        row_mask = bytearray()
        for x in range(size):
            r, g, b, a = picture.at(x, y)
            xor += bytes((byte(b), byte(g), byte(r), byte(a)))
            bits = (bits << 1) | (1 if byte(a) == 0 else 0)
            if x % 8 == 7:
                row_mask.append(bits)
                bits = 0
        if size % 8:
            row_mask.append(bits << (8 - size % 8))
        row_mask += b"\0" * (mask_stride - len(row_mask))
        mask += row_mask
    info = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 32, 0, len(xor) + len(mask), 0, 0, 0, 0)
    return info + bytes(xor) + bytes(mask)


def ico_bytes(pictures):
    images = [ico_image(p) for p in pictures]
    out = struct.pack("<HHH", 0, 1, len(images))
    offset = 6 + 16 * len(images)
    for picture, data in zip(pictures, images):
        size = picture.width if picture.width < 256 else 0
        out += struct.pack("<BBBBHHII", size, size, 0, 0, 1, 32, len(data), offset)
        offset += len(data)
    return out + b"".join(images)


# ---------------------------------------------------------------------------
# Shapes as distance functions: negative inside, in pixels.

def circle(cx, cy, r):
    return lambda x, y: math.hypot(x - cx, y - cy) - r


def rounded_box(x0, y0, x1, y1, r):
    cx, cy, hx, hy = (x0 + x1) / 2, (y0 + y1) / 2, (x1 - x0) / 2 - r, (y1 - y0) / 2 - r

    def dist(x, y):
        qx, qy = abs(x - cx) - hx, abs(y - cy) - hy
        return math.hypot(max(qx, 0.0), max(qy, 0.0)) + min(max(qx, qy), 0.0) - r
    return dist


def segment(ax, ay, bx, by, width):
    def dist(x, y):
        px, py, dx, dy = x - ax, y - ay, bx - ax, by - ay
        h = min(max((px * dx + py * dy) / (dx * dx + dy * dy), 0.0), 1.0)
        return math.hypot(px - dx * h, py - dy * h) - width / 2
    return dist


def polyline(points, width):
    parts = [segment(a[0], a[1], b[0], b[1], width) for a, b in zip(points, points[1:])]
    return lambda x, y: min(p(x, y) for p in parts)


def ring(cx, cy, r, width, start_deg=None, end_deg=None):
    """A circle's outline; with angles, only the arc from start to end (degrees, clockwise
    on screen from the +x axis), with round ends."""
    def dist(x, y):
        if start_deg is not None:
            a = math.degrees(math.atan2(y - cy, x - cx)) % 360
            span = (end_deg - start_deg) % 360
            if (a - start_deg) % 360 > span:
                ends = [(cx + r * math.cos(math.radians(d)), cy + r * math.sin(math.radians(d)))
                        for d in (start_deg, end_deg)]
                return min(math.hypot(x - ex, y - ey) for ex, ey in ends) - width / 2
        return abs(math.hypot(x - cx, y - cy) - r) - width / 2
    return dist


def polygon(points):
    """Signed distance to a closed polygon."""
    def dist(x, y):
        d = (x - points[0][0]) ** 2 + (y - points[0][1]) ** 2
        sign = 1.0
        j = len(points) - 1
        for i in range(len(points)):
            (vix, viy), (vjx, vjy) = points[i], points[j]
            ex, ey, wx, wy = vjx - vix, vjy - viy, x - vix, y - viy
            h = min(max((wx * ex + wy * ey) / (ex * ex + ey * ey), 0.0), 1.0)
            d = min(d, (wx - ex * h) ** 2 + (wy - ey * h) ** 2)
            c1, c2, c3 = y >= viy, y < vjy, ex * wy > ey * wx
            if (c1 and c2 and c3) or (not c1 and not c2 and not c3):
                sign = -sign
            j = i
        return sign * math.sqrt(d)
    return dist


def union(*shapes):
    return lambda x, y: min(s(x, y) for s in shapes)


def inside(shape):
    return lambda x, y: shape(x, y) <= 0.0


def soft(picture, shape, colour, alpha, blur):
    """A blurred copy of a shape: its shadow or its glow."""
    def fn(x, y):
        d = shape(x, y)
        return colour, alpha * min(max(0.5 - d / blur, 0.0), 1.0)
    picture.shade(fn)


def shifted(shape, dx, dy):
    return lambda x, y: shape(x - dx, y - dy)


def scaled(shape_of, s):
    """shape_of builds a shape on a 16- or 20-pixel design grid; draw it s times larger."""
    shape = shape_of()
    return lambda x, y: shape(x / s, y / s) * s


# ---------------------------------------------------------------------------
# The palette.

INDIGO = rgb("#241A52")
VIOLET = rgb("#5A36C9")
BLUE = rgb("#1C6FB8")
TEAL = rgb("#12A89A")
MINT = rgb("#7CF2D9")
BODY = rgb("#1C1F2D")
BODY_INACTIVE = rgb("#181A24")
SLATE = rgb("#474C63")
SLATE_DARK = rgb("#2A2E3E")
WHITE = (1.0, 1.0, 1.0)
BLACK = (0.0, 0.0, 0.0)

AURORA = [(0.0, INDIGO), (0.42, VIOLET), (0.78, BLUE), (1.0, TEAL)]
SLATES = [(0.0, rgb("#2B2F40")), (0.5, SLATE), (1.0, rgb("#3A4056"))]


# ---------------------------------------------------------------------------
# Title bars: a colour run along the bar, a soft ribbon of light through it, a gloss
# on the upper half and crisp top and bottom lines.

def title_bar(width, height, run, ribbon):
    p = Picture(width, height)

    def base(x, y):
        u, v = x / width, y / height
        c = stops(run, u)
        if ribbon:
            # Two slow waves of light, like the curtains of an aurora.
            for phase, amp, strength in ((0.0, 0.22, 0.22), (2.1, 0.18, 0.14)):
                centre = 0.55 + amp * math.sin(u * math.pi * 3.0 + phase)
                glow = math.exp(-((v - centre) / 0.16) ** 2) * (0.5 + 0.5 * math.sin(u * math.pi * 2.0 + phase))
                c = mix(c, MINT, strength * glow)
        # The gloss: lighter above the middle, darker towards the bottom.
        if v < 0.5:
            c = lighten(c, 0.16 * (1.0 - v / 0.5))
        else:
            c = lighten(c, -0.22 * (v - 0.5) / 0.5)
        return c, 1.0
    p.shade(base)
    for x in range(width):
        p.over(x, 0, WHITE, 0.28)
        p.over(x, height - 1, BLACK, 0.45)
    return p


# ---------------------------------------------------------------------------
# Button backgrounds: a fine seamless texture that tiles over the whole menu body.

def texture(size, colour, stripe, noise):
    p = Picture(size, size)

    def fn(x, y):
        ix, iy = int(x), int(y)
        # Grain from a hash of the pixel; the stripes' period divides the tile's size, so
        # neighbouring tiles join without a seam.
        h = (ix * 73856093 ^ iy * 19349663) & 0xFFFF
        grain = (h / 65535.0 - 0.5) * noise
        line = stripe if (ix + iy) % 6 == 0 else 0.0
        return lighten(colour, grain + line), 1.0
    p.shade(fn)
    return p


def selection_pill(width, height, run, backdrop):
    """A rounded bar on the menu body; stretched to the selected button."""
    p = Picture(width, height, backdrop, 1.0)
    box = rounded_box(1.0, 1.0, width - 1.0, height - 1.0, 5.0)
    soft(p, shifted(box, 0.0, 1.0), BLACK, 0.45, 1.5)

    def paint(x, y):
        c = stops(run, x / width)
        v = y / height
        return lighten(c, 0.18 * (1.0 - v / 0.5)) if v < 0.5 else lighten(c, -0.12 * (v - 0.5) / 0.5)
    p.fill(inside(box), paint)
    inner = rounded_box(2.0, 2.0, width - 2.0, height - 2.0, 4.0)
    p.fill(lambda x, y: box(x, y) <= 0.0 < inner(x, y) and y < height / 2, lambda x, y: WHITE, 0.25)
    return p


# ---------------------------------------------------------------------------
# Arrows: a gem with a lit upper facet and a shaded lower one over a soft shadow.

def arrow_picture(size, direction, light, dark):
    s = size / 16.0
    tip, back, half = 12.2, 5.0, 5.4

    def to_grid(x, y):
        """Pixel to the grid of a right-pointing arrow: u along it, v across."""
        gx, gy = x / s, y / s
        return {"right": (gx, gy), "left": (16.0 - gx, gy), "down": (gy, gx), "up": (16.0 - gy, gx)}[direction]

    triangle = polygon([(back, 8.0 - half), (tip, 8.0), (back, 8.0 + half)])

    def shape(x, y):
        u, v = to_grid(x, y)
        return triangle(u, v) * s

    p = Picture(size, size)
    soft(p, shifted(shape, 0.9 * s, 1.1 * s), BLACK, 0.55, 1.4 * s)

    def facet(x, y):
        u, v = to_grid(x, y)
        if v < 8.0:
            return mix(light, lighten(light, 0.25), (8.0 - v) / half * 0.6)
        return mix(dark, lighten(dark, -0.25), (v - 8.0) / half)
    p.fill(inside(shape), facet)
    # A bright edge along the lit side.
    edge = segment(back + 0.6, 8.0 - half + 1.0, tip - 0.8, 8.0, 0.9)
    p.fill(lambda x, y: shape(x, y) <= 0.0 and edge(*to_grid(x, y)) <= 0.0, lambda x, y: WHITE, 0.45)
    return p


# ---------------------------------------------------------------------------
# The command-key symbol: four loops joined by a square, raised over a soft shadow.

def command_key_picture(size, light, dark):
    s = size / 16.0
    lo, hi, r, w = 5.6, 10.4, 2.25, 1.6
    c_lo, c_hi = lo - r, hi + r

    def glyph():
        return union(
            segment(lo, c_lo, lo, c_hi, w), segment(hi, c_lo, hi, c_hi, w),
            segment(c_lo, lo, c_hi, lo, w), segment(c_lo, hi, c_hi, hi, w),
            ring(c_lo, c_lo, r, w, 90, 0), ring(c_hi, c_lo, r, w, 180, 90),
            ring(c_lo, c_hi, r, w, 0, 270), ring(c_hi, c_hi, r, w, 270, 180))

    shape = scaled(glyph, s)
    p = Picture(size, size)
    # A light glyph over a light shadow: at 16 pixels on a dark body a dark stroke vanishes.
    soft(p, shifted(shape, 0.8 * s, 1.0 * s), BLACK, 0.4, 1.2 * s)
    p.fill(inside(shape), lambda x, y: mix(lighten(light, 0.25), mix(light, dark, 0.3), y / size))
    return p


# ---------------------------------------------------------------------------
# Title-bar buttons: a glassy disc with a white symbol, on a 20-pixel design grid.

def close_glyph():
    return union(segment(7.0, 7.0, 13.0, 13.0, 1.9), segment(13.0, 7.0, 7.0, 13.0, 1.9))


def rollup_glyph():
    return polyline([(6.6, 11.8), (10.0, 8.4), (13.4, 11.8)], 1.9)


def ontop_glyph():
    return union(segment(6.6, 6.6, 13.4, 6.6, 1.7), segment(10.0, 14.0, 10.0, 9.4, 1.7),
                 polyline([(7.4, 11.6), (10.0, 9.0), (12.6, 11.6)], 1.7))


def rotate_glyph():
    head = polygon([(13.9, 4.9), (15.0, 9.6), (10.6, 8.3)])
    return union(ring(10.0, 10.0, 4.1, 1.8, 330, 250), head)


BUTTONS = {
    "Close": (close_glyph, rgb("#F2555A"), rgb("#B82E36")),
    "Rollup": (rollup_glyph, rgb("#F6BE4F"), rgb("#C9820F")),
    "OnTop": (ontop_glyph, rgb("#33D6C0"), rgb("#118E83")),
    "Rotate": (rotate_glyph, rgb("#A285FF"), rgb("#5E3CD6")),
}


def title_button_picture(size, glyph_of, top, bottom, pressed):
    s = size / 20.0
    disc = scaled(lambda: circle(10.0, 10.0, 8.6), s)
    p = Picture(size, size)
    soft(p, shifted(disc, 0.0, 0.8 * s), BLACK, 0.5, 1.3 * s)
    if pressed:
        p.fill(inside(disc), lambda x, y: mix(lighten(bottom, -0.2), top, y / size))
    else:
        p.fill(inside(disc), lambda x, y: mix(top, bottom, y / size))
        gloss = scaled(lambda: rounded_box(4.4, 2.6, 15.6, 9.6, 3.5), s)
        p.shade(lambda x, y: (WHITE, 0.32 * max(0.0, 1.0 - y / (10.0 * s)) if gloss(x, y) <= 0.0 else 0.0))
    rim = scaled(lambda: ring(10.0, 10.0, 8.2, 0.8), s)
    p.fill(inside(rim), lambda x, y: lighten(bottom, -0.35), 0.8)
    offset = 0.6 * s if pressed else 0.0
    glyph = shifted(scaled(glyph_of, s), offset, offset)
    p.fill(inside(shifted(glyph, 0.0, 0.8 * s)), lambda x, y: BLACK, 0.35)
    p.fill(inside(glyph), lambda x, y: WHITE, 0.96 if not pressed else 0.85)
    return p


def greyed(base):
    return lighten(mix(base, (0.45, 0.47, 0.54), 0.8), -0.05)


# ---------------------------------------------------------------------------
# The systray button's icon: a small clock on an aurora tile.

def systray_picture(size):
    s = size / 16.0
    tile = scaled(lambda: rounded_box(0.8, 0.8, 15.2, 15.2, 3.4), s)
    p = Picture(size, size)
    p.fill(inside(tile), lambda x, y: stops(AURORA, (x + y) / (2.0 * size)))
    face = scaled(lambda: ring(8.0, 8.0, 4.6, 1.3), s)
    hands = scaled(lambda: polyline([(8.0, 5.0), (8.0, 8.0), (10.4, 9.4)], 1.2), s)
    p.fill(inside(union(face, hands)), lambda x, y: WHITE)
    return p


# ---------------------------------------------------------------------------
# The theme file: the look keys of the catalogue, in its order.

WST_VALUES = {
    # Title bar: the stretched aurora picture, a gradient where it is switched off.
    "TitleGradient": True, "TitleColor": "#3A2A8A", "TitleColor2": "#12A89A", "TitleVSize": 24,
    "TitleFont": "Tahoma", "TitleFontSize": 9, "TitleFontColor": "#FFFFFF", "TitleFontBold": True,
    "TitleFontItalic": False, "TitleFlat": False, "Title3DColor1": "#7C6FE0", "Title3DColor2": "#0B0C13",
    "TitleAlignment": 0,
    # Buttons: a fine texture tiled over the whole menu body.
    "ButtonBitmapToMenu": True, "ButtonInactiveBitmapToMenu": True, "ButtonTransparent": False,
    "ButtonInactiveTransparent": 0, "ButtonGradient": True, "ButtonColor": "#1C1F2D", "ButtonColor2": "#141621",
    "ButtonVSize": 24, "ButtonFont": "Tahoma", "ButtonFontSize": 9, "ButtonFontColor": "#E4E7F2",
    "ButtonFontBold": False, "ButtonFontItalic": False, "ButtonFlat": 1, "Button3DColor1": "#3B4060",
    "Button3DColor2": "#0B0C13", "ButtonIcons": True, "ButtonIconSize": 16, "TwinScrollButtons": True,
    "Menu3DArrows": 2,
    # Selection bar: a gradient from teal to violet.
    "SelBar": True, "SelBarGradient": 1, "SelBarGradientType": 0, "SelBarWrapGradient": False,
    "SelBarTileBitmap": False, "SelBarColor": "#13B5A3", "SelBarColor2": "#7B5CF5", "SelBarTextColor": "#FFFFFF",
    "SelBarFollowMouse": True,
    # Behaviour: as the program's defaults.
    "MenuAutoDropDown": False, "MenuDropDownDelay": 400, "MenuAlignWithTitle": 0, "ButtonMaxWidth": 320,
    "ButtonMinWidth": 200, "ButtonTextOfset": 8, "MenuHotKeys": 3, "MenuAutoScroll": False,
    "GenThemeAuthor": "Tarvex", "GenThemeName": THEME, "ButtonAlignment": 0, "TitlePosition": 0,
    "TitleTextType": 2, "ButtonTextType": 2,
    # Inactive menus: the slate title picture and a gradient down the body.
    "TitleShowInactive": True, "ButtonShowInactive": True, "TitleBitmap": True, "ButtonBitmap": True,
    "TitleTileBitmap": False, "ButtonTileBitmap": True, "TitleGradientType": 0, "ButtonGradientType": 1,
    "TitleWrapGradient": False, "ButtonWrapGradient": False, "TitleInactiveBitmap": True,
    "ButtonInactiveBitmap": False, "TitleInactiveTileBitmap": False, "ButtonInactiveTileBitmap": True,
    "TitleInactiveGradientType": 0, "ButtonInactiveGradientType": 1, "TitleInactiveWrapGradient": True,
    "ButtonInactiveWrapGradient": False, "TitleInactiveFontColor": "#C3C7D6", "ButtonInactiveFontColor": "#8E94AA",
    "TitleInactiveGradient": True, "ButtonInactiveGradient": True, "TitleInactiveColor": "#2B2F40",
    "ButtonInactiveColor": "#1E2130", "TitleInactiveColor2": "#474C63", "ButtonInactiveColor2": "#10121A",
    "TitleInactiveFlat": False, "ButtonInactiveFlat": 1, "TitleInactive3DColor1": "#5A5F78",
    "ButtonInactive3DColor1": "#3B4060", "TitleInactive3DColor2": "#0B0C13", "ButtonInactive3DColor2": "#0B0C13",
    "ScrollShowSelBar": False, "MenuScrollSpeed": 50, "ShowMoreOnTop": True, "MenuFolderPosition": 0,
    "MenuHorizontalStyle": 0, "SelBarBlink": False,
    # Pictures for the arrows, the command key and the title-bar buttons; all four buttons,
    # rotate at the left end, close, roll-up and on-top from the right end.
    "BitmapsFolder": "Themes\\" + THEME, "ButtonStyle": 2, "HotkeyStyle": 2, "CloseStatus": 3,
    "RollUpStatus": 3, "RotateStatus": 3, "AlwaysOnTopStatus": 3, "ClosePosition": 0, "RollUpPosition": 1,
    "RotatePosition": -1, "AlwaysOnTopPosition": 2, "MenuIsGradientTarget": True,
    "InactiveMenuIsGradientTarget": True,
    # Menus unroll quickly as they open.
    "AnimationType": 1, "AnimationHType": 1, "AnimationSpeed": 2,
    # Task list and systray in the same colours.
    "TaskbarStyle": 0, "TaskbarOrientation": 1, "TaskbarBackgroundType": 0, "TaskbarGradientType": 0,
    "TaskbarIconSize": 1, "TaskbarTileBitmap": False, "TaskbarWrapGradient": False, "TaskbarColor1": "#1C1F2D",
    "TaskbarColor2": "#2A2E3E", "TaskbarFrame": 1, "MenuMaxNoItems": 9999, "MenuToggleSubMenus": False,
    "Button3DStyle": 0, "TaskbarFrameColor1": "#4B4F6E", "TaskbarFrameColor2": "#0B0C13",
    # A 3D frame: a light line on the top and left, a dark one on the bottom and right.
    "MenuNoFrames": 0, "Menu3DFrame": True, "MenuFrameColor": "#4B4F6E", "MenuFrameColor2": "#0B0C13",
    "Menu3DFrame2": False, "MenuFrameColor3": "#2A2E42", "MenuFrameColor4": "#101118", "MenuFrameToBody": False,
    "SysTileWallpaper": "", "HorzNoTitlebar": True, "HorzLockWidth": True, "HorzAutoRotate": False,
    "HorzButtonsOnly": False, "MenuOverlapMenus": False, "TitleOverlap": True, "TitleInactiveOverlap": True,
}


def look_keys():
    """(name, type) of every key a theme file holds, in the catalogue's order."""
    source = open(os.path.join(REPO, "src", "core", "settings_catalogue.cpp"), encoding="utf-8").read()
    keys = []
    for name, kind, group in re.findall(r"SETTING\((\w+),\s*(\w+),\s*(kLook|kGeneral)\b", source):
        if group == "kGeneral":
            break
        keys.append((name, kind))
    return keys


def value_text(name, kind, value):
    if kind == "Boolean":
        if not isinstance(value, bool):
            sys.exit(f"{name}: a boolean key needs True or False")
        return "True" if value else "False"
    if kind == "Color":
        return colorref(value)
    if kind in ("Int16", "Int32"):
        if isinstance(value, bool) or not isinstance(value, int):
            sys.exit(f"{name}: a number key needs a number")
        return str(value)
    return value


def theme_file():
    keys = look_keys()
    names = [name for name, _ in keys]
    missing = [n for n in names if n not in WST_VALUES]
    unknown = [n for n in WST_VALUES if n not in names]
    if missing or unknown or names[-1] != "TitleInactiveOverlap":
        sys.exit(f"theme keys out of step with the catalogue: missing {missing}, unknown {unknown}")
    lines = ["[TARVEX]"] + [f"{name}={value_text(name, kind, WST_VALUES[name])}" for name, kind in keys]
    # An ANSI profile file with Windows line ends, as the profile functions read it.
    return ("\r\n".join(lines) + "\r\n").encode("ascii")


# ---------------------------------------------------------------------------

def write(folder, name, data):
    with open(os.path.join(folder, name), "wb") as f:
        f.write(data)


def main():
    folder = sys.argv[1] if len(sys.argv) > 1 else os.path.join(REPO, "resources", "themes", THEME)
    os.makedirs(folder, exist_ok=True)
    write(folder, THEME + ".wst", theme_file())

    title_active = title_bar(256, 24, AURORA, True)
    title_inactive = title_bar(256, 24, SLATES, False)
    write(folder, "TitleA.bmp", bmp_bytes(title_active))
    write(folder, "TitleI.bmp", bmp_bytes(title_inactive))
    # The turned title reads upwards: the run starts at the bottom, the gloss is at the left.
    write(folder, "VTitleA.bmp", bmp_bytes(title_bar(256, 24, AURORA, True).rotated_left()))
    write(folder, "VTitleI.bmp", bmp_bytes(title_bar(256, 24, SLATES, False).rotated_left()))
    write(folder, "ButtonA.bmp", bmp_bytes(texture(48, BODY, 0.025, 0.035)))
    write(folder, "ButtonI.bmp", bmp_bytes(texture(48, BODY_INACTIVE, 0.02, 0.025)))
    sel_run = [(0.0, rgb("#13B5A3")), (1.0, rgb("#7B5CF5"))]
    write(folder, "ButtonAS.bmp", bmp_bytes(selection_pill(200, 24, sel_run, BODY)))
    write(folder, "ButtonIS.bmp", bmp_bytes(selection_pill(200, 24, SLATES, BODY_INACTIVE)))
    write(folder, "Tasks.bmp", bmp_bytes(title_bar(256, 40, [(0.0, SLATE_DARK), (1.0, BODY)], False)))

    states = {
        "A": (rgb("#8FF0E2"), rgb("#1F9C8F")),
        "I": (rgb("#A4A9BD"), rgb("#5D6277")),
        "AS": (WHITE, rgb("#D9D2FF")),
        "IS": (rgb("#EDEDF5"), rgb("#B5B5C8")),
    }
    arrows = {"Arrow": ("right", "A I AS IS"), "HzArrow": ("down", "A I AS IS"), "UpArrow": ("up", "A I"),
              "DnArrow": ("down", "A I AS IS"), "LfArrow": ("left", "A I"), "RgArrow": ("right", "A I")}
    for stem, (direction, forms) in arrows.items():
        for form in forms.split():
            light, dark = states[form]
            pictures = [arrow_picture(n, direction, light, dark) for n in (16, 24, 32)]
            write(folder, f"{stem}{form}.ico", ico_bytes(pictures))
    for form, (light, dark) in states.items():
        pictures = [command_key_picture(n, light, dark) for n in (16, 24, 32)]
        write(folder, f"ComSymb{form}.ico", ico_bytes(pictures))

    for base, (glyph, top, bottom) in BUTTONS.items():
        for form, inactive, pressed in (("A", False, False), ("I", True, False), ("AP", False, True),
                                        ("IP", True, True)):
            t, b = (greyed(top), greyed(bottom)) if inactive else (top, bottom)
            pictures = [title_button_picture(n, glyph, t, b, pressed) for n in (16, 20, 24, 32, 40)]
            write(folder, f"{base}{form}.ico", ico_bytes(pictures))

    write(folder, "Systray.ico", ico_bytes([systray_picture(n) for n in (16, 24, 32)]))


if __name__ == "__main__":
    main()
