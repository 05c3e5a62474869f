// The settings of section [TARVEX]: one field per key, named exactly as the key is
// spelled in the file (ButtonTextOfset and the Xofset/Yofset keys included), with the
// default as its initialiser. Loading and saving are driven by the catalogue table
// (settings_catalogue.h).
#pragma once

#include "core/profile.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

// One hotspot; fields in the order in which their keys are written.
struct HotspotRec {
    std::int16_t x1 = 0;
    std::int16_t x2 = 0;
    std::int16_t y1 = 0;
    std::int16_t y2 = 0;
    std::string App;
    std::string GroupName;
    std::int16_t Menutop = 0;
    std::int16_t Menuleft = 0;
    std::string Menuname;
    std::string Menupath1;
    std::string Menupath2;
    std::int16_t MenuType = 0;
    std::string FileTypeMask;
    bool OnMouse = false;
    std::int16_t MouseButton = 0;
    std::int16_t UseHotKey = 0;
    std::int16_t Hotkey = 0;
    bool ShiftHotKey = false;
    std::string Theme;
    bool Inherit = false;
    std::string SoundPath;
    std::string AppPath;
    std::uint8_t Type = 0;
    std::string StartPath;
    std::int16_t AlwaysOpen = 0;
    bool Horizontal = false;
    bool ForceOnTop = false;
    std::int16_t Monitor = 0; // where bumps count: 0 on any monitor, else the monitor of that number
    bool operator==(const HotspotRec&) const = default;
};

// One task that the user added to the task list; written as TaskName<d>, TaskExec<d>, TaskIcon<d>.
struct UserTaskRec {
    std::string TaskName = "NewItem";
    std::string TaskExec;
    std::string TaskIcon;
    bool operator==(const UserTaskRec&) const = default;
};

struct SettingsRec {
    // Look keys: these also make up a theme file.
    bool TitleGradient = false;
    std::int32_t TitleColor = 0x000000;
    std::int32_t TitleColor2 = 0x808080;
    std::int16_t TitleVSize = 22;
    std::string TitleFont = "Arial";
    std::int16_t TitleFontSize = 9;
    std::int32_t TitleFontColor = 0xFFFFFF;
    bool TitleFontBold = true;
    bool TitleFontItalic = false;
    bool TitleFlat = false;
    std::int32_t Title3DColor1 = 0x909790; // green 0x97, not 0x90: the long-standing default, kept
    std::int32_t Title3DColor2 = 0x000000;
    std::int16_t TitleAlignment = 0;
    bool ButtonBitmapToMenu = false;
    bool ButtonInactiveBitmapToMenu = false;
    bool ButtonTransparent = false;
    std::int32_t ButtonInactiveTransparent = 0; // a number in the file ("-1"/"0"), unlike ButtonTransparent
    bool ButtonGradient = true;
    std::int32_t ButtonColor = 0xDFDFDF;
    std::int32_t ButtonColor2 = 0x919191;
    std::int16_t ButtonVSize = 20;
    std::string ButtonFont = "Arial";
    std::int16_t ButtonFontSize = 9;
    std::int32_t ButtonFontColor = 0x000000;
    bool ButtonFontBold = false;
    bool ButtonFontItalic = false;
    std::int16_t ButtonFlat = 1;
    std::int32_t Button3DColor1 = 0xFFFFFF;
    std::int32_t Button3DColor2 = 0x555555;
    bool ButtonIcons = false;
    std::int16_t ButtonIconSize = 16;
    bool TwinScrollButtons = true;
    std::int16_t Menu3DArrows = 0;
    bool SelBar = true;
    std::int16_t SelBarGradient = 0;
    std::int16_t SelBarGradientType = 0;
    bool SelBarWrapGradient = false;
    bool SelBarTileBitmap = false;
    std::int32_t SelBarColor = 0xFFFFFF;
    std::int32_t SelBarColor2 = 0xFFFFFF;
    std::int32_t SelBarTextColor = 0x000000;
    bool SelBarFollowMouse = false;
    bool MenuAutoDropDown = false;
    std::int16_t MenuDropDownDelay = 400;
    std::int16_t MenuAlignWithTitle = 0;
    std::int16_t ButtonMaxWidth = 300;
    std::int16_t ButtonMinWidth = 0;
    std::int16_t ButtonTextOfset = 8;
    std::int16_t MenuHotKeys = 3;
    bool MenuAutoScroll = false;
    std::string GenThemeAuthor;
    std::string GenThemeName;
    std::int16_t ButtonAlignment = 0;
    std::int16_t TitlePosition = 0;
    std::int16_t TitleTextType = 2;
    std::int16_t ButtonTextType = 2;
    bool TitleShowInactive = false;
    bool ButtonShowInactive = false;
    bool TitleBitmap = false;
    bool ButtonBitmap = false;
    bool TitleTileBitmap = false;
    bool ButtonTileBitmap = false;
    std::int16_t TitleGradientType = 0;
    std::int16_t ButtonGradientType = 0;
    bool TitleWrapGradient = false;
    bool ButtonWrapGradient = false;
    bool TitleInactiveBitmap = false;
    bool ButtonInactiveBitmap = false;
    bool TitleInactiveTileBitmap = false;
    bool ButtonInactiveTileBitmap = false;
    std::int16_t TitleInactiveGradientType = 0;
    std::int16_t ButtonInactiveGradientType = 0;
    bool TitleInactiveWrapGradient = false;
    bool ButtonInactiveWrapGradient = false;
    std::int32_t TitleInactiveFontColor = 0xFFFFFF;
    std::int32_t ButtonInactiveFontColor = 0x000000;
    bool TitleInactiveGradient = false;
    bool ButtonInactiveGradient = false;
    std::int32_t TitleInactiveColor = 0x000000;
    std::int32_t ButtonInactiveColor = 0xAAAAAA;
    std::int32_t TitleInactiveColor2 = 0x808080;
    std::int32_t ButtonInactiveColor2 = 0xB4B4B4;
    bool TitleInactiveFlat = false;
    std::int16_t ButtonInactiveFlat = 1;
    std::int32_t TitleInactive3DColor1 = 0xFFFFFF;
    std::int32_t ButtonInactive3DColor1 = 0xFFFFFF;
    std::int32_t TitleInactive3DColor2 = 0x555555;
    std::int32_t ButtonInactive3DColor2 = 0x555555;
    bool ScrollShowSelBar = false;
    std::int16_t MenuScrollSpeed = 50;
    bool ShowMoreOnTop = true;
    std::int16_t MenuFolderPosition = 0;
    std::int16_t MenuHorizontalStyle = 0;
    bool SelBarBlink = false;
    std::string BitmapsFolder;
    std::int16_t ButtonStyle = 1;
    std::int16_t HotkeyStyle = 0;
    std::int16_t CloseStatus = 3;
    std::int16_t RollUpStatus = 3;
    std::int16_t RotateStatus = 0;
    std::int16_t AlwaysOnTopStatus = 0;
    std::int16_t ClosePosition = 1;
    std::int16_t RollUpPosition = -1;
    std::int16_t RotatePosition = -6;
    std::int16_t AlwaysOnTopPosition = -2;
    bool MenuIsGradientTarget = true;
    bool InactiveMenuIsGradientTarget = true;
    std::int16_t AnimationType = 0;
    std::int16_t AnimationHType = 0;
    std::int16_t AnimationSpeed = 1;
    std::int16_t TaskbarStyle = 0;
    std::int16_t TaskbarOrientation = 1;
    std::int16_t TaskbarBackgroundType = 0;
    std::int16_t TaskbarGradientType = 0;
    std::int16_t TaskbarIconSize = 1;
    bool TaskbarTileBitmap = false;
    bool TaskbarWrapGradient = false;
    std::int32_t TaskbarColor1 = 0xAAAAAA;
    std::int32_t TaskbarColor2 = 0xB4B4B4;
    std::int16_t TaskbarFrame = 1;
    std::int16_t MenuMaxNoItems = 9999;
    bool MenuToggleSubMenus = false;
    std::int16_t Button3DStyle = 0;
    std::int32_t TaskbarFrameColor1 = 0xFFFFFF;
    std::int32_t TaskbarFrameColor2 = 0x555555;
    std::int16_t MenuNoFrames = 1;
    bool Menu3DFrame = false;
    std::int32_t MenuFrameColor = 0x000000;
    std::int32_t MenuFrameColor2 = 0x000000;
    bool Menu3DFrame2 = false;
    std::int32_t MenuFrameColor3 = 0x000000;
    std::int32_t MenuFrameColor4 = 0x000000;
    bool MenuFrameToBody = false;
    std::string SysTileWallpaper;
    bool HorzNoTitlebar = true;
    bool HorzLockWidth = true;
    bool HorzAutoRotate = false;
    bool HorzButtonsOnly = false;
    bool MenuOverlapMenus = false;
    bool TitleOverlap = true;
    bool TitleInactiveOverlap = true;

    // General keys: settings file only.
    bool GenUseHotKey = true;
    std::int16_t GenHotKey = 123;
    bool GenShiftHotKey = false;
    bool GenShowInTray = true;
    std::int16_t GenDblClickDelay = 12;
    bool GenShowExtensions = true;
    bool GenShowHidden = true;
    bool GenShowSystem = true;
    bool GenShowTooltips = true;
    bool GenHideDesktopIcons = false;
    std::int16_t GenRightClick = 1;
    std::int16_t GenMiddleClick = 3;
    std::int16_t GenDblClick = 0;
    std::int16_t GenBumpDelay = 5;
    // Corner and edge bumps do nothing while the foreground window covers its whole
    // monitor (a game, a video, a presentation); clicks and hot keys still work.
    bool GenQuietFullScreen = true;
    std::int16_t GenSoundsOn = -1;    // a number in the file, not a boolean word
    std::int16_t GenAnimationOn = -1; // likewise
    bool GenUnzipAlwaysOverwrite = false;
    bool GenATXShutdown = false;
    bool GenForceShutdown = false;
    bool GenAutoRun = false;
    std::int16_t TaskbarPos = 2;
    std::int16_t TaskbarXofset = 0;
    std::int16_t TaskbarYofset = 0;
    bool TaskbarTooltips = true;
    bool TaskbarRunOnStartup = false;
    std::int16_t SystrayPos = 3;
    std::int16_t SystrayXofset = 0;
    std::int16_t SystrayYofset = 0;
    std::int16_t SystrayStyle = 0;
    bool SystrayAutoHide = false;
    std::int16_t SystrayHideDelay = 5;
    bool SystrayAlwaysOnTop = false;
    bool TaskbarAlwaysOnTop = false;
    // Letters typed within kTypeAheadMilliseconds of each other extend a menu's search;
    // off, every letter searches alone.
    bool MenuTypeAhead = true;
    // Crossing other items on the way to an open sub-menu leaves the sub-menu open and the
    // selection where it is, until the cursor rests; off, every item crossed counts.
    bool MenuAimAtSubMenus = true;
    // Keys typed right after a hotspot's hot key wait for its menu and go to it in order;
    // off, they go wherever the keyboard is until the menu takes it.
    bool MenuKeepKeysWhileOpening = true;
    std::int16_t BrowserIconType = 0;

    // SoundFx0..SoundFx6: the sound of each menu event; empty plays nothing.
    std::array<std::string, 7> SoundFx;
    // GenStartupHotspot0..9: hotspots opened at start-up; -1 (the default) names none,
    // since start-up skips negative entries.
    std::array<std::int16_t, 10> GenStartupHotspot = {-1, -1, -1, -1, -1, -1, -1, -1, -1, -1};

    // The user tasks; their count is the key NoOfUserTasks.
    std::vector<UserTaskRec> UserTasks;
    // Hotspots 0..NoOfHotSpots(); index 0 is the default hotspot, so there is one record by default.
    std::vector<HotspotRec> HotSpots = std::vector<HotspotRec>(1);

    // The counts are taken from the lists so that they can never disagree with them.
    int NoOfUserTasks() const { return static_cast<int>(UserTasks.size()); }
    int NoOfHotSpots() const { return static_cast<int>(HotSpots.size()) - 1; }

    bool operator==(const SettingsRec&) const = default;
};

// The settings section of the settings file and of theme files.
inline constexpr const char* kSettingsSection = "TARVEX";

// Reads a whole [TARVEX] section into settings: every field the load covers is set to
// its default first, then each entry, in file order, overwrites the field of the key
// it names. With themeOnly, only the look keys (a theme file's keys) are reset and read;
// the general keys, sounds, start-up hotspots, hotspots and user tasks keep their values.
void LoadSettings(const ProfileSection& section, bool themeOnly, SettingsRec& settings);

// The writes that store settings into section [TARVEX], in the order of the catalogue.
// With themeOnly, the look keys alone (up to TitleInactiveOverlap).
ProfileWrites SaveSettings(const SettingsRec& settings, bool themeOnly);
