// The menu window's fonts: the faces, sizes and angles asked for, with "Arial" in place
// of a face the system lacks.
#include "menuwindow/look/menu_look.h"
#include "menuwindow/win/menu_fonts.h"
#include "win/handles.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

#include <string>

using namespace MenuWindow;

namespace {

LOGFONTW Described(HFONT font) {
    LOGFONTW described{};
    ::GetObjectW(font, sizeof described, &described);
    return described;
}

MenuLook Look(const std::string& titleFace, const std::string& buttonFace) {
    SettingsRec settings;
    settings.TitleFont = titleFace;
    settings.TitleFontSize = 12;
    settings.TitleFontBold = true;
    settings.TitleFontItalic = true;
    settings.ButtonFont = buttonFace;
    settings.ButtonFontSize = 9;
    settings.ButtonFontBold = false;
    return settings;
}

int CALLBACK KeepFace(const LOGFONTW* font, const TEXTMETRICW*, DWORD type, LPARAM found) {
    std::wstring face = font->lfFaceName;
    if (!(type & TRUETYPE_FONTTYPE) || face.empty() || face[0] == L'@' || face == L"Arial")
        return 1;
    *reinterpret_cast<std::wstring*>(found) = face;
    return 0;
}

// An outline font the system has, other than Arial.
std::string InstalledFace() {
    LOGFONTW any{};
    any.lfCharSet = DEFAULT_CHARSET;
    std::wstring found;
    Win::WindowDc screen(nullptr);
    ::EnumFontFamiliesExW(screen.get(), &any, KeepFace, reinterpret_cast<LPARAM>(&found), 0);
    return Win::Narrow(found);
}

} // namespace

TEST(MenuFonts, AFaceTheSystemHasIsKeptOneItLacksBecomesArial) {
    ASSERT_FALSE(FontFaceExists("No Such Face Tarvex"));
    MenuFonts fonts;
    fonts.Build(Look("No Such Face Tarvex", "No Such Face Either"), 96);
    for (FontRole role : {FontRole::Title, FontRole::TitleVertical, FontRole::Button})
        EXPECT_STREQ(Described(fonts.Get(role)).lfFaceName, L"Arial");

    std::string face = InstalledFace();
    ASSERT_FALSE(face.empty());
    ASSERT_TRUE(FontFaceExists(face));
    fonts.Build(Look(face, face), 96);
    EXPECT_EQ(Win::Narrow(Described(fonts.Get(FontRole::Title)).lfFaceName), face);
    EXPECT_EQ(Win::Narrow(Described(fonts.Get(FontRole::Button)).lfFaceName), face);
}

TEST(MenuFonts, TheTitleFontIsMadeUprightAndTurnedWithItsSizeWeightAndSlant) {
    MenuFonts fonts;
    fonts.Build(Look("Arial", "Arial"), 96);
    LOGFONTW upright = Described(fonts.Get(FontRole::Title));
    LOGFONTW turned = Described(fonts.Get(FontRole::TitleVertical));
    EXPECT_EQ(upright.lfEscapement, 0);
    EXPECT_EQ(turned.lfEscapement, 900);
    EXPECT_EQ(turned.lfOrientation, 900);
    EXPECT_EQ(upright.lfHeight, -16) << "12 points at 96 DPI";
    EXPECT_EQ(upright.lfWeight, FW_BOLD);
    EXPECT_TRUE(upright.lfItalic);
    LOGFONTW button = Described(fonts.Get(FontRole::Button));
    EXPECT_EQ(button.lfHeight, -12);
    EXPECT_EQ(button.lfWeight, FW_NORMAL);
}

// The test machine has a font with Japanese glyphs (the bootstrap installs one) but the
// menu's own font has none: those characters are drawn in the other font, in the same size.
TEST(MenuFonts, CharactersTheMenuFontLacksAreDrawnInAFontThatHasThem) {
    MenuFonts fonts;
    fonts.Build(Look("Arial", "Arial"), 96);
    std::vector<TextPiece> latin = fonts.Pieces(FontRole::Button, L"Text Editor");
    ASSERT_EQ(latin.size(), 1u);
    EXPECT_EQ(latin[0].font, fonts.Get(FontRole::Button));

    std::vector<TextPiece> mixed = fonts.Pieces(FontRole::Button, L"Editor \u30c6\u30ad\u30b9\u30c8");
    ASSERT_EQ(mixed.size(), 2u);
    EXPECT_EQ(mixed[0].text, L"Editor ");
    EXPECT_EQ(mixed[1].text, L"\u30c6\u30ad\u30b9\u30c8");
    ASSERT_NE(mixed[1].font, fonts.Get(FontRole::Button)) << "no installed font has the Japanese glyphs";
    Win::UniqueMemoryDc dc(::CreateCompatibleDC(nullptr));
    Win::SelectGuard select(dc.get(), mixed[1].font);
    WORD glyphs[4];
    ::GetGlyphIndicesW(dc.get(), mixed[1].text.c_str(), 4, glyphs, GGI_MARK_NONEXISTING_GLYPHS);
    for (WORD glyph : glyphs)
        EXPECT_NE(glyph, 0xFFFF);
    EXPECT_EQ(Described(mixed[1].font).lfHeight, Described(fonts.Get(FontRole::Button)).lfHeight);
    EXPECT_GT(fonts.Width(FontRole::Button, "Editor \xE3\x83\x86"), fonts.Width(FontRole::Button, "Editor "));
}
