// The program's own menu windows (class "Tarvex2Menu") as a user meets them.
#pragma once

#include "harness/wait.h"
#include "harness/windows.h"

#include <optional>

namespace E2e {

inline constexpr const char* kMenuClass = "Tarvex2Menu";

// The first visible menu window of the process, once it has painted and finished its
// opening animation; its rectangle is the one it stands at then.
std::optional<WindowInfo> WaitForMenuWindow(DWORD processId, Duration timeout = 30s);

// The visible menu windows of the process.
std::vector<WindowInfo> VisibleMenuWindows(DWORD processId);

// Waits until the process shows exactly count menu windows, each painted and steady.
bool WaitForMenuCount(DWORD processId, std::size_t count, Duration timeout = 20s);

// The middle of an item's button (1-based) in a menu of the plain look.
POINT PlainItemPoint(const RECT& menu, int item);

// The visible menu window with a title; none when there is no such window.
std::optional<WindowInfo> MenuWindowTitled(DWORD processId, const std::string& title);

} // namespace E2e
