// Popup menus (class "#32768") of the program under test. Wine keeps a menu's items
// inside the process that made it, so another process cannot read them; entries are
// chosen as a user does with the keyboard, by their underlined letter.
#pragma once

#include "harness/wait.h"
#include "harness/windows.h"

#include <windows.h>

#include <optional>

namespace E2e {

inline constexpr const char* kPopupMenuClass = "#32768";

// The visible popup menu of the process, once the menu tracks the mouse and keys: a
// click or key sent before then would miss it.
std::optional<WindowInfo> WaitForPopupMenu(DWORD processId, Duration timeout = 10s);
bool WaitForPopupMenuGone(DWORD processId, Duration timeout = 10s);

// Chooses the entry whose underlined letter (the one behind '&') is the given one. The
// key goes to the foreground window, which should be the menu's.
void ChooseMenuEntry(char mnemonic);

// Clicks entry `entry` (1-based) of a menu of `entries` entries of one height: a click
// reaches the menu whichever window holds the keyboard (a program the test started may).
void ClickMenuEntry(const WindowInfo& menu, int entry, int entries);

} // namespace E2e
