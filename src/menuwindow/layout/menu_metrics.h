// The sizes the layout works with, in device pixels: the size settings and this
// window's own margins, all scaled once for the screen's DPI.
#pragma once

#include "menuwindow/look/menu_look.h"

namespace MenuWindow {

// Our own margins, in pixels at 96 DPI.
inline constexpr int kIconMargin = 4;         // from the button's left edge to the icon
inline constexpr int kTextRightMargin = 8;    // after the text, before the hot-key and arrow columns
inline constexpr int kArrowColumn = 14;       // the sub-menu arrow's room at the button's right end
inline constexpr int kHotkeySymbolWidth = 12; // the command-key symbol
inline constexpr int kHotkeyGap = 3;          // between the symbol and its key, and after the key
inline constexpr int kSmallestMenuWidth = 40; // buttons are never narrower, so an empty menu stays visible
inline constexpr int kFrameLine = 1;          // one line of the menu frame
inline constexpr int kTitleButtonSize = 20;   // the title-bar buttons are square
inline constexpr int kTitleButtonGap = 2;     // between neighbouring title-bar buttons
inline constexpr int kTitleTextPadding = 6;   // between the title text and the bar's ends or buttons
inline constexpr int kSubMenuOverlap = 10;    // how far a sub-menu covers its parent with MenuOverlapMenus

struct MenuMetrics {
    int titleThickness = 0; // TitleVSize
    int buttonHeight = 1;   // ButtonVSize, at least 1
    int minWidth = 0;       // ButtonMinWidth, raised to the smallest menu width
    int maxWidth = 0;       // ButtonMaxWidth; 0 or below sets no maximum
    int textOffset = 0;     // ButtonTextOfset
    bool icons = false;     // ButtonIcons
    int iconSize = 0;       // ButtonIconSize
    int iconMargin = 0;
    int textRightMargin = 0;
    int arrowColumn = 0;
    int hotkeySymbolWidth = 0;
    int hotkeyGap = 0;
    int frameLine = 0;
    int titleButtonSize = 0;
    int titleButtonGap = 0;
    int titleTextPadding = 0;
    int subMenuOverlap = 0;
    bool operator==(const MenuMetrics&) const = default;
};

// Sizes below their floor (a negative thickness, a button height of 0) are raised to it.
MenuMetrics MetricsOf(const MenuLook& look, int dpi);

} // namespace MenuWindow
