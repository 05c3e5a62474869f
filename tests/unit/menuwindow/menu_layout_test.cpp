#include "menuwindow/layout/menu_layout.h"

#include "menuwindow/layout/menu_shape.h"
#include "print_helpers.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

namespace {

// The default look with round numbers: title 22, buttons 20 high, text offset 8, no
// icons, no frame (and the title inside it), widths 0 to 300.
MenuLook TestLook() {
    MenuLook look;
    look.MenuNoFrames = 1;
    look.TitleOverlap = false;
    look.TwinScrollButtons = false;
    return look;
}

LayoutOptions Options(const MenuLook& look, bool horizontal = false, int dpi = 96) {
    return LayoutOptionsOf(look, horizontal, false, dpi);
}

std::vector<ItemMeasure> Texts(std::initializer_list<int> widths) {
    std::vector<ItemMeasure> items;
    for (int width : widths)
        items.push_back({width, false, false, 0});
    return items;
}

constexpr int kScreen = 768;

MenuLayout Lay(const MenuLook& look, const std::vector<ItemMeasure>& items, bool horizontal = false,
               int available = kScreen) {
    return LayOutMenu(items, Options(look, horizontal), available, 0);
}

// Width of an item whose text is t pixels wide, with the test look's margins.
int Need(int t) {
    return 8 + t + kTextRightMargin;
}

} // namespace

TEST(LayOutMenu, VerticalMenuIsAsWideAsItsWidestItemWithinTheMinimumAndMaximum) {
    MenuLook look = TestLook();
    MenuLayout layout = Lay(look, Texts({60, 100, 80}));
    EXPECT_EQ(layout.buttons.buttonWidth, Need(100));
    EXPECT_EQ(layout.window, (Size{Need(100), 22 + 60}));

    EXPECT_EQ(Lay(look, Texts({500})).buttons.buttonWidth, 300);
    look.ButtonMinWidth = 200;
    EXPECT_EQ(Lay(look, Texts({50})).buttons.buttonWidth, 200);
    look.ButtonMaxWidth = 150; // below the minimum: the maximum wins
    EXPECT_EQ(Lay(look, Texts({50})).buttons.buttonWidth, 150);
    look.ButtonMinWidth = 0;
    look.ButtonMaxWidth = 0; // no maximum
    EXPECT_EQ(Lay(look, Texts({500})).buttons.buttonWidth, Need(500));

    MenuLayout empty = Lay(TestLook(), {});
    EXPECT_EQ(empty.window, (Size{kSmallestMenuWidth, 22}));
    EXPECT_EQ(empty.surface.Height(), 0);
}

TEST(LayOutMenu, FrameLinesSurroundEverythingUnlessTheTitleStandsOverThem) {
    MenuLook look = TestLook();
    look.MenuNoFrames = 0;
    MenuLayout one = Lay(look, Texts({100}));
    EXPECT_EQ(one.title, (Rect{1, 1, 1 + Need(100), 23}));
    EXPECT_EQ(one.window, (Size{2 + Need(100), 44}));
    look.Menu3DFrame2 = true;
    look.TitleOverlap = true;
    MenuLayout top = Lay(look, Texts({100}));
    EXPECT_EQ(top.title, (Rect{0, 0, top.window.width, 24}));
    EXPECT_EQ(top.surface.top, 24);
    look.TitlePosition = 2;
    MenuLayout left = Lay(look, Texts({100}));
    EXPECT_EQ(left.title, (Rect{0, 0, 24, left.window.height}));
    look.TitleOverlap = false;
    EXPECT_EQ(Lay(look, Texts({100})).title, (Rect{2, 2, 24, 22}));
}

TEST(LayOutMenu, InactiveWindowUsesTheInactiveOverlapOnlyWithTheInactiveLook) {
    MenuLook look = TestLook();
    look.MenuNoFrames = 0;
    look.TitleOverlap = true;
    look.TitleInactiveOverlap = false;
    EXPECT_TRUE(LayoutOptionsOf(look, false, true, 96).shape.titleOverFrame);
    look.TitleShowInactive = true;
    EXPECT_FALSE(LayoutOptionsOf(look, false, true, 96).shape.titleOverFrame);
    EXPECT_TRUE(LayoutOptionsOf(look, false, false, 96).shape.titleOverFrame);
}

TEST(LayOutMenu, TallMenuShowsWhatFitsTheScreenAndAScrollButtonAtTheCut) {
    // Room for the title and 5 buttons, with 10 pixels to spare.
    MenuLayout layout = Lay(TestLook(), std::vector<ItemMeasure>(12, {100, false, false, 0}), false, 22 + 5 * 20 + 10);
    EXPECT_EQ(layout.buttons.view.slots, 5);
    EXPECT_EQ(layout.window.height, 22 + 100);
    std::vector<ScrollButton> scroll = ScrollButtons(layout.buttons);
    ASSERT_EQ(scroll.size(), 1u);
    EXPECT_EQ(scroll[0], (ScrollButton{{0, 80, Need(100), 100}, true}));

    // The frame and the title count against the room; a title at the left takes no height.
    MenuLook look = TestLook();
    look.MenuNoFrames = 0;
    look.Menu3DFrame2 = true;
    std::vector<ItemMeasure> items(10, {10, false, false, 0});
    EXPECT_EQ(Lay(look, items, false, 4 + 22 + 200).buttons.view.slots, 10);
    EXPECT_EQ(Lay(look, items, false, 4 + 22 + 199).buttons.view.slots, 9);
    look.TitlePosition = 2;
    EXPECT_EQ(Lay(look, items, false, 4 + 200).buttons.view.slots, 10);
}

TEST(LayOutMenu, HorizontalButtonsShareOneWidthWithHorzLockWidthElseEachFitsItsText) {
    MenuLook look = TestLook();
    MenuLayout locked = Lay(look, Texts({40, 100, 60}), true, 1024);
    EXPECT_EQ(locked.buttons.widths, (std::vector<int>{Need(100), Need(100), Need(100)}));
    EXPECT_EQ(locked.window, (Size{3 * Need(100) + 1, 20})) << "HorzNoTitlebar is on by default";

    look.HorzLockWidth = false;
    std::vector<ItemMeasure> items = {{40, false, false, 0}, {100, true, false, 0}, {60, false, false, 0}};
    MenuLayout own = Lay(look, items, true, 1024);
    EXPECT_EQ(own.buttons.widths, (std::vector<int>{Need(40), Need(100) + kArrowColumn, Need(60)}));

    // A row that has to scroll keeps one width for all, so its slots stay put.
    int room = 4 * Need(100) + 1;
    MenuLayout scrolling = Lay(look, Texts({40, 100, 60, 40, 100, 60, 40, 100, 60, 40}), true, room);
    EXPECT_EQ(scrolling.buttons.view.slots, 4);
    EXPECT_EQ(scrolling.buttons.widths, std::vector<int>(4, Need(100)));
    EXPECT_LE(scrolling.window.width, room);
}

TEST(LayOutMenu, HorizontalTitleBarAndFrameChoices) {
    MenuLook look = TestLook();
    look.HorzNoTitlebar = false;
    EXPECT_EQ(Lay(look, Texts({100, 100}), true, 1024).titlePlace, TitlePlace::Top);
    look.MenuHorizontalStyle = 1;
    EXPECT_EQ(Lay(look, Texts({100, 100}), true, 1024).titlePlace, TitlePlace::Left);

    look.MenuHorizontalStyle = 0;
    look.MenuNoFrames = 0;
    look.HorzButtonsOnly = true; // drops the title and the frame
    MenuLayout bare = Lay(look, Texts({100}), true, 1024);
    EXPECT_EQ(bare.titlePlace, TitlePlace::None);
    EXPECT_EQ(bare.surface, (Rect{0, 0, Need(100) + 1, 20}));
    look.HorzButtonsOnly = false;
    look.HorzNoTitlebar = true; // drops the title only
    MenuLayout framed = Lay(look, Texts({100}), true, 1024);
    EXPECT_EQ(framed.titlePlace, TitlePlace::None);
    EXPECT_EQ(framed.surface, (Rect{1, 1, Need(100) + 2, 21}));

    // None of the horizontal switches touches a vertical menu.
    look.HorzButtonsOnly = true;
    MenuShape shape = ShapeOf(look, false, false);
    EXPECT_EQ(shape.title, TitlePlace::Top);
    EXPECT_EQ(shape.frameLines, 1);
}
