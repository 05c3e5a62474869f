#include "desktop/win/hotspot_windows.h"

#include "menuwindow/win/screen_area.h"

#include "win/text_convert.h"

#include <string_view>

namespace HotspotWindows {

namespace {

constexpr int kTitleLength = 255;

} // namespace

std::string TitleOf(HWND window) {
    wchar_t title[kTitleLength + 1]{};
    int length = ::GetWindowTextW(window, title, kTitleLength + 1);
    return Win::Narrow(std::wstring_view(title, static_cast<std::size_t>(length > 0 ? length : 0)));
}

bool IsOurs(HWND window) {
    DWORD processId = 0;
    ::GetWindowThreadProcessId(window, &processId);
    return processId == ::GetCurrentProcessId();
}

namespace {

// The desktop under the icons is a window of the shell's of one of these classes, and
// it fills the screen without a caption.
bool IsDesktop(HWND window) {
    if (window == ::GetDesktopWindow() || window == ::GetShellWindow())
        return true;
    wchar_t name[16]{};
    ::GetClassNameW(window, name, 16);
    return std::wstring_view(name) == L"Progman" || std::wstring_view(name) == L"WorkerW";
}

} // namespace

bool ForegroundFillsMonitor() {
    HWND foreground = ::GetForegroundWindow();
    if (!foreground || IsDesktop(foreground) || IsOurs(foreground))
        return false;
    RECT rect{};
    if (!::GetWindowRect(foreground, &rect))
        return false;
    bool captioned = (::GetWindowLongW(foreground, GWL_STYLE) & WS_CAPTION) == WS_CAPTION;
    return MenuWindow::CoversItsMonitor(MenuWindow::CurrentMonitors(), {rect.left, rect.top, rect.right, rect.bottom},
                                        captioned);
}

} // namespace HotspotWindows
