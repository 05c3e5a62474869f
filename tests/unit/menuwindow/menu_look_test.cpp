#include "menuwindow/look/menu_look.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <tuple>

using namespace MenuWindow;

TEST(PartLook, BitmapWinsOverGradientWithTheColourBehindIt) {
    MenuLook look;
    look.ButtonBitmap = true;
    look.ButtonTileBitmap = true;
    PartLook button = LookOf(look, Part::Button, false);
    EXPECT_EQ(button.background, Background::Bitmap);
    EXPECT_TRUE(button.tileBitmap);
    EXPECT_EQ(button.colour, 0xDFDFDF); // what shows when the picture is missing
    EXPECT_FALSE(button.overMenu);
    look.ButtonBitmapToMenu = true;
    EXPECT_TRUE(LookOf(look, Part::Button, false).overMenu);
}

TEST(PartLook, GradientSpansTheMenuOnlyWhenTheMenuIsItsTarget) {
    MenuLook look;
    EXPECT_TRUE(LookOf(look, Part::Button, false).overMenu) << "the default gradient spans the body";
    look.MenuIsGradientTarget = false;
    EXPECT_FALSE(LookOf(look, Part::Button, false).overMenu);
    look.ButtonGradient = false;
    look.MenuIsGradientTarget = true;
    EXPECT_FALSE(LookOf(look, Part::Button, false).overMenu); // solid buttons
}

TEST(PartLook, InactiveLookIsUsedOnlyWhenItsSwitchIsOn) {
    MenuLook look;
    look.TitleInactiveColor = 0x0000AA;
    look.ButtonInactiveColor = 0x00AA00;
    EXPECT_EQ(LookOf(look, Part::Title, true), LookOf(look, Part::Title, false));
    EXPECT_EQ(LookOf(look, Part::Button, true), LookOf(look, Part::Button, false));

    look.TitleShowInactive = true;
    EXPECT_EQ(LookOf(look, Part::Title, true).colour, 0x0000AA);
    EXPECT_EQ(LookOf(look, Part::Title, false).colour, 0x000000);
    EXPECT_EQ(LookOf(look, Part::Button, true).colour, 0xDFDFDF) << "the buttons have their own switch";
    look.ButtonShowInactive = true;
    PartLook button = LookOf(look, Part::Button, true);
    EXPECT_EQ(button.colour, 0x00AA00);
    EXPECT_EQ(button.bitmapStem, "ButtonI");
}

TEST(PartLook, SelectionBarIsSolidAGradientOrAPicture) {
    MenuLook look;
    look.SelBarColor2 = 0x405060;
    EXPECT_EQ(LookOf(look, Part::SelectionBar, false).background, Background::Solid);
    look.SelBarGradient = 1;
    PartLook bar = LookOf(look, Part::SelectionBar, false);
    EXPECT_EQ(bar.background, Background::Gradient);
    EXPECT_EQ(bar.gradient.to, 0x405060);
    look.SelBarGradient = 2;
    bar = LookOf(look, Part::SelectionBar, false);
    EXPECT_EQ(bar.background, Background::Bitmap);
    EXPECT_EQ(bar.bitmapStem, "ButtonAS");
    look.ButtonShowInactive = true;
    EXPECT_EQ(LookOf(look, Part::SelectionBar, true).bitmapStem, "ButtonIS");
}

TEST(PartLook, ButtonFlatStyleTwoLeavesTheEdgeToTheSelectionBar) {
    MenuLook look;
    for (auto [style, button, bar] : {std::tuple{0, false, false}, {1, true, true}, {2, true, false}}) {
        look.ButtonFlat = static_cast<std::int16_t>(style);
        EXPECT_EQ(LookOf(look, Part::Button, false).flat, button) << style;
        EXPECT_EQ(LookOf(look, Part::SelectionBar, false).flat, bar) << style;
    }
}
