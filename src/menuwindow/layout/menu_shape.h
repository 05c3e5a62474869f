// What a menu window is made of besides its buttons: where its title bar stands and how
// many frame lines surround it, by the look and by the menu's orientation.
#pragma once

#include "menuwindow/look/menu_look.h"

namespace MenuWindow {

enum class TitlePlace { None, Top, Bottom, Left };

struct MenuShape {
    TitlePlace title = TitlePlace::Top;
    int frameLines = 0;          // lines round the whole menu: 0, 1 or 2
    bool titleOverFrame = false; // the title bar is drawn over the frame on its outer sides
    bool operator==(const MenuShape&) const = default;
};

// Vertical menus put the title bar where TitlePosition says (0 top, 1 bottom, 2 left;
// other values top). Horizontal menus:
// - HorzButtonsOnly: the buttons alone, with neither title bar nor frame;
// - HorzNoTitlebar: no title bar, the frame as set;
// - otherwise MenuHorizontalStyle 0 keeps TitlePosition, any other value puts a
//   vertical title bar at the left end of the row.
// The frame: none while MenuNoFrames is non-zero; otherwise one line (3D with
// Menu3DFrame, else flat), and a second one inside it with Menu3DFrame2.
// TitleOverlap (TitleInactiveOverlap in the inactive look) draws the bar over the frame.
MenuShape ShapeOf(const MenuLook& look, bool horizontal, bool inactiveWindow);

} // namespace MenuWindow
