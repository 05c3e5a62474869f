#include "harness/menu_window.h"

#include "harness/menu_files.h"
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

// A window counted a moment ago may be one that is on its way out (a sub-menu replaced
// by another): the count and the steady images are taken together, again until they agree.
bool WaitForMenuCount(DWORD processId, std::size_t count, Duration timeout) {
    return WaitUntil(
        [&] {
            std::vector<WindowInfo> shown = VisibleMenuWindows(processId);
            if (shown.size() != count)
                return false;
            for (const WindowInfo& window : shown)
                if (!WaitForSteadyImage(window.hwnd, 2s))
                    return false;
            return VisibleMenuWindows(processId).size() == count;
        },
        timeout);
}

std::optional<WindowInfo> MenuWindowTitled(DWORD processId, const std::string& title) {
    for (const WindowInfo& window : VisibleMenuWindows(processId))
        if (window.title == title)
            return window;
    return std::nullopt;
}

POINT PlainItemPoint(const RECT& menu, int item) {
    return {(menu.left + menu.right) / 2,
            menu.top + kPlainTitleHeight + (item - 1) * kPlainButtonHeight + kPlainButtonHeight / 2};
}

} // namespace E2e
