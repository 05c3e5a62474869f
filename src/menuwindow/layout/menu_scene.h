// A menu window as it is painted: its look, its entries with their measures, and its
// layout, worked out together from the window's settings and the screen's room.
#pragma once

#include "menuwindow/paint/draw_list.h"
#include "menuwindow/layout/item_list.h"
#include "menuwindow/layout/menu_layout.h"
#include "menuwindow/look/menu_look.h"

#include <string>
#include <vector>

namespace MenuWindow {

struct SceneRequest {
    MenuLook look;
    DisplayList list;
    std::string title;
    bool horizontal = false;
    bool inactive = false; // a parent menu whose sub-menu is open
    // Turned by its rotate button: it keeps a title bar, with the button to turn it back,
    // whatever HorzNoTitlebar and HorzButtonsOnly say of menus that open horizontal.
    bool rotated = false;
    int dpi = 96;
    Rect workArea;                     // the screen's room for the menu
    int first = 0;                     // the first visible offset wanted
    std::vector<std::string> pictures; // the file names of the theme's bitmaps folder
};

struct MenuScene {
    MenuLook look;
    DisplayList list;
    std::string title;
    bool horizontal = false;
    bool inactive = false;
    int dpi = 96;
    LayoutOptions options;
    MenuLayout layout;
    std::vector<ItemMeasure> measures;
    std::vector<std::string> pictures;

    const MenuMetrics& metrics() const { return options.metrics; }
    const ScrollView& view() const { return layout.buttons.view; }
};

// Measures the entries and lays the menu out in the room of the work area along its
// buttons (its height for a vertical menu, its width for a horizontal one).
MenuScene BuildScene(SceneRequest request, const TextMeasure& measure);

// The look of a part as this window paints it, the frame's colours carried over the
// body where the look asks for it.
PartLook LookIn(const MenuScene& scene, Part part);

// Shows another run of the items: the first visible offset, kept within range.
void ScrollTo(MenuScene& scene, int first);

// Where the button slot at a position stands in the window.
Rect SlotInWindow(const MenuScene& scene, int position);

// Where an item's button stands in the window; empty when the item is not drawn (out of
// the visible run, or behind a scroll button).
Rect ItemInWindow(const MenuScene& scene, int item);

// What a point of the window is over: an item or a scroll button of the surface, or
// nothing (the title bar, the frame, past the last item).
Hit HitInWindow(const MenuScene& scene, Point point);

} // namespace MenuWindow
