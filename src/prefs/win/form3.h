// The area picker: a window over the whole screen that shows a frozen copy of it, on
// which the user drags a rectangle. Escape or a right click gives up.
#pragma once

#include "win/form_window.h"
#include "win/handles.h"

#include <windows.h>

#include <optional>

namespace PrefsWin {

class Form3 {
public:
    static constexpr const wchar_t* kClassName = L"Tarvex2AreaPicker";

    // Runs until the user has dragged a rectangle (screen pixels, corners included) or gave up.
    static std::optional<RECT> PickArea(HWND owner);

private:
    friend LRESULT CALLBACK Win::FormWindowProc<Form3>(HWND, UINT, WPARAM, LPARAM);
    LRESULT HandleMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    void Form_Paint();
    RECT Band() const;

    Win::UniqueBitmap frozen_;
    Win::UniqueMemoryDc frozenDc_;
    POINT origin_{}; // the screen's top left
    POINT from_{};
    POINT to_{};
    bool dragging_ = false;
    bool done_ = false;
    std::optional<RECT> picked_;
    Win::UniqueWindow window_;
};

} // namespace PrefsWin
