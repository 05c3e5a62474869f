// Painting the title bar: its background, its raised edge and the menu's name.
#pragma once

#include "menuwindow/paint/draw_list.h"
#include "menuwindow/layout/menu_scene.h"

namespace MenuWindow {

// The title bar in the look of the window's state (active, or inactive when its switch
// is on). The name is shortened with "..." when it is longer than the bar's room and
// aligned along the bar by TitleAlignment, centred across it; a bar at the left side
// draws it turned, reading upwards. Nothing for a menu without a title bar.
DrawList TitleOps(const MenuScene& scene, const TextMeasure& measure);

} // namespace MenuWindow
