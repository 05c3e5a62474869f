#include "harness/menu_window.h"

#include "harness/screen.h"

namespace E2e {

std::optional<WindowInfo> WaitForMenuWindow(DWORD processId, Duration timeout) {
    std::optional<WindowInfo> menu = WaitForVisibleWindow(kMenuClass, processId, timeout);
    if (!menu || !WaitForSteadyImage(menu->hwnd))
        return std::nullopt;
    return DescribeWindow(menu->hwnd);
}

std::vector<WindowInfo> VisibleMenuWindows(DWORD processId) {
    std::vector<WindowInfo> shown;
    for (const WindowInfo& window : TopLevelWindows(kMenuClass, processId))
        if (window.visible)
            shown.push_back(window);
    return shown;
}

bool WaitForMenuCount(DWORD processId, std::size_t count, Duration timeout) {
    if (!WaitUntil([&] { return VisibleMenuWindows(processId).size() == count; }, timeout))
        return false;
    for (const WindowInfo& window : VisibleMenuWindows(processId))
        if (!WaitForSteadyImage(window.hwnd))
            return false;
    return true;
}

std::optional<WindowInfo> MenuWindowTitled(DWORD processId, const std::string& title) {
    for (const WindowInfo& window : VisibleMenuWindows(processId))
        if (window.title == title)
            return window;
    return std::nullopt;
}

} // namespace E2e
