#include "menuwindow/menu_look.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <tuple>

using namespace MenuWindow;

namespace {

MenuLook DefaultLook() {
    return {};
}

} // namespace

TEST(PartLook, GradientTakesBothColoursTypeAndWrap) {
    MenuLook look = DefaultLook();
    look.TitleGradient = true;
    look.TitleColor = 0x112233;
    look.TitleColor2 = 0x445566;
    look.TitleGradientType = 1;
    look.TitleWrapGradient = true;
    PartLook title = LookOf(look, Part::Title, false);
    EXPECT_EQ(title.background, Background::Gradient);
    EXPECT_EQ(title.gradient, (GradientSpec{0x112233, 0x445566, 1, true}));
}

TEST(PartLook, BitmapWinsOverGradient) {
    MenuLook look = DefaultLook();
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
    MenuLook look = DefaultLook();
    EXPECT_TRUE(LookOf(look, Part::Button, false).overMenu) << "the default gradient spans the body";
    look.MenuIsGradientTarget = false;
    EXPECT_FALSE(LookOf(look, Part::Button, false).overMenu);
    look.ButtonGradient = false;
    look.MenuIsGradientTarget = true;
    EXPECT_FALSE(LookOf(look, Part::Button, false).overMenu); // solid buttons
}

TEST(PartLook, VerticalTitleUsesTheVerticalPicture) {
    MenuLook look = DefaultLook();
    look.TitlePosition = 2;
    EXPECT_EQ(LookOf(look, Part::Title, false).bitmapStem, "VTitleA");
    look.TitleShowInactive = true;
    EXPECT_EQ(LookOf(look, Part::Title, true).bitmapStem, "VTitleI");
}

TEST(PartLook, InactiveLookIsUsedOnlyWhenItsSwitchIsOn) {
    MenuLook look = DefaultLook();
    look.TitleInactiveColor = 0x0000AA;
    look.ButtonInactiveColor = 0x00AA00;
    EXPECT_FALSE(UsesInactiveLook(look, Part::Title, true));
    EXPECT_EQ(LookOf(look, Part::Title, true), LookOf(look, Part::Title, false));
    EXPECT_EQ(LookOf(look, Part::Button, true), LookOf(look, Part::Button, false));

    look.TitleShowInactive = true;
    EXPECT_TRUE(UsesInactiveLook(look, Part::Title, true));
    EXPECT_FALSE(UsesInactiveLook(look, Part::Title, false));
    EXPECT_FALSE(UsesInactiveLook(look, Part::Button, true));
    EXPECT_EQ(LookOf(look, Part::Title, true).colour, 0x0000AA);
    EXPECT_EQ(LookOf(look, Part::Title, false).colour, 0x000000);
    EXPECT_EQ(LookOf(look, Part::Button, true).colour, 0xDFDFDF);
}

TEST(PartLook, InactiveTitleTakesEveryInactiveSetting) {
    MenuLook look = DefaultLook();
    look.TitleShowInactive = true;
    look.TitleInactiveGradient = true;
    look.TitleInactiveColor = 1;
    look.TitleInactiveColor2 = 2;
    look.TitleInactiveGradientType = 2;
    look.TitleInactiveWrapGradient = true;
    look.TitleInactiveFontColor = 3;
    look.TitleInactiveFlat = true;
    look.TitleInactive3DColor1 = 4;
    look.TitleInactive3DColor2 = 5;
    look.TitleInactiveTileBitmap = true;
    PartLook title = LookOf(look, Part::Title, true);
    EXPECT_EQ(title.background, Background::Gradient);
    EXPECT_EQ(title.gradient, (GradientSpec{1, 2, 2, true}));
    EXPECT_EQ(title.textColour, 3);
    EXPECT_TRUE(title.flat);
    EXPECT_EQ(title.edgeLight, 4);
    EXPECT_EQ(title.edgeDark, 5);
    EXPECT_TRUE(title.tileBitmap);
    EXPECT_EQ(title.bitmapStem, "TitleI");
    look.TitleInactiveBitmap = true;
    EXPECT_EQ(LookOf(look, Part::Title, true).background, Background::Bitmap);
}

TEST(PartLook, InactiveButtonsTakeEveryInactiveSetting) {
    MenuLook look = DefaultLook();
    look.ButtonShowInactive = true;
    look.ButtonInactiveGradient = true;
    look.ButtonInactiveColor = 1;
    look.ButtonInactiveColor2 = 2;
    look.ButtonInactiveGradientType = 1;
    look.ButtonInactiveWrapGradient = true;
    look.ButtonInactiveFontColor = 3;
    look.ButtonInactiveFlat = 0;
    look.ButtonInactive3DColor1 = 4;
    look.ButtonInactive3DColor2 = 5;
    look.ButtonInactiveTransparent = -1;
    look.InactiveMenuIsGradientTarget = false;
    PartLook button = LookOf(look, Part::Button, true);
    EXPECT_EQ(button.gradient, (GradientSpec{1, 2, 1, true}));
    EXPECT_EQ(button.textColour, 3);
    EXPECT_FALSE(button.flat);
    EXPECT_EQ(button.edgeLight, 4);
    EXPECT_EQ(button.edgeDark, 5);
    EXPECT_TRUE(button.transparent);
    EXPECT_FALSE(button.overMenu);
    EXPECT_EQ(button.bitmapStem, "ButtonI");
    EXPECT_TRUE(LookOf(look, Part::Button, false).overMenu);
}

TEST(PartLook, SelectionBarKindIsANumber) {
    MenuLook look = DefaultLook();
    look.SelBarColor = 0x102030;
    look.SelBarColor2 = 0x405060;
    look.SelBarGradientType = 1;
    look.SelBarWrapGradient = true;
    look.SelBarTextColor = 0x0000FF;
    look.SelBarGradient = 1;
    PartLook bar = LookOf(look, Part::SelectionBar, false);
    EXPECT_EQ(bar.background, Background::Gradient);
    EXPECT_EQ(bar.gradient, (GradientSpec{0x102030, 0x405060, 1, true}));
    EXPECT_EQ(bar.textColour, 0x0000FF);
    look.SelBarGradient = 2;
    look.SelBarTileBitmap = true;
    bar = LookOf(look, Part::SelectionBar, false);
    EXPECT_EQ(bar.background, Background::Bitmap);
    EXPECT_TRUE(bar.tileBitmap);
    EXPECT_EQ(bar.bitmapStem, "ButtonAS");
    look.ButtonShowInactive = true;
    EXPECT_EQ(LookOf(look, Part::SelectionBar, true).bitmapStem, "ButtonIS");
}

TEST(PartLook, ButtonFlatStyleTwoLeavesTheEdgeToTheSelectionBar) {
    MenuLook look = DefaultLook();
    for (auto [style, button, bar] : {std::tuple{0, false, false}, {1, true, true}, {2, true, false}}) {
        look.ButtonFlat = static_cast<std::int16_t>(style);
        EXPECT_EQ(LookOf(look, Part::Button, false).flat, button) << style;
        EXPECT_EQ(LookOf(look, Part::SelectionBar, false).flat, bar) << style;
    }
}

TEST(PartLook, TextTypeAndEdgeStyleNumbers) {
    MenuLook look = DefaultLook();
    EXPECT_EQ(LookOf(look, Part::Title, false).textEffect, TextEffect::Plain) << "2, the default";
    look.TitleTextType = 0;
    look.ButtonTextType = 1;
    EXPECT_EQ(LookOf(look, Part::Title, false).textEffect, TextEffect::Sunken);
    EXPECT_EQ(LookOf(look, Part::Button, false).textEffect, TextEffect::Raised);
    look.ButtonTextType = 5;
    EXPECT_EQ(LookOf(look, Part::Button, false).textEffect, TextEffect::Plain);

    look.Button3DStyle = 1;
    EXPECT_EQ(LookOf(look, Part::Button, false).edgeStyle, EdgeStyle::Sunken);
    EXPECT_EQ(LookOf(look, Part::SelectionBar, false).edgeStyle, EdgeStyle::Sunken);
    EXPECT_EQ(LookOf(look, Part::Title, false).edgeStyle, EdgeStyle::Raised);
    look.Button3DStyle = 4;
    EXPECT_EQ(LookOf(look, Part::Button, false).edgeStyle, EdgeStyle::Bump);
}
