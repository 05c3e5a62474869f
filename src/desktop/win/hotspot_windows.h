// The windows as the hotspots see them, shared by the timers that fire hotspots and the
// preferences that define them: titles cut as the comparison cuts them, and whether a
// window is the program's own.
#pragma once

#include <windows.h>

#include <string>

namespace HotspotWindows {

// A window's title up to 255 characters: longer ones are cut before any comparison.
std::string TitleOf(HWND window);

// Whether the window belongs to this process.
bool IsOurs(HWND window);

// Whether the foreground window fills its whole monitor, as a game, a video or a
// presentation does; the desktop and the program's own windows never count.
bool ForegroundFillsMonitor();

} // namespace HotspotWindows
