#include "menuwindow/layout/title_buttons.h"

#include "print_helpers.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

namespace {

MenuLook DefaultLook() {
    return {};
}

MenuLook AllShown(int close, int rotate, int rollUp, int onTop) {
    MenuLook look = DefaultLook();
    look.CloseStatus = look.RotateStatus = look.RollUpStatus = look.AlwaysOnTopStatus = 3;
    look.ClosePosition = static_cast<std::int16_t>(close);
    look.RotatePosition = static_cast<std::int16_t>(rotate);
    look.RollUpPosition = static_cast<std::int16_t>(rollUp);
    look.AlwaysOnTopPosition = static_cast<std::int16_t>(onTop);
    return look;
}

std::vector<TitleButton> Order(const std::vector<PlacedTitleButton>& placed) {
    std::vector<TitleButton> order;
    for (const PlacedTitleButton& p : placed)
        order.push_back(p.button);
    return order;
}

constexpr Rect kBar{0, 0, 150, 22};

} // namespace

TEST(TitleButtons, DefaultsShowCloseAtTheRightAndRollUpAtTheLeft) {
    std::vector<PlacedTitleButton> placed = PlaceTitleButtons(DefaultLook(), false, kBar, false, 20, 2);
    ASSERT_EQ(placed.size(), 2u);
    EXPECT_EQ(placed[0], (PlacedTitleButton{TitleButton::Close, {129, 1, 149, 21}, true}));
    EXPECT_EQ(placed[1], (PlacedTitleButton{TitleButton::RollUp, {1, 1, 21, 21}, false}));
    EXPECT_EQ(TitleTextRect(kBar, false, placed, 6), (Rect{27, 0, 123, 22}));
}

TEST(TitleButtons, StatusBitsChooseTheActiveAndTheInactiveMenu) {
    MenuLook look = DefaultLook();
    look.CloseStatus = kStatusActive;
    look.RollUpStatus = kStatusInactive;
    EXPECT_EQ(Order(PlaceTitleButtons(look, false, kBar, false, 20, 2)), std::vector{TitleButton::Close});
    EXPECT_EQ(Order(PlaceTitleButtons(look, true, kBar, false, 20, 2)), std::vector{TitleButton::RollUp});
}

TEST(TitleButtons, PositionsOrderTheButtonsFromTheRightEnd) {
    MenuLook look = AllShown(1, 2, 1, 0);
    std::vector<PlacedTitleButton> placed = PlaceTitleButtons(look, false, kBar, false, 20, 2);
    // 0 nearest the end; close before roll-up at the same number, by their index.
    EXPECT_EQ(Order(placed),
              (std::vector{TitleButton::OnTop, TitleButton::Close, TitleButton::RollUp, TitleButton::Rotate}));
    EXPECT_EQ(placed[1].rect, (Rect{107, 1, 127, 21}));
    EXPECT_EQ(placed[3].rect, (Rect{63, 1, 83, 21}));
    EXPECT_EQ(TitleTextRect(kBar, false, placed, 6), (Rect{6, 0, 57, 22}));
}

TEST(TitleButtons, NegativePositionsOrderTheButtonsFromTheLeftEnd) {
    MenuLook look = AllShown(1, -6, -1, -2);
    std::vector<PlacedTitleButton> placed = PlaceTitleButtons(look, false, kBar, false, 20, 2);
    EXPECT_EQ(Order(placed),
              (std::vector{TitleButton::Close, TitleButton::RollUp, TitleButton::OnTop, TitleButton::Rotate}));
    EXPECT_EQ(placed[1].rect, (Rect{1, 1, 21, 21}));
    EXPECT_EQ(placed[3].rect, (Rect{45, 1, 65, 21}));
    EXPECT_FALSE(placed[3].atFarEnd);
    EXPECT_EQ(TitleTextRect(kBar, false, placed, 6), (Rect{71, 0, 123, 22}));
}

TEST(TitleButtons, VerticalBarCountsFromTheTop) {
    Rect bar{0, 0, 22, 200};
    std::vector<PlacedTitleButton> placed = PlaceTitleButtons(DefaultLook(), false, bar, true, 20, 2);
    ASSERT_EQ(placed.size(), 2u);
    EXPECT_EQ(placed[0], (PlacedTitleButton{TitleButton::Close, {1, 1, 21, 21}, true}));
    EXPECT_EQ(placed[1], (PlacedTitleButton{TitleButton::RollUp, {1, 179, 21, 199}, false}));
    EXPECT_EQ(TitleTextRect(bar, true, placed, 6), (Rect{0, 27, 22, 173}));
}

TEST(TitleButtons, TextRoomIsWhatTheButtonsLeaveAndNeverLess) {
    MenuLook look = DefaultLook();
    look.CloseStatus = look.RollUpStatus = 0;
    std::vector<PlacedTitleButton> none = PlaceTitleButtons(look, false, kBar, false, 20, 2);
    EXPECT_TRUE(none.empty());
    EXPECT_EQ(TitleTextRect(kBar, false, none, 6), (Rect{6, 0, 144, 22}));
    Rect narrow{0, 0, 50, 22};
    EXPECT_EQ(TitleTextRect(narrow, false, PlaceTitleButtons(DefaultLook(), false, narrow, false, 20, 2), 6).Width(),
              0);
}
