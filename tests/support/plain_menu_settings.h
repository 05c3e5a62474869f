// The settings of a plain menu, shared by the painting tests of the core and the menu
// window tests under Wine: solid colours that differ from each other and from every
// default, flat parts, no frame, no title over the frame and no title-bar buttons, so that
// every pixel of a part that no text covers has the part's colour. Title 24 high, buttons
// 20 high. Core code only: the native unit tests include it too.
#pragma once

#include "core/settings.h"

#include <cstdint>

namespace TestSupport {

// In 0x00BBGGRR, as the settings and COLORREF hold colours.
inline constexpr std::int32_t kPlainTitle = 0x804020;
inline constexpr std::int32_t kPlainTitleText = 0x00FFFF;
inline constexpr std::int32_t kPlainButton = 0xC0E0D0;
inline constexpr std::int32_t kPlainButtonText = 0x201010;
inline constexpr std::int32_t kPlainBar = 0x3060F0;
inline constexpr std::int32_t kPlainBarText = 0xFFFFFE;

inline SettingsRec PlainMenuSettings() {
    SettingsRec s;
    s.TitleColor = kPlainTitle;
    s.TitleFontColor = kPlainTitleText;
    s.TitleGradient = false;
    s.TitleFlat = true;
    s.TitleOverlap = false;
    s.TitleVSize = 24;
    s.ButtonColor = kPlainButton;
    s.ButtonFontColor = kPlainButtonText;
    s.ButtonGradient = false;
    s.ButtonFlat = 1;
    s.ButtonVSize = 20;
    s.SelBar = true;
    s.SelBarGradient = 0;
    s.SelBarColor = kPlainBar;
    s.SelBarTextColor = kPlainBarText;
    s.MenuNoFrames = 1;
    s.TwinScrollButtons = false;
    s.CloseStatus = 0;
    s.RollUpStatus = 0;
    s.RotateStatus = 0;
    s.AlwaysOnTopStatus = 0;
    return s;
}

} // namespace TestSupport
