// The lines of the menu frame and their colours.
#pragma once

#include "menuwindow/layout/geometry.h"
#include "menuwindow/look/menu_look.h"
#include "menuwindow/layout/menu_shape.h"

#include <vector>

namespace MenuWindow {

// One line round the window: its top and left sides in the light colour, its bottom and
// right sides in the dark one (both the same for a flat line).
struct FrameLine {
    Rect outer;
    int thickness = 0;
    Colour light = 0;
    Colour dark = 0;
    bool operator==(const FrameLine&) const = default;
};

// The outer line in MenuFrameColor, or MenuFrameColor (light) and MenuFrameColor2 (dark)
// with Menu3DFrame; the inner one in MenuFrameColor3 and MenuFrameColor4.
std::vector<FrameLine> FrameLines(const MenuLook& look, const MenuShape& shape, Size window, int lineThickness);

// With MenuFrameToBody the colours of the innermost frame line run on over the menu body:
// a button of plain colour becomes its stretch of one gradient from that line's light
// colour to its dark one, laid over the whole body (down a vertical menu, across a
// horizontal one), so the body continues the frame. A button with a gradient or a picture
// of its own keeps it, and a menu without frame lines has no colours to carry.
PartLook FrameOverBody(PartLook button, const MenuLook& look, const MenuShape& shape, bool horizontal);

} // namespace MenuWindow
