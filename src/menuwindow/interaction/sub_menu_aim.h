// Aiming at an open sub-menu: on its way from the item that opened the sub-menu, the
// cursor may cross other items. While it stays inside the triangle between where it set
// out and the sub-menu's near edge, and keeps moving, those crossings change nothing.
#pragma once

#include "menuwindow/layout/geometry.h"

namespace MenuWindow {

// A line between two points: the two corners of a sub-menu's side.
struct Edge {
    Point from;
    Point to;
    bool operator==(const Edge&) const = default;
};

// The side of a sub-menu that faces the menu that opened it: its left side when it opened
// to the right of a vertical menu, its right side when it opened to the left, its top
// below a horizontal menu and its bottom above one. The corners are the rectangle's own
// outermost pixels, in the rectangle's coordinates.
Edge NearEdge(const Rect& subMenu, bool parentHorizontal, bool towardsStart);

// Whether a point lies inside the triangle of three corners or on its border.
bool InTriangle(Point point, Point a, Point b, Point c);

// Resting at least this long ends an aim, even with a shorter drop-down delay: a hand
// crossing an item on its way pauses for less.
inline constexpr int kAimRestAtLeast = 150;

// How long the cursor rests before the menu takes it as stopped: the drop-down delay,
// which is how long the user wants a rest on an item to take before it counts.
int AimRest(int dropDownDelay);

} // namespace MenuWindow
