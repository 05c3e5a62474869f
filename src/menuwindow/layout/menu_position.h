// Where a menu window stands on the screen, from its cascade record and its layout.
#pragma once

#include "menuwindow/interaction/cascade.h"
#include "menuwindow/layout/menu_scene.h"

namespace MenuWindow {

// The point whose screen the menu opens on: for a sub-menu the start of the button that
// opened it, for a hotspot's menu the cursor (OnMouse) or its position from the origin.
Point OpeningPoint(const CascadeRec& record);

// A sub-menu beside the button that opened it (by MenuAlignWithTitle, overlapping its
// parent with MenuOverlapMenus), a hotspot's menu where the hotspot asks; kept in the
// work area either way.
Placement PlaceMenu(const CascadeRec& record, const MenuScene& scene, Rect workArea);

} // namespace MenuWindow
