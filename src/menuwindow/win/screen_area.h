// The screen as the program sees it: its monitors, with their work areas and DPIs.
#pragma once

#include "menuwindow/layout/monitors.h"

namespace MenuWindow {

// The monitors as the system lists them, asked for once and kept until the display or
// a work area changes (ForgetMonitors), for the hotspots look at them every 10 ms.
Monitors CurrentMonitors();
void ForgetMonitors();

// The work area of the monitor nearest to a point.
Rect WorkAreaAt(Point point);

// The dots per inch of the system; the monitors' own may differ.
int ScreenDpi();

} // namespace MenuWindow
