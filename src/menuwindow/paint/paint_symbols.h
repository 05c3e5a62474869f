// The drawn symbols of a button: the sub-menu and scroll arrows and the command-key
// symbol. The bitmap styles of both are drawn like the first drawn style until the
// theme's pictures are loaded by the window, so a missing picture leaves a symbol.
#pragma once

#include "menuwindow/paint/draw_list.h"
#include "menuwindow/look/menu_look.h"

#include <cstdint>

namespace MenuWindow {

enum class Direction { Up, Down, Left, Right };

// Menu3DArrows: 0 "3D", 1 "flat", 2 "bitmap".
enum class ArrowStyle { ThreeD, Flat };
ArrowStyle ArrowStyleOf(std::int16_t menu3DArrows);

// HotkeyStyle: 0 "dimple", 1 "apple", 2 "bitmap".
enum class HotkeySymbolStyle { Dimple, Apple };
HotkeySymbolStyle HotkeySymbolStyleOf(std::int16_t hotkeyStyle);

// The arrow's size at 96 DPI: it reaches this far from its middle along its base, and
// as far from the base to its tip.
inline constexpr int kArrowReach = 4;
// The command-key symbols, at 96 DPI: the dimple's diameter, the apple symbol's square
// and the diameter of its four loops.
inline constexpr int kDimpleSize = 8;
inline constexpr int kAppleSize = 10;
inline constexpr int kAppleLoop = 4;

// An arrow centred in box, pointing in the direction: in 3D style a dark arrow with a
// light copy one pixel below and to the right of it (the part's edge colours), in flat
// style one arrow in the part's text colour.
void AddArrow(DrawList& list, Rect box, Direction direction, ArrowStyle style, const PartLook& look, int dpi);

// The command-key symbol at the left of box, centred across it: a dimple (a hollow with a
// dark upper-left and a light lower-right rim, in the part's edge colours) or the apple
// symbol (four loops joined by a square, in the text colour).
void AddHotkeySymbol(DrawList& list, Rect box, HotkeySymbolStyle style, const PartLook& look, int dpi);

} // namespace MenuWindow
