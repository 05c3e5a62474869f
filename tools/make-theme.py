#!/usr/bin/env python3
"""Draws the shipped themes and writes their theme files and sounds.

Each theme is data (THEMES below): its name, its look keys (palette, fonts, sizes,
gradient and flat choices) and the shapes its pictures are drawn from. One code path
turns a theme into resources/themes/<name>/: <name>.wst (section [TARVEX] with the look
keys in the order of the settings catalogue, read from src/core/settings_catalogue.cpp),
the title, button, selection-bar and task-list bitmaps (24-bit .bmp), the arrow,
command-key, title-bar button and systray icons (.ico with 32-bit BGRA images), and a
wave file per menu sound event, named after the event ("Open Menu.wav" ...).
Everything is drawn and synthesised here from shapes with plain Python; the output is
deterministic.
Usage: make-theme.py [NAME ...] [--into FOLDER]   (all themes into resources/themes)"""
import math
import os
import re
import sys

from theme_drawing import (BLACK, WHITE, Picture, bmp_bytes, circle, colorref, ico_bytes, inside, lighten, mix,
                           polygon, polyline, ring, rgb, rounded_box, scaled, segment, shifted, soft, stops, union)
import theme_sounds

REPO = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
# The sizes of the arrow and command-key icons: the menus draw the command key 12 pixels
# and the sub-menu arrow 14 at 96 dots per inch (18 and 21 at 144), the scroll arrows 16
# (24); an icon of each size is drawn for it, so that none is scaled down by the system.
ICON_SIZES = (12, 14, 16, 18, 21, 24, 32)
BUTTON_SIZES = (16, 20, 24, 32, 40)
CRISP = 1  # one sample per pixel: hard edges


def grain_at(ix, iy):
    """A hash of the pixel in -0.5..0.5: paper grain, brushed metal, screen noise."""
    return ((ix * 73856093 ^ iy * 19349663) & 0xFFFF) / 65535.0 - 0.5


# ---------------------------------------------------------------------------
# Title bars: a colour run along the bar, maybe waves of light through it, grain or scan
# lines, a gloss, then lines along its edges (rows counted from the top, or from the
# bottom when negative).

def title_bar(width, height, art):
    p = Picture(width, height)
    run, waves, (gloss_top, gloss_bottom) = art["run"], art.get("waves", ()), art.get("gloss", (0.16, 0.22))
    grain, scan = art.get("grain", 0.0), art.get("scan", 0.0)

    def base(x, y):
        u, v = x / width, y / height
        c = stops(run, u)
        # Waves of light, like the curtains of an aurora.
        for phase, amp, strength in waves:
            centre = 0.55 + amp * math.sin(u * math.pi * 3.0 + phase)
            glow = math.exp(-((v - centre) / 0.16) ** 2) * (0.5 + 0.5 * math.sin(u * math.pi * 2.0 + phase))
            c = mix(c, art["wave_colour"], strength * glow)
        if grain:
            c = lighten(c, grain * grain_at(int(x), int(y)))
        # The gloss: lighter above the middle, darker towards the bottom.
        if gloss_top or gloss_bottom:
            if v < 0.5:
                c = lighten(c, gloss_top * (1.0 - v / 0.5))
            else:
                c = lighten(c, -gloss_bottom * (v - 0.5) / 0.5)
        if scan and int(y) % 2:
            c = lighten(c, -scan)
        return c, 1.0
    p.shade(base)
    for x in range(width):
        for row, colour, alpha in art.get("edges", ((0, WHITE, 0.28), (-1, BLACK, 0.45))):
            p.over(x, row % height, colour, alpha)
    return p


# ---------------------------------------------------------------------------
# Button backgrounds: a fine seamless texture that tiles over the whole menu body. Every
# pattern's period divides the tile's size, so neighbouring tiles join without a seam.

def texture(width, height, colour, art):
    p = Picture(width, height)
    noise, stripe, scan = art["noise"], art.get("stripe", 0.0), art.get("scan", 0.0)
    fibres = art.get("fibres", 0.0)

    def fn(x, y):
        ix, iy = int(x), int(y)
        grain = grain_at(ix, iy) * noise
        line = stripe if (ix + iy) % 6 == 0 else 0.0
        c = lighten(colour, grain + line)
        if fibres:
            # Paper fibres: faint streaks along the rows, a few pixels long.
            c = lighten(c, fibres * grain_at(ix // 7, iy * 3 + ix // 7 % 2))
        if scan and iy % 2:
            c = lighten(c, -scan)
        return c, 1.0
    p.shade(fn)
    for row, rule, alpha in art.get("rules", ()):
        for x in range(width):
            p.over(x, row % height, rule, alpha)
    return p


# ---------------------------------------------------------------------------
# Selection bars, stretched to the selected button: a glossy pill, a wash of ink with a
# mark at its start, a flat band, or a block of phosphor.

def selection_pill(width, height, art, backdrop):
    p = Picture(width, height, backdrop, 1.0)
    box = rounded_box(1.0, 1.0, width - 1.0, height - 1.0, 5.0)
    soft(p, shifted(box, 0.0, 1.0), BLACK, 0.45, 1.5)

    def paint(x, y):
        c = stops(art["run"], x / width)
        v = y / height
        return lighten(c, 0.18 * (1.0 - v / 0.5)) if v < 0.5 else lighten(c, -0.12 * (v - 0.5) / 0.5)
    p.fill(inside(box), paint)
    inner = rounded_box(2.0, 2.0, width - 2.0, height - 2.0, 4.0)
    p.fill(lambda x, y: box(x, y) <= 0.0 < inner(x, y) and y < height / 2, lambda x, y: WHITE, 0.25)
    return p


def selection_wash(width, height, art, backdrop):
    p = Picture(width, height, backdrop, 1.0)
    p.shade(lambda x, y: (stops(art["run"], x / width), 1.0))
    p.shade(lambda x, y: (WHITE, 0.0 if grain_at(int(x), int(y)) < 0.3 else 0.12))
    for x in range(width):
        p.over(x, height - 1, art["rule"], 0.55)
    mark_width, mark = art["mark"]
    for y in range(1, height - 1):
        for x in range(mark_width):
            p.over(x, y, mark, 1.0)
    return p


def selection_band(width, height, art, backdrop):
    p = Picture(width, height, backdrop, 1.0)
    p.shade(lambda x, y: (stops(art["run"], x / width), 1.0))
    for x in range(width):
        p.over(x, 0, WHITE, art.get("top", 0.0))
        p.over(x, height - 1, BLACK, art.get("bottom", 0.0))
    return p


def selection_phosphor(width, height, art, backdrop):
    """Lit text cells: bright in the middle, dimmer at the ends, scan lines across."""
    p = Picture(width, height, backdrop, 1.0)

    def fn(x, y):
        u, v = x / width, y / height
        c = lighten(art["colour"], 0.10 * math.sin(math.pi * v) - 0.06)
        c = lighten(c, -0.18 * max(0.0, abs(u - 0.5) - 0.35) / 0.15)
        if int(y) % 2:
            c = lighten(c, -art["scan"])
        return c, 1.0
    p.shade(fn)
    return p


SELECTIONS = {"pill": selection_pill, "wash": selection_wash, "band": selection_band, "phosphor": selection_phosphor}


# ---------------------------------------------------------------------------
# Arrows on a 16-pixel design grid, pointing right and turned: a gem with a lit upper facet
# and a shaded lower one over a soft shadow, a chevron of ink, a flat triangle, or a
# hard-edged one that glows.

def grid_of(s, direction):
    def to_grid(x, y):
        """Pixel to the grid of a right-pointing arrow: u along it, v across."""
        gx, gy = x / s, y / s
        return {"right": (gx, gy), "left": (16.0 - gx, gy), "down": (gy, gx), "up": (16.0 - gy, gx)}[direction]
    return to_grid


def arrow_picture(size, direction, light, dark, kind):
    s = size / 16.0
    to_grid = grid_of(s, direction)
    p = Picture(size, size)
    if kind == "chevron":
        chevron = polyline([(6.4, 4.0), (10.4, 8.0), (6.4, 12.0)], 1.45)
        p.fill(lambda x, y: chevron(*to_grid(x, y)) * s <= 0.0, lambda x, y: light)
        return p
    tip, back, half = {"gem": (12.2, 5.0, 5.4), "flat": (11.6, 5.6, 4.6), "crisp": (11.5, 5.0, 5.0)}[kind]
    triangle = polygon([(back, 8.0 - half), (tip, 8.0), (back, 8.0 + half)])

    def shape(x, y):
        u, v = to_grid(x, y)
        return triangle(u, v) * s

    if kind == "flat":
        p.fill(inside(shape), lambda x, y: light)
        return p
    if kind == "crisp":
        soft(p, shape, dark, 0.5, 2.2 * s)
        p.fill(inside(shape), lambda x, y: light, 1.0, CRISP)
        return p
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
# The command-key symbol: four loops joined by a square; raised over a soft shadow, drawn
# as a line of ink, flat, or hard-edged with a glow.

def command_key_picture(size, light, dark, kind):
    s = size / 16.0
    lo, hi, r = 5.6, 10.4, 2.25
    # The stroke, on the grid; never thinner than a pixel, or a small symbol fades.
    w = max({"raised": 1.6, "line": 1.15, "flat": 1.45, "crisp": 1.6}[kind], 1.05 / s)
    c_lo, c_hi = lo - r, hi + r

    def glyph():
        return union(
            segment(lo, c_lo, lo, c_hi, w), segment(hi, c_lo, hi, c_hi, w),
            segment(c_lo, lo, c_hi, lo, w), segment(c_lo, hi, c_hi, hi, w),
            ring(c_lo, c_lo, r, w, 90, 0), ring(c_hi, c_lo, r, w, 180, 90),
            ring(c_lo, c_hi, r, w, 0, 270), ring(c_hi, c_hi, r, w, 270, 180))

    shape = scaled(glyph, s)
    p = Picture(size, size)
    if kind == "raised":
        # A light glyph over a light shadow: at 16 pixels on a dark body a dark stroke vanishes.
        soft(p, shifted(shape, 0.8 * s, 1.0 * s), BLACK, 0.4, 1.2 * s)
        p.fill(inside(shape), lambda x, y: mix(lighten(light, 0.25), mix(light, dark, 0.3), y / size))
    elif kind == "crisp":
        soft(p, shape, dark, 0.45, 2.0 * s)
        p.fill(inside(shape), lambda x, y: light, 1.0, CRISP)
    else:
        p.fill(inside(shape), lambda x, y: light)
    return p


# ---------------------------------------------------------------------------
# Title-bar buttons on a 20-pixel design grid: a symbol on a glassy disc, in a ring of
# ink, on a flat tile, or in a hard-edged box. weight thins or thickens the strokes.

def close_glyph(weight=1.0):
    return union(segment(7.0, 7.0, 13.0, 13.0, 1.9 * weight), segment(13.0, 7.0, 7.0, 13.0, 1.9 * weight))


def rollup_glyph(weight=1.0):
    return polyline([(6.6, 11.8), (10.0, 8.4), (13.4, 11.8)], 1.9 * weight)


def ontop_glyph(weight=1.0):
    return union(segment(6.6, 6.6, 13.4, 6.6, 1.7 * weight), segment(10.0, 14.0, 10.0, 9.4, 1.7 * weight),
                 polyline([(7.4, 11.6), (10.0, 9.0), (12.6, 11.6)], 1.7 * weight))


def rotate_glyph(weight=1.0):
    head = polygon([(13.9, 4.9), (15.0, 9.6), (10.6, 8.3)])
    return union(ring(10.0, 10.0, 4.1, 1.8 * weight, 330, 250), head)


GLYPHS = {"Close": close_glyph, "Rollup": rollup_glyph, "OnTop": ontop_glyph, "Rotate": rotate_glyph}
# The forms of a title-bar button: active, inactive, and each pressed.
FORMS = (("A", False, False), ("I", True, False), ("AP", False, True), ("IP", True, True))


def glass_button(size, glyph_of, top, bottom, pressed):
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


def plain_button(size, glyph_of, colours, kind):
    """colours: (face, line, symbol); a face of None leaves the inside clear."""
    face, line, symbol = colours
    s = size / 20.0
    samples = CRISP if kind == "box" else 4
    outline = {"ring": lambda: circle(10.0, 10.0, 8.4), "tile": lambda: rounded_box(1.5, 1.5, 18.5, 18.5, 4.0),
               "box": lambda: rounded_box(2.0, 2.0, 18.0, 18.0, 0.0)}[kind]
    shape = scaled(outline, s)
    p = Picture(size, size)
    if face is not None:
        p.fill(inside(shape), lambda x, y: face, 1.0, samples)
    if line is not None:
        edge = 1.15 if kind == "ring" else 1.5
        p.fill(lambda x, y: -edge * s < shape(x, y) <= 0.0, lambda x, y: line, 1.0, samples)
    p.fill(inside(scaled(glyph_of, s)), lambda x, y: symbol, 1.0, samples)
    return p


def title_button_pictures(art, base, form, inactive, pressed):
    glyph = lambda: GLYPHS[base](art.get("weight", 1.0))
    if art["kind"] == "glass":
        top, bottom = art["colours"][base]
        t, b = (greyed(top), greyed(bottom)) if inactive else (top, bottom)
        return [glass_button(n, GLYPHS[base], t, b, pressed) for n in BUTTON_SIZES]
    colours = art["forms"][form]
    if base == "Close" and "close" in art:
        colours = art["close"].get(form, colours)
    return [plain_button(n, glyph, colours, art["kind"]) for n in BUTTON_SIZES]


# ---------------------------------------------------------------------------
# The systray button's icon: a small clock on a tile.

def systray_picture(size, art):
    s = size / 16.0
    samples = CRISP if art.get("crisp") else 4
    tile = scaled(lambda: rounded_box(0.8, 0.8, 15.2, 15.2, art.get("radius", 3.4)), s)
    p = Picture(size, size)
    p.fill(inside(tile), lambda x, y: stops(art["tile"], (x + y) / (2.0 * size)), 1.0, samples)
    if "border" in art:
        p.fill(lambda x, y: -1.0 * s < tile(x, y) <= 0.0, lambda x, y: art["border"], 1.0, samples)
    face = scaled(lambda: ring(8.0, 8.0, 4.6, 1.3), s)
    hands = scaled(lambda: polyline([(8.0, 5.0), (8.0, 8.0), (10.4, 9.4)], 1.2), s)
    if "glow" in art:
        soft(p, union(face, hands), art["glow"], 0.5, 1.6 * s)
    p.fill(inside(union(face, hands)), lambda x, y: art["hands"], 1.0, samples)
    return p


# ---------------------------------------------------------------------------
# The themes. Colours are "#RRGGBB"; the theme file writes them as the catalogue does.

# Keys that every shipped theme sets alike: how the menus behave rather than how they look.
COMMON_KEYS = {
    "ButtonTransparent": False, "ButtonInactiveTransparent": 0, "ButtonIcons": True, "ButtonIconSize": 16,
    "TwinScrollButtons": True, "Menu3DArrows": 2, "SelBar": True, "SelBarFollowMouse": True,
    "MenuAutoDropDown": False, "MenuDropDownDelay": 400, "MenuAlignWithTitle": 0, "MenuHotKeys": 3,
    "MenuAutoScroll": False, "ButtonAlignment": 0, "TitlePosition": 0, "TitleTextType": 2, "ButtonTextType": 2,
    "TitleShowInactive": True, "ButtonShowInactive": True, "ScrollShowSelBar": False, "MenuScrollSpeed": 50,
    "ShowMoreOnTop": True, "MenuFolderPosition": 0, "MenuHorizontalStyle": 0, "SelBarBlink": False,
    "ButtonStyle": 2, "HotkeyStyle": 2, "CloseStatus": 3, "RollUpStatus": 3, "RotateStatus": 3,
    "AlwaysOnTopStatus": 3, "MenuIsGradientTarget": True, "InactiveMenuIsGradientTarget": True,
    "TaskbarStyle": 0, "TaskbarOrientation": 1, "TaskbarBackgroundType": 0, "TaskbarGradientType": 0,
    "TaskbarIconSize": 1, "TaskbarTileBitmap": False, "TaskbarWrapGradient": False, "TaskbarFrame": 1,
    "MenuMaxNoItems": 9999, "MenuToggleSubMenus": False, "Button3DStyle": 0, "SysTileWallpaper": "",
    "HorzNoTitlebar": True, "HorzLockWidth": True, "HorzAutoRotate": False, "HorzButtonsOnly": False,
    "MenuOverlapMenus": False, "TitleOverlap": True, "TitleInactiveOverlap": True,
}

# The arrows a theme draws, by file stem: direction and forms.
ARROWS = {"Arrow": ("right", "A I AS IS"), "HzArrow": ("down", "A I AS IS"), "UpArrow": ("up", "A I"),
          "DnArrow": ("down", "A I AS IS"), "LfArrow": ("left", "A I"), "RgArrow": ("right", "A I")}

# --- Aurora: deep indigo to teal with waves of light, glassy buttons, a textured dark body.
INDIGO, VIOLET, BLUE, TEAL, MINT = rgb("#241A52"), rgb("#5A36C9"), rgb("#1C6FB8"), rgb("#12A89A"), rgb("#7CF2D9")
AURORA_BODY, AURORA_BODY_INACTIVE = rgb("#1C1F2D"), rgb("#181A24")
SLATE, SLATE_DARK = rgb("#474C63"), rgb("#2A2E3E")
AURORA_RUN = [(0.0, INDIGO), (0.42, VIOLET), (0.78, BLUE), (1.0, TEAL)]
SLATES = [(0.0, rgb("#2B2F40")), (0.5, SLATE), (1.0, rgb("#3A4056"))]

AURORA = {
    "name": "Aurora",
    "keys": {
        # Title bar: the stretched aurora picture, a gradient where it is switched off.
        "TitleGradient": True, "TitleColor": "#3A2A8A", "TitleColor2": "#12A89A", "TitleVSize": 24,
        "TitleFont": "Tahoma", "TitleFontSize": 9, "TitleFontColor": "#FFFFFF", "TitleFontBold": True,
        "TitleFontItalic": False, "TitleFlat": False, "Title3DColor1": "#7C6FE0", "Title3DColor2": "#0B0C13",
        "TitleAlignment": 0,
        # Buttons: a fine texture tiled over the whole menu body.
        "ButtonBitmapToMenu": True, "ButtonInactiveBitmapToMenu": True, "ButtonGradient": True,
        "ButtonColor": "#1C1F2D", "ButtonColor2": "#141621", "ButtonVSize": 24, "ButtonFont": "Tahoma",
        "ButtonFontSize": 9, "ButtonFontColor": "#E4E7F2", "ButtonFontBold": False, "ButtonFontItalic": False,
        "ButtonFlat": 1, "Button3DColor1": "#3B4060", "Button3DColor2": "#0B0C13",
        # Selection bar: a gradient from teal to violet.
        "SelBarGradient": 1, "SelBarGradientType": 0, "SelBarWrapGradient": False, "SelBarTileBitmap": False,
        "SelBarColor": "#13B5A3", "SelBarColor2": "#7B5CF5", "SelBarTextColor": "#FFFFFF",
        "ButtonMaxWidth": 320, "ButtonMinWidth": 200, "ButtonTextOfset": 8,
        # Inactive menus: the slate title picture and a gradient down the body.
        "TitleBitmap": True, "ButtonBitmap": True, "TitleTileBitmap": False, "ButtonTileBitmap": True,
        "TitleGradientType": 0, "ButtonGradientType": 1, "TitleWrapGradient": False, "ButtonWrapGradient": False,
        "TitleInactiveBitmap": True, "ButtonInactiveBitmap": False, "TitleInactiveTileBitmap": False,
        "ButtonInactiveTileBitmap": True, "TitleInactiveGradientType": 0, "ButtonInactiveGradientType": 1,
        "TitleInactiveWrapGradient": True, "ButtonInactiveWrapGradient": False,
        "TitleInactiveFontColor": "#C3C7D6", "ButtonInactiveFontColor": "#8E94AA", "TitleInactiveGradient": True,
        "ButtonInactiveGradient": True, "TitleInactiveColor": "#2B2F40", "ButtonInactiveColor": "#1E2130",
        "TitleInactiveColor2": "#474C63", "ButtonInactiveColor2": "#10121A", "TitleInactiveFlat": False,
        "ButtonInactiveFlat": 1, "TitleInactive3DColor1": "#5A5F78", "ButtonInactive3DColor1": "#3B4060",
        "TitleInactive3DColor2": "#0B0C13", "ButtonInactive3DColor2": "#0B0C13",
        # All four title-bar buttons: rotate at the left end, close, roll-up and on-top from the right.
        "ClosePosition": 0, "RollUpPosition": 1, "RotatePosition": -1, "AlwaysOnTopPosition": 2,
        # Menus unroll quickly as they open.
        "AnimationType": 1, "AnimationHType": 1, "AnimationSpeed": 2,
        # Task list and systray in the same colours.
        "TaskbarColor1": "#1C1F2D", "TaskbarColor2": "#2A2E3E", "TaskbarFrameColor1": "#4B4F6E",
        "TaskbarFrameColor2": "#0B0C13",
        # A 3D frame: a light line on the top and left, a dark one on the bottom and right.
        "MenuNoFrames": 0, "Menu3DFrame": True, "MenuFrameColor": "#4B4F6E", "MenuFrameColor2": "#0B0C13",
        "Menu3DFrame2": False, "MenuFrameColor3": "#2A2E42", "MenuFrameColor4": "#101118", "MenuFrameToBody": False,
    },
    "title": {"run": AURORA_RUN, "waves": ((0.0, 0.22, 0.22), (2.1, 0.18, 0.14)), "wave_colour": MINT},
    "title_inactive": {"run": SLATES},
    "title_size": (256, 24),
    "body": (48, 48, AURORA_BODY, {"noise": 0.035, "stripe": 0.025}),
    "body_inactive": (48, 48, AURORA_BODY_INACTIVE, {"noise": 0.025, "stripe": 0.02}),
    "selection": ("pill", (200, 24), {"run": [(0.0, rgb("#13B5A3")), (1.0, rgb("#7B5CF5"))]}, AURORA_BODY),
    "selection_inactive": ("pill", (200, 24), {"run": SLATES}, AURORA_BODY_INACTIVE),
    "tasks": {"run": [(0.0, SLATE_DARK), (1.0, AURORA_BODY)]},
    # Arrows and the command key: (light, dark) per form.
    "icon_sizes": (16, 24, 32),  # as first shipped: the menus scale them to 12 and 14 pixels
    "symbols": {"arrow": "gem", "command": "raised", "A": (rgb("#8FF0E2"), rgb("#1F9C8F")),
                "I": (rgb("#A4A9BD"), rgb("#5D6277")), "AS": (WHITE, rgb("#D9D2FF")),
                "IS": (rgb("#EDEDF5"), rgb("#B5B5C8"))},
    "buttons": {"kind": "glass", "colours": {
        "Close": (rgb("#F2555A"), rgb("#B82E36")), "Rollup": (rgb("#F6BE4F"), rgb("#C9820F")),
        "OnTop": (rgb("#33D6C0"), rgb("#118E83")), "Rotate": (rgb("#A285FF"), rgb("#5E3CD6"))}},
    "systray": {"tile": AURORA_RUN, "hands": WHITE},
    "voice": "glass",
}

# --- Paper: warm off-white paper, ink-blue text, thin ruled lines, quiet line symbols.
PAPER_INK = "#1D3557"
PAPER = {
    "name": "Paper",
    "keys": {
        "TitleGradient": False, "TitleColor": "#F1EADB", "TitleColor2": "#E8DFCB", "TitleVSize": 26,
        "TitleFont": "Georgia", "TitleFontSize": 10, "TitleFontColor": PAPER_INK, "TitleFontBold": True,
        "TitleFontItalic": False, "TitleFlat": True, "Title3DColor1": "#FFFFFF", "Title3DColor2": "#B9AE98",
        "TitleAlignment": 0,
        # Buttons: ruled paper tiled over the body, one rule under every button.
        "ButtonBitmapToMenu": True, "ButtonInactiveBitmapToMenu": True, "ButtonGradient": False,
        "ButtonColor": "#FAF6EE", "ButtonColor2": "#F2ECE0", "ButtonVSize": 22, "ButtonFont": "Georgia",
        "ButtonFontSize": 9, "ButtonFontColor": "#22314A", "ButtonFontBold": False, "ButtonFontItalic": False,
        "ButtonFlat": 1, "Button3DColor1": "#FFFFFF", "Button3DColor2": "#C9C0AE",
        # Selection bar: a pale wash of blue ink with a mark at its start.
        "SelBarGradient": 2, "SelBarGradientType": 0, "SelBarWrapGradient": False, "SelBarTileBitmap": False,
        "SelBarColor": "#DCE6F1", "SelBarColor2": "#CCDAEB", "SelBarTextColor": "#0F2440",
        "ButtonMaxWidth": 320, "ButtonMinWidth": 200, "ButtonTextOfset": 10,
        "TitleBitmap": True, "ButtonBitmap": True, "TitleTileBitmap": False, "ButtonTileBitmap": True,
        "TitleGradientType": 0, "ButtonGradientType": 1, "TitleWrapGradient": False, "ButtonWrapGradient": False,
        "TitleInactiveBitmap": True, "ButtonInactiveBitmap": True, "TitleInactiveTileBitmap": False,
        "ButtonInactiveTileBitmap": True, "TitleInactiveGradientType": 0, "ButtonInactiveGradientType": 1,
        "TitleInactiveWrapGradient": False, "ButtonInactiveWrapGradient": False,
        "TitleInactiveFontColor": "#66728A", "ButtonInactiveFontColor": "#5C687C", "TitleInactiveGradient": False,
        "ButtonInactiveGradient": False, "TitleInactiveColor": "#ECE7DC", "ButtonInactiveColor": "#F5F2EB",
        "TitleInactiveColor2": "#E3DDD0", "ButtonInactiveColor2": "#EDE9E0", "TitleInactiveFlat": True,
        "ButtonInactiveFlat": 1, "TitleInactive3DColor1": "#FFFFFF", "ButtonInactive3DColor1": "#FFFFFF",
        "TitleInactive3DColor2": "#BDB5A6", "ButtonInactive3DColor2": "#C9C0AE",
        # The title-bar buttons together at the right end, close outermost.
        "ClosePosition": 0, "RollUpPosition": 1, "RotatePosition": 3, "AlwaysOnTopPosition": 2,
        "AnimationType": 4, "AnimationHType": 4, "AnimationSpeed": 2,
        "TaskbarColor1": "#F6F1E6", "TaskbarColor2": "#ECE5D6", "TaskbarFrameColor1": "#FFFFFF",
        "TaskbarFrameColor2": "#B3A890",
        # One thin line round the sheet.
        "MenuNoFrames": 0, "Menu3DFrame": False, "MenuFrameColor": "#A79C86", "MenuFrameColor2": "#A79C86",
        "Menu3DFrame2": False, "MenuFrameColor3": "#E9E2D3", "MenuFrameColor4": "#E9E2D3", "MenuFrameToBody": False,
        # The title bar inside the frame, at its own height: its picture is not stretched.
        "TitleOverlap": False, "TitleInactiveOverlap": False,
    },
    # A sheet with a double rule of ink under it; the inactive one greyer, its rule single.
    "title": {"run": [(0.0, rgb("#F4EDDF")), (1.0, rgb("#EEE5D2"))], "gloss": (0.0, 0.0), "grain": 0.05,
              "edges": ((-4, rgb(PAPER_INK), 0.85), (-1, rgb(PAPER_INK), 0.85))},
    "title_inactive": {"run": [(0.0, rgb("#EFEAE0")), (1.0, rgb("#E8E2D6"))], "gloss": (0.0, 0.0), "grain": 0.04,
                       "edges": ((-1, rgb("#8C95A3"), 0.8),)},
    "title_size": (200, 26),
    "body": (48, 22, rgb("#FAF6EE"), {"noise": 0.03, "fibres": 0.025, "rules": ((-1, rgb("#9FB4CF"), 0.45),)}),
    "body_inactive": (48, 22, rgb("#F5F2EB"), {"noise": 0.025, "fibres": 0.02,
                                               "rules": ((-1, rgb("#B9BDC4"), 0.4),)}),
    "selection": ("wash", (200, 22), {"run": [(0.0, rgb("#D3E0EF")), (1.0, rgb("#E2EAF4"))],
                                      "rule": rgb("#5F7FA8"), "mark": (3, rgb(PAPER_INK))}, rgb("#FAF6EE")),
    "selection_inactive": ("wash", (200, 22), {"run": [(0.0, rgb("#E3DFD6")), (1.0, rgb("#ECE8E0"))],
                                               "rule": rgb("#9AA1AC"), "mark": (3, rgb("#8C95A3"))},
                           rgb("#F5F2EB")),
    "tasks": {"run": [(0.0, rgb("#F6F1E6")), (1.0, rgb("#EEE6D5"))], "gloss": (0.0, 0.0), "grain": 0.04,
              "edges": ((0, rgb("#FFFFFF"), 0.9), (-1, rgb("#A79C86"), 1.0))},
    "symbols": {"arrow": "chevron", "command": "line", "A": (rgb("#2C4A73"), None), "I": (rgb("#8790A0"), None),
                "AS": (rgb("#0F2440"), None), "IS": (rgb("#4E5A6C"), None)},
    # Rings of ink; pressed, the ring fills and the symbol turns the colour of the paper.
    "buttons": {"kind": "ring", "weight": 0.72, "forms": {
        "A": (None, rgb("#3A5A85"), rgb(PAPER_INK)), "I": (None, rgb("#A3AAB6"), rgb("#8C95A3")),
        "AP": (rgb(PAPER_INK), rgb(PAPER_INK), rgb("#F4EDDF")), "IP": (rgb("#8C95A3"), rgb("#8C95A3"),
                                                                      rgb("#EFEAE0"))},
        "close": {"A": (None, rgb("#3A5A85"), rgb("#8E2A2A")), "AP": (rgb("#8E2A2A"), rgb("#8E2A2A"),
                                                                     rgb("#F4EDDF"))}},
    "systray": {"tile": [(0.0, rgb("#FAF6EE")), (1.0, rgb("#EDE4D0"))], "border": rgb("#8C8170"),
                "hands": rgb(PAPER_INK)},
    "voice": "wood",
}

# --- Graphite: charcoal, flat, one bright accent of lime.
GRAPHITE_ACCENT = "#A6E22E"
GRAPHITE_DARK = "#15171A"
GRAPHITE = {
    "name": "Graphite",
    "keys": {
        "TitleGradient": False, "TitleColor": "#1B1C1F", "TitleColor2": "#232428", "TitleVSize": 26,
        "TitleFont": "Segoe UI", "TitleFontSize": 9, "TitleFontColor": "#F2F3F5", "TitleFontBold": True,
        "TitleFontItalic": False, "TitleFlat": True, "Title3DColor1": "#3A3C42", "Title3DColor2": "#0C0D0F",
        "TitleAlignment": 0,
        "ButtonBitmapToMenu": True, "ButtonInactiveBitmapToMenu": True, "ButtonGradient": False,
        "ButtonColor": "#26282C", "ButtonColor2": "#222428", "ButtonVSize": 24, "ButtonFont": "Segoe UI",
        "ButtonFontSize": 9, "ButtonFontColor": "#DADDE2", "ButtonFontBold": False, "ButtonFontItalic": False,
        "ButtonFlat": 1, "Button3DColor1": "#3A3C42", "Button3DColor2": "#0C0D0F",
        # Selection bar: a flat band of the accent, dark text on it.
        "SelBarGradient": 2, "SelBarGradientType": 0, "SelBarWrapGradient": False, "SelBarTileBitmap": False,
        "SelBarColor": GRAPHITE_ACCENT, "SelBarColor2": "#93CF1F", "SelBarTextColor": GRAPHITE_DARK,
        "ButtonMaxWidth": 320, "ButtonMinWidth": 200, "ButtonTextOfset": 10,
        "TitleBitmap": True, "ButtonBitmap": True, "TitleTileBitmap": False, "ButtonTileBitmap": True,
        "TitleGradientType": 0, "ButtonGradientType": 1, "TitleWrapGradient": False, "ButtonWrapGradient": False,
        "TitleInactiveBitmap": True, "ButtonInactiveBitmap": True, "TitleInactiveTileBitmap": False,
        "ButtonInactiveTileBitmap": True, "TitleInactiveGradientType": 0, "ButtonInactiveGradientType": 1,
        "TitleInactiveWrapGradient": False, "ButtonInactiveWrapGradient": False,
        "TitleInactiveFontColor": "#8C9099", "ButtonInactiveFontColor": "#858A93", "TitleInactiveGradient": False,
        "ButtonInactiveGradient": False, "TitleInactiveColor": "#1F2023", "ButtonInactiveColor": "#222326",
        "TitleInactiveColor2": "#232428", "ButtonInactiveColor2": "#1F2023", "TitleInactiveFlat": True,
        "ButtonInactiveFlat": 1, "TitleInactive3DColor1": "#34363B", "ButtonInactive3DColor1": "#34363B",
        "TitleInactive3DColor2": "#0C0D0F", "ButtonInactive3DColor2": "#0C0D0F",
        "ClosePosition": 0, "RollUpPosition": 2, "RotatePosition": 3, "AlwaysOnTopPosition": 1,
        "AnimationType": 2, "AnimationHType": 2, "AnimationSpeed": 2,
        "TaskbarColor1": "#222428", "TaskbarColor2": "#1B1C1F", "TaskbarFrameColor1": "#3A3C42",
        "TaskbarFrameColor2": "#0C0D0F",
        # A dark outer line and a faint lighter one inside it.
        "MenuNoFrames": 0, "Menu3DFrame": False, "MenuFrameColor": "#0C0D0F", "MenuFrameColor2": "#0C0D0F",
        "Menu3DFrame2": True, "MenuFrameColor3": "#3A3D44", "MenuFrameColor4": "#2E3035", "MenuFrameToBody": False,
        # The title bar inside the frame, at its own height: its picture is not stretched.
        "TitleOverlap": False, "TitleInactiveOverlap": False,
    },
    # Flat charcoal underlined in the accent, a dark line under that.
    "title": {"run": [(0.0, rgb("#1B1C1F")), (1.0, rgb("#202125"))], "gloss": (0.0, 0.0), "grain": 0.02,
              "edges": ((-3, rgb(GRAPHITE_ACCENT), 1.0), (-2, rgb(GRAPHITE_ACCENT), 1.0),
                        (-1, rgb("#0C0D0F"), 1.0))},
    "title_inactive": {"run": [(0.0, rgb("#1F2023")), (1.0, rgb("#232428"))], "gloss": (0.0, 0.0), "grain": 0.02,
                       "edges": ((-3, rgb("#4A4D54"), 1.0), (-2, rgb("#4A4D54"), 1.0), (-1, rgb("#0C0D0F"), 1.0))},
    "title_size": (200, 26),
    "body": (48, 48, rgb("#26282C"), {"noise": 0.025}),
    "body_inactive": (48, 48, rgb("#222326"), {"noise": 0.02}),
    "selection": ("band", (200, 24), {"run": [(0.0, rgb(GRAPHITE_ACCENT)), (1.0, rgb("#9AD82A"))], "top": 0.25,
                                      "bottom": 0.12}, rgb("#26282C")),
    "selection_inactive": ("band", (200, 24), {"run": [(0.0, rgb("#878C95")), (1.0, rgb("#7E838C"))],
                                               "top": 0.2}, rgb("#222326")),
    "tasks": {"run": [(0.0, rgb("#222428")), (1.0, rgb("#1B1C1F"))], "gloss": (0.0, 0.0), "grain": 0.02,
              "edges": ((0, rgb("#3A3C42"), 1.0), (-1, rgb("#0C0D0F"), 1.0))},
    "symbols": {"arrow": "flat", "command": "flat", "A": (rgb("#BFC3CA"), None), "I": (rgb("#6C7079"), None),
                "AS": (rgb(GRAPHITE_DARK), None), "IS": (rgb(GRAPHITE_DARK), None)},
    # Flat tiles; pressed, the tile takes the accent.
    "buttons": {"kind": "tile", "weight": 0.8, "forms": {
        "A": (rgb("#2E3035"), None, rgb("#E4E6EA")), "I": (rgb("#26272B"), None, rgb("#6F737B")),
        "AP": (rgb(GRAPHITE_ACCENT), None, rgb(GRAPHITE_DARK)), "IP": (rgb("#3A3C42"), None, rgb("#A0A4AC"))},
        "close": {"AP": (rgb("#F0505A"), None, rgb("#FFFFFF"))}},
    "systray": {"tile": [(0.0, rgb("#2A2C31")), (1.0, rgb("#1B1C1F"))], "hands": rgb(GRAPHITE_ACCENT)},
    "voice": "tap",
}

# --- Amber: a terminal of amber phosphor on black, inverse title and selection, hard edges.
AMBER_LIT = "#FFB000"
AMBER_INK = "#1A1000"
AMBER_BLACK = rgb("#0F0A02")
AMBER = {
    "name": "Amber",
    "keys": {
        "TitleGradient": False, "TitleColor": AMBER_LIT, "TitleColor2": "#E89E00", "TitleVSize": 24,
        "TitleFont": "Courier New", "TitleFontSize": 10, "TitleFontColor": AMBER_INK, "TitleFontBold": True,
        "TitleFontItalic": False, "TitleFlat": True, "Title3DColor1": "#FFD36B", "Title3DColor2": "#6B4700",
        "TitleAlignment": 0,
        "ButtonBitmapToMenu": True, "ButtonInactiveBitmapToMenu": True, "ButtonGradient": False,
        "ButtonColor": "#0F0A02", "ButtonColor2": "#0A0701", "ButtonVSize": 22, "ButtonFont": "Courier New",
        "ButtonFontSize": 10, "ButtonFontColor": AMBER_LIT, "ButtonFontBold": True, "ButtonFontItalic": False,
        "ButtonFlat": 1, "Button3DColor1": "#6B4700", "Button3DColor2": "#000000",
        # Selection bar: inverse video, dark text on lit phosphor.
        "SelBarGradient": 2, "SelBarGradientType": 0, "SelBarWrapGradient": False, "SelBarTileBitmap": False,
        "SelBarColor": AMBER_LIT, "SelBarColor2": "#E89E00", "SelBarTextColor": AMBER_INK,
        "ButtonMaxWidth": 320, "ButtonMinWidth": 200, "ButtonTextOfset": 10,
        "TitleBitmap": True, "ButtonBitmap": True, "TitleTileBitmap": False, "ButtonTileBitmap": True,
        "TitleGradientType": 0, "ButtonGradientType": 1, "TitleWrapGradient": False, "ButtonWrapGradient": False,
        "TitleInactiveBitmap": True, "ButtonInactiveBitmap": True, "TitleInactiveTileBitmap": False,
        "ButtonInactiveTileBitmap": True, "TitleInactiveGradientType": 0, "ButtonInactiveGradientType": 1,
        "TitleInactiveWrapGradient": False, "ButtonInactiveWrapGradient": False,
        "TitleInactiveFontColor": "#B37B00", "ButtonInactiveFontColor": "#A87200", "TitleInactiveGradient": False,
        "ButtonInactiveGradient": False, "TitleInactiveColor": "#0F0A02", "ButtonInactiveColor": "#0C0802",
        "TitleInactiveColor2": "#0A0701", "ButtonInactiveColor2": "#0A0701", "TitleInactiveFlat": True,
        "ButtonInactiveFlat": 1, "TitleInactive3DColor1": "#6B4700", "ButtonInactive3DColor1": "#6B4700",
        "TitleInactive3DColor2": "#000000", "ButtonInactive3DColor2": "#000000",
        "ClosePosition": 0, "RollUpPosition": 1, "RotatePosition": 3, "AlwaysOnTopPosition": 2,
        "AnimationType": 1, "AnimationHType": 1, "AnimationSpeed": 3,
        "TaskbarColor1": "#0F0A02", "TaskbarColor2": "#1A1204", "TaskbarFrameColor1": "#B37B00",
        "TaskbarFrameColor2": "#6B4700",
        # An amber line round the screen, a black one inside it.
        "MenuNoFrames": 0, "Menu3DFrame": False, "MenuFrameColor": "#C98A00", "MenuFrameColor2": "#C98A00",
        "Menu3DFrame2": True, "MenuFrameColor3": "#000000", "MenuFrameColor4": "#000000", "MenuFrameToBody": False,
        # The title bar inside the frame, at its own height: its picture is not stretched.
        "TitleOverlap": False, "TitleInactiveOverlap": False,
    },
    # The active title is a lit status line; the inactive one is dark between amber rules.
    "title": {"run": [(0.0, rgb("#FFB81A")), (0.5, rgb(AMBER_LIT)), (1.0, rgb("#F2A500"))], "gloss": (0.06, 0.08),
              "scan": 0.07, "edges": ((0, rgb("#FFD36B"), 0.7), (-1, rgb("#6B4700"), 0.8))},
    "title_inactive": {"run": [(0.0, AMBER_BLACK), (1.0, AMBER_BLACK)], "gloss": (0.0, 0.0), "scan": 0.3,
                       "edges": ((0, rgb("#8A5E00"), 1.0), (-1, rgb("#8A5E00"), 1.0))},
    "title_size": (200, 24),
    "body": (48, 48, AMBER_BLACK, {"noise": 0.08, "scan": 0.35}),
    "body_inactive": (48, 48, rgb("#0C0802"), {"noise": 0.06, "scan": 0.35}),
    "selection": ("phosphor", (200, 22), {"colour": rgb(AMBER_LIT), "scan": 0.07}, AMBER_BLACK),
    "selection_inactive": ("phosphor", (200, 22), {"colour": rgb("#B37B00"), "scan": 0.07}, AMBER_BLACK),
    "tasks": {"run": [(0.0, AMBER_BLACK), (1.0, rgb("#140D02"))], "gloss": (0.0, 0.0), "scan": 0.3,
              "edges": ((0, rgb("#C98A00"), 1.0), (-1, rgb("#6B4700"), 1.0))},
    # Hard-edged symbols with a glow of their own colour; dark under the lit selection.
    "symbols": {"arrow": "crisp", "command": "crisp", "A": (rgb(AMBER_LIT), rgb("#FF8C00")),
                "I": (rgb("#A87200"), rgb("#6B4700")), "AS": (rgb(AMBER_INK), rgb("#FFD36B")),
                "IS": (rgb(AMBER_INK), rgb("#D9A030"))},
    # Boxes drawn in dark ink on the lit title; on the dark inactive title, in dim amber.
    "buttons": {"kind": "box", "forms": {
        "A": (None, rgb(AMBER_INK), rgb(AMBER_INK)), "I": (None, rgb("#8A5E00"), rgb("#B37B00")),
        "AP": (rgb(AMBER_INK), rgb(AMBER_INK), rgb(AMBER_LIT)), "IP": (rgb("#8A5E00"), rgb("#8A5E00"),
                                                                     rgb(AMBER_INK))}},
    "systray": {"tile": [(0.0, AMBER_BLACK), (1.0, AMBER_BLACK)], "border": rgb("#C98A00"), "radius": 1.0,
                "hands": rgb(AMBER_LIT), "glow": rgb("#FF8C00"), "crisp": True},
    "voice": "beep",
}

THEMES = [AURORA, PAPER, GRAPHITE, AMBER]


# ---------------------------------------------------------------------------
# The theme file: the look keys of the catalogue, in its order.

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


def theme_values(theme):
    values = dict(COMMON_KEYS)
    values.update(theme["keys"])
    values.update({"GenThemeAuthor": "Tarvex", "GenThemeName": theme["name"],
                   "BitmapsFolder": "Themes\\" + theme["name"]})
    return values


def theme_file(theme):
    keys = look_keys()
    values = theme_values(theme)
    names = [name for name, _ in keys]
    missing = [n for n in names if n not in values]
    unknown = [n for n in values if n not in names]
    if missing or unknown or names[-1] != "TitleInactiveOverlap":
        sys.exit(f"{theme['name']}: theme keys out of step with the catalogue: missing {missing}, unknown {unknown}")
    lines = ["[TARVEX]"] + [f"{name}={value_text(name, kind, values[name])}" for name, kind in keys]
    # An ANSI profile file with Windows line ends, as the profile functions read it.
    return ("\r\n".join(lines) + "\r\n").encode("ascii")


# ---------------------------------------------------------------------------

def write(folder, name, data):
    with open(os.path.join(folder, name), "wb") as f:
        f.write(data)


def selection_picture(selection):
    kind, (width, height), art, backdrop = selection
    return SELECTIONS[kind](width, height, art, backdrop)


def draw_theme(theme, folder):
    os.makedirs(folder, exist_ok=True)
    write(folder, theme["name"] + ".wst", theme_file(theme))

    width, height = theme["title_size"]
    title_active = title_bar(width, height, theme["title"])
    title_inactive = title_bar(width, height, theme["title_inactive"])
    write(folder, "TitleA.bmp", bmp_bytes(title_active))
    write(folder, "TitleI.bmp", bmp_bytes(title_inactive))
    # The turned title reads upwards: the run starts at the bottom, the gloss is at the left.
    write(folder, "VTitleA.bmp", bmp_bytes(title_bar(width, height, theme["title"]).rotated_left()))
    write(folder, "VTitleI.bmp", bmp_bytes(title_bar(width, height, theme["title_inactive"]).rotated_left()))
    write(folder, "ButtonA.bmp", bmp_bytes(texture(*theme["body"])))
    write(folder, "ButtonI.bmp", bmp_bytes(texture(*theme["body_inactive"])))
    write(folder, "ButtonAS.bmp", bmp_bytes(selection_picture(theme["selection"])))
    write(folder, "ButtonIS.bmp", bmp_bytes(selection_picture(theme["selection_inactive"])))
    write(folder, "Tasks.bmp", bmp_bytes(title_bar(256, 40, theme["tasks"])))

    symbols = theme["symbols"]
    icon_sizes = theme.get("icon_sizes", ICON_SIZES)
    for stem, (direction, forms) in ARROWS.items():
        for form in forms.split():
            light, dark = symbols[form]
            pictures = [arrow_picture(n, direction, light, dark, symbols["arrow"]) for n in icon_sizes]
            write(folder, f"{stem}{form}.ico", ico_bytes(pictures))
    for form in ("A", "I", "AS", "IS"):
        light, dark = symbols[form]
        pictures = [command_key_picture(n, light, dark, symbols["command"]) for n in icon_sizes]
        write(folder, f"ComSymb{form}.ico", ico_bytes(pictures))

    for base in ("Close", "Rollup", "OnTop", "Rotate"):
        for form, inactive, pressed in FORMS:
            pictures = title_button_pictures(theme["buttons"], base, form, inactive, pressed)
            write(folder, f"{base}{form}.ico", ico_bytes(pictures))

    write(folder, "Systray.ico", ico_bytes([systray_picture(n, theme["systray"]) for n in (16, 24, 32)]))
    theme_sounds.write_sounds(folder, theme_sounds.VOICES[theme["voice"]], write)


def main():
    args = sys.argv[1:]
    into = os.path.join(REPO, "resources", "themes")
    if "--into" in args:
        at = args.index("--into")
        into = args[at + 1]
        del args[at:at + 2]
    by_name = {theme["name"]: theme for theme in THEMES}
    unknown = [name for name in args if name not in by_name]
    if unknown:
        sys.exit(f"no theme named {', '.join(unknown)}; the themes are {', '.join(by_name)}")
    for name in args or list(by_name):
        draw_theme(by_name[name], os.path.join(into, name))


if __name__ == "__main__":
    main()
