// The GDI fonts of one menu window, and the measures of texts in them.
#pragma once

#include "menuwindow/paint/draw_list.h"
#include "menuwindow/look/font_spec.h"
#include "menuwindow/look/menu_look.h"
#include "win/handles.h"

#include <windows.h>

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace MenuWindow {

// Whether the system has a font family of this face name.
bool FontFaceExists(std::string_view face);

// A piece of a text and the font that draws it.
struct TextPiece {
    std::wstring text;
    HFONT font = nullptr;
};

class MenuFonts : public TextMeasure {
public:
    MenuFonts();

    // Makes the title font, the turned title font and the button font for the look, at
    // the DPI; a face the system does not have becomes "Arial".
    void Build(const MenuLook& look, int dpi);

    HFONT Get(FontRole role) const;

    // The text in pieces: what the role's font can draw in it, and the characters it
    // lacks in the first installed font that has them all (in the role's size and style).
    // Characters no font has stay with the role's font.
    std::vector<TextPiece> Pieces(FontRole role, std::wstring_view text) const;

    int Width(FontRole role, std::string_view text) const override;
    int Height(FontRole role) const override;

private:
    HFONT FallbackFor(FontRole role, std::wstring_view run) const;
    HFONT FontOfFace(FontRole role, const std::wstring& face) const;

    std::array<FontSpec, 3> specs_; // by FontRole
    // Fonts of other faces, made as the texts ask for them, and the face found for each
    // block of 128 characters (empty when no font has them).
    mutable std::map<std::pair<FontRole, std::wstring>, Win::UniqueFont> otherFaces_;
    mutable std::map<std::pair<FontRole, wchar_t>, std::wstring> faceOfBlock_;
    Win::UniqueFont title_;
    Win::UniqueFont titleVertical_;
    Win::UniqueFont button_;
    Win::UniqueMemoryDc measureDc_;
    int titleHeight_ = 0;
    int buttonHeight_ = 0;
};

} // namespace MenuWindow
