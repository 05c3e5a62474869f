// Carries out a draw list on a device context.
#pragma once

#include "menuwindow/paint/draw_list.h"
#include "menuwindow/win/menu_fonts.h"

#include <windows.h>

#include <functional>

namespace MenuWindow {

// The icon of an item (1-based), or null.
using IconLookup = std::function<HICON(int item)>;
// Draws a picture of the theme onto the DC.
using PictureDrawer = std::function<void(HDC dc, const PictureOp& op)>;

void Render(HDC dc, const DrawList& list, const MenuFonts& fonts, const IconLookup& icons,
            const PictureDrawer& pictures = {});

} // namespace MenuWindow
