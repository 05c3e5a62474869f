// The fonts a menu window draws with, as plain descriptions that the shell turns into
// GDI fonts.
#pragma once

#include "menuwindow/paint/draw_list.h"
#include "menuwindow/look/menu_look.h"

#include <functional>
#include <string>
#include <string_view>

namespace MenuWindow {

inline constexpr const char* kFallbackFace = "Arial";

struct FontSpec {
    std::string face;
    int height = 0; // the character height in pixels, negative as GDI takes it
    bool bold = false;
    bool italic = false;
    int escapement = 0; // tenths of a degree: 900 turns the text to read upwards
    bool operator==(const FontSpec&) const = default;
};

// A size in points as a character height in pixels at a number of dots per inch,
// rounded, negative (a character height rather than a cell height).
int CharacterHeight(int pointSize, int dpi);

// The face to use: the one wanted when the system has it, else "Arial".
std::string ChooseFace(std::string_view wanted, const std::function<bool(std::string_view face)>& exists);

// The font for a role, by the look: the title font (turned for TitleVertical) or the
// button font, with its size, weight and slant.
FontSpec FontSpecOf(const MenuLook& look, FontRole role, int dpi);

} // namespace MenuWindow
