// The catalogue as the file sees it: names, order, defaults, types and theme keys, checked
// against a list written out by hand, independent of the table in the code.
#include "core/settings.h"
#include "profile_file_fake.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

namespace {

// Name:type:default, in file order. type: b boolean, s 16-bit, l 32-bit, c colour, t text;
// the default as a fresh save writes it, colours in hex. A theme file holds the keys up to
// TitleInactiveOverlap.
constexpr const char* kKeyTable = R"(
TitleGradient:b:False TitleColor:c:0x000000 TitleColor2:c:0x808080 TitleVSize:s:22 TitleFont:t:Arial
TitleFontSize:s:9 TitleFontColor:c:0xFFFFFF TitleFontBold:b:True TitleFontItalic:b:False TitleFlat:b:False
Title3DColor1:c:0x909790 Title3DColor2:c:0x000000 TitleAlignment:s:0 ButtonBitmapToMenu:b:False
ButtonInactiveBitmapToMenu:b:False ButtonTransparent:b:False ButtonInactiveTransparent:l:0 ButtonGradient:b:True
ButtonColor:c:0xDFDFDF ButtonColor2:c:0x919191 ButtonVSize:s:20 ButtonFont:t:Arial ButtonFontSize:s:9
ButtonFontColor:c:0x000000 ButtonFontBold:b:False ButtonFontItalic:b:False ButtonFlat:s:1 Button3DColor1:c:0xFFFFFF
Button3DColor2:c:0x555555 ButtonIcons:b:False ButtonIconSize:s:16 TwinScrollButtons:b:True Menu3DArrows:s:0
SelBar:b:True SelBarGradient:s:0 SelBarGradientType:s:0 SelBarWrapGradient:b:False SelBarTileBitmap:b:False
SelBarColor:c:0xFFFFFF SelBarColor2:c:0xFFFFFF SelBarTextColor:c:0x000000 SelBarFollowMouse:b:False
MenuAutoDropDown:b:False MenuDropDownDelay:s:400 MenuAlignWithTitle:s:0 ButtonMaxWidth:s:300 ButtonMinWidth:s:0
ButtonTextOfset:s:8 MenuHotKeys:s:3 MenuAutoScroll:b:False GenThemeAuthor:t: GenThemeName:t: ButtonAlignment:s:0
TitlePosition:s:0 TitleTextType:s:2 ButtonTextType:s:2 TitleShowInactive:b:False ButtonShowInactive:b:False
TitleBitmap:b:False ButtonBitmap:b:False TitleTileBitmap:b:False ButtonTileBitmap:b:False TitleGradientType:s:0
ButtonGradientType:s:0 TitleWrapGradient:b:False ButtonWrapGradient:b:False TitleInactiveBitmap:b:False
ButtonInactiveBitmap:b:False TitleInactiveTileBitmap:b:False ButtonInactiveTileBitmap:b:False
TitleInactiveGradientType:s:0 ButtonInactiveGradientType:s:0 TitleInactiveWrapGradient:b:False
ButtonInactiveWrapGradient:b:False TitleInactiveFontColor:c:0xFFFFFF ButtonInactiveFontColor:c:0x000000
TitleInactiveGradient:b:False ButtonInactiveGradient:b:False TitleInactiveColor:c:0x000000
ButtonInactiveColor:c:0xAAAAAA TitleInactiveColor2:c:0x808080 ButtonInactiveColor2:c:0xB4B4B4
TitleInactiveFlat:b:False ButtonInactiveFlat:s:1 TitleInactive3DColor1:c:0xFFFFFF ButtonInactive3DColor1:c:0xFFFFFF
TitleInactive3DColor2:c:0x555555 ButtonInactive3DColor2:c:0x555555 ScrollShowSelBar:b:False MenuScrollSpeed:s:50
ShowMoreOnTop:b:True MenuFolderPosition:s:0 MenuHorizontalStyle:s:0 SelBarBlink:b:False BitmapsFolder:t:
ButtonStyle:s:1 HotkeyStyle:s:0 CloseStatus:s:3 RollUpStatus:s:3 RotateStatus:s:0 AlwaysOnTopStatus:s:0
ClosePosition:s:1 RollUpPosition:s:-1 RotatePosition:s:-6 AlwaysOnTopPosition:s:-2 MenuIsGradientTarget:b:True
InactiveMenuIsGradientTarget:b:True AnimationType:s:0 AnimationHType:s:0 AnimationSpeed:s:1 TaskbarStyle:s:0
TaskbarOrientation:s:1 TaskbarBackgroundType:s:0 TaskbarGradientType:s:0 TaskbarIconSize:s:1
TaskbarTileBitmap:b:False TaskbarWrapGradient:b:False TaskbarColor1:c:0xAAAAAA TaskbarColor2:c:0xB4B4B4
TaskbarFrame:s:1 MenuMaxNoItems:s:9999 MenuToggleSubMenus:b:False Button3DStyle:s:0 TaskbarFrameColor1:c:0xFFFFFF
TaskbarFrameColor2:c:0x555555 MenuNoFrames:s:1 Menu3DFrame:b:False MenuFrameColor:c:0x000000
MenuFrameColor2:c:0x000000 Menu3DFrame2:b:False MenuFrameColor3:c:0x000000 MenuFrameColor4:c:0x000000
MenuFrameToBody:b:False SysTileWallpaper:t: HorzNoTitlebar:b:True HorzLockWidth:b:True HorzAutoRotate:b:False
HorzButtonsOnly:b:False MenuOverlapMenus:b:False TitleOverlap:b:True TitleInactiveOverlap:b:True GenUseHotKey:b:True
GenHotKey:s:123 GenShiftHotKey:b:False GenShowInTray:b:True GenDblClickDelay:s:12 GenShowExtensions:b:True
GenShowHidden:b:True GenShowSystem:b:True GenShowTooltips:b:True GenHideDesktopIcons:b:False GenRightClick:s:1
GenMiddleClick:s:3 GenDblClick:s:0 GenBumpDelay:s:5 GenQuietFullScreen:b:True GenSoundsOn:s:-1 GenAnimationOn:s:-1
GenUnzipAlwaysOverwrite:b:False GenATXShutdown:b:False GenForceShutdown:b:False GenAutoRun:b:False TaskbarPos:s:2
TaskbarXofset:s:0 TaskbarYofset:s:0 TaskbarTooltips:b:True TaskbarRunOnStartup:b:False SystrayPos:s:3
SystrayXofset:s:0 SystrayYofset:s:0 SystrayStyle:s:0 SystrayAutoHide:b:False SystrayHideDelay:s:5
SystrayAlwaysOnTop:b:False TaskbarAlwaysOnTop:b:False MenuTypeAhead:b:True
MenuAimAtSubMenus:b:True MenuKeepKeysWhileOpening:b:True NoOfUserTasks:l:0 BrowserIconType:s:0 NoOfHotSpots:s:0)";

struct KeyFact {
    std::string name;
    char type = 0;
    std::string defaultText;
};

std::vector<KeyFact> Keys() {
    std::vector<KeyFact> keys;
    std::istringstream words(kKeyTable);
    for (std::string word; words >> word;) {
        std::size_t first = word.find(':');
        KeyFact key{word.substr(0, first), word[first + 1], word.substr(first + 3)};
        if (key.type == 'c')
            key.defaultText = std::to_string(std::strtol(key.defaultText.c_str(), nullptr, 16));
        keys.push_back(key);
    }
    return keys;
}

std::vector<std::string> KeysOf(const ProfileWrites& writes) {
    std::vector<std::string> keys;
    for (const ProfileWrite& write : writes)
        keys.push_back(write.key);
    return keys;
}

} // namespace

TEST(SettingsSave, FreshSettingsWriteEveryKeyOnceInTableOrderWithItsDefault) {
    ProfileWrites writes = SaveSettings(SettingsRec(), false);
    writes.resize(Keys().size()); // the keys of the blank hotspot that follow NoOfHotSpots cut off
    std::vector<std::string> expected, got;
    for (const KeyFact& key : Keys())
        expected.push_back(key.name + "=" + key.defaultText);
    for (const ProfileWrite& write : writes) {
        got.push_back(write.key + "=" + write.value);
        EXPECT_EQ(write.section, "TARVEX") << write.key;
    }
    EXPECT_EQ(got, expected);
}

TEST(SettingsSave, ThemeSaveHoldsExactlyTheLookKeys) {
    std::vector<std::string> expected;
    for (const KeyFact& key : Keys()) {
        expected.push_back(key.name);
        if (key.name == "TitleInactiveOverlap")
            break;
    }
    EXPECT_EQ(KeysOf(SaveSettings(SettingsRec(), true)), expected);
}

// "1,2,3" tells the types apart: a colour reads all three numbers, another number stops at
// the first comma, a boolean does not convert, text keeps it all.
TEST(SettingsLoad, ReadsEveryKeyAsItsType) {
    ProfileSection section;
    for (const KeyFact& key : Keys())
        section.push_back({key.name, "1,2,3"});
    SettingsRec settings;
    LoadSettings(section, false, settings);
    ProfileWrites writes = SaveSettings(settings, false);
    for (const KeyFact& key : Keys()) {
        std::string expected = key.type == 'b'   ? "False"
                               : key.type == 'c' ? std::to_string(1 + 2 * 256 + 3 * 65536)
                               : key.type == 't' ? "1,2,3"
                                                 : "1";
        EXPECT_EQ(WrittenValue(writes, key.name), expected) << key.name;
    }
}
