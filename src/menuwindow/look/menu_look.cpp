#include "menuwindow/look/menu_look.h"

namespace MenuWindow {

bool UsesInactiveLook(const MenuLook& look, Part part, bool inactiveWindow) {
    if (!inactiveWindow)
        return false;
    return part == Part::Title ? look.TitleShowInactive : look.ButtonShowInactive;
}

namespace {

TextEffect TextEffectOf(std::int16_t textType) {
    switch (textType) {
    case 0:
        return TextEffect::Sunken;
    case 1:
        return TextEffect::Raised;
    default:
        return TextEffect::Plain;
    }
}

EdgeStyle EdgeStyleOf(std::int16_t style) {
    switch (style) {
    case 0:
        return EdgeStyle::Raised;
    case 1:
        return EdgeStyle::Sunken;
    default:
        return EdgeStyle::Bump;
    }
}

Background BackgroundOf(bool bitmap, bool gradient) {
    if (bitmap)
        return Background::Bitmap;
    return gradient ? Background::Gradient : Background::Solid;
}

PartLook TitleLook(const MenuLook& look, bool inactive) {
    PartLook part;
    const char* stem = look.TitlePosition == 2 ? "VTitle" : "Title";
    part.bitmapStem = std::string(stem) + (inactive ? "I" : "A");
    part.textEffect = TextEffectOf(look.TitleTextType);
    part.edgeStyle = EdgeStyle::Raised;
    if (inactive) {
        part.background = BackgroundOf(look.TitleInactiveBitmap, look.TitleInactiveGradient);
        part.colour = look.TitleInactiveColor;
        part.gradient = {look.TitleInactiveColor, look.TitleInactiveColor2, look.TitleInactiveGradientType,
                         look.TitleInactiveWrapGradient};
        part.tileBitmap = look.TitleInactiveTileBitmap;
        part.textColour = look.TitleInactiveFontColor;
        part.flat = look.TitleInactiveFlat;
        part.edgeLight = look.TitleInactive3DColor1;
        part.edgeDark = look.TitleInactive3DColor2;
    } else {
        part.background = BackgroundOf(look.TitleBitmap, look.TitleGradient);
        part.colour = look.TitleColor;
        part.gradient = {look.TitleColor, look.TitleColor2, look.TitleGradientType, look.TitleWrapGradient};
        part.tileBitmap = look.TitleTileBitmap;
        part.textColour = look.TitleFontColor;
        part.flat = look.TitleFlat;
        part.edgeLight = look.Title3DColor1;
        part.edgeDark = look.Title3DColor2;
    }
    return part;
}

PartLook ButtonLook(const MenuLook& look, bool inactive) {
    PartLook part;
    part.bitmapStem = inactive ? "ButtonI" : "ButtonA";
    part.textEffect = TextEffectOf(look.ButtonTextType);
    part.edgeStyle = EdgeStyleOf(look.Button3DStyle);
    bool bitmapToMenu = false;
    bool gradientToMenu = false;
    if (inactive) {
        part.background = BackgroundOf(look.ButtonInactiveBitmap, look.ButtonInactiveGradient);
        part.colour = look.ButtonInactiveColor;
        part.gradient = {look.ButtonInactiveColor, look.ButtonInactiveColor2, look.ButtonInactiveGradientType,
                         look.ButtonInactiveWrapGradient};
        part.tileBitmap = look.ButtonInactiveTileBitmap;
        part.transparent = look.ButtonInactiveTransparent != 0;
        part.textColour = look.ButtonInactiveFontColor;
        part.flat = look.ButtonInactiveFlat != 0;
        part.edgeLight = look.ButtonInactive3DColor1;
        part.edgeDark = look.ButtonInactive3DColor2;
        bitmapToMenu = look.ButtonInactiveBitmapToMenu;
        gradientToMenu = look.InactiveMenuIsGradientTarget;
    } else {
        part.background = BackgroundOf(look.ButtonBitmap, look.ButtonGradient);
        part.colour = look.ButtonColor;
        part.gradient = {look.ButtonColor, look.ButtonColor2, look.ButtonGradientType, look.ButtonWrapGradient};
        part.tileBitmap = look.ButtonTileBitmap;
        part.transparent = look.ButtonTransparent;
        part.textColour = look.ButtonFontColor;
        part.flat = look.ButtonFlat != 0;
        part.edgeLight = look.Button3DColor1;
        part.edgeDark = look.Button3DColor2;
        bitmapToMenu = look.ButtonBitmapToMenu;
        gradientToMenu = look.MenuIsGradientTarget;
    }
    part.overMenu = (part.background == Background::Bitmap && bitmapToMenu) ||
                    (part.background == Background::Gradient && gradientToMenu);
    return part;
}

// The bar is a button drawn selected: it keeps the button's edge colours and style
// and has its own fill and text colour.
PartLook SelectionBarLook(const MenuLook& look, bool inactive) {
    PartLook part = ButtonLook(look, inactive);
    part.bitmapStem = inactive ? "ButtonIS" : "ButtonAS";
    part.overMenu = false;
    part.transparent = false;
    part.colour = look.SelBarColor;
    part.gradient = {look.SelBarColor, look.SelBarColor2, look.SelBarGradientType, look.SelBarWrapGradient};
    part.tileBitmap = look.SelBarTileBitmap;
    part.textColour = look.SelBarTextColor;
    switch (look.SelBarGradient) {
    case 0:
        part.background = Background::Solid;
        break;
    case 1:
        part.background = Background::Gradient;
        break;
    default:
        part.background = Background::Bitmap;
        break;
    }
    std::int16_t flatStyle = inactive ? look.ButtonInactiveFlat : look.ButtonFlat;
    part.flat = flatStyle != 0 && flatStyle != 2;
    return part;
}

} // namespace

PartLook LookOf(const MenuLook& look, Part part, bool inactiveWindow) {
    bool inactive = UsesInactiveLook(look, part, inactiveWindow);
    switch (part) {
    case Part::Title:
        return TitleLook(look, inactive);
    case Part::Button:
        return ButtonLook(look, inactive);
    case Part::SelectionBar:
        return SelectionBarLook(look, inactive);
    }
    return ButtonLook(look, inactive);
}

} // namespace MenuWindow
