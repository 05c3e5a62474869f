// Where a menu window stands on the screen. All positions are screen pixels: a
// hotspot's Menuleft and Menutop are pixels, and the menu window keeps them as pixels
// (not twips) from the hotspot through the cascade record to here.
#pragma once

#include "menuwindow/layout/geometry.h"
#include "menuwindow/layout/menu_layout.h"

namespace MenuWindow {

// Moves a window into the work area: back from the right and bottom edges first, then
// from the left and top ones, so a window larger than the work area shows its top-left.
Point KeepOnScreen(Point topLeft, Size window, Rect workArea);

// A hotspot's menu: at the hotspot's position (Menuleft, Menutop) from the origin (the
// top-left of the window the hotspot belongs to; 0, 0 for the desktop), or with OnMouse
// at the cursor, opening to the left of it or above it where there is no room to the
// right or below, as popup menus do; then kept on the screen.
Point PlaceHotspotMenu(Point menuPosition, Point origin, bool onMouse, Point cursor, Size window, Rect workArea);

// MenuAlignWithTitle.
inline constexpr int kAlignTitleWithButton = 0;       // the sub-menu's title bar starts level with the button
inline constexpr int kAlignFirstButtonWithButton = 1; // its first button starts level with the button
inline constexpr int kAlignByTitlebar = 2;            // it starts level with its parent, title bars in line

// What the cascade record tells a sub-menu about the button that opened it.
struct SubMenuAnchor {
    Rect parent;                   // the parent window on the screen
    bool parentHorizontal = false; // the parent's buttons stand side by side
    int buttonStart = 0;           // the button's screen top (vertical parent) or left (horizontal)
    bool towardsStart = false;     // the parent opened to the left of (or above) its own parent
    bool operator==(const SubMenuAnchor&) const = default;
};

// The sub-menu's own measurements along the parent's buttons (down them for a vertical
// parent, across for a horizontal one): where its title bar and its first button start
// inside its window.
struct SubMenuFrame {
    Size window;
    int titleStart = 0;
    int firstButtonStart = 0;
    bool operator==(const SubMenuFrame&) const = default;
};

SubMenuFrame SubMenuFrameOf(const MenuLayout& layout, bool parentHorizontal);

struct Placement {
    Point topLeft;
    bool towardsStart = false; // opened to the left of (or above) the parent; its own sub-menus go on so
    bool operator==(const Placement&) const = default;
};

// A sub-menu beside its parent: to the right of a vertical parent, below a horizontal
// one; overlapping the parent by overlap pixels (0 without MenuOverlapMenus). Along the
// parent's buttons it stands by alignRule (other values count as title with button).
// A cascade that has turned to the left (or up) keeps going that way. When the
// preferred side has no room, the sub-menu flips to the other side; when neither has,
// it takes the roomier side and is moved into the work area. Along the buttons it is
// moved into the work area as well.
Placement PlaceSubMenu(const SubMenuAnchor& anchor, const SubMenuFrame& menu, int alignRule, int overlap,
                       Rect workArea);

} // namespace MenuWindow
