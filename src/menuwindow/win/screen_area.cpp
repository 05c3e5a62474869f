#include "menuwindow/win/screen_area.h"

#include "win/handles.h"

#include <windows.h>

namespace MenuWindow {

Rect WorkAreaAt(Point point) {
    MONITORINFO info{};
    info.cbSize = sizeof info;
    HMONITOR monitor = ::MonitorFromPoint({point.x, point.y}, MONITOR_DEFAULTTONEAREST);
    if (monitor && ::GetMonitorInfoW(monitor, &info))
        return {info.rcWork.left, info.rcWork.top, info.rcWork.right, info.rcWork.bottom};
    RECT work{};
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    return {work.left, work.top, work.right, work.bottom};
}

int ScreenDpi() {
    Win::WindowDc screen(nullptr);
    return ::GetDeviceCaps(screen.get(), LOGPIXELSY);
}

} // namespace MenuWindow
