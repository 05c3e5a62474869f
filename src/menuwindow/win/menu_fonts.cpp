#include "menuwindow/win/menu_fonts.h"

#include "win/text_convert.h"

#include <cwchar>
#include <string>

namespace MenuWindow {

namespace {

int CALLBACK NoteFamily(const LOGFONTW*, const TEXTMETRICW*, DWORD, LPARAM found) {
    *reinterpret_cast<bool*>(found) = true;
    return 0; // one is enough
}

Win::UniqueFont MakeFont(const FontSpec& spec) {
    LOGFONTW font{};
    font.lfHeight = spec.height;
    font.lfEscapement = spec.escapement;
    font.lfOrientation = spec.escapement;
    font.lfWeight = spec.bold ? FW_BOLD : FW_NORMAL;
    font.lfItalic = spec.italic ? TRUE : FALSE;
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfOutPrecision = OUT_TT_PRECIS; // a turned font must be an outline font
    font.lfQuality = CLEARTYPE_QUALITY;
    std::wstring face = Win::Widen(spec.face);
    std::wcsncpy(font.lfFaceName, face.c_str(), LF_FACESIZE - 1);
    return Win::UniqueFont(::CreateFontIndirectW(&font));
}

} // namespace

bool FontFaceExists(std::string_view face) {
    std::wstring name = Win::Widen(face);
    if (name.empty() || name.size() >= LF_FACESIZE)
        return false;
    LOGFONTW wanted{};
    wanted.lfCharSet = DEFAULT_CHARSET;
    std::wcsncpy(wanted.lfFaceName, name.c_str(), LF_FACESIZE - 1);
    bool found = false;
    Win::WindowDc screen(nullptr);
    ::EnumFontFamiliesExW(screen.get(), &wanted, NoteFamily, reinterpret_cast<LPARAM>(&found), 0);
    return found;
}

MenuFonts::MenuFonts() {
    Win::WindowDc screen(nullptr);
    measureDc_.reset(::CreateCompatibleDC(screen.get()));
}

void MenuFonts::Build(const MenuLook& look, int dpi) {
    auto make = [&](FontRole role) {
        FontSpec spec = FontSpecOf(look, role, dpi);
        spec.face = ChooseFace(spec.face, FontFaceExists);
        return MakeFont(spec);
    };
    title_ = make(FontRole::Title);
    titleVertical_ = make(FontRole::TitleVertical);
    button_ = make(FontRole::Button);
    auto heightOf = [&](HFONT font) {
        Win::SelectGuard select(measureDc_.get(), font);
        TEXTMETRICW metrics{};
        ::GetTextMetricsW(measureDc_.get(), &metrics);
        return static_cast<int>(metrics.tmHeight);
    };
    titleHeight_ = heightOf(title_.get());
    buttonHeight_ = heightOf(button_.get());
}

HFONT MenuFonts::Get(FontRole role) const {
    switch (role) {
    case FontRole::Title:
        return title_.get();
    case FontRole::TitleVertical:
        return titleVertical_.get();
    case FontRole::Button:
        return button_.get();
    }
    return button_.get();
}

// A turned font measures the same length as the upright one; the upright one is asked.
int MenuFonts::Width(FontRole role, std::string_view text) const {
    if (text.empty())
        return 0;
    HFONT font = Get(role == FontRole::TitleVertical ? FontRole::Title : role);
    Win::SelectGuard select(measureDc_.get(), font);
    std::wstring wide = Win::Widen(text);
    SIZE extent{};
    ::GetTextExtentPoint32W(measureDc_.get(), wide.c_str(), static_cast<int>(wide.size()), &extent);
    return extent.cx;
}

int MenuFonts::Height(FontRole role) const {
    return role == FontRole::Button ? buttonHeight_ : titleHeight_;
}

} // namespace MenuWindow
