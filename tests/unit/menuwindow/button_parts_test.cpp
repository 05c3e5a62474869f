#include "menuwindow/layout/button_parts.h"

#include "print_helpers.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

namespace {

MenuMetrics Metrics(bool icons) {
    MenuLook look;
    look.ButtonTextOfset = 8;
    look.ButtonIcons = icons;
    look.ButtonIconSize = 16;
    return MetricsOf(look, 96);
}

} // namespace

// The menu's columns are its widest item's, so that every label starts and ends in line.
TEST(ButtonParts, TextsLineUpWhetherOrNotAnItemHasAnArrowOrKey) {
    MenuMetrics m = Metrics(false);
    std::vector<ItemMeasure> items = {{50, true, false, 0}, {80, false, true, 20}, {60, false, true, 9}};
    Columns columns = MenuColumns(items, m);
    EXPECT_EQ(columns, (Columns{kHotkeySymbolWidth + 2 * kHotkeyGap + 20, kArrowColumn}));
    ButtonParts plain = PartsOf({0, 0, 200, 20}, {60, false, false, 0}, columns, m);
    ButtonParts full = PartsOf({0, 0, 200, 20}, {60, true, true, 9}, columns, m);
    EXPECT_EQ(plain.text, full.text);
    EXPECT_TRUE(plain.arrow.Empty());
    EXPECT_TRUE(plain.hotkeySymbol.Empty());
}

TEST(ButtonParts, TextRoomNeverTurnsNegative) {
    ButtonParts parts = PartsOf({0, 0, 30, 20}, {60, true, false, 0}, {0, kArrowColumn}, Metrics(true));
    EXPECT_EQ(parts.text.Width(), 0);
}

TEST(MenuMetrics, ScalesEverySizeAndRaisesItsFloors) {
    MenuLook look;
    MenuMetrics m = MetricsOf(look, 144);
    EXPECT_EQ(m.titleThickness, 33);
    EXPECT_EQ(m.buttonHeight, 30);
    EXPECT_EQ(m.maxWidth, 450);
    EXPECT_EQ(m.minWidth, 60); // the smallest menu width, 40 at 96 DPI
    EXPECT_EQ(m.iconSize, 24);
    look.ButtonVSize = 0;
    look.TitleVSize = -4;
    look.ButtonMinWidth = 120;
    m = MetricsOf(look, 96);
    EXPECT_EQ(m.buttonHeight, 1);
    EXPECT_EQ(m.titleThickness, 0);
    EXPECT_EQ(m.minWidth, 120);
}
