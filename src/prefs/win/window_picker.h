// The application picker: a small square with a cross-hair that the user presses and
// drags over the screen, the cursor a cross-hair meanwhile; letting go over a window hands
// that window on. Escape, or the mouse taken away, gives up.
#pragma once

#include "win/form_window.h"
#include "win/handles.h"

#include <windows.h>

#include <functional>

namespace PrefsWin {

class WindowPicker {
public:
    static constexpr const wchar_t* kClassName = L"Tarvex2WindowPicker";

    struct Events {
        std::function<void(HWND under)> moved;   // dragged over a window (null over none)
        std::function<void(HWND under)> dropped; // let go over it
        std::function<void()> cancelled;
    };

    WindowPicker(HWND parent, const RECT& rect, int id, Events events);
    WindowPicker(const WindowPicker&) = delete;
    WindowPicker& operator=(const WindowPicker&) = delete;

    HWND hwnd() const { return window_.get(); }

private:
    friend LRESULT CALLBACK Win::FormWindowProc<WindowPicker>(HWND, UINT, WPARAM, LPARAM);
    LRESULT HandleMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    void Form_Paint();
    void Picker_MouseDown();
    void Picker_MouseMove(POINT at);
    void Picker_MouseUp(POINT at);
    HWND WindowAt(POINT client) const;

    Events events_;
    bool dragging_ = false;
    Win::UniqueWindow window_;
};

} // namespace PrefsWin
