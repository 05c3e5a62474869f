// The window's outline (region).
#pragma once

#include "menuwindow/layout/menu_layout.h"

#include <optional>

namespace MenuWindow {

// No region (the whole rectangle shows) in the normal state. Rolled up, only the title
// bar shows: its rectangle stretched to the window's edges on its outer sides, so that
// the frame beside it stays visible: for a bar at the left, from the window's left edge
// across the bar and down the whole height; otherwise the bar across the whole width.
// A menu without a title bar cannot roll up and keeps its whole rectangle.
std::optional<Rect> WindowOutline(const MenuLayout& layout, bool rolledUp);

} // namespace MenuWindow
