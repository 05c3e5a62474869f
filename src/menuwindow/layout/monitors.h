// The monitors of the desktop as plain data: where each stands, its work area and its
// dots per inch. A monitor's number, as users see it, is its place in the list from 1.
#pragma once

#include "menuwindow/layout/geometry.h"

#include <span>

namespace MenuWindow {

struct Monitor {
    Rect bounds;
    Rect work; // the bounds less the taskbar and other bars docked on it
    int dpi = 96;
    bool primary = false;
    bool operator==(const Monitor&) const = default;
};

using Monitors = std::span<const Monitor>;

// The number of the monitor holding a point; 0 when it lies on none.
int MonitorNumberAt(Monitors monitors, Point point);

// The monitor holding a point, else the one nearest to it (a point in a gap between
// monitors, or the edge just past a window's right side).
Monitor NearestMonitor(Monitors monitors, Point point);

// The primary monitor; the first one listed when none says so.
Monitor PrimaryMonitor(Monitors monitors);

// Where a saved place opens: on the monitor holding it, else on the primary one, for the
// monitor it was saved on is gone.
Monitor MonitorOfPlace(Monitors monitors, Point place);

// The outer edges of the whole desktop that a point touches: a side of its monitor with
// no monitor beyond it. Where two monitors meet there is no edge, so the cursor crosses
// from one to the other without a bump.
struct EdgeContact {
    int monitor = 0; // the number of the monitor touched; 0 for none
    bool left = false;
    bool right = false;
    bool top = false;
    bool bottom = false;
    bool Any() const { return left || right || top || bottom; }
    bool operator==(const EdgeContact&) const = default;
};
EdgeContact OuterEdgesAt(Monitors monitors, Point point);

// Whether a window covers the whole of the monitor it is on (a game, a video, a
// presentation): a window without a caption whose rectangle holds that monitor's
// bounds. A maximized window with a caption does not count, even where no taskbar is
// left to keep it from the bottom row.
bool CoversItsMonitor(Monitors monitors, Rect window, bool captioned);

} // namespace MenuWindow
