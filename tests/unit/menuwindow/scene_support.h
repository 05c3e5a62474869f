// Scenes of menus for the painting tests: the plain menu of the shared settings and a menu
// of labelled items, measured with the fake measure.
#pragma once

#include "support/plain_menu_settings.h"
#include "fake_measure.h"
#include "menuwindow/layout/menu_scene.h"

#include <string>
#include <vector>

namespace MenuWindow {

inline constexpr Colour kTitle = TestSupport::kPlainTitle;
inline constexpr Colour kTitleText = TestSupport::kPlainTitleText;
inline constexpr Colour kButton = TestSupport::kPlainButton;
inline constexpr Colour kButtonText = TestSupport::kPlainButtonText;
inline constexpr Colour kBar = TestSupport::kPlainBar;
inline constexpr Colour kBarText = TestSupport::kPlainBarText;

// Title 24 high, buttons 20 high, text offset 8, widths 0 to 300 (the defaults).
inline MenuLook PlainLook() {
    return TestSupport::PlainMenuSettings();
}

inline DisplayList Items(const std::vector<std::string>& labels) {
    DisplayList list;
    for (const std::string& label : labels) {
        DisplayEntry entry;
        entry.LABEL = label;
        entry.HOTKEY = "0"; // as a menu file holds an item without a hot key
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
