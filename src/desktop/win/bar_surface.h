// What the task list window and the systray copy share: a borderless tool window that
// never takes the focus from the program the user works in, kept on the desktop (or on
// top), painted from a draw list into an off-screen picture in the menus' button font.
#pragma once

#include "core/settings.h"
#include "desktop/desktop_bars.h"
#include "menuwindow/win/back_buffer.h"
#include "menuwindow/win/draw_list_renderer.h"
#include "menuwindow/win/menu_fonts.h"
#include "menuwindow/win/theme_pictures.h"

#include <windows.h>

#include <optional>
#include <string>

namespace DesktopBarsWin {

class BarSurface {
public:
    // Takes the look anew: the fonts at the screen's DPI and the theme's pictures.
    void Prepare(const SettingsRec& settings, const std::string& programFolder);

    int dpi() const { return dpi_; }
    const MenuWindow::MenuFonts& fonts() const { return fonts_; }
    const std::vector<std::string>& pictures() const { return pictures_.Names(); }

    // Paints the list into the picture, of the window's size, and has the window show it.
    void Paint(HWND window, MenuWindow::Size size, const MenuWindow::DrawList& ops,
               const MenuWindow::IconLookup& icons = {});
    void CopyTo(HDC dc, const RECT& area) const { picture_.CopyTo(dc, area); }

private:
    int dpi_ = 96;
    MenuWindow::MenuFonts fonts_;
    MenuWindow::ThemePictures pictures_;
    MenuWindow::BackBuffer picture_;
};

// What every bar window answers alike: painting from the picture, no erasing, never taking
// the activation on a click, and no closing but the program's own. None for other messages.
std::optional<LRESULT> CommonMessage(HWND window, UINT message, const BarSurface& surface);

// Registers a bar window's class with the arrow cursor.
bool RegisterBarClass(const wchar_t* className, WNDPROC procedure, UINT style);

// Creates a hidden bar window of a registered form class; it leaves its children (the
// notification area) to paint themselves.
HWND CreateBarWindow(const wchar_t* className, void* form, bool onTop);

// Keeps the window on top of others, or among them.
void SetOnTop(HWND window, bool onTop);

// Moves and sizes the window without activating it.
void Place(HWND window, const MenuWindow::Rect& rect);

// The room the bars stand in now (see DesktopBars::PlacementArea).
MenuWindow::Rect PlacementRoom();

} // namespace DesktopBarsWin
