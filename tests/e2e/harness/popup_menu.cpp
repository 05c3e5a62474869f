#include "harness/popup_menu.h"

#include "harness/input.h"

#include <cctype>

namespace E2e {

namespace {

// The thread that shows the menu is in its menu loop, which holds the mouse.
bool Tracking(HWND menu) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    DWORD thread = ::GetWindowThreadProcessId(menu, nullptr);
    return ::GetGUIThreadInfo(thread, &info) && (info.flags & GUI_INMENUMODE) != 0;
}

} // namespace

std::optional<WindowInfo> WaitForPopupMenu(DWORD processId, Duration timeout) {
    std::optional<WindowInfo> menu = WaitForVisibleWindow(kPopupMenuClass, processId, timeout);
    if (!menu || !WaitUntil([&] { return Tracking(menu->hwnd); }, timeout))
        return std::nullopt;
    return menu;
}

bool WaitForPopupMenuGone(DWORD processId, Duration timeout) {
    return WaitForNoVisibleWindow(kPopupMenuClass, processId, timeout);
}

void ChooseMenuEntry(char mnemonic) {
    PressKey(static_cast<WORD>(std::toupper(static_cast<unsigned char>(mnemonic))));
}

void ClickMenuEntry(const WindowInfo& menu, int entry, int entries) {
    const RECT& r = menu.rect;
    int height = r.bottom - r.top;
    ClickDuringCapture((r.left + r.right) / 2, r.top + height * (2 * entry - 1) / (2 * entries));
}

} // namespace E2e
