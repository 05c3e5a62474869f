// Readable failure messages for the menu window's geometry.
#pragma once

#include "menuwindow/layout/geometry.h"

#include <ostream>

namespace MenuWindow {

inline void PrintTo(const Point& p, std::ostream* os) {
    *os << "(" << p.x << ", " << p.y << ")";
}
inline void PrintTo(const Size& s, std::ostream* os) {
    *os << s.width << "x" << s.height;
}
inline void PrintTo(const Rect& r, std::ostream* os) {
    *os << "{" << r.left << ", " << r.top << ", " << r.right << ", " << r.bottom << "}";
}

} // namespace MenuWindow
