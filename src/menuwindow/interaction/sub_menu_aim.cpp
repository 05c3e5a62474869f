#include "menuwindow/interaction/sub_menu_aim.h"

#include <algorithm>
#include <cstdint>

namespace MenuWindow {

namespace {

// Twice the signed area of the triangle o, a, b: positive when b lies to the left of the
// line from o to a (with y growing downwards, clockwise on the screen), 0 on the line.
std::int64_t Cross(Point o, Point a, Point b) {
    return std::int64_t{a.x - o.x} * (b.y - o.y) - std::int64_t{a.y - o.y} * (b.x - o.x);
}

} // namespace

Edge NearEdge(const Rect& subMenu, bool parentHorizontal, bool towardsStart) {
    const int right = subMenu.right - 1;
    const int bottom = subMenu.bottom - 1;
    if (parentHorizontal) {
        const int y = towardsStart ? bottom : subMenu.top;
        return {{subMenu.left, y}, {right, y}};
    }
    const int x = towardsStart ? right : subMenu.left;
    return {{x, subMenu.top}, {x, bottom}};
}

bool InTriangle(Point point, Point a, Point b, Point c) {
    const std::int64_t ab = Cross(a, b, point);
    const std::int64_t bc = Cross(b, c, point);
    const std::int64_t ca = Cross(c, a, point);
    const bool anyNegative = ab < 0 || bc < 0 || ca < 0;
    const bool anyPositive = ab > 0 || bc > 0 || ca > 0;
    return !(anyNegative && anyPositive);
}

int AimRest(int dropDownDelay) {
    return std::max(dropDownDelay, kAimRestAtLeast);
}

} // namespace MenuWindow
