#include "menuwindow/paint/paint_symbols.h"

#include "menuwindow/look/dpi_scale.h"

#include <algorithm>

namespace MenuWindow {

ArrowStyle ArrowStyleOf(std::int16_t menu3DArrows) {
    return menu3DArrows == 0 ? ArrowStyle::ThreeD : ArrowStyle::Flat;
}

HotkeySymbolStyle HotkeySymbolStyleOf(std::int16_t hotkeyStyle) {
    return hotkeyStyle == 1 ? HotkeySymbolStyle::Apple : HotkeySymbolStyle::Dimple;
}

namespace {

Point Middle(Rect box) {
    return {box.left + box.Width() / 2, box.top + box.Height() / 2};
}

std::array<Point, 3> ArrowPoints(Point middle, Direction direction, int reach) {
    // The base stands half the reach before the middle, the tip half after it.
    int back = reach / 2;
    int front = reach - back;
    const Point& m = middle;
    switch (direction) {
    case Direction::Right:
        return {{{m.x - back, m.y - reach}, {m.x + front, m.y}, {m.x - back, m.y + reach}}};
    case Direction::Left:
        return {{{m.x + back, m.y - reach}, {m.x - front, m.y}, {m.x + back, m.y + reach}}};
    case Direction::Down:
        return {{{m.x - reach, m.y - back}, {m.x, m.y + front}, {m.x + reach, m.y - back}}};
    case Direction::Up:
        return {{{m.x - reach, m.y + back}, {m.x, m.y - front}, {m.x + reach, m.y + back}}};
    }
    return {};
}

std::array<Point, 3> Shifted(std::array<Point, 3> points, int by) {
    for (Point& p : points)
        p = {p.x + by, p.y + by};
    return points;
}

// A square box of the given side at the left of box, centred across it.
Rect SymbolBox(Rect box, int side) {
    int top = box.top + (box.Height() - side) / 2;
    return {box.left, top, box.left + side, top + side};
}

void AddDimple(DrawList& list, Rect box, const PartLook& look, int dpi) {
    Rect outer = SymbolBox(box, Dpi::Scale(kDimpleSize, dpi));
    Rect lower{outer.left + 1, outer.top + 1, outer.right, outer.bottom};
    Rect hollow{outer.left + 1, outer.top + 1, outer.right - 1, outer.bottom - 1};
    list.push_back(EllipseOp{outer, look.edgeDark, look.edgeDark});
    list.push_back(EllipseOp{lower, look.edgeLight, look.edgeLight});
    list.push_back(EllipseOp{hollow, look.colour, look.colour});
}

// The loops sit on the corners; the square's sides run along the loops' inner edges
// from the middle of one loop to the middle of the next, as the symbol is drawn.
void AddApple(DrawList& list, Rect box, const PartLook& look, int dpi) {
    Rect s = SymbolBox(box, Dpi::Scale(kAppleSize, dpi));
    int loop = std::max(3, Dpi::Scale(kAppleLoop, dpi));
    Colour c = look.textColour;
    list.push_back(EllipseOp{{s.left, s.top, s.left + loop, s.top + loop}, c, std::nullopt});
    list.push_back(EllipseOp{{s.right - loop, s.top, s.right, s.top + loop}, c, std::nullopt});
    list.push_back(EllipseOp{{s.left, s.bottom - loop, s.left + loop, s.bottom}, c, std::nullopt});
    list.push_back(EllipseOp{{s.right - loop, s.bottom - loop, s.right, s.bottom}, c, std::nullopt});
    int half = loop / 2;
    int near = loop - 1;
    list.push_back(FillOp{{s.left + half, s.top + near, s.right - half, s.top + near + 1}, c});
    list.push_back(FillOp{{s.left + half, s.bottom - loop, s.right - half, s.bottom - loop + 1}, c});
    list.push_back(FillOp{{s.left + near, s.top + half, s.left + near + 1, s.bottom - half}, c});
    list.push_back(FillOp{{s.right - loop, s.top + half, s.right - loop + 1, s.bottom - half}, c});
}

} // namespace

void AddArrow(DrawList& list, Rect box, Direction direction, ArrowStyle style, const PartLook& look, int dpi) {
    if (box.Empty())
        return;
    std::array<Point, 3> points = ArrowPoints(Middle(box), direction, Dpi::Scale(kArrowReach, dpi));
    if (style == ArrowStyle::Flat) {
        list.push_back(TriangleOp{points, look.textColour});
        return;
    }
    list.push_back(TriangleOp{Shifted(points, 1), look.edgeLight});
    list.push_back(TriangleOp{points, look.edgeDark});
}

void AddHotkeySymbol(DrawList& list, Rect box, HotkeySymbolStyle style, const PartLook& look, int dpi) {
    if (box.Empty())
        return;
    if (style == HotkeySymbolStyle::Apple)
        AddApple(list, box, look, dpi);
    else
        AddDimple(list, box, look, dpi);
}

} // namespace MenuWindow
