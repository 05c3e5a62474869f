// Scenes of menus for the painting tests: a plain look with round numbers and a menu of
// labelled items, measured with the fake measure.
#pragma once

#include "fake_measure.h"
#include "menuwindow/menu_scene.h"

#include <string>
#include <vector>

namespace MenuWindow {

inline constexpr Colour kTitle = 0x804020;
inline constexpr Colour kTitleText = 0x00FFFF;
inline constexpr Colour kButton = 0xC0E0D0;
inline constexpr Colour kButtonText = 0x201010;
inline constexpr Colour kBar = 0x3060F0;
inline constexpr Colour kBarText = 0xFFFFFE;

// Title 24 high, buttons 20 high, text offset 8, solid colours, flat parts, no frame,
// no icons, no title-bar buttons, widths 0 to 300.
inline MenuLook PlainLook() {
    SettingsRec s;
    s.TitleColor = kTitle;
    s.TitleFontColor = kTitleText;
    s.TitleGradient = false;
    s.TitleFlat = true;
    s.TitleOverlap = false;
    s.TitleVSize = 24;
    s.TitleAlignment = 0;
    s.ButtonColor = kButton;
    s.ButtonFontColor = kButtonText;
    s.ButtonGradient = false;
    s.ButtonFlat = 1;
    s.ButtonVSize = 20;
    s.ButtonTextOfset = 8;
    s.ButtonMinWidth = 0;
    s.ButtonMaxWidth = 300;
    s.SelBar = true;
    s.SelBarGradient = 0;
    s.SelBarColor = kBar;
    s.SelBarTextColor = kBarText;
    s.MenuNoFrames = 1;
    s.TwinScrollButtons = false;
    s.CloseStatus = 0;
    s.RollUpStatus = 0;
    s.RotateStatus = 0;
    s.AlwaysOnTopStatus = 0;
    return LookFromSettings(s);
}

inline DisplayList Items(const std::vector<std::string>& labels) {
    DisplayList list;
    for (const std::string& label : labels) {
        DisplayEntry entry;
        entry.LABEL = label;
        list.entries.push_back(entry);
    }
    return list;
}

inline MenuScene Scene(const MenuLook& look, DisplayList list, std::string title = "Tools",
                       Rect workArea = {0, 0, 1024, 768}, bool horizontal = false) {
    SceneRequest request;
    request.look = look;
    request.list = std::move(list);
    request.title = std::move(title);
    request.horizontal = horizontal;
    request.workArea = workArea;
    return BuildScene(std::move(request), FakeMeasure{});
}

} // namespace MenuWindow
