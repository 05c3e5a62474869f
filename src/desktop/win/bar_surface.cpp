#include "desktop/win/bar_surface.h"

#include "desktop/win/desktop_windows.h"
#include "menuwindow/look/pictures.h"
#include "menuwindow/win/screen_area.h"
#include "win/form_window.h"

namespace DesktopBarsWin {

void BarSurface::Prepare(const SettingsRec& settings, const std::string& programFolder) {
    dpi_ = MenuWindow::ScreenDpi();
    fonts_.Build(settings, dpi_);
    pictures_.List(MenuWindow::PictureFolderPath(settings.BitmapsFolder, programFolder));
}

void BarSurface::Paint(HWND window, MenuWindow::Size size, const MenuWindow::DrawList& ops,
                       const MenuWindow::IconLookup& icons) {
    if (!picture_.Resize(size))
        return;
    MenuWindow::Render(picture_.dc(), ops, fonts_, icons ? icons : [](int) -> HICON { return nullptr; },
                       [this](HDC dc, const MenuWindow::PictureOp& op) { pictures_.Draw(dc, op); });
    ::InvalidateRect(window, nullptr, FALSE);
}

std::optional<LRESULT> CommonMessage(HWND window, UINT message, const BarSurface& surface) {
    switch (message) {
    case WM_PAINT: {
        Win::PaintDc paint(window);
        surface.CopyTo(paint.get(), paint.area());
        return 0;
    }
    case WM_ERASEBKGND:
        return 1;
    case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE; // the task the user works in stays the foreground window
    case WM_CLOSE:
        return 0;
    default:
        return std::nullopt;
    }
}

bool RegisterBarClass(const wchar_t* className, WNDPROC procedure, UINT style) {
    WNDCLASSEXW wc{};
    wc.cbSize = sizeof wc;
    wc.style = style;
    wc.lpfnWndProc = procedure;
    wc.hInstance = ::GetModuleHandleW(nullptr);
    wc.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    wc.lpszClassName = className;
    return Win::RegisterFormClass(wc);
}

HWND CreateBarWindow(const wchar_t* className, void* form, bool onTop) {
    DWORD exStyle = WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE | (onTop ? WS_EX_TOPMOST : 0);
    return ::CreateWindowExW(exStyle, className, L"", WS_POPUP | WS_CLIPCHILDREN, 0, 0, 0, 0, nullptr, nullptr,
                             ::GetModuleHandleW(nullptr), form);
}

void SetOnTop(HWND window, bool onTop) {
    ::SetWindowPos(window, onTop ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void Place(HWND window, const MenuWindow::Rect& rect) {
    ::SetWindowPos(window, nullptr, rect.left, rect.top, rect.Width(), rect.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
}

MenuWindow::Rect PlacementRoom() {
    MenuWindow::Rect screen{0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)};
    HWND taskbar = DesktopWindows::Taskbar();
    bool taskbarVisible = taskbar && ::IsWindowVisible(taskbar);
    return DesktopBars::PlacementArea(screen, MenuWindow::WorkAreaAt({0, 0}), taskbarVisible);
}

} // namespace DesktopBarsWin
