// What every form of the program needs from its window class: the bond between the
// window and the object that handles its messages, the class registration, and the
// program's icon.
#pragma once

#include "win/handles.h"

#include <windows.h>

namespace Win {

// The window procedure of a form class. The form passed as CreateWindowExW's creation
// parameter takes ownership of the window at WM_NCCREATE and receives every later
// message; at WM_NCDESTROY, the system having destroyed the window, it lets the handle
// go. A form grants this template access to its Win::UniqueWindow `window_` and its
// `LRESULT HandleMessage(HWND, UINT, WPARAM, LPARAM)`.
template <class Form>
LRESULT CALLBACK FormWindowProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* form = static_cast<Form*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        form->window_.reset(hwnd);
        ::SetWindowLongPtrW(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(form));
    }
    auto* form = reinterpret_cast<Form*>(::GetWindowLongPtrW(hwnd, GWLP_USERDATA));
    if (!form)
        return ::DefWindowProcW(hwnd, message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        ::SetWindowLongPtrW(hwnd, GWLP_USERDATA, 0);
        form->window_.release();
        return ::DefWindowProcW(hwnd, message, wParam, lParam);
    }
    return form->HandleMessage(hwnd, message, wParam, lParam);
}

// The class of a form: its window procedure, the instance, the arrow cursor and the
// name; a caller adds what its windows need more (icon, background, style).
template <class Form>
WNDCLASSEXW FormClass(HINSTANCE instance, const wchar_t* className) {
    WNDCLASSEXW windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = FormWindowProc<Form>;
    windowClass.hInstance = instance;
    windowClass.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    windowClass.lpszClassName = className;
    return windowClass;
}

// Registers a window class; one that a window of the program registered before counts.
bool RegisterFormClass(const WNDCLASSEXW& windowClass);

// The program's icon resource at a size in pixels; null without one. The icon is
// shared: it belongs to the system's cache and is never destroyed by hand.
HICON LoadProgramIcon(HINSTANCE instance, int resource, int size);

} // namespace Win
