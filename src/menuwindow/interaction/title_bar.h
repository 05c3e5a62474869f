// The title bar under the mouse: its buttons, and the bar itself, by which the menu is
// dragged.
#pragma once

#include "menuwindow/layout/menu_scene.h"
#include "menuwindow/layout/title_buttons.h"
#include "menuwindow/look/sounds.h"

#include <optional>

namespace MenuWindow {

// The title-bar button at a point of the window; none over the rest of the window.
std::optional<TitleButton> TitleButtonAt(const MenuScene& scene, Point point);

// Whether a press at a point starts dragging the menu: on the title bar, off its buttons.
bool DragsMenu(const MenuScene& scene, Point point);

// The sound a title-bar button makes; rolledUp is the menu's state before the click.
SoundEvent TitleButtonSound(TitleButton button, bool rolledUp);

} // namespace MenuWindow
