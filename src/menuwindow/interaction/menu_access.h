// What a screen reader learns of a menu window: the menu and its items as plain records
// (name, role, states, place, action, shortcut), worked out from what the window paints
// and where its selection bar stands. Child id i is item i; 0 is the menu itself.
#pragma once

#include "menuwindow/layout/menu_scene.h"
#include "menuwindow/paint/repaint.h"

#include <optional>
#include <string>
#include <vector>

namespace MenuWindow {

enum class AccessRole { Menu, MenuItem };

struct AccessStates {
    bool focusable = false;
    bool selected = false;    // under the selection bar
    bool focused = false;     // under the selection bar of the window that has the keyboard
    bool hasPopup = false;    // opens a sub-menu
    bool unavailable = false; // nothing to choose: the "(Empty)" of an empty folder or task list
    bool offscreen = false;   // scrolled out of view, behind a scroll button, or rolled up
};

struct AccessObject {
    std::string name;
    AccessRole role = AccessRole::MenuItem;
    AccessStates states;
    Rect place;                // in window coordinates; empty while offscreen
    std::string defaultAction; // empty when there is none
    std::string shortcut;      // the hot key that chooses it, as "Ctrl+N"; empty for none
};

struct MenuAccess {
    AccessObject menu;
    std::vector<AccessObject> items; // child id i is items[i - 1]
    std::optional<int> focus;        // the focused child id; none while another window has the keyboard
    bool horizontal = false;         // the items stand side by side
};

struct AccessRequest {
    bool hasKeyboard = false; // the window is the one that takes the keys
    bool rolledUp = false;    // only the title bar shows
};

MenuAccess DescribeMenu(const MenuScene& scene, const SelectionState& selection, AccessRequest request);

// The child under a point of the window: an item drawn there, else 0 (the menu itself).
int ChildAt(const MenuAccess& access, Point point);

enum class AccessDirection { First, Last, Next, Previous, Up, Down, Left, Right };

// The child id reached from a child (0: from the menu itself, where only First and Last
// lead anywhere); 0 when the move leads to none. Up and Down follow a vertical menu,
// Left and Right a horizontal one; neither wraps, unlike the arrow keys.
int Navigate(int count, bool horizontal, int from, AccessDirection direction);

// The child whose focus event is due when the selection bar moves: the item it moved to,
// or 0 when it left every item or stayed where it was.
int FocusEventFor(const SelectionState& before, const SelectionState& after);

} // namespace MenuWindow
