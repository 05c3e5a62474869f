#include "harness/menu_window.h"

#include "harness/screen.h"

namespace E2e {

std::optional<WindowInfo> WaitForMenuWindow(DWORD processId, Duration timeout) {
    std::optional<WindowInfo> menu = WaitForVisibleWindow(kMenuClass, processId, timeout);
    if (!menu || !WaitForSteadyImage(menu->hwnd))
        return std::nullopt;
    return DescribeWindow(menu->hwnd);
}

} // namespace E2e
