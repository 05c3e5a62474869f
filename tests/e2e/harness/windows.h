// Finding windows as a user sees them: top-level windows by class, title and owning
// process, with their rectangle and visibility, and the child controls of a window.
#pragma once

#include "harness/wait.h"

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

namespace E2e {

struct WindowInfo {
    HWND hwnd = nullptr;
    std::string className; // UTF-8
    std::string title;     // UTF-8
    RECT rect{};
    bool visible = false;
    DWORD processId = 0;
};

WindowInfo DescribeWindow(HWND hwnd);

// Top-level windows of a class; with a process id, only that process's.
std::vector<WindowInfo> TopLevelWindows(const std::string& className, DWORD processId = 0);

// The first visible top-level window of a class (and process), waiting for it to appear.
std::optional<WindowInfo> WaitForVisibleWindow(const std::string& className, DWORD processId, Duration timeout);

// True when no visible window of the class (and process) is left before the time is up.
bool WaitForNoVisibleWindow(const std::string& className, DWORD processId, Duration timeout);

// Direct children of a window, in their order.
std::vector<WindowInfo> ChildWindows(HWND parent);

} // namespace E2e
