#include "menuwindow/button_parts.h"

#include "print_helpers.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

namespace {

MenuMetrics Metrics(bool icons, int dpi = 96) {
    MenuLook look;
    look.ButtonTextOfset = 8;
    look.ButtonIcons = icons;
    look.ButtonIconSize = 16;
    return MetricsOf(look, dpi);
}

} // namespace

TEST(ButtonParts, TextStartsAtTheOffsetOrAfterTheIcon) {
    EXPECT_EQ(TextStart(Metrics(false)), 8);
    EXPECT_EQ(TextStart(Metrics(true)), kIconMargin + 16 + 8);
    EXPECT_EQ(TextStart(Metrics(true, 192)), 2 * (kIconMargin + 16 + 8));
}

TEST(ButtonParts, ColumnsHoldTheArrowAndTheHotKey) {
    MenuMetrics m = Metrics(false);
    EXPECT_EQ(ItemColumns({100, false, false, 0}, m), (Columns{0, 0}));
    EXPECT_EQ(ItemColumns({100, true, false, 0}, m), (Columns{0, kArrowColumn}));
    EXPECT_EQ(ItemColumns({100, false, true, 9}, m), (Columns{kHotkeySymbolWidth + kHotkeyGap + 9 + kHotkeyGap, 0}));
}

TEST(ButtonParts, MenuColumnsAreTheWidestOfTheItems) {
    MenuMetrics m = Metrics(false);
    std::vector<ItemMeasure> items = {{50, true, false, 0}, {80, false, true, 20}, {60, false, true, 9}};
    EXPECT_EQ(MenuColumns(items, m), (Columns{kHotkeySymbolWidth + 2 * kHotkeyGap + 20, kArrowColumn}));
    EXPECT_EQ(MenuColumns({}, m), (Columns{0, 0}));
}

TEST(ButtonParts, NeededWidthAddsMarginsIconAndColumns) {
    EXPECT_EQ(NeededWidth({100, false, false, 0}, {}, Metrics(false)), 8 + 100 + kTextRightMargin);
    EXPECT_EQ(NeededWidth({100, false, false, 0}, {27, 14}, Metrics(false)), 8 + 100 + kTextRightMargin + 27 + 14);
    EXPECT_EQ(NeededWidth({100, false, false, 0}, {}, Metrics(true)), kIconMargin + 16 + 8 + 100 + kTextRightMargin);
}

TEST(ButtonParts, PartsStandFromLeftToRight) {
    MenuMetrics m = Metrics(true);
    ItemMeasure item{60, true, true, 9};
    Columns columns = ItemColumns(item, m);
    ButtonParts parts = PartsOf({0, 40, 200, 60}, item, columns, m);
    int arrowLeft = 200 - kArrowColumn;
    int hotkeyLeft = arrowLeft - columns.hotkey;
    EXPECT_EQ(parts.icon, (Rect{kIconMargin, 42, kIconMargin + 16, 58}));
    EXPECT_EQ(parts.text, (Rect{kIconMargin + 16 + 8, 40, hotkeyLeft - kTextRightMargin, 60}));
    EXPECT_EQ(parts.hotkeySymbol, (Rect{hotkeyLeft, 40, hotkeyLeft + kHotkeySymbolWidth, 60}));
    EXPECT_EQ(parts.hotkeyText, (Rect{hotkeyLeft + kHotkeySymbolWidth + kHotkeyGap, 40, arrowLeft - kHotkeyGap, 60}));
    EXPECT_EQ(parts.hotkeyText.Width(), 9);
    EXPECT_EQ(parts.arrow, (Rect{arrowLeft, 40, 200, 60}));
}

TEST(ButtonParts, ItemsWithoutArrowOrKeyKeepTheMenuColumnsEmpty) {
    MenuMetrics m = Metrics(false);
    Columns columns{27, kArrowColumn};
    ButtonParts plain = PartsOf({0, 0, 200, 20}, {60, false, false, 0}, columns, m);
    ButtonParts full = PartsOf({0, 0, 200, 20}, {60, true, true, 9}, columns, m);
    EXPECT_EQ(plain.text, full.text); // texts line up
    EXPECT_TRUE(plain.arrow.Empty());
    EXPECT_TRUE(plain.hotkeySymbol.Empty());
    EXPECT_TRUE(plain.icon.Empty());
    EXPECT_EQ(plain.text.right, 200 - kArrowColumn - 27 - kTextRightMargin);
}

TEST(ButtonParts, IconIsCentredVertically) {
    MenuLook look;
    look.ButtonIcons = true;
    look.ButtonIconSize = 32;
    look.ButtonVSize = 40;
    ButtonParts parts = PartsOf({0, 100, 150, 140}, {}, {}, MetricsOf(look, 96));
    EXPECT_EQ(parts.icon, (Rect{kIconMargin, 104, kIconMargin + 32, 136}));
}

TEST(ButtonParts, TextRoomNeverTurnsNegative) {
    MenuMetrics m = Metrics(true);
    ButtonParts parts = PartsOf({0, 0, 30, 20}, {60, true, false, 0}, {0, kArrowColumn}, m);
    EXPECT_EQ(parts.text.Width(), 0);
}

TEST(MenuMetrics, ScalesEverySizeAndRaisesItsFloors) {
    MenuLook look;
    MenuMetrics m = MetricsOf(look, 144);
    EXPECT_EQ(m.titleThickness, 33);
    EXPECT_EQ(m.buttonHeight, 30);
    EXPECT_EQ(m.maxWidth, 450);
    EXPECT_EQ(m.minWidth, 60); // the smallest menu width, 40 at 96 DPI
    EXPECT_EQ(m.textOffset, 12);
    EXPECT_EQ(m.iconSize, 24);
    EXPECT_EQ(m.titleButtonSize, 30);
    EXPECT_EQ(m.subMenuOverlap, 15);
    look.ButtonVSize = 0;
    look.TitleVSize = -4;
    look.ButtonMinWidth = 120;
    m = MetricsOf(look, 96);
    EXPECT_EQ(m.buttonHeight, 1);
    EXPECT_EQ(m.titleThickness, 0);
    EXPECT_EQ(m.minWidth, 120);
}
