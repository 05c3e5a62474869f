#include "core/settings_catalogue.h"

#include <array>

namespace {

constexpr bool kLook = true;
constexpr bool kGeneral = false;

using enum PrefPage;

// The choices of the drop-downs; keys that mean the same share one list.

// Gradient directions: 0 and 1 are the straight ones, anything else diagonal.
constexpr std::array<PrefChoice, 3> kGradientTypes = {{{0, "Left to right"}, {1, "Top to bottom"}, {2, "Diagonal"}}};
// TitleTextType, ButtonTextType: anything but 0 and 1 is plain, so the default 2 shows as plain.
constexpr std::array<PrefChoice, 3> kTextEffects = {{{0, "Sunken"}, {1, "Raised"}, {2, "Plain"}}};
constexpr std::array<PrefChoice, 3> kAlignments = {{{0, "Left"}, {1, "Centre"}, {2, "Right"}}};
constexpr std::array<PrefChoice, 3> kTitlePositions = {{{0, "Show titlebar at the top of the menu"},
                                                        {1, "Show titlebar at the bottom of the menu"},
                                                        {2, "Show vertical titlebar at the left side of the menu"}}};
constexpr std::array<PrefChoice, 3> kTitleButtonStyles = {{{0, "Use NeXT style titlebar buttons"},
                                                           {1, "Use New style titlebar buttons"},
                                                           {2, "Use Bitmaps for titlebar buttons"}}};
// A title-bar button's ...Status: bit 1 shows it on the active menu, bit 2 on inactive ones.
constexpr std::array<PrefChoice, 4> kTitleButtonShown = {
    {{0, "Never"}, {1, "On the active menu"}, {2, "On inactive menus"}, {3, "Always"}}};
constexpr std::array<PrefChoice, 3> kArrowStyles = {
    {{0, "Use 3D Arrows in Menus"}, {1, "Use Flat Arrows in Menus"}, {2, "Use Bitmap for Arrows in Menus"}}};
constexpr std::array<PrefChoice, 3> kCommandKeySymbols = {{{0, "Use Dimple symbol for command keys"},
                                                           {1, "Use Apple symbol for command keys"},
                                                           {2, "Use Bitmap for command key symbol"}}};
// ButtonFlat, ButtonInactiveFlat: 2 keeps the 3D edge for the selection bar alone.
constexpr std::array<PrefChoice, 3> kButtonEdges = {
    {{0, "3D edge"}, {1, "Flat"}, {2, "Flat, 3D edge on the selection bar"}}};
constexpr std::array<PrefChoice, 3> kEdgeStyles = {{{0, "Raised"}, {1, "Sunken"}, {2, "Bump"}}};
constexpr std::array<PrefChoice, 3> kSelBarFills = {{{0, "Solid colour"}, {1, "Gradient"}, {2, "Bitmap"}}};
// The task list takes its bitmap whenever the theme has one, so its type only picks colour or gradient.
constexpr std::array<PrefChoice, 2> kTaskListFills = {{{0, "Solid colour"}, {1, "Gradient"}}};
constexpr std::array<PrefChoice, 3> kSubMenuAlignments = {{{0, "Align sub-menu titlebar with button"},
                                                           {1, "Align sub-menu first button with button"},
                                                           {2, "Align menus by titlebar"}}};
constexpr std::array<PrefChoice, 3> kFolderPositions = {{{0, "Top of Menu"}, {1, "Bottom of Menu"}, {2, "Mixed"}}};
constexpr std::array<PrefChoice, 5> kAnimations = {
    {{0, "None"}, {1, "Unroll"}, {2, "Slide"}, {3, "Ripple"}, {4, "Fade"}}};
constexpr std::array<PrefChoice, 2> kTaskStyles = {
    {{0, "Show Tasks as Transparent Icons"}, {1, "Show Tasks as Buttons"}}};
constexpr std::array<PrefChoice, 2> kTaskOrientations = {{{0, "Vertical Task List"}, {1, "Horizontal Task List"}}};
constexpr std::array<PrefChoice, 3> kTaskIconSizes = {
    {{0, "Small (16 x 16)"}, {1, "Large (32 x 32)"}, {2, "Extra large (48 x 48)"}}};
constexpr std::array<PrefChoice, 2> kSystrayStyles = {{{0, "Clock beside the icons"}, {1, "Clock below the icons"}}};
constexpr std::array<PrefChoice, 2> kSystrayCollapse = {
    {{0, "Systray Always on Desktop"}, {1, "Systray Auto-Collapses to Button"}}};

// The controls, one helper per kind, so that each row of the table stays on one line.
constexpr PrefControl kNoControl{};

constexpr PrefControl Control(ControlKind kind, PrefPage page, std::string_view group, std::string_view label) {
    PrefControl control;
    control.kind = kind;
    control.page = page;
    control.group = group;
    control.label = label;
    return control;
}

constexpr PrefControl Check(PrefPage page, std::string_view group, std::string_view label) {
    return Control(ControlKind::Check, page, group, label);
}

constexpr PrefControl Number(PrefPage page, std::string_view group, std::string_view label, std::int32_t min,
                             std::int32_t max) {
    PrefControl control = Control(ControlKind::Number, page, group, label);
    control.min = min;
    control.max = max;
    return control;
}

constexpr PrefControl Choice(PrefPage page, std::string_view group, std::string_view label,
                             std::span<const PrefChoice> choices) {
    PrefControl control = Control(ControlKind::Choice, page, group, label);
    control.choices = choices;
    return control;
}

constexpr PrefControl Colour(PrefPage page, std::string_view group, std::string_view label) {
    return Control(ControlKind::Colour, page, group, label);
}

constexpr PrefControl Font(PrefPage page, std::string_view group, std::string_view label) {
    return Control(ControlKind::Font, page, group, label);
}

constexpr PrefControl Folder(PrefPage page, std::string_view group, std::string_view label) {
    return Control(ControlKind::Folder, page, group, label);
}

constexpr PrefControl Corner(PrefPage page, std::string_view group, std::string_view label) {
    return Control(ControlKind::Corner, page, group, label);
}

constexpr PrefControl HotKey(PrefPage page, std::string_view group, std::string_view label, std::string_view partner) {
    PrefControl control = Control(ControlKind::HotKey, page, group, label);
    control.partner = partner;
    return control;
}

// Name and field come from one token in SETTING, so a key can never point at another key's field.
constexpr SettingDef Setting(std::string_view name, SettingType type, bool theme, SettingField field,
                             PrefControl control) {
    return {name, type, theme, field, control};
}

#define SETTING(name, type, theme, control) Setting(#name, SettingType::type, theme, &SettingsRec::name, control)

constexpr std::array kCatalogue = {
    SETTING(TitleGradient, Boolean, kLook, Check(Titlebar, "Background", "&Gradient")),
    SETTING(TitleColor, Color, kLook, Colour(Titlebar, "Background", "&Colour:")),
    SETTING(TitleColor2, Color, kLook, Colour(Titlebar, "Background", "&End colour:")),
    SETTING(TitleVSize, Int16, kLook, Number(Titlebar, "Placement", "Height:", 0, 200)),
    SETTING(TitleFont, String, kLook, Font(Titlebar, "Text", "Fo&nt:")),
    SETTING(TitleFontSize, Int16, kLook, kNoControl),
    SETTING(TitleFontColor, Color, kLook, kNoControl),
    SETTING(TitleFontBold, Boolean, kLook, kNoControl),
    SETTING(TitleFontItalic, Boolean, kLook, kNoControl),
    SETTING(TitleFlat, Boolean, kLook, Check(Titlebar, "Edge", "&Flat titlebar")),
    SETTING(Title3DColor1, Color, kLook, Colour(Titlebar, "Edge", "&Light edge:")),
    SETTING(Title3DColor2, Color, kLook, Colour(Titlebar, "Edge", "Dar&k edge:")),
    SETTING(TitleAlignment, Int16, kLook, Choice(Titlebar, "Placement", "Alignment:", kAlignments)),
    SETTING(ButtonBitmapToMenu, Boolean, kLook, Check(Bitmap, "Menu buttons", "Bitmap over the &whole menu")),
    SETTING(ButtonInactiveBitmapToMenu, Boolean, kLook,
            Check(Bitmap, "Menu buttons", "&Over the whole menu when inactive")),
    SETTING(ButtonTransparent, Boolean, kLook, Check(MenuButton, "Background", "&Transparent")),
    SETTING(ButtonInactiveTransparent, Int32, kLook, Check(MenuButton, "Inactive buttons", "Transparent")),
    SETTING(ButtonGradient, Boolean, kLook, Check(MenuButton, "Background", "&Gradient")),
    SETTING(ButtonColor, Color, kLook, Colour(MenuButton, "Background", "&Colour:")),
    SETTING(ButtonColor2, Color, kLook, Colour(MenuButton, "Background", "En&d colour:")),
    SETTING(ButtonVSize, Int16, kLook, Number(MenuButton, "Size and text", "Height:", 1, 200)),
    SETTING(ButtonFont, String, kLook, Font(MenuButton, "Size and text", "&Font:")),
    SETTING(ButtonFontSize, Int16, kLook, kNoControl),
    SETTING(ButtonFontColor, Color, kLook, kNoControl),
    SETTING(ButtonFontBold, Boolean, kLook, kNoControl),
    SETTING(ButtonFontItalic, Boolean, kLook, kNoControl),
    SETTING(ButtonFlat, Int16, kLook, Choice(MenuButton, "Edge", "Edges:", kButtonEdges)),
    SETTING(Button3DColor1, Color, kLook, Colour(MenuButton, "Edge", "&Light edge:")),
    SETTING(Button3DColor2, Color, kLook, Colour(MenuButton, "Edge", "Dar&k edge:")),
    SETTING(ButtonIcons, Boolean, kLook, Check(MenuButton, "Icons", "Show &icons")),
    SETTING(ButtonIconSize, Int16, kLook, Number(MenuButton, "Icons", "Icon si&ze:", 8, 128)),
    SETTING(TwinScrollButtons, Boolean, kLook, Check(Menu, "Scrolling", "Both scroll buttons at one &end")),
    SETTING(Menu3DArrows, Int16, kLook, Choice(MenuButton, "Symbols", "Arro&ws:", kArrowStyles)),
    SETTING(SelBar, Boolean, kLook, Check(MenuButton, "Selection bar", "Show selection &bar")),
    SETTING(SelBarGradient, Int16, kLook, Choice(MenuButton, "Selection bar", "Fill:", kSelBarFills)),
    SETTING(SelBarGradientType, Int16, kLook, Choice(MenuButton, "Selection bar", "Direction:", kGradientTypes)),
    SETTING(SelBarWrapGradient, Boolean, kLook, Check(MenuButton, "Selection bar", "Mirrored gradient")),
    SETTING(SelBarTileBitmap, Boolean, kLook, Check(Bitmap, "Selection bar", "Tile the bitma&p")),
    SETTING(SelBarColor, Color, kLook, Colour(MenuButton, "Selection bar", "Colour:")),
    SETTING(SelBarColor2, Color, kLook, Colour(MenuButton, "Selection bar", "End colour:")),
    SETTING(SelBarTextColor, Color, kLook, Colour(MenuButton, "Selection bar", "Text colo&ur:")),
    SETTING(SelBarFollowMouse, Boolean, kLook, Check(Menu, "Opening sub-menus", "Selection bar &follows the mouse")),
    SETTING(MenuAutoDropDown, Boolean, kLook, Check(Menu, "Opening sub-menus", "Open sub-menus automatically")),
    SETTING(MenuDropDownDelay, Int16, kLook, Number(Menu, "Opening sub-menus", "&Delay (ms):", 0, 5000)),
    SETTING(MenuAlignWithTitle, Int16, kLook, Choice(Menu, "Opening sub-menus", "Ali&gnment:", kSubMenuAlignments)),
    SETTING(ButtonMaxWidth, Int16, kLook, Number(MenuButton, "Size and text", "Ma&ximum width (0 for none):", 0, 2000)),
    SETTING(ButtonMinWidth, Int16, kLook, Number(MenuButton, "Size and text", "Mi&nimum width:", 0, 2000)),
    SETTING(ButtonTextOfset, Int16, kLook, Number(MenuButton, "Size and text", "Text &offset:", 0, 200)),
    SETTING(MenuHotKeys, Int16, kLook, Check(Menu, "Keyboard", "Co&mmand keys (Ctrl+letter)")),
    SETTING(MenuAutoScroll, Boolean, kLook, Check(Menu, "Scrolling", "Scroll when the mouse rests on an arrow")),
    SETTING(GenThemeAuthor, String, kLook, kNoControl),
    SETTING(GenThemeName, String, kLook, kNoControl),
    SETTING(ButtonAlignment, Int16, kLook, Choice(MenuButton, "Size and text", "Alignment:", kAlignments)),
    SETTING(TitlePosition, Int16, kLook, Choice(Titlebar, "Placement", "&Position:", kTitlePositions)),
    SETTING(TitleTextType, Int16, kLook, Choice(Titlebar, "Text", "Te&xt effect:", kTextEffects)),
    SETTING(ButtonTextType, Int16, kLook, Choice(MenuButton, "Size and text", "Text &effect:", kTextEffects)),
    SETTING(TitleShowInactive, Boolean, kLook, Check(Titlebar, "Inactive titlebar", "&Inactive look on parent menus")),
    SETTING(ButtonShowInactive, Boolean, kLook,
            Check(MenuButton, "Inactive buttons", "Inactive look on &parent menus")),
    SETTING(TitleBitmap, Boolean, kLook, Check(Bitmap, "Titlebar", "&Use a bitmap")),
    SETTING(ButtonBitmap, Boolean, kLook, Check(Bitmap, "Menu buttons", "Use a &bitmap")),
    SETTING(TitleTileBitmap, Boolean, kLook, Check(Bitmap, "Titlebar", "&Tile the bitmap")),
    SETTING(ButtonTileBitmap, Boolean, kLook, Check(Bitmap, "Menu buttons", "Tile the bit&map")),
    SETTING(TitleGradientType, Int16, kLook, Choice(Titlebar, "Background", "&Direction:", kGradientTypes)),
    SETTING(ButtonGradientType, Int16, kLook, Choice(MenuButton, "Background", "Direction:", kGradientTypes)),
    SETTING(TitleWrapGradient, Boolean, kLook, Check(Titlebar, "Background", "&Mirrored gradient")),
    SETTING(ButtonWrapGradient, Boolean, kLook, Check(MenuButton, "Background", "&Mirrored gradient")),
    SETTING(TitleInactiveBitmap, Boolean, kLook, Check(Bitmap, "Titlebar", "Bitmap when &inactive")),
    SETTING(ButtonInactiveBitmap, Boolean, kLook, Check(Bitmap, "Menu buttons", "Bitmap when i&nactive")),
    SETTING(TitleInactiveTileBitmap, Boolean, kLook, Check(Bitmap, "Titlebar", "Tile when inacti&ve")),
    SETTING(ButtonInactiveTileBitmap, Boolean, kLook, Check(Bitmap, "Menu buttons", "Ti&le when inactive")),
    SETTING(TitleInactiveGradientType, Int16, kLook,
            Choice(Titlebar, "Inactive titlebar", "Direction:", kGradientTypes)),
    SETTING(ButtonInactiveGradientType, Int16, kLook,
            Choice(MenuButton, "Inactive buttons", "Direction:", kGradientTypes)),
    SETTING(TitleInactiveWrapGradient, Boolean, kLook, Check(Titlebar, "Inactive titlebar", "Mirrored gradient")),
    SETTING(ButtonInactiveWrapGradient, Boolean, kLook, Check(MenuButton, "Inactive buttons", "Mirrored gradient")),
    SETTING(TitleInactiveFontColor, Color, kLook, Colour(Titlebar, "Inactive titlebar", "&Text colour:")),
    SETTING(ButtonInactiveFontColor, Color, kLook, Colour(MenuButton, "Inactive buttons", "Text colour:")),
    SETTING(TitleInactiveGradient, Boolean, kLook, Check(Titlebar, "Inactive titlebar", "Gradient")),
    SETTING(ButtonInactiveGradient, Boolean, kLook, Check(MenuButton, "Inactive buttons", "Gradient")),
    SETTING(TitleInactiveColor, Color, kLook, Colour(Titlebar, "Inactive titlebar", "Colour:")),
    SETTING(ButtonInactiveColor, Color, kLook, Colour(MenuButton, "Inactive buttons", "Colour:")),
    SETTING(TitleInactiveColor2, Color, kLook, Colour(Titlebar, "Inactive titlebar", "End colour:")),
    SETTING(ButtonInactiveColor2, Color, kLook, Colour(MenuButton, "Inactive buttons", "End colour:")),
    SETTING(TitleInactiveFlat, Boolean, kLook, Check(Titlebar, "Inactive titlebar", "Flat titlebar")),
    SETTING(ButtonInactiveFlat, Int16, kLook, Choice(MenuButton, "Inactive buttons", "Edges:", kButtonEdges)),
    SETTING(TitleInactive3DColor1, Color, kLook, Colour(Titlebar, "Inactive titlebar", "Light edge:")),
    SETTING(ButtonInactive3DColor1, Color, kLook, Colour(MenuButton, "Inactive buttons", "Light edge:")),
    SETTING(TitleInactive3DColor2, Color, kLook, Colour(Titlebar, "Inactive titlebar", "Dark edge:")),
    SETTING(ButtonInactive3DColor2, Color, kLook, Colour(MenuButton, "Inactive buttons", "Dark edge:")),
    SETTING(ScrollShowSelBar, Boolean, kLook, Check(Menu, "Scrolling", "Selection bar &while scrolling")),
    SETTING(MenuScrollSpeed, Int16, kLook, Number(Menu, "Scrolling", "Scroll ste&p (ms):", 10, 1000)),
    SETTING(ShowMoreOnTop, Boolean, kLook, Check(Menu, "Folders", "\"More...\" entry at the &top")),
    SETTING(MenuFolderPosition, Int16, kLook, Choice(Menu, "Folders", "Sub-folders:", kFolderPositions)),
    SETTING(MenuHorizontalStyle, Int16, kLook, Check(Menu, "Horizontal menus", "&Vertical titlebar at the left end")),
    SETTING(SelBarBlink, Boolean, kLook, Check(Menu, "Opening sub-menus", "Selection bar fla&shes on a click")),
    SETTING(BitmapsFolder, String, kLook, Folder(Bitmap, "Theme folder", "&Folder:")),
    SETTING(ButtonStyle, Int16, kLook, Choice(Titlebar, "Titlebar buttons", "Button st&yle:", kTitleButtonStyles)),
    SETTING(HotkeyStyle, Int16, kLook, Choice(MenuButton, "Symbols", "Command ke&y symbol:", kCommandKeySymbols)),
    SETTING(CloseStatus, Int16, kLook, Choice(Titlebar, "Titlebar buttons", "Clo&se button:", kTitleButtonShown)),
    SETTING(RollUpStatus, Int16, kLook, Choice(Titlebar, "Titlebar buttons", "Roll-up button:", kTitleButtonShown)),
    SETTING(RotateStatus, Int16, kLook, Choice(Titlebar, "Titlebar buttons", "Rotate &button:", kTitleButtonShown)),
    SETTING(AlwaysOnTopStatus, Int16, kLook,
            Choice(Titlebar, "Titlebar buttons", "On-top b&utton:", kTitleButtonShown)),
    // Positions 0 and up count from the bar's far end, negative ones from its near end.
    SETTING(ClosePosition, Int16, kLook, Number(Titlebar, "Titlebar buttons", "Close position:", -9, 9)),
    SETTING(RollUpPosition, Int16, kLook, Number(Titlebar, "Titlebar buttons", "Roll-up position:", -9, 9)),
    SETTING(RotatePosition, Int16, kLook, Number(Titlebar, "Titlebar buttons", "Rotate position:", -9, 9)),
    SETTING(AlwaysOnTopPosition, Int16, kLook, Number(Titlebar, "Titlebar buttons", "On-top position:", -9, 9)),
    SETTING(MenuIsGradientTarget, Boolean, kLook,
            Check(MenuButton, "Background", "Gradient o&ver the whole menu")),
    SETTING(InactiveMenuIsGradientTarget, Boolean, kLook,
            Check(MenuButton, "Inactive buttons", "Gradient over the whole menu")),
    SETTING(AnimationType, Int16, kLook, Choice(SoundAnimation, "Animation", "&Vertical menus:", kAnimations)),
    SETTING(AnimationHType, Int16, kLook, Choice(SoundAnimation, "Animation", "H&orizontal menus:", kAnimations)),
    SETTING(AnimationSpeed, Int16, kLook, Number(SoundAnimation, "Animation", "&Speed:", 1, 10)),
    SETTING(TaskbarStyle, Int16, kLook, Choice(TasklistSystray, "Task list", "&Style:", kTaskStyles)),
    SETTING(TaskbarOrientation, Int16, kLook, Choice(TasklistSystray, "Task list", "&Layout:", kTaskOrientations)),
    SETTING(TaskbarBackgroundType, Int16, kLook,
            Choice(TasklistSystray, "Task list background", "&Background:", kTaskListFills)),
    SETTING(TaskbarGradientType, Int16, kLook,
            Choice(TasklistSystray, "Task list background", "&Direction:", kGradientTypes)),
    SETTING(TaskbarIconSize, Int16, kLook, Choice(TasklistSystray, "Task list", "&Icon size:", kTaskIconSizes)),
    SETTING(TaskbarTileBitmap, Boolean, kLook, Check(TasklistSystray, "Task list background", "Tile the bitmap")),
    SETTING(TaskbarWrapGradient, Boolean, kLook,
            Check(TasklistSystray, "Task list background", "&Mirrored gradient")),
    SETTING(TaskbarColor1, Color, kLook, Colour(TasklistSystray, "Task list background", "&Colour:")),
    SETTING(TaskbarColor2, Color, kLook, Colour(TasklistSystray, "Task list background", "&End colour:")),
    // Wider frames are cut to 8 pixels when drawn.
    SETTING(TaskbarFrame, Int16, kLook, Number(TasklistSystray, "Task list background", "&Frame width:", 0, 8)),
    SETTING(MenuMaxNoItems, Int16, kLook, Number(Menu, "Folders", "Most e&ntries:", 2, 9999)),
    SETTING(MenuToggleSubMenus, Boolean, kLook,
            Check(Menu, "Opening sub-menus", "A second &click closes a sub-menu")),
    SETTING(Button3DStyle, Int16, kLook, Choice(MenuButton, "Edge", "Edge &style:", kEdgeStyles)),
    SETTING(TaskbarFrameColor1, Color, kLook, Colour(TasklistSystray, "Task list background", "Frame li&ght colour:")),
    SETTING(TaskbarFrameColor2, Color, kLook, Colour(TasklistSystray, "Task list background", "Frame dark colo&ur:")),
    SETTING(MenuNoFrames, Int16, kLook, Check(Menu, "Frame", "No frame")),
    SETTING(Menu3DFrame, Boolean, kLook, Check(Menu, "Frame", "&3D outer line")),
    SETTING(MenuFrameColor, Color, kLook, Colour(Menu, "Frame", "O&uter colour:")),
    SETTING(MenuFrameColor2, Color, kLook, Colour(Menu, "Frame", "Outer dar&k colour:")),
    SETTING(Menu3DFrame2, Boolean, kLook, Check(Menu, "Frame", "&Inner line")),
    SETTING(MenuFrameColor3, Color, kLook, Colour(Menu, "Frame", "Inner &light colour:")),
    SETTING(MenuFrameColor4, Color, kLook, Colour(Menu, "Frame", "Inner dark colour:")),
    SETTING(MenuFrameToBody, Boolean, kLook, Check(Menu, "Frame", "Frame colours over the &body")),
    SETTING(SysTileWallpaper, String, kLook, kNoControl),
    SETTING(HorzNoTitlebar, Boolean, kLook, Check(Menu, "Horizontal menus", "No titlebar")),
    SETTING(HorzLockWidth, Boolean, kLook, Check(Menu, "Horizontal menus", "E&qual button widths")),
    SETTING(HorzAutoRotate, Boolean, kLook, kNoControl),
    SETTING(HorzButtonsOnly, Boolean, kLook, Check(Menu, "Horizontal menus", "Buttons only")),
    SETTING(MenuOverlapMenus, Boolean, kLook, Check(Menu, "Opening sub-menus", "Sub-menus &overlap their parent")),
    SETTING(TitleOverlap, Boolean, kLook, Check(Titlebar, "Placement", "&Overlap the frame")),
    SETTING(TitleInactiveOverlap, Boolean, kLook, Check(Titlebar, "Inactive titlebar", "Overlap the frame")),
    SETTING(GenUseHotKey, Boolean, kGeneral, Check(Global, "Hot key", "&Use a hot key to open the preferences")),
    SETTING(GenHotKey, Int16, kGeneral, HotKey(Global, "Hot key", "Hot &key:", "GenShiftHotKey")),
    SETTING(GenShiftHotKey, Boolean, kGeneral, kNoControl),
    SETTING(GenShowInTray, Boolean, kGeneral,
            Check(Global, "Tray and desktop", "Show an &icon in the notification area")),
    // Timer3 counts these in ticks of 10 ms. A click waits at most 38: its tick count restarts past 39.
    SETTING(GenDblClickDelay, Int16, kGeneral, Number(Global, "Mouse", "Double-&click wait (1/100 s):", 0, 38)),
    SETTING(GenShowExtensions, Boolean, kGeneral, Check(Menu, "Folders", "Show file e&xtensions")),
    SETTING(GenShowHidden, Boolean, kGeneral, Check(Menu, "Folders", "Show hidden files")),
    SETTING(GenShowSystem, Boolean, kGeneral, Check(Menu, "Folders", "Show s&ystem files")),
    SETTING(GenShowTooltips, Boolean, kGeneral, kNoControl),
    SETTING(GenHideDesktopIcons, Boolean, kGeneral, Check(Global, "Tray and desktop", "Hide the &desktop icons")),
    SETTING(GenRightClick, Int16, kGeneral, kNoControl),
    SETTING(GenMiddleClick, Int16, kGeneral, kNoControl),
    SETTING(GenDblClick, Int16, kGeneral, kNoControl),
    // A countdown from 0 never fires, so an edge always waits at least one tick.
    SETTING(GenBumpDelay, Int16, kGeneral, Number(Global, "Mouse", "&Edge wait (1/100 s):", 1, 500)),
    SETTING(GenQuietFullScreen, Boolean, kGeneral,
            Check(Global, "Mouse", "I&gnore edges while a program fills the screen")),
    SETTING(GenSoundsOn, Int16, kGeneral, Check(Global, "Effects", "&Play menu sounds")),
    SETTING(GenAnimationOn, Int16, kGeneral, Check(Global, "Effects", "A&nimate menus")),
    SETTING(GenUnzipAlwaysOverwrite, Boolean, kGeneral, kNoControl),
    SETTING(GenATXShutdown, Boolean, kGeneral, Check(Global, "Shutting down", "Switch the power &off")),
    SETTING(GenForceShutdown, Boolean, kGeneral, Check(Global, "Shutting down", "&Force programs to close")),
    SETTING(GenAutoRun, Boolean, kGeneral, Check(Global, "Start-up", "&Start Tarvex when Windows starts")),
    SETTING(TaskbarPos, Int16, kGeneral, Corner(TasklistSystray, "Task list", "&Vert.Pos.:")),
    SETTING(TaskbarXofset, Int16, kGeneral, Number(TasklistSystray, "Task list", "Hrz.Offset", -2000, 2000)),
    SETTING(TaskbarYofset, Int16, kGeneral, Number(TasklistSystray, "Task list", "Vert.&Offset", -2000, 2000)),
    SETTING(TaskbarTooltips, Boolean, kGeneral, Check(TasklistSystray, "Task list", "Show titles as tool&tips")),
    SETTING(TaskbarRunOnStartup, Boolean, kGeneral, Check(Global, "Start-up", "Rep&lace the taskbar at start-up")),
    SETTING(SystrayPos, Int16, kGeneral, Corner(TasklistSystray, "Systray", "Vert.Pos.:")),
    SETTING(SystrayXofset, Int16, kGeneral, Number(TasklistSystray, "Systray", "Hr&z.Offset", -2000, 2000)),
    SETTING(SystrayYofset, Int16, kGeneral, Number(TasklistSystray, "Systray", "Vert.Offset", -2000, 2000)),
    SETTING(SystrayStyle, Int16, kGeneral, Choice(TasklistSystray, "Systray", "Cloc&k:", kSystrayStyles)),
    SETTING(SystrayAutoHide, Boolean, kGeneral, Choice(TasklistSystray, "Systray", "Colla&pse:", kSystrayCollapse)),
    // Collapsing takes about 33 s whatever the delay; from 33 s on its timer overflows and is never set.
    SETTING(SystrayHideDelay, Int16, kGeneral,
            Number(TasklistSystray, "Systray", "Collapse dela&y (seconds):", 0, 32)),
    SETTING(SystrayAlwaysOnTop, Boolean, kGeneral, Check(TasklistSystray, "Systray", "Al&ways on top")),
    SETTING(TaskbarAlwaysOnTop, Boolean, kGeneral, Check(TasklistSystray, "Task list", "Always o&n top")),
    SETTING(MenuTypeAhead, Boolean, kGeneral, Check(Menu, "Keyboard", "&Join letters typed quickly into one search")),
    SETTING(MenuAimAtSubMenus, Boolean, kGeneral,
            Check(Menu, "Opening sub-menus", "Keep a sub-menu open while the mouse heads for it")),
    SETTING(MenuKeepKeysWhileOpening, Boolean, kGeneral,
            Check(Menu, "Keyboard", "Keys typed while a hot key's menu opens go to it")),
    SettingDef{"NoOfUserTasks", SettingType::Int32, kGeneral, &SettingsRec::UserTasks, kNoControl},
    SETTING(BrowserIconType, Int16, kGeneral, kNoControl),
    SettingDef{"NoOfHotSpots", SettingType::Int16, kGeneral, &SettingsRec::HotSpots, kNoControl},
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

constexpr const SettingDef* Find(std::string_view name) {
    for (const SettingDef& def : kCatalogue)
        if (def.name == name)
            return &def;
    return nullptr;
}

// A key that another key's control sets: it exists, has the type that control writes, and
// has no control of its own that could contradict it.
constexpr bool IsSetBy(std::string_view name, SettingType type) {
    const SettingDef* def = Find(name);
    return def && def->type == type && def->control.kind == ControlKind::None;
}

// The font button also sets the size, bold, italic and colour keys of the font's stem.
constexpr bool FontKeysFit(std::string_view name) {
    constexpr std::string_view kSuffix = "Font";
    if (!name.ends_with(kSuffix))
        return false;
    std::string_view stem = name.substr(0, name.size() - kSuffix.size());
    auto keyOf = [stem](std::string_view suffix) {
        for (const SettingDef& def : kCatalogue)
            if (def.name.size() == stem.size() + suffix.size() && def.name.starts_with(stem) &&
                def.name.ends_with(suffix))
                return def.name;
        return std::string_view{};
    };
    return IsSetBy(keyOf("FontSize"), SettingType::Int16) && IsSetBy(keyOf("FontBold"), SettingType::Boolean) &&
           IsSetBy(keyOf("FontItalic"), SettingType::Boolean) && IsSetBy(keyOf("FontColor"), SettingType::Color);
}

// A boolean drop-down offers False and True; any drop-down offers each value once.
constexpr bool ChoicesFit(const SettingDef& def) {
    const auto& choices = def.control.choices;
    for (std::size_t i = 0; i < choices.size(); ++i) {
        if (def.type == SettingType::Boolean && choices[i].value != 0 && choices[i].value != 1)
            return false;
        for (std::size_t j = 0; j < i; ++j)
            if (choices[j].value == choices[i].value)
                return false;
    }
    return !choices.empty();
}

// Each kind of control only on the keys it can show and write back.
constexpr bool ControlFitsKey(const SettingDef& def) {
    const PrefControl& control = def.control;
    const bool integer = def.type == SettingType::Int16 || def.type == SettingType::Int32;
    const bool placed = !control.group.empty() && !control.label.empty() && control.page != PrefPage::About;
    switch (control.kind) {
    case ControlKind::None:
        return control.group.empty() && control.label.empty();
    case ControlKind::Check:
        return placed && (def.type == SettingType::Boolean || integer);
    case ControlKind::Number:
        return placed && integer && control.min < control.max &&
               (def.type == SettingType::Int32 || (control.min >= INT16_MIN && control.max <= INT16_MAX));
    case ControlKind::Choice:
        return placed && (def.type == SettingType::Int16 || def.type == SettingType::Boolean) && ChoicesFit(def);
    case ControlKind::Colour:
        return placed && def.type == SettingType::Color;
    case ControlKind::Font:
        return placed && def.type == SettingType::String && FontKeysFit(def.name);
    case ControlKind::Folder:
        return placed && def.type == SettingType::String;
    case ControlKind::Corner:
        return placed && def.type == SettingType::Int16;
    case ControlKind::HotKey:
        return placed && def.type == SettingType::Int16 && IsSetBy(control.partner, SettingType::Boolean);
    }
    return false;
}

constexpr bool EveryControlFits() {
    for (const SettingDef& def : kCatalogue)
        if (!ControlFitsKey(def))
            return false;
    return true;
}

// Clang before 17 cannot make libstdc++ 12's std::string in a constant expression, so
// under it (the fuzz build) the defaults are checked by the GCC builds alone.
#if !defined(__clang__) || __clang_major__ >= 17
constexpr std::int32_t NumberIn(const SettingsRec& settings, const SettingField& field) {
    if (const auto* member = std::get_if<bool SettingsRec::*>(&field))
        return settings.**member ? 1 : 0;
    if (const auto* member = std::get_if<std::int16_t SettingsRec::*>(&field))
        return settings.**member;
    if (const auto* member = std::get_if<std::int32_t SettingsRec::*>(&field))
        return settings.**member;
    return 0;
}

// A fresh install must show every default: a field within its range, a drop-down on one of
// its choices, a corner on one of the four, a hot key on a virtual-key code.
constexpr bool DefaultFits(const PrefControl& control, std::int32_t value) {
    switch (control.kind) {
    case ControlKind::Number:
        return value >= control.min && value <= control.max;
    case ControlKind::Choice:
        for (const PrefChoice& choice : control.choices)
            if (choice.value == value)
                return true;
        return false;
    case ControlKind::Corner:
        return value >= 0 && value <= 3;
    case ControlKind::HotKey:
        return value > 0 && value <= 255;
    default:
        return true;
    }
}

constexpr bool EveryDefaultFits() {
    const SettingsRec defaults;
    for (const SettingDef& def : kCatalogue)
        if (!DefaultFits(def.control, NumberIn(defaults, def.field)))
            return false;
    return true;
}

static_assert(EveryDefaultFits());
#endif

static_assert(LookKeysComeFirst());
static_assert(EveryTypeFits());
static_assert(EveryControlFits());

} // namespace

std::span<const SettingDef> SettingsCatalogue() {
    return kCatalogue;
}

const SettingDef* FindSetting(std::string_view name) {
    return Find(name);
}
