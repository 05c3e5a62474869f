// Points, sizes and rectangles of the menu window's arithmetic, in device pixels.
// A rectangle holds its left and top edges and excludes its right and bottom edges,
// as a Win32 RECT does, so the shell hands them to GDI unchanged.
#pragma once

#include <cstdint>

namespace MenuWindow {

// A colour in the 0x00BBGGRR layout.
using Colour = std::int32_t;

struct Point {
    int x = 0;
    int y = 0;
    bool operator==(const Point&) const = default;
};

struct Size {
    int width = 0;
    int height = 0;
    bool operator==(const Size&) const = default;
};

struct Rect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    bool Empty() const { return right <= left || bottom <= top; }
    bool Contains(Point p) const { return p.x >= left && p.x < right && p.y >= top && p.y < bottom; }
    bool operator==(const Rect&) const = default;
};

inline Rect RectAt(Point topLeft, Size size) {
    return {topLeft.x, topLeft.y, topLeft.x + size.width, topLeft.y + size.height};
}

} // namespace MenuWindow
