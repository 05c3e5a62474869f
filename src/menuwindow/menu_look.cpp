#include "menuwindow/menu_look.h"

namespace MenuWindow {

MenuLook LookFromSettings(const SettingsRec& settings) {
    MenuLook look;
    look.TitlePosition = settings.TitlePosition;
    look.TitleVSize = settings.TitleVSize;
    look.TitleFont = settings.TitleFont;
    look.TitleFontSize = settings.TitleFontSize;
    look.TitleFontColor = settings.TitleFontColor;
    look.TitleFontBold = settings.TitleFontBold;
    look.TitleFontItalic = settings.TitleFontItalic;
    look.TitleAlignment = settings.TitleAlignment;
    look.TitleTextType = settings.TitleTextType;
    look.TitleColor = settings.TitleColor;
    look.TitleColor2 = settings.TitleColor2;
    look.TitleGradient = settings.TitleGradient;
    look.TitleGradientType = settings.TitleGradientType;
    look.TitleWrapGradient = settings.TitleWrapGradient;
    look.TitleBitmap = settings.TitleBitmap;
    look.TitleTileBitmap = settings.TitleTileBitmap;
    look.TitleFlat = settings.TitleFlat;
    look.Title3DColor1 = settings.Title3DColor1;
    look.Title3DColor2 = settings.Title3DColor2;
    look.TitleOverlap = settings.TitleOverlap;
    look.TitleShowInactive = settings.TitleShowInactive;
    look.TitleInactiveColor = settings.TitleInactiveColor;
    look.TitleInactiveColor2 = settings.TitleInactiveColor2;
    look.TitleInactiveGradient = settings.TitleInactiveGradient;
    look.TitleInactiveGradientType = settings.TitleInactiveGradientType;
    look.TitleInactiveWrapGradient = settings.TitleInactiveWrapGradient;
    look.TitleInactiveBitmap = settings.TitleInactiveBitmap;
    look.TitleInactiveTileBitmap = settings.TitleInactiveTileBitmap;
    look.TitleInactiveFontColor = settings.TitleInactiveFontColor;
    look.TitleInactiveFlat = settings.TitleInactiveFlat;
    look.TitleInactive3DColor1 = settings.TitleInactive3DColor1;
    look.TitleInactive3DColor2 = settings.TitleInactive3DColor2;
    look.TitleInactiveOverlap = settings.TitleInactiveOverlap;
    look.ButtonVSize = settings.ButtonVSize;
    look.ButtonFont = settings.ButtonFont;
    look.ButtonFontSize = settings.ButtonFontSize;
    look.ButtonFontColor = settings.ButtonFontColor;
    look.ButtonFontBold = settings.ButtonFontBold;
    look.ButtonFontItalic = settings.ButtonFontItalic;
    look.ButtonAlignment = settings.ButtonAlignment;
    look.ButtonMinWidth = settings.ButtonMinWidth;
    look.ButtonMaxWidth = settings.ButtonMaxWidth;
    look.ButtonTextOfset = settings.ButtonTextOfset;
    look.ButtonTextType = settings.ButtonTextType;
    look.ButtonIcons = settings.ButtonIcons;
    look.ButtonIconSize = settings.ButtonIconSize;
    look.ButtonColor = settings.ButtonColor;
    look.ButtonColor2 = settings.ButtonColor2;
    look.ButtonGradient = settings.ButtonGradient;
    look.ButtonGradientType = settings.ButtonGradientType;
    look.ButtonWrapGradient = settings.ButtonWrapGradient;
    look.ButtonBitmap = settings.ButtonBitmap;
    look.ButtonTileBitmap = settings.ButtonTileBitmap;
    look.ButtonBitmapToMenu = settings.ButtonBitmapToMenu;
    look.ButtonTransparent = settings.ButtonTransparent;
    look.ButtonFlat = settings.ButtonFlat;
    look.Button3DColor1 = settings.Button3DColor1;
    look.Button3DColor2 = settings.Button3DColor2;
    look.Button3DStyle = settings.Button3DStyle;
    look.ButtonStyle = settings.ButtonStyle;
    look.ButtonShowInactive = settings.ButtonShowInactive;
    look.ButtonInactiveColor = settings.ButtonInactiveColor;
    look.ButtonInactiveColor2 = settings.ButtonInactiveColor2;
    look.ButtonInactiveGradient = settings.ButtonInactiveGradient;
    look.ButtonInactiveGradientType = settings.ButtonInactiveGradientType;
    look.ButtonInactiveWrapGradient = settings.ButtonInactiveWrapGradient;
    look.ButtonInactiveBitmap = settings.ButtonInactiveBitmap;
    look.ButtonInactiveTileBitmap = settings.ButtonInactiveTileBitmap;
    look.ButtonInactiveBitmapToMenu = settings.ButtonInactiveBitmapToMenu;
    look.ButtonInactiveTransparent = settings.ButtonInactiveTransparent;
    look.ButtonInactiveFontColor = settings.ButtonInactiveFontColor;
    look.ButtonInactiveFlat = settings.ButtonInactiveFlat;
    look.ButtonInactive3DColor1 = settings.ButtonInactive3DColor1;
    look.ButtonInactive3DColor2 = settings.ButtonInactive3DColor2;
    look.SelBar = settings.SelBar;
    look.SelBarColor = settings.SelBarColor;
    look.SelBarColor2 = settings.SelBarColor2;
    look.SelBarTextColor = settings.SelBarTextColor;
    look.SelBarGradient = settings.SelBarGradient;
    look.SelBarGradientType = settings.SelBarGradientType;
    look.SelBarWrapGradient = settings.SelBarWrapGradient;
    look.SelBarTileBitmap = settings.SelBarTileBitmap;
    look.SelBarFollowMouse = settings.SelBarFollowMouse;
    look.SelBarBlink = settings.SelBarBlink;
    look.ScrollShowSelBar = settings.ScrollShowSelBar;
    look.Menu3DArrows = settings.Menu3DArrows;
    look.HotkeyStyle = settings.HotkeyStyle;
    look.CloseStatus = settings.CloseStatus;
    look.RollUpStatus = settings.RollUpStatus;
    look.RotateStatus = settings.RotateStatus;
    look.AlwaysOnTopStatus = settings.AlwaysOnTopStatus;
    look.ClosePosition = settings.ClosePosition;
    look.RollUpPosition = settings.RollUpPosition;
    look.RotatePosition = settings.RotatePosition;
    look.AlwaysOnTopPosition = settings.AlwaysOnTopPosition;
    look.MenuNoFrames = settings.MenuNoFrames;
    look.Menu3DFrame = settings.Menu3DFrame;
    look.Menu3DFrame2 = settings.Menu3DFrame2;
    look.MenuFrameColor = settings.MenuFrameColor;
    look.MenuFrameColor2 = settings.MenuFrameColor2;
    look.MenuFrameColor3 = settings.MenuFrameColor3;
    look.MenuFrameColor4 = settings.MenuFrameColor4;
    look.MenuFrameToBody = settings.MenuFrameToBody;
    look.MenuIsGradientTarget = settings.MenuIsGradientTarget;
    look.InactiveMenuIsGradientTarget = settings.InactiveMenuIsGradientTarget;
    look.MenuMaxNoItems = settings.MenuMaxNoItems;
    look.TwinScrollButtons = settings.TwinScrollButtons;
    look.MenuHorizontalStyle = settings.MenuHorizontalStyle;
    look.HorzNoTitlebar = settings.HorzNoTitlebar;
    look.HorzLockWidth = settings.HorzLockWidth;
    look.HorzAutoRotate = settings.HorzAutoRotate;
    look.HorzButtonsOnly = settings.HorzButtonsOnly;
    look.MenuAlignWithTitle = settings.MenuAlignWithTitle;
    look.MenuOverlapMenus = settings.MenuOverlapMenus;
    look.BitmapsFolder = settings.BitmapsFolder;
    return look;
}

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
