#include "menuwindow/layout/outline.h"
#include "menuwindow/paint/repaint.h"

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

// Rolled up with the title at the top is the end-to-end tests'; here, a title at the
// bottom, and one at the left with a frame, whose line at the title's side stays.
TEST(WindowOutline, RolledUpOnlyTheTitleBarShows) {
    EXPECT_FALSE(WindowOutline(LayoutWithTitle(TitlePlace::Top, false), false).has_value());
    MenuLayout bottom = LayoutWithTitle(TitlePlace::Bottom, false);
    EXPECT_EQ(WindowOutline(bottom, true), (Rect{0, 60, bottom.window.width, 82}));
    MenuLayout framed = LayoutWithTitle(TitlePlace::Left, true);
    EXPECT_EQ(WindowOutline(framed, true), (Rect{0, 0, 23, 62}));
    MenuLayout none = LayoutWithTitle(TitlePlace::Top, false);
    none.titlePlace = TitlePlace::None;
    EXPECT_FALSE(WindowOutline(none, true).has_value()) << "without a title bar the whole rectangle stays";
}

TEST(ButtonState, FollowsSelectionPressAndTheSelectionBar) {
    EXPECT_EQ(StateOf(3, {3, false}, true), ButtonState::Selected);
    EXPECT_EQ(StateOf(3, {3, false}, false), ButtonState::Normal);
    EXPECT_EQ(StateOf(3, {3, true}, false), ButtonState::Pressed);
    EXPECT_EQ(StateOf(4, {3, true}, true), ButtonState::Normal);
    EXPECT_EQ(StateOf(0, {0, false}, true), ButtonState::Normal);
}

// Repainting only the old and the new selection is the Wine paint tests'; here, the cases
// where fewer buttons change.
TEST(ButtonsToRepaint, OnlyButtonsWhoseLookChangedAndThatAreDrawn) {
    ScrollView all = PlanScroll(10, 10, 9999, false, 0);
    EXPECT_TRUE(ButtonsToRepaint({3, false}, {5, false}, false, all).empty()) << "no selection bar, no change";
    EXPECT_EQ(ButtonsToRepaint({3, true}, {3, false}, false, all), (std::vector<int>{3})) << "a release";
    EXPECT_EQ(ButtonsToRepaint({7, false}, {2, false}, true, all), (std::vector<int>{2, 7}));
    ScrollView scrolled = PlanScroll(20, 8, 9999, false, 5); // items 7 to 12 drawn
    EXPECT_EQ(ButtonsToRepaint({6, false}, {7, false}, true, scrolled), (std::vector<int>{7}));
    EXPECT_TRUE(ButtonsToRepaint({2, false}, {20, false}, true, scrolled).empty());
}
