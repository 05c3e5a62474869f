// Measuring a menu window: the button width, how many buttons fit the screen, and where
// the frame, the title bar and the button surface stand in the window.
#pragma once

#include "menuwindow/layout/button_parts.h"
#include "menuwindow/layout/geometry.h"
#include "menuwindow/look/menu_look.h"
#include "menuwindow/layout/menu_metrics.h"
#include "menuwindow/layout/menu_shape.h"
#include "menuwindow/layout/surface_layout.h"

#include <vector>

namespace MenuWindow {

struct LayoutOptions {
    MenuMetrics metrics;
    MenuShape shape;
    bool horizontal = false;
    bool lockWidth = true; // HorzLockWidth
    int maxItems = 9999;   // MenuMaxNoItems
    bool twinScroll = false;
    int titleWidth = 0; // the width the title's text asks for, its padding included
    bool operator==(const LayoutOptions&) const = default;
};

LayoutOptions LayoutOptionsOf(const MenuLook& look, bool horizontal, bool inactiveWindow, int dpi);

// The frame's thickness on each side.
int FrameThickness(const LayoutOptions& options);

// The button width: the need raised to ButtonMinWidth (and the smallest menu width),
// then cut to ButtonMaxWidth when there is one; the maximum wins over the minimum.
int ClampedButtonWidth(int needed, const MenuMetrics& metrics);

struct MenuLayout {
    Size window;
    TitlePlace titlePlace = TitlePlace::None;
    Rect title;   // in the window; empty without a title bar
    Rect surface; // the button surface, in the window
    SurfaceLayout buttons;
    Columns columns;         // the right-end columns all buttons keep
    bool ownColumns = false; // each button keeps its own columns instead
    bool operator==(const MenuLayout&) const = default;
};

// Lays out a menu of the measured items. available is the screen's room along the
// buttons (the work area's height for a vertical menu, its width for a horizontal one);
// first is the first visible offset wanted.
//
// A vertical menu's buttons all have the clamped width of the widest item; with its title
// bar at the top or the bottom, of the title's text when that is wider, so that a menu
// of short items does not cut its own name. A horizontal
// menu's buttons all have that width with HorzLockWidth; without it each is as wide as
// its own item asks (clamped alike), as long as the whole row fits; a row that has to
// scroll keeps one width for all, so that its slots stay put while it scrolls.
//
// The window is the surface with the title bar on its side and the frame all round:
// title at the top: the bar over the surface; at the bottom: under it; at the left: a
// bar as tall as the surface beside it. With the title over the frame, the bar's
// rectangle reaches the window's edges on its outer sides.
MenuLayout LayOutMenu(const std::vector<ItemMeasure>& items, const LayoutOptions& options, int available, int first);

// The right-end columns of one item's button.
Columns ColumnsFor(const MenuLayout& layout, const ItemMeasure& item, const MenuMetrics& metrics);

} // namespace MenuWindow
