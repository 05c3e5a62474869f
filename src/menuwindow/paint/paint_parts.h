// The pieces every painted part is made of: a background (a colour or a gradient) and
// a 3D edge of one-pixel lines.
#pragma once

#include "menuwindow/paint/draw_list.h"
#include "menuwindow/look/menu_look.h"

#include <optional>
#include <string>

namespace MenuWindow {

// The part of a rectangle that lies inside another; empty when they do not meet.
Rect Intersection(Rect a, Rect b);

// Fills area with the part's background. A gradient is laid out over gradientArea and
// only its share inside area is filled, so that a gradient running over the whole menu
// body shows the right stretch of it on each button. A bitmap background lays the
// picture over gradientArea the same way, stretched or tiled; without its picture file
// it is drawn in the part's colour.
void AddBackground(DrawList& list, const PartLook& look, Rect area, Rect gradientArea,
                   const std::optional<std::string>& picture = std::nullopt);

// An icon of the theme as a square of at most side pixels, centred in box.
void AddIconPicture(DrawList& list, Rect box, int side, const std::string& file);

// Lines of the given thickness along the inside of a rectangle: top and left in one
// colour, bottom and right in the other (which owns the top-right and bottom-left corners).
void AddEdgeLines(DrawList& list, Rect rect, int thickness, Colour topLeft, Colour bottomRight);

// A part's 3D edge by its style: raised (light over dark), sunken (dark over light), or
// a bump (a raised line with a sunken one inside it). A pressed part shows a sunken edge
// whatever its style, so that it looks pushed in.
void AddPartEdge(DrawList& list, Rect rect, int thickness, const PartLook& look, bool pressed);

// A text with the part's effect: sunken text has a light copy one pixel below and to the
// right of it, raised text a dark one; plain text is drawn alone.
void AddText(DrawList& list, const TextOp& text, const PartLook& look);

} // namespace MenuWindow
