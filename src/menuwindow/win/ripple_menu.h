// Plays a menu window's opening animation (RippleMenu) from its plan: each frame clips
// the window to the frame's visible part, sets its opacity and copies strips of the
// painted image onto it; between frames the message queue is served, so input waits no
// longer than one frame.
#pragma once

#include "menuwindow/paint/animation.h"
#include "menuwindow/win/back_buffer.h"

#include <windows.h>

namespace MenuWindow {

// Before the window is shown: gives it the first frame's outline and opacity, so the
// whole image never flashes up before the animation. Nothing when the plan is empty.
void CoverForRipple(HWND window, const AnimationPlan& plan);

// Plays the plan on the shown window, then takes the clip and the see-through style off
// and lets the window paint itself whole again. The picture is copied first: the window
// and the picture's owner may go while the queue is served, and then the animation just
// stops. Returns the number of frames shown.
int RippleMenu(HWND window, const BackBuffer& picture, const AnimationPlan& plan);

} // namespace MenuWindow
