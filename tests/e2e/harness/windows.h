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

// Top-level windows of a class (of any class when it is empty); with a process id, only
// that process's.
std::vector<WindowInfo> TopLevelWindows(const std::string& className, DWORD processId = 0);

// The first visible top-level window of a class (and process), waiting for it to appear.
std::optional<WindowInfo> WaitForVisibleWindow(const std::string& className, DWORD processId, Duration timeout);

// True when no visible window of the class (and process) is left before the time is up.
bool WaitForNoVisibleWindow(const std::string& className, DWORD processId, Duration timeout);

// A visible top-level window of the test's own with a class and title that the program
// looks for (the shell's taskbar, its desktop): the newest in the topmost band, it is found
// before the shell's own, and nothing but the program and the test touches it.
class StandInWindow {
public:
    StandInWindow(const wchar_t* className, const wchar_t* title);
    ~StandInWindow();
    StandInWindow(const StandInWindow&) = delete;
    StandInWindow& operator=(const StandInWindow&) = delete;

    HWND hwnd() const { return hwnd_; }
    bool visible() const { return ::IsWindowVisible(hwnd_) != FALSE; }

private:
    HWND hwnd_ = nullptr;
};

// Direct children of a window, in their order.
std::vector<WindowInfo> ChildWindows(HWND parent);

} // namespace E2e
