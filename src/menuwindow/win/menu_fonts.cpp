#include "menuwindow/win/menu_fonts.h"

#include "menuwindow/layout/text_runs.h"
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

int CALLBACK CollectFamily(const LOGFONTW* font, const TEXTMETRICW*, DWORD type, LPARAM faces) {
    // Outline fonts only, and no vertical-writing ("@") faces.
    if ((type & TRUETYPE_FONTTYPE) && font->lfFaceName[0] != L'@')
        reinterpret_cast<std::vector<std::wstring>*>(faces)->push_back(font->lfFaceName);
    return 1;
}

// The installed font families, read once.
const std::vector<std::wstring>& InstalledFaces() {
    static const std::vector<std::wstring> faces = [] {
        std::vector<std::wstring> found;
        LOGFONTW any{};
        any.lfCharSet = DEFAULT_CHARSET;
        Win::WindowDc screen(nullptr);
        ::EnumFontFamiliesExW(screen.get(), &any, CollectFamily, reinterpret_cast<LPARAM>(&found), 0);
        return found;
    }();
    return faces;
}

// Which units of the text the font has no glyph for.
std::vector<bool> MissingGlyphs(HDC dc, HFONT font, std::wstring_view text) {
    Win::SelectGuard select(dc, font);
    std::vector<WORD> glyphs(text.size());
    ::GetGlyphIndicesW(dc, text.data(), static_cast<int>(text.size()), glyphs.data(), GGI_MARK_NONEXISTING_GLYPHS);
    std::vector<bool> missing(text.size());
    for (std::size_t i = 0; i < text.size(); ++i)
        missing[i] = glyphs[i] == 0xFFFF;
    return missing;
}

bool HasAll(HDC dc, HFONT font, std::wstring_view text) {
    for (bool missing : MissingGlyphs(dc, font, text)) {
        if (missing)
            return false;
    }
    return true;
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
    otherFaces_.clear();
    faceOfBlock_.clear();
    auto make = [&](FontRole role) {
        FontSpec& spec = specs_[static_cast<std::size_t>(role)];
        spec = FontSpecOf(look, role, dpi);
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

std::vector<TextPiece> MenuFonts::Pieces(FontRole role, std::wstring_view text) const {
    HFONT own = Get(role);
    std::vector<TextPiece> pieces;
    for (const TextRun& run : SplitTextRuns(MissingGlyphs(measureDc_.get(), own, text))) {
        std::wstring_view part = text.substr(run.start, run.length);
        HFONT font = run.fallback ? FallbackFor(role, part) : own;
        pieces.push_back({std::wstring(part), font ? font : own});
    }
    return pieces;
}

// The face found for the run's first character serves its whole block of characters,
// so the installed fonts are searched once per script rather than once per text.
HFONT MenuFonts::FallbackFor(FontRole role, std::wstring_view run) const {
    auto key = std::make_pair(role, static_cast<wchar_t>(run.front() >> 7));
    auto known = faceOfBlock_.find(key);
    if (known != faceOfBlock_.end())
        return known->second.empty() ? nullptr : FontOfFace(role, known->second);
    for (const std::wstring& face : InstalledFaces()) {
        HFONT font = FontOfFace(role, face);
        if (font && HasAll(measureDc_.get(), font, run)) {
            faceOfBlock_[key] = face;
            return font;
        }
    }
    faceOfBlock_[key].clear();
    return nullptr;
}

HFONT MenuFonts::FontOfFace(FontRole role, const std::wstring& face) const {
    Win::UniqueFont& font = otherFaces_[{role, face}];
    if (!font) {
        FontSpec spec = specs_[static_cast<std::size_t>(role)];
        spec.face = Win::Narrow(face);
        font = MakeFont(spec);
    }
    return font.get();
}

// A turned font measures the same length as the upright one; the upright one is asked.
int MenuFonts::Width(FontRole role, std::string_view text) const {
    if (text.empty())
        return 0;
    int width = 0;
    for (const TextPiece& piece : Pieces(role == FontRole::TitleVertical ? FontRole::Title : role, Win::Widen(text))) {
        Win::SelectGuard select(measureDc_.get(), piece.font);
        SIZE extent{};
        ::GetTextExtentPoint32W(measureDc_.get(), piece.text.c_str(), static_cast<int>(piece.text.size()), &extent);
        width += extent.cx;
    }
    return width;
}

int MenuFonts::Height(FontRole role) const {
    return role == FontRole::Button ? buttonHeight_ : titleHeight_;
}

} // namespace MenuWindow
