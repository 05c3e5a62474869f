#include "prefs/win/form3.h"

#include <windowsx.h>

#include <algorithm>

namespace PrefsWin {

std::optional<RECT> Form3::PickArea(HWND owner) {
    HINSTANCE instance = ::GetModuleHandleW(nullptr);
    WNDCLASSEXW wc = Win::FormClass<Form3>(instance, kClassName);
    wc.hCursor = ::LoadCursorW(nullptr, IDC_CROSS);
    if (!Win::RegisterFormClass(wc))
        return std::nullopt;

    Form3 form;
    form.origin_ = {::GetSystemMetrics(SM_XVIRTUALSCREEN), ::GetSystemMetrics(SM_YVIRTUALSCREEN)};
    const int width = ::GetSystemMetrics(SM_CXVIRTUALSCREEN);
    const int height = ::GetSystemMetrics(SM_CYVIRTUALSCREEN);
    {
        // The copy is taken before the window shows, so that it is the screen as it was.
        Win::WindowDc screen(nullptr);
        form.frozenDc_.reset(::CreateCompatibleDC(screen.get()));
        form.frozen_.reset(::CreateCompatibleBitmap(screen.get(), width, height));
        ::SelectObject(form.frozenDc_.get(), form.frozen_.get());
        ::BitBlt(form.frozenDc_.get(), 0, 0, width, height, screen.get(), form.origin_.x, form.origin_.y, SRCCOPY);
    }
    if (!::CreateWindowExW(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, kClassName, L"Select the area", WS_POPUP, form.origin_.x,
                           form.origin_.y, width, height, owner, nullptr, instance, &form))
        return std::nullopt;
    ::ShowWindow(form.window_.get(), SW_SHOW);
    ::SetForegroundWindow(form.window_.get());
    MSG message;
    while (!form.done_ && ::GetMessageW(&message, nullptr, 0, 0) > 0) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    if (message.message == WM_QUIT)
        ::PostQuitMessage(static_cast<int>(message.wParam));
    return form.picked_;
}

RECT Form3::Band() const {
    return {std::min(from_.x, to_.x), std::min(from_.y, to_.y), std::max(from_.x, to_.x),
            std::max(from_.y, to_.y)};
}

void Form3::Form_Paint() {
    Win::PaintDc paint(window_.get());
    const RECT& area = paint.area();
    ::BitBlt(paint.get(), area.left, area.top, area.right - area.left, area.bottom - area.top, frozenDc_.get(),
             area.left, area.top, SRCCOPY);
    if (!dragging_)
        return;
    // A red line two pixels wide just outside the area, clear on any wallpaper.
    RECT band = Band();
    Win::UniqueBrush red(::CreateSolidBrush(RGB(255, 0, 0)));
    for (int ring = 0; ring < 2; ++ring) {
        ::InflateRect(&band, 1, 1);
        ::FrameRect(paint.get(), &band, red.get());
    }
}

LRESULT Form3::HandleMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    const POINT at{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    switch (message) {
    case WM_PAINT:
        Form_Paint();
        return 0;
    case WM_LBUTTONDOWN:
        from_ = to_ = at;
        dragging_ = true;
        ::SetCapture(hwnd);
        ::InvalidateRect(hwnd, nullptr, FALSE);
        return 0;
    case WM_MOUSEMOVE:
        if (dragging_) {
            to_ = at;
            ::InvalidateRect(hwnd, nullptr, FALSE);
        }
        return 0;
    case WM_LBUTTONUP:
        if (dragging_) {
            to_ = at;
            RECT band = Band();
            ::OffsetRect(&band, origin_.x, origin_.y);
            picked_ = band;
            done_ = true;
        }
        ::ReleaseCapture();
        return 0;
    case WM_RBUTTONUP:
        done_ = true;
        return 0;
    case WM_KEYDOWN:
        if (wParam == VK_ESCAPE)
            done_ = true;
        return 0;
    case WM_CAPTURECHANGED:
        dragging_ = dragging_ && !done_;
        return 0;
    default:
        return ::DefWindowProcW(hwnd, message, wParam, lParam);
    }
}

} // namespace PrefsWin
