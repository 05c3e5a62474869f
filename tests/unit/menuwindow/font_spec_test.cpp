#include "menuwindow/font_spec.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

TEST(CharacterHeight, PointsAtTheDpiAsANegativePixelHeight) {
    EXPECT_EQ(CharacterHeight(9, 96), -12);
    EXPECT_EQ(CharacterHeight(12, 96), -16);
    EXPECT_EQ(CharacterHeight(9, 120), -15);
    EXPECT_EQ(CharacterHeight(10, 144), -20);
}

TEST(ChooseFace, TheWantedFaceWhenItExistsElseArial) {
    auto only = [](std::string_view have) { return [have](std::string_view face) { return face == have; }; };
    EXPECT_EQ(ChooseFace("Verdana", only("Verdana")), "Verdana");
    EXPECT_EQ(ChooseFace("Lost Face", only("Verdana")), "Arial");
    EXPECT_EQ(ChooseFace("", only("")), "Arial");
}

TEST(FontSpecOf, TitleTurnedTitleAndButtonFonts) {
    SettingsRec settings;
    settings.TitleFont = "Georgia";
    settings.TitleFontSize = 12;
    settings.TitleFontBold = true;
    settings.TitleFontItalic = false;
    settings.ButtonFont = "Verdana";
    settings.ButtonFontSize = 8;
    settings.ButtonFontBold = false;
    settings.ButtonFontItalic = true;
    MenuLook look = settings;
    EXPECT_EQ(FontSpecOf(look, FontRole::Title, 96), (FontSpec{"Georgia", -16, true, false, 0}));
    EXPECT_EQ(FontSpecOf(look, FontRole::TitleVertical, 96), (FontSpec{"Georgia", -16, true, false, 900}));
    EXPECT_EQ(FontSpecOf(look, FontRole::Button, 96), (FontSpec{"Verdana", -11, false, true, 0}));
}
