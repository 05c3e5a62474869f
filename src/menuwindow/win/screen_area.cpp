#include "menuwindow/win/screen_area.h"

#include "win/handles.h"

#include <windows.h>

#include <vector>

namespace MenuWindow {

namespace {

Rect RectOf(const RECT& rect) {
    return {rect.left, rect.top, rect.right, rect.bottom};
}

// Windows 8.1 and later give each monitor a scaling of its own; before, there is only
// the system's. The library is asked for the function once and kept for the program's life.
int DpiOfMonitor(HMONITOR handle, int otherwise) {
    using Function = HRESULT(WINAPI*)(HMONITOR, int, UINT*, UINT*);
    static const Win::UniqueModule shcore(::LoadLibraryW(L"shcore.dll"));
    static const auto dpiForMonitor = shcore ? reinterpret_cast<Function>(reinterpret_cast<void*>(
                                                   ::GetProcAddress(shcore.get(), "GetDpiForMonitor")))
                                             : nullptr;
    constexpr int kEffectiveDpi = 0;
    UINT dpiX = 0;
    UINT dpiY = 0;
    if (dpiForMonitor && SUCCEEDED(dpiForMonitor(handle, kEffectiveDpi, &dpiX, &dpiY)) && dpiY > 0)
        return static_cast<int>(dpiY);
    return otherwise;
}

BOOL CALLBACK AddMonitor(HMONITOR handle, HDC, LPRECT, LPARAM list) {
    MONITORINFO info{};
    info.cbSize = sizeof info;
    if (!::GetMonitorInfoW(handle, &info))
        return TRUE;
    Monitor monitor{RectOf(info.rcMonitor), RectOf(info.rcWork), DpiOfMonitor(handle, ScreenDpi()),
                    (info.dwFlags & MONITORINFOF_PRIMARY) != 0};
    reinterpret_cast<std::vector<Monitor>*>(list)->push_back(monitor);
    return TRUE;
}

// The screen alone, for a system that lists no monitor.
Monitor WholeScreen() {
    RECT work{};
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    return {{0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)}, RectOf(work), ScreenDpi(), true};
}

std::vector<Monitor>& Known() {
    static std::vector<Monitor> monitors;
    return monitors;
}

} // namespace

Monitors CurrentMonitors() {
    std::vector<Monitor>& monitors = Known();
    if (monitors.empty()) {
        ::EnumDisplayMonitors(nullptr, nullptr, AddMonitor, reinterpret_cast<LPARAM>(&monitors));
        if (monitors.empty())
            monitors.push_back(WholeScreen());
    }
    return monitors;
}

void ForgetMonitors() {
    Known().clear();
}

Rect WorkAreaAt(Point point) {
    return NearestMonitor(CurrentMonitors(), point).work;
}

int ScreenDpi() {
    Win::WindowDc screen(nullptr);
    return ::GetDeviceCaps(screen.get(), LOGPIXELSY);
}

} // namespace MenuWindow
