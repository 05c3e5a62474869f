// What the hotspots page's application picker takes from the window it is let go over:
// the title of the top-level window there, which is what a hotspot's App names, or
// "Desktop" over the desktop and over windows without a title.
#pragma once

#include "desktop/hotspot_dispatch.h"

#include <cstdint>
#include <functional>
#include <string>

namespace Preferences {

struct PickedApplication {
    std::string app;     // for the hotspot's App; empty when the window is refused
    std::string refusal; // why it is refused
};

// window: the window under the cursor, 0 over none. lookup.parent gives a window's parent
// and, above a top-level window, the desktop (or 0); ours tells the program's own windows,
// which are refused, since clicks on them never fire a hotspot.
PickedApplication PickApplication(std::uintptr_t window, const Hotspots::WindowLookup& lookup,
                                  const std::function<bool(std::uintptr_t)>& ours);

// What the page says while the picker is dragged over a window.
std::string PickingNote(const PickedApplication& picked);

} // namespace Preferences
