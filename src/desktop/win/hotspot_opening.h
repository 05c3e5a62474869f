// Opening the menu window of a hotspot: the path that start-up, a requested hotspot and
// the mouse and hot-key dispatch share.
#pragma once

#include "core/win/program.h"
#include "menuwindow/layout/geometry.h"

#include <string_view>

class Form2;

namespace HotspotOpening {

// Fills cascade record menuIndex, which the caller has just appended, from hotspot
// hotspotIndex, and gives the record a new menu window object. ForceOnTop becomes the
// flag by which menu windows keep themselves topmost.
void LoadHotspot(Program& program, int hotspotIndex, int menuIndex);

// Opens the menu of a hotspot: appends a record, loads the hotspot into it, notes where
// it opens from (origin: the top-left of the window the hotspot belongs to, (0, 0) for
// the desktop, a hot key or a request; cursor: the click point, where an OnMouse menu
// opens), then creates, places, shows and brings forward its window. Null when there is
// no such hotspot or its window could not be made; the record then goes again.
Form2* OpenHotspotMenu(Program& program, int hotspotIndex, MenuWindow::Point origin, MenuWindow::Point cursor);

// A hotspot fired without a click on a window: a start-up hotspot (GenStartupHotspot0-9)
// or a requested one (RequestedHotspot). Its menu opens from the desktop's origin, an
// OnMouse menu at the cursor. Only hotspots whose action shows a menu, a folder or the
// task list open anything here; programs and commands are run by the dispatch.
void OpenMenuOfHotspot(Program& program, int hotspotIndex);

// The settings file held no hotspots: the default one takes their place, on this screen,
// showing the first of the menus loaded.
void EnsureDefaultHotspot(Program& program, std::string_view settingsFile);

} // namespace HotspotOpening
