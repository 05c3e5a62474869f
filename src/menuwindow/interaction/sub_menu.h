// The record of a sub-menu: what it lists, who opened it and the button it stands
// beside; and the record of a sub-menu torn off its parent.
#pragma once

#include "menus/menu_records.h"
#include "menuwindow/interaction/cascade.h"
#include "menuwindow/layout/menu_scene.h"

namespace MenuWindow {

// The sub-menu that item `item` of a window opens. parent is the window's record, with
// the bounds it stands in. A folder lists the item's folder, its second folder (ARG)
// with its filter (RUNSTATE) and mask; "More..." lists the same folders again from the
// entry after those this window showed; a menu is looked up by its exact name, and a
// name that matches none opens an empty menu. A sub-menu is laid out vertically and
// keeps the cascade's theme.
CascadeRec SubMenuRecord(const CascadeRec& parent, const MenuScene& scene, int item, const MenuTable& menus);

// A fresh identifier for a torn-off menu: a number from 1 to 32767 that no open menu
// holds, starting from a random one. (0 stays free: it means "no parent".)
int FreshMenuId(const CascadeList& list, unsigned random);

// A menu moved to a new place keeps it whenever it is rebuilt (rotated, scrolled, made
// inactive): it stands at topLeft, wherever it first opened.
void PlaceAt(CascadeRec& record, Point topLeft);

// A sub-menu dragged away from its parent becomes a menu of its own: a fresh identifier,
// no parent, level 1, standing where it was dropped.
void TearOff(CascadeRec& record, int freshId, Point topLeft);

// What dropping a menu that was dragged by its title bar does.
enum class DropAction {
    Nothing,          // it did not move
    StoreHotspotPlace, // a hotspot's menu: its place goes to the settings file
    KeepPlace,        // a menu torn off before: it stays where it was put
    TearOff,          // a sub-menu: it leaves its parent
};
DropAction DecideDrop(const CascadeRec& record, Point from, Point to);

} // namespace MenuWindow
