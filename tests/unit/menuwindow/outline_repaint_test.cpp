#include "menuwindow/outline.h"
#include "menuwindow/repaint.h"

#include "print_helpers.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

namespace {

MenuLayout LayoutWithTitle(TitlePlace place, bool framed) {
    MenuLook look;
    look.TitlePosition = place == TitlePlace::Bottom ? 1 : place == TitlePlace::Left ? 2 : 0;
    look.MenuNoFrames = framed ? 0 : 1;
    look.TitleOverlap = false;
    std::vector<ItemMeasure> items(3, ItemMeasure{100, false, false, 0});
    return LayOutMenu(items, LayoutOptionsOf(look, false, false, 96), 768, 0);
}

} // namespace

TEST(WindowOutline, RolledUpOnlyTheTitleBarShowsNormallyTheWholeWindow) {
    EXPECT_FALSE(WindowOutline(LayoutWithTitle(TitlePlace::Top, false), false).has_value());
    EXPECT_FALSE(WindowOutline(LayoutWithTitle(TitlePlace::Left, true), false).has_value());
    const struct {
        TitlePlace place;
        bool framed;
        Rect shown; // right -1: the window's width
    } cases[] = {
        {TitlePlace::Top, false, {0, 0, -1, 22}},     {TitlePlace::Top, true, {0, 0, -1, 23}},
        {TitlePlace::Bottom, false, {0, 60, -1, 82}}, {TitlePlace::Left, false, {0, 0, 22, 60}},
        {TitlePlace::Left, true, {0, 0, 23, 62}},
    };
    for (const auto& c : cases) {
        MenuLayout layout = LayoutWithTitle(c.place, c.framed);
        Rect shown = c.shown;
        if (shown.right < 0)
            shown.right = layout.window.width;
        EXPECT_EQ(WindowOutline(layout, true), shown) << static_cast<int>(c.place) << (c.framed ? " framed" : "");
    }
    MenuLayout none = LayoutWithTitle(TitlePlace::Top, false);
    none.titlePlace = TitlePlace::None;
    EXPECT_FALSE(WindowOutline(none, true).has_value()) << "without a title bar the whole rectangle stays";
}

TEST(ButtonState, FollowsSelectionPressAndTheSelectionBar) {
    EXPECT_EQ(StateOf(3, {3, false}, true), ButtonState::Selected);
    EXPECT_EQ(StateOf(3, {3, false}, false), ButtonState::Normal);
    EXPECT_EQ(StateOf(3, {3, true}, false), ButtonState::Pressed);
    EXPECT_EQ(StateOf(3, {3, true}, true), ButtonState::Pressed);
    EXPECT_EQ(StateOf(4, {3, true}, true), ButtonState::Normal);
    EXPECT_EQ(StateOf(0, {0, false}, true), ButtonState::Normal);
}

TEST(ButtonsToRepaint, OnlyTheOldAndTheNewSelection) {
    ScrollView view = PlanScroll(10, 10, 9999, false, 0);
    EXPECT_EQ(ButtonsToRepaint({3, false}, {5, false}, true, view), (std::vector<int>{3, 5}));
    EXPECT_EQ(ButtonsToRepaint({7, false}, {2, false}, true, view), (std::vector<int>{2, 7}));
    EXPECT_EQ(ButtonsToRepaint({0, false}, {4, false}, true, view), (std::vector<int>{4}));
    EXPECT_EQ(ButtonsToRepaint({4, false}, {0, false}, true, view), (std::vector<int>{4}));
}

TEST(ButtonsToRepaint, NothingWhenNothingChanged) {
    ScrollView view = PlanScroll(10, 10, 9999, false, 0);
    EXPECT_TRUE(ButtonsToRepaint({3, false}, {3, false}, true, view).empty());
    EXPECT_TRUE(ButtonsToRepaint({0, false}, {0, false}, true, view).empty());
    // Without the selection bar a selection alone changes no button's look.
    EXPECT_TRUE(ButtonsToRepaint({3, false}, {5, false}, false, view).empty());
}

TEST(ButtonsToRepaint, PressAndReleaseRepaintTheOneButton) {
    ScrollView view = PlanScroll(10, 10, 9999, false, 0);
    EXPECT_EQ(ButtonsToRepaint({3, false}, {3, true}, true, view), (std::vector<int>{3}));
    EXPECT_EQ(ButtonsToRepaint({3, true}, {3, false}, false, view), (std::vector<int>{3}));
    EXPECT_EQ(ButtonsToRepaint({3, true}, {5, true}, false, view), (std::vector<int>{3, 5}));
}

TEST(ButtonsToRepaint, ButtonsThatAreNotDrawnAreLeftAlone) {
    ScrollView view = PlanScroll(20, 8, 9999, false, 5); // items 7 to 12 drawn
    EXPECT_EQ(ButtonsToRepaint({6, false}, {7, false}, true, view), (std::vector<int>{7}));
    EXPECT_EQ(ButtonsToRepaint({12, false}, {13, false}, true, view), (std::vector<int>{12}));
    EXPECT_TRUE(ButtonsToRepaint({2, false}, {20, false}, true, view).empty());
}
