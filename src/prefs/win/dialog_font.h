// The font of the preferences window, the system's message font, and the dialog units
// measured in it: the window lays itself out in dialog units so that it grows with the
// font and the DPI as a dialog box does.
#pragma once

#include "prefs/page_layout.h"
#include "win/handles.h"

#include <windows.h>

#include <string>

namespace PrefsWin {

class DialogFont {
public:
    // At the system's DPI, or at another (a monitor of another scaling): the system's
    // message font is scaled to it.
    DialogFont();
    explicit DialogFont(int dpi);
    HFONT get() const { return font_.get(); }
    HFONT bold() const { return bold_.get(); }
    int X(int dlu) const { return ::MulDiv(dlu, baseX_, 4); }
    int Y(int dlu) const { return ::MulDiv(dlu, baseY_, 8); }
    RECT Pixels(const Preferences::DluRect& rect) const;
    int dpi() const { return dpi_; }

private:
    Win::UniqueFont font_;
    Win::UniqueFont bold_;
    int baseX_ = 6;
    int baseY_ = 13;
    int dpi_ = 96;
};

// Moves and sizes every control in a window (and in its panels) by the change of DPI, as
// places in dialog units scale; a combo box keeps its list as tall as it was in lines.
void ScaleChildren(HWND parent, int fromDpi, int toDpi);

// A visible child control of a window at a place in the window's client pixels.
HWND MakeChild(HWND parent, const wchar_t* className, const wchar_t* text, DWORD style, const RECT& rect, int id = 0);

// A control's text, in UTF-8.
std::string ControlText(HWND control);

// Gives a window and all its children the font.
void SetFontOfChildren(HWND parent, HFONT font);

} // namespace PrefsWin
