// Painting a whole menu window: frame, button surface, title bar, buttons and scroll
// buttons, in that order.
#pragma once

#include "menuwindow/paint/draw_list.h"
#include "menuwindow/layout/menu_scene.h"
#include "menuwindow/paint/repaint.h"

namespace MenuWindow {

// The frame lines round the window.
DrawList FrameOps(const MenuScene& scene);

// The button surface: the body's background, every drawn item in its state by the
// selection, and the scroll buttons. Scrolling repaints this alone.
DrawList SurfaceOps(const MenuScene& scene, const SelectionState& selection, const TextMeasure& measure);

// The whole window: the frame, the title bar and the button surface.
DrawList MenuOps(const MenuScene& scene, const SelectionState& selection, const TextMeasure& measure);

} // namespace MenuWindow
