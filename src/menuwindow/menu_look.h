// The menu window's own copy of the settings that painting reads, and the effective
// look of each painted part for the active and the inactive window.
#pragma once

#include "core/settings.h"
#include "menuwindow/geometry.h"
#include "menuwindow/gradient.h"

#include <cstdint>
#include <string>

namespace MenuWindow {

// Filled by LookFromSettings when the window takes its settings (SetLocalVariables);
// the window paints from this copy until it takes them again.
struct MenuLook {
    // Title bar.
    std::int16_t TitlePosition = 0;
    std::int16_t TitleVSize = 0;
    std::string TitleFont;
    std::int16_t TitleFontSize = 0;
    std::int32_t TitleFontColor = 0;
    bool TitleFontBold = false;
    bool TitleFontItalic = false;
    std::int16_t TitleAlignment = 0;
    std::int16_t TitleTextType = 0;
    std::int32_t TitleColor = 0;
    std::int32_t TitleColor2 = 0;
    bool TitleGradient = false;
    std::int16_t TitleGradientType = 0;
    bool TitleWrapGradient = false;
    bool TitleBitmap = false;
    bool TitleTileBitmap = false;
    bool TitleFlat = false;
    std::int32_t Title3DColor1 = 0;
    std::int32_t Title3DColor2 = 0;
    bool TitleOverlap = false;
    bool TitleShowInactive = false;
    std::int32_t TitleInactiveColor = 0;
    std::int32_t TitleInactiveColor2 = 0;
    bool TitleInactiveGradient = false;
    std::int16_t TitleInactiveGradientType = 0;
    bool TitleInactiveWrapGradient = false;
    bool TitleInactiveBitmap = false;
    bool TitleInactiveTileBitmap = false;
    std::int32_t TitleInactiveFontColor = 0;
    bool TitleInactiveFlat = false;
    std::int32_t TitleInactive3DColor1 = 0;
    std::int32_t TitleInactive3DColor2 = 0;
    bool TitleInactiveOverlap = false;

    // Buttons.
    std::int16_t ButtonVSize = 0;
    std::string ButtonFont;
    std::int16_t ButtonFontSize = 0;
    std::int32_t ButtonFontColor = 0;
    bool ButtonFontBold = false;
    bool ButtonFontItalic = false;
    std::int16_t ButtonAlignment = 0;
    std::int16_t ButtonMinWidth = 0;
    std::int16_t ButtonMaxWidth = 0;
    std::int16_t ButtonTextOfset = 0;
    std::int16_t ButtonTextType = 0;
    bool ButtonIcons = false;
    std::int16_t ButtonIconSize = 0;
    std::int32_t ButtonColor = 0;
    std::int32_t ButtonColor2 = 0;
    bool ButtonGradient = false;
    std::int16_t ButtonGradientType = 0;
    bool ButtonWrapGradient = false;
    bool ButtonBitmap = false;
    bool ButtonTileBitmap = false;
    bool ButtonBitmapToMenu = false;
    bool ButtonTransparent = false;
    std::int16_t ButtonFlat = 0;
    std::int32_t Button3DColor1 = 0;
    std::int32_t Button3DColor2 = 0;
    std::int16_t Button3DStyle = 0;
    std::int16_t ButtonStyle = 0;
    bool ButtonShowInactive = false;
    std::int32_t ButtonInactiveColor = 0;
    std::int32_t ButtonInactiveColor2 = 0;
    bool ButtonInactiveGradient = false;
    std::int16_t ButtonInactiveGradientType = 0;
    bool ButtonInactiveWrapGradient = false;
    bool ButtonInactiveBitmap = false;
    bool ButtonInactiveTileBitmap = false;
    bool ButtonInactiveBitmapToMenu = false;
    std::int32_t ButtonInactiveTransparent = 0;
    std::int32_t ButtonInactiveFontColor = 0;
    std::int16_t ButtonInactiveFlat = 0;
    std::int32_t ButtonInactive3DColor1 = 0;
    std::int32_t ButtonInactive3DColor2 = 0;

    // Selection bar.
    bool SelBar = false;
    std::int32_t SelBarColor = 0;
    std::int32_t SelBarColor2 = 0;
    std::int32_t SelBarTextColor = 0;
    std::int16_t SelBarGradient = 0;
    std::int16_t SelBarGradientType = 0;
    bool SelBarWrapGradient = false;
    bool SelBarTileBitmap = false;
    bool SelBarFollowMouse = false;
    bool SelBarBlink = false;
    bool ScrollShowSelBar = false;

    // Symbols and title-bar buttons.
    std::int16_t Menu3DArrows = 0;
    std::int16_t HotkeyStyle = 0;
    std::int16_t CloseStatus = 0;
    std::int16_t RollUpStatus = 0;
    std::int16_t RotateStatus = 0;
    std::int16_t AlwaysOnTopStatus = 0;
    std::int16_t ClosePosition = 0;
    std::int16_t RollUpPosition = 0;
    std::int16_t RotatePosition = 0;
    std::int16_t AlwaysOnTopPosition = 0;

    // Frame and the whole menu.
    std::int16_t MenuNoFrames = 0;
    bool Menu3DFrame = false;
    bool Menu3DFrame2 = false;
    std::int32_t MenuFrameColor = 0;
    std::int32_t MenuFrameColor2 = 0;
    std::int32_t MenuFrameColor3 = 0;
    std::int32_t MenuFrameColor4 = 0;
    bool MenuFrameToBody = false;
    bool MenuIsGradientTarget = false;
    bool InactiveMenuIsGradientTarget = false;
    std::int16_t MenuMaxNoItems = 0;
    bool TwinScrollButtons = false;
    std::int16_t MenuHorizontalStyle = 0;
    bool HorzNoTitlebar = false;
    bool HorzLockWidth = false;
    bool HorzAutoRotate = false;
    bool HorzButtonsOnly = false;
    std::int16_t MenuAlignWithTitle = 0;
    bool MenuOverlapMenus = false;
    std::string BitmapsFolder;

    bool operator==(const MenuLook&) const = default;
};

MenuLook LookFromSettings(const SettingsRec& settings);

// The painted parts that have a look of their own.
enum class Part { Title, Button, SelectionBar };

enum class Background { Solid, Gradient, Bitmap };

// How a part's text is drawn, by TitleTextType / ButtonTextType: 0 sunken (engraved
// into the background), 1 raised (embossed), any other value plain.
enum class TextEffect { Sunken, Raised, Plain };

// How a part's 3D edge is drawn, by Button3DStyle (the title's edge is always raised):
// 0 raised, 1 sunken, any other value a bump (a raised line outside a sunken one).
enum class EdgeStyle { Raised, Sunken, Bump };

struct PartLook {
    Background background = Background::Solid;
    Colour colour = 0;        // the solid colour, also used where a wanted bitmap is missing
    GradientSpec gradient;    // from colour to the second colour
    std::string bitmapStem;   // picture file name without extension: "TitleA", "VTitleI", "ButtonAS" ...
    bool tileBitmap = false;  // tiled rather than stretched
    bool overMenu = false;    // buttons: the gradient or bitmap spans the whole menu body
    bool transparent = false; // buttons: drawn over the menu background
    Colour textColour = 0;
    TextEffect textEffect = TextEffect::Plain;
    bool flat = true; // no 3D edge
    EdgeStyle edgeStyle = EdgeStyle::Raised;
    Colour edgeLight = 0;
    Colour edgeDark = 0;
    bool operator==(const PartLook&) const = default;
};

// Whether an inactive window paints the part with the inactive settings: only when its
// ...ShowInactive switch is on (the selection bar follows the buttons' switch).
bool UsesInactiveLook(const MenuLook& look, Part part, bool inactiveWindow);

// The look of a part in an active or an inactive window. Background precedence: the
// bitmap switch, then the gradient switch, else the solid colour; the selection bar's
// SelBarGradient is a kind number instead: 0 solid, 1 gradient, anything else bitmap.
// ButtonFlat is a style number: 0 edged, 2 flat except under the selection bar, any other
// value flat.
PartLook LookOf(const MenuLook& look, Part part, bool inactiveWindow);

} // namespace MenuWindow
