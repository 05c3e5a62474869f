#include "core/settings_catalogue.h"

#include <array>

namespace {

constexpr bool kLook = true;
constexpr bool kGeneral = false;

// Name and field come from one token in SETTING, so a key can never point at another key's field.
constexpr SettingDef Setting(std::string_view name, SettingType type, bool theme, SettingField field) {
    return {name, type, theme, field};
}

#define SETTING(name, type, theme) Setting(#name, SettingType::type, theme, &SettingsRec::name)

constexpr std::array kCatalogue = {
    SETTING(TitleGradient, Boolean, kLook),
    SETTING(TitleColor, Color, kLook),
    SETTING(TitleColor2, Color, kLook),
    SETTING(TitleVSize, Int16, kLook),
    SETTING(TitleFont, String, kLook),
    SETTING(TitleFontSize, Int16, kLook),
    SETTING(TitleFontColor, Color, kLook),
    SETTING(TitleFontBold, Boolean, kLook),
    SETTING(TitleFontItalic, Boolean, kLook),
    SETTING(TitleFlat, Boolean, kLook),
    SETTING(Title3DColor1, Color, kLook),
    SETTING(Title3DColor2, Color, kLook),
    SETTING(TitleAlignment, Int16, kLook),
    SETTING(ButtonBitmapToMenu, Boolean, kLook),
    SETTING(ButtonInactiveBitmapToMenu, Boolean, kLook),
    SETTING(ButtonTransparent, Boolean, kLook),
    SETTING(ButtonInactiveTransparent, Int32, kLook),
    SETTING(ButtonGradient, Boolean, kLook),
    SETTING(ButtonColor, Color, kLook),
    SETTING(ButtonColor2, Color, kLook),
    SETTING(ButtonVSize, Int16, kLook),
    SETTING(ButtonFont, String, kLook),
    SETTING(ButtonFontSize, Int16, kLook),
    SETTING(ButtonFontColor, Color, kLook),
    SETTING(ButtonFontBold, Boolean, kLook),
    SETTING(ButtonFontItalic, Boolean, kLook),
    SETTING(ButtonFlat, Int16, kLook),
    SETTING(Button3DColor1, Color, kLook),
    SETTING(Button3DColor2, Color, kLook),
    SETTING(ButtonIcons, Boolean, kLook),
    SETTING(ButtonIconSize, Int16, kLook),
    SETTING(TwinScrollButtons, Boolean, kLook),
    SETTING(Menu3DArrows, Int16, kLook),
    SETTING(SelBar, Boolean, kLook),
    SETTING(SelBarGradient, Int16, kLook),
    SETTING(SelBarGradientType, Int16, kLook),
    SETTING(SelBarWrapGradient, Boolean, kLook),
    SETTING(SelBarTileBitmap, Boolean, kLook),
    SETTING(SelBarColor, Color, kLook),
    SETTING(SelBarColor2, Color, kLook),
    SETTING(SelBarTextColor, Color, kLook),
    SETTING(SelBarFollowMouse, Boolean, kLook),
    SETTING(MenuAutoDropDown, Boolean, kLook),
    SETTING(MenuDropDownDelay, Int16, kLook),
    SETTING(MenuAlignWithTitle, Int16, kLook),
    SETTING(ButtonMaxWidth, Int16, kLook),
    SETTING(ButtonMinWidth, Int16, kLook),
    SETTING(ButtonTextOfset, Int16, kLook),
    SETTING(MenuHotKeys, Int16, kLook),
    SETTING(MenuAutoScroll, Boolean, kLook),
    SETTING(GenThemeAuthor, String, kLook),
    SETTING(GenThemeName, String, kLook),
    SETTING(ButtonAlignment, Int16, kLook),
    SETTING(TitlePosition, Int16, kLook),
    SETTING(TitleTextType, Int16, kLook),
    SETTING(ButtonTextType, Int16, kLook),
    SETTING(TitleShowInactive, Boolean, kLook),
    SETTING(ButtonShowInactive, Boolean, kLook),
    SETTING(TitleBitmap, Boolean, kLook),
    SETTING(ButtonBitmap, Boolean, kLook),
    SETTING(TitleTileBitmap, Boolean, kLook),
    SETTING(ButtonTileBitmap, Boolean, kLook),
    SETTING(TitleGradientType, Int16, kLook),
    SETTING(ButtonGradientType, Int16, kLook),
    SETTING(TitleWrapGradient, Boolean, kLook),
    SETTING(ButtonWrapGradient, Boolean, kLook),
    SETTING(TitleInactiveBitmap, Boolean, kLook),
    SETTING(ButtonInactiveBitmap, Boolean, kLook),
    SETTING(TitleInactiveTileBitmap, Boolean, kLook),
    SETTING(ButtonInactiveTileBitmap, Boolean, kLook),
    SETTING(TitleInactiveGradientType, Int16, kLook),
    SETTING(ButtonInactiveGradientType, Int16, kLook),
    SETTING(TitleInactiveWrapGradient, Boolean, kLook),
    SETTING(ButtonInactiveWrapGradient, Boolean, kLook),
    SETTING(TitleInactiveFontColor, Color, kLook),
    SETTING(ButtonInactiveFontColor, Color, kLook),
    SETTING(TitleInactiveGradient, Boolean, kLook),
    SETTING(ButtonInactiveGradient, Boolean, kLook),
    SETTING(TitleInactiveColor, Color, kLook),
    SETTING(ButtonInactiveColor, Color, kLook),
    SETTING(TitleInactiveColor2, Color, kLook),
    SETTING(ButtonInactiveColor2, Color, kLook),
    SETTING(TitleInactiveFlat, Boolean, kLook),
    SETTING(ButtonInactiveFlat, Int16, kLook),
    SETTING(TitleInactive3DColor1, Color, kLook),
    SETTING(ButtonInactive3DColor1, Color, kLook),
    SETTING(TitleInactive3DColor2, Color, kLook),
    SETTING(ButtonInactive3DColor2, Color, kLook),
    SETTING(ScrollShowSelBar, Boolean, kLook),
    SETTING(MenuScrollSpeed, Int16, kLook),
    SETTING(ShowMoreOnTop, Boolean, kLook),
    SETTING(MenuFolderPosition, Int16, kLook),
    SETTING(MenuHorizontalStyle, Int16, kLook),
    SETTING(SelBarBlink, Boolean, kLook),
    SETTING(BitmapsFolder, String, kLook),
    SETTING(ButtonStyle, Int16, kLook),
    SETTING(HotkeyStyle, Int16, kLook),
    SETTING(CloseStatus, Int16, kLook),
    SETTING(RollUpStatus, Int16, kLook),
    SETTING(RotateStatus, Int16, kLook),
    SETTING(AlwaysOnTopStatus, Int16, kLook),
    SETTING(ClosePosition, Int16, kLook),
    SETTING(RollUpPosition, Int16, kLook),
    SETTING(RotatePosition, Int16, kLook),
    SETTING(AlwaysOnTopPosition, Int16, kLook),
    SETTING(MenuIsGradientTarget, Boolean, kLook),
    SETTING(InactiveMenuIsGradientTarget, Boolean, kLook),
    SETTING(AnimationType, Int16, kLook),
    SETTING(AnimationHType, Int16, kLook),
    SETTING(AnimationSpeed, Int16, kLook),
    SETTING(TaskbarStyle, Int16, kLook),
    SETTING(TaskbarOrientation, Int16, kLook),
    SETTING(TaskbarBackgroundType, Int16, kLook),
    SETTING(TaskbarGradientType, Int16, kLook),
    SETTING(TaskbarIconSize, Int16, kLook),
    SETTING(TaskbarTileBitmap, Boolean, kLook),
    SETTING(TaskbarWrapGradient, Boolean, kLook),
    SETTING(TaskbarColor1, Color, kLook),
    SETTING(TaskbarColor2, Color, kLook),
    SETTING(TaskbarFrame, Int16, kLook),
    SETTING(MenuMaxNoItems, Int16, kLook),
    SETTING(MenuToggleSubMenus, Boolean, kLook),
    SETTING(Button3DStyle, Int16, kLook),
    SETTING(TaskbarFrameColor1, Color, kLook),
    SETTING(TaskbarFrameColor2, Color, kLook),
    SETTING(MenuNoFrames, Int16, kLook),
    SETTING(Menu3DFrame, Boolean, kLook),
    SETTING(MenuFrameColor, Color, kLook),
    SETTING(MenuFrameColor2, Color, kLook),
    SETTING(Menu3DFrame2, Boolean, kLook),
    SETTING(MenuFrameColor3, Color, kLook),
    SETTING(MenuFrameColor4, Color, kLook),
    SETTING(MenuFrameToBody, Boolean, kLook),
    SETTING(SysTileWallpaper, String, kLook),
    SETTING(HorzNoTitlebar, Boolean, kLook),
    SETTING(HorzLockWidth, Boolean, kLook),
    SETTING(HorzAutoRotate, Boolean, kLook),
    SETTING(HorzButtonsOnly, Boolean, kLook),
    SETTING(MenuOverlapMenus, Boolean, kLook),
    SETTING(TitleOverlap, Boolean, kLook),
    SETTING(TitleInactiveOverlap, Boolean, kLook),
    SETTING(GenUseHotKey, Boolean, kGeneral),
    SETTING(GenHotKey, Int16, kGeneral),
    SETTING(GenShiftHotKey, Boolean, kGeneral),
    SETTING(GenShowInTray, Boolean, kGeneral),
    SETTING(GenDblClickDelay, Int16, kGeneral),
    SETTING(GenShowExtensions, Boolean, kGeneral),
    SETTING(GenShowHidden, Boolean, kGeneral),
    SETTING(GenShowSystem, Boolean, kGeneral),
    SETTING(GenShowTooltips, Boolean, kGeneral),
    SETTING(GenHideDesktopIcons, Boolean, kGeneral),
    SETTING(GenRightClick, Int16, kGeneral),
    SETTING(GenMiddleClick, Int16, kGeneral),
    SETTING(GenDblClick, Int16, kGeneral),
    SETTING(GenBumpDelay, Int16, kGeneral),
    SETTING(GenSoundsOn, Int16, kGeneral),
    SETTING(GenAnimationOn, Int16, kGeneral),
    SETTING(GenUnzipAlwaysOverwrite, Boolean, kGeneral),
    SETTING(GenATXShutdown, Boolean, kGeneral),
    SETTING(GenForceShutdown, Boolean, kGeneral),
    SETTING(GenAutoRun, Boolean, kGeneral),
    SETTING(TaskbarPos, Int16, kGeneral),
    SETTING(TaskbarXofset, Int16, kGeneral),
    SETTING(TaskbarYofset, Int16, kGeneral),
    SETTING(TaskbarTooltips, Boolean, kGeneral),
    SETTING(TaskbarRunOnStartup, Boolean, kGeneral),
    SETTING(SystrayPos, Int16, kGeneral),
    SETTING(SystrayXofset, Int16, kGeneral),
    SETTING(SystrayYofset, Int16, kGeneral),
    SETTING(SystrayStyle, Int16, kGeneral),
    SETTING(SystrayAutoHide, Boolean, kGeneral),
    SETTING(SystrayHideDelay, Int16, kGeneral),
    SETTING(SystrayAlwaysOnTop, Boolean, kGeneral),
    SETTING(TaskbarAlwaysOnTop, Boolean, kGeneral),
    SettingDef{"NoOfUserTasks", SettingType::Int32, kGeneral, &SettingsRec::UserTasks},
    SETTING(BrowserIconType, Int16, kGeneral),
    SettingDef{"NoOfHotSpots", SettingType::Int16, kGeneral, &SettingsRec::HotSpots},
};

#undef SETTING

// The member's type must be the one the key's type stores, a count key must name a list, and
// a 32-bit key is read as a colour exactly when its name says "Color".
constexpr bool TypeFitsField(const SettingDef& def) {
    switch (def.type) {
    case SettingType::Boolean:
        return std::holds_alternative<bool SettingsRec::*>(def.field);
    case SettingType::Int16:
        return std::holds_alternative<std::int16_t SettingsRec::*>(def.field) ||
               std::holds_alternative<std::vector<HotspotRec> SettingsRec::*>(def.field);
    case SettingType::Int32:
        return (std::holds_alternative<std::int32_t SettingsRec::*>(def.field) ||
                std::holds_alternative<std::vector<UserTaskRec> SettingsRec::*>(def.field)) &&
               def.name.find("Color") == std::string_view::npos;
    case SettingType::Color:
        return std::holds_alternative<std::int32_t SettingsRec::*>(def.field) &&
               def.name.find("Color") != std::string_view::npos;
    case SettingType::String:
        return std::holds_alternative<std::string SettingsRec::*>(def.field);
    }
    return false;
}

// Theme-only saving stops at the first general key, so the look keys must all come first.
constexpr bool LookKeysComeFirst() {
    bool general = false;
    for (const SettingDef& def : kCatalogue) {
        if (def.theme && general)
            return false;
        general = general || !def.theme;
    }
    return true;
}

constexpr bool EveryTypeFits() {
    for (const SettingDef& def : kCatalogue)
        if (!TypeFitsField(def))
            return false;
    return true;
}

static_assert(LookKeysComeFirst());
static_assert(EveryTypeFits());

} // namespace

std::span<const SettingDef> SettingsCatalogue() {
    return kCatalogue;
}
