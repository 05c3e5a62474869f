// What a button holds and where: icon, text, command-key symbol with its key, and the
// sub-menu arrow, from left to right; and how wide a button must be to hold them.
#pragma once

#include "menuwindow/layout/geometry.h"
#include "menuwindow/layout/menu_metrics.h"

#include <vector>

namespace MenuWindow {

// One item as the layout sees it: widths measured by the shell in the button font.
struct ItemMeasure {
    int textWidth = 0;
    bool hasArrow = false;   // the item opens a sub-menu (a menu, a folder, the task list)
    bool hasHotkey = false;  // the item has a hot key
    int hotkeyTextWidth = 0; // the width of the key's text
    bool operator==(const ItemMeasure&) const = default;
};

// The room kept at a button's right end for the command-key symbol with its key and for
// the arrow. A vertical menu keeps the same columns for all buttons, so that texts, keys
// and arrows line up; a horizontal menu whose buttons are as wide as they ask keeps
// each button's own.
struct Columns {
    int hotkey = 0;
    int arrow = 0;
    bool operator==(const Columns&) const = default;
};

Columns ItemColumns(const ItemMeasure& item, const MenuMetrics& metrics);
Columns MenuColumns(const std::vector<ItemMeasure>& items, const MenuMetrics& metrics);

// Where the text starts, from the button's left edge: ButtonTextOfset, after the icon
// (at its margin) when icons are on.
int TextStart(const MenuMetrics& metrics);

// The width a button needs to show the item's whole text.
int NeededWidth(const ItemMeasure& item, const Columns& columns, const MenuMetrics& metrics);

struct ButtonParts {
    Rect icon;         // empty without icons; centred vertically
    Rect text;         // the room for the text; the text is fitted and aligned inside it
    Rect hotkeySymbol; // empty when the item has no hot key
    Rect hotkeyText;
    Rect arrow; // empty when the item opens no sub-menu
    bool operator==(const ButtonParts&) const = default;
};

ButtonParts PartsOf(Rect button, const ItemMeasure& item, const Columns& columns, const MenuMetrics& metrics);

} // namespace MenuWindow
