#include "prefs/win/window_picker.h"

#include <windowsx.h>

#include <algorithm>

namespace PrefsWin {

WindowPicker::WindowPicker(HWND parent, const RECT& rect, int id, Events events) : events_(std::move(events)) {
    HINSTANCE instance = ::GetModuleHandleW(nullptr);
    WNDCLASSEXW wc = Win::FormClass<WindowPicker>(instance, kClassName);
    wc.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    if (!Win::RegisterFormClass(wc))
        return;
    ::CreateWindowExW(WS_EX_CLIENTEDGE, kClassName, L"", WS_CHILD | WS_VISIBLE, rect.left, rect.top,
                      rect.right - rect.left, rect.bottom - rect.top, parent,
                      reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), instance, this);
}

// A ring with a cross through it; while it is being dragged the square is empty, as the
// cross-hair travels with the cursor.
void WindowPicker::Form_Paint() {
    Win::PaintDc paint(window_.get());
    if (dragging_)
        return;
    RECT client{};
    ::GetClientRect(window_.get(), &client);
    const int size = std::min(client.right, client.bottom) - 4;
    const int cx = client.right / 2;
    const int cy = client.bottom / 2;
    const int radius = size * 3 / 8;
    const int colour = ::IsWindowEnabled(window_.get()) ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT;
    Win::UniquePen pen(::CreatePen(PS_SOLID, 1, ::GetSysColor(colour)));
    Win::SelectGuard usePen(paint.get(), pen.get());
    Win::SelectGuard hollow(paint.get(), ::GetStockObject(HOLLOW_BRUSH));
    ::Ellipse(paint.get(), cx - radius, cy - radius, cx + radius + 1, cy + radius + 1);
    ::MoveToEx(paint.get(), cx - size / 2, cy, nullptr);
    ::LineTo(paint.get(), cx + size / 2 + 1, cy);
    ::MoveToEx(paint.get(), cx, cy - size / 2, nullptr);
    ::LineTo(paint.get(), cx, cy + size / 2 + 1);
}

HWND WindowPicker::WindowAt(POINT client) const {
    ::ClientToScreen(window_.get(), &client);
    return ::WindowFromPoint(client);
}

void WindowPicker::Picker_MouseDown() {
    dragging_ = true;
    ::SetFocus(window_.get()); // so that Escape comes here
    ::SetCapture(window_.get());
    ::SetCursor(::LoadCursorW(nullptr, IDC_CROSS));
    ::InvalidateRect(window_.get(), nullptr, TRUE);
}

void WindowPicker::Picker_MouseMove(POINT at) {
    if (!dragging_)
        return;
    ::SetCursor(::LoadCursorW(nullptr, IDC_CROSS));
    if (events_.moved)
        events_.moved(WindowAt(at));
}

void WindowPicker::Picker_MouseUp(POINT at) {
    if (!dragging_)
        return;
    dragging_ = false; // before the capture goes, which would count as giving up
    ::ReleaseCapture();
    ::InvalidateRect(window_.get(), nullptr, TRUE);
    if (events_.dropped)
        events_.dropped(WindowAt(at));
}

LRESULT WindowPicker::HandleMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    const POINT at{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    switch (message) {
    case WM_PAINT:
        Form_Paint();
        return 0;
    case WM_ENABLE:
        ::InvalidateRect(hwnd, nullptr, TRUE);
        return 0;
    case WM_LBUTTONDOWN:
        Picker_MouseDown();
        return 0;
    case WM_MOUSEMOVE:
        Picker_MouseMove(at);
        return 0;
    case WM_LBUTTONUP:
        Picker_MouseUp(at);
        return 0;
    case WM_GETDLGCODE: // Escape while dragging is the picker's, not the window's Cancel
        return dragging_ ? DLGC_WANTALLKEYS : 0;
    case WM_KEYDOWN:
        if (dragging_ && wParam == VK_ESCAPE)
            ::ReleaseCapture();
        return 0;
    case WM_CAPTURECHANGED:
        if (dragging_) {
            dragging_ = false;
            ::InvalidateRect(hwnd, nullptr, TRUE);
            if (events_.cancelled)
                events_.cancelled();
        }
        return 0;
    default:
        return ::DefWindowProcW(hwnd, message, wParam, lParam);
    }
}

} // namespace PrefsWin
