// Where a menu window stands on the screen, from its cascade record and its layout.
#pragma once

#include "menuwindow/interaction/cascade.h"
#include "menuwindow/layout/menu_scene.h"
#include "menuwindow/layout/monitors.h"

namespace MenuWindow {

// The point whose screen the menu opens on: for a sub-menu the start of the button that
// opened it, for a hotspot's menu the cursor (OnMouse) or its position from the origin.
Point OpeningPoint(const CascadeRec& record);

// The monitor a menu opens on, whose work area holds it and whose DPI sizes it: for a
// sub-menu and an OnMouse menu the one at (or nearest to) the opening point; for a menu
// at a set place the one holding that place, or the primary one when none does.
Monitor MonitorOfMenu(const CascadeRec& record, Monitors monitors);

// A sub-menu beside the button that opened it (by MenuAlignWithTitle, overlapping its
// parent with MenuOverlapMenus), a hotspot's menu where the hotspot asks; kept in the
// work area either way.
Placement PlaceMenu(const CascadeRec& record, const MenuScene& scene, Rect workArea);

} // namespace MenuWindow
