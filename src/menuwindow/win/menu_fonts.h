// The GDI fonts of one menu window, and the measures of texts in them.
#pragma once

#include "menuwindow/draw_list.h"
#include "menuwindow/font_spec.h"
#include "menuwindow/menu_look.h"
#include "win/handles.h"

#include <windows.h>

#include <string_view>

namespace MenuWindow {

// Whether the system has a font family of this face name.
bool FontFaceExists(std::string_view face);

class MenuFonts : public TextMeasure {
public:
    MenuFonts();

    // Makes the title font, the turned title font and the button font for the look, at
    // the DPI; a face the system does not have becomes "Arial".
    void Build(const MenuLook& look, int dpi);

    HFONT Get(FontRole role) const;

    int Width(FontRole role, std::string_view text) const override;
    int Height(FontRole role) const override;

private:
    Win::UniqueFont title_;
    Win::UniqueFont titleVertical_;
    Win::UniqueFont button_;
    Win::UniqueMemoryDc measureDc_;
    int titleHeight_ = 0;
    int buttonHeight_ = 0;
};

} // namespace MenuWindow
