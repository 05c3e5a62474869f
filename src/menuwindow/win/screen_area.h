// The screen as a menu window sees it: the work area of a monitor and its DPI.
#pragma once

#include "menuwindow/layout/geometry.h"

namespace MenuWindow {

// The work area (the screen less the taskbar) of the monitor nearest to a point.
Rect WorkAreaAt(Point point);

// The dots per inch of the screen, which every size of the menu window is scaled to.
int ScreenDpi();

} // namespace MenuWindow
