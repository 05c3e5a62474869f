// The button surface: where each visible button and scroll button stands, which item a
// point is over, and where a button stands on the screen. Coordinates are relative to
// the surface's top-left corner.
//
// A vertical menu's button at position p covers the rows (p - 1) * height to
// p * height - 1 across the whole width. A horizontal menu's buttons stand side by side
// on the rows 0 to height - 1; the button at position p covers the columns s + 1 to
// s + w, where w is its width and s the sum of the widths before it (so (p - 1) * w + 1
// to (p - 1) * w + w when all are as wide), and the surface is one column wider than
// its buttons.
#pragma once

#include "menuwindow/layout/geometry.h"
#include "menuwindow/layout/scrolling.h"

#include <vector>

namespace MenuWindow {

struct SurfaceLayout {
    bool horizontal = false;
    int buttonHeight = 1;    // ButtonVSize
    int buttonWidth = 0;     // vertical: the width of every button
    std::vector<int> widths; // horizontal: the width of the button at each position, from 1
    ScrollView view;
    bool operator==(const SurfaceLayout&) const = default;
};

Size SurfaceSize(const SurfaceLayout& surface);

// The rectangle of the slot at a position (1 to the number of slots).
Rect ButtonRect(const SurfaceLayout& surface, int position);

// The visible position under a point: the row (or, horizontally, the column) divided by
// the button size, plus 1. 0 when the point lies outside the surface (left of or above
// it, or at or beyond its width or height); a position beyond the slots when the point
// lies past the last button.
int PositionAt(const SurfaceLayout& surface, Point point);

struct Hit {
    enum class Kind { None, Item, ScrollTowardsStart, ScrollTowardsEnd };
    Kind kind = Kind::None;
    int item = 0; // 1-based, with Kind::Item
    bool operator==(const Hit&) const = default;
};

// What a point is over: a scroll button first, else the item at its position when that
// item exists (first visible offset + position).
Hit HitTest(const SurfaceLayout& surface, Point point);

struct ScrollButton {
    Rect rect;
    bool towardsEnd = false; // down (or right); otherwise up (or left)
    bool operator==(const ScrollButton&) const = default;
};

// The scroll buttons to draw. Twin buttons split their slot across its width: towards
// the start on the left half, towards the end on the right half.
std::vector<ScrollButton> ScrollButtons(const SurfaceLayout& surface);

// Where the button at a position starts on the screen, which a sub-menu opened from it
// records: the surface's screen top + (position - 1) * height in a vertical menu, the
// surface's screen left + the widths before it in a horizontal one.
int ButtonScreenStart(const SurfaceLayout& surface, int surfaceScreenStart, int position);

} // namespace MenuWindow
