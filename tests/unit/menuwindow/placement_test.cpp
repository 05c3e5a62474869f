#include "menuwindow/placement.h"

#include "print_helpers.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

namespace {

constexpr Rect kWorkArea{0, 0, 1024, 738};

// A sub-menu 150 wide and 120 high whose title bar starts at its top and whose first
// button starts 22 pixels down.
constexpr SubMenuFrame kSubMenu{{150, 120}, 0, 22};

SubMenuAnchor VerticalParent(Rect parent, int buttonTop, bool towardsStart = false) {
    return {parent, false, buttonTop, towardsStart};
}

} // namespace

TEST(KeepOnScreen, LeavesAWindowThatFitsAlone) {
    EXPECT_EQ(KeepOnScreen({100, 200}, {150, 200}, kWorkArea), (Point{100, 200}));
    EXPECT_EQ(KeepOnScreen({874, 538}, {150, 200}, kWorkArea), (Point{874, 538}));
}

TEST(KeepOnScreen, MovesBackFromEveryEdge) {
    EXPECT_EQ(KeepOnScreen({875, 539}, {150, 200}, kWorkArea), (Point{874, 538}));
    EXPECT_EQ(KeepOnScreen({-10, -1}, {150, 200}, kWorkArea), (Point{0, 0}));
    EXPECT_EQ(KeepOnScreen({5, 5}, {150, 200}, {20, 30, 1024, 738}), (Point{20, 30}));
}

TEST(KeepOnScreen, WindowLargerThanTheWorkAreaShowsItsTopLeft) {
    EXPECT_EQ(KeepOnScreen({300, 300}, {2000, 1000}, kWorkArea), (Point{0, 0}));
}

TEST(PlaceHotspotMenu, StandsAtItsPositionFromTheOrigin) {
    EXPECT_EQ(PlaceHotspotMenu({100, 50}, {0, 0}, false, {500, 500}, {150, 200}, kWorkArea), (Point{100, 50}));
    EXPECT_EQ(PlaceHotspotMenu({100, 50}, {200, 100}, false, {500, 500}, {150, 200}, kWorkArea), (Point{300, 150}));
}

TEST(PlaceHotspotMenu, IsKeptOnTheScreen) {
    EXPECT_EQ(PlaceHotspotMenu({950, 600}, {0, 0}, false, {0, 0}, {150, 200}, kWorkArea), (Point{874, 538}));
}

TEST(PlaceHotspotMenu, OnMouseOpensAtTheCursor) {
    EXPECT_EQ(PlaceHotspotMenu({100, 50}, {200, 100}, true, {10, 20}, {150, 200}, kWorkArea), (Point{10, 20}));
}

TEST(PlaceHotspotMenu, OnMouseOpensLeftOfAndAboveTheCursorWhenThereIsNoRoom) {
    EXPECT_EQ(PlaceHotspotMenu({}, {}, true, {1000, 20}, {150, 200}, kWorkArea), (Point{850, 20}));
    EXPECT_EQ(PlaceHotspotMenu({}, {}, true, {10, 700}, {150, 200}, kWorkArea), (Point{10, 500}));
    EXPECT_EQ(PlaceHotspotMenu({}, {}, true, {874, 538}, {150, 200}, kWorkArea), (Point{874, 538}));
    EXPECT_EQ(PlaceHotspotMenu({}, {}, true, {875, 539}, {150, 200}, kWorkArea), (Point{725, 339}));
    // Too tall to open above the cursor either: kept on the screen.
    EXPECT_EQ(PlaceHotspotMenu({}, {}, true, {10, 100}, {150, 700}, kWorkArea), (Point{10, 0}));
}

TEST(PlaceSubMenu, TitleBarLevelWithTheButton) {
    Placement placement =
        PlaceSubMenu(VerticalParent({100, 100, 250, 400}, 160), kSubMenu, kAlignTitleWithButton, 0, kWorkArea);
    EXPECT_EQ(placement.topLeft, (Point{250, 160}));
    EXPECT_FALSE(placement.towardsStart);
}

TEST(PlaceSubMenu, FirstButtonLevelWithTheButton) {
    Placement placement =
        PlaceSubMenu(VerticalParent({100, 100, 250, 400}, 160), kSubMenu, kAlignFirstButtonWithButton, 0, kWorkArea);
    EXPECT_EQ(placement.topLeft, (Point{250, 138}));
}

TEST(PlaceSubMenu, MenusAlignedByTheirTitleBars) {
    Placement placement =
        PlaceSubMenu(VerticalParent({100, 100, 250, 400}, 160), kSubMenu, kAlignByTitlebar, 0, kWorkArea);
    EXPECT_EQ(placement.topLeft, (Point{250, 100}));
}

TEST(PlaceSubMenu, OtherAlignValuesAlignTheTitleBar) {
    Placement placement = PlaceSubMenu(VerticalParent({100, 100, 250, 400}, 160), kSubMenu, 7, 0, kWorkArea);
    EXPECT_EQ(placement.topLeft, (Point{250, 160}));
}

TEST(PlaceSubMenu, OverlapCoversTheParent) {
    Placement placement =
        PlaceSubMenu(VerticalParent({100, 100, 250, 400}, 160), kSubMenu, kAlignTitleWithButton, 10, kWorkArea);
    EXPECT_EQ(placement.topLeft, (Point{240, 160}));
}

TEST(PlaceSubMenu, FlipsToTheLeftAtTheScreensRightEdge) {
    // 874 + 150 = 1024 still fits on the right.
    EXPECT_EQ(PlaceSubMenu(VerticalParent({774, 100, 874, 400}, 160), kSubMenu, 0, 0, kWorkArea).topLeft,
              (Point{874, 160}));
    Placement flipped = PlaceSubMenu(VerticalParent({775, 100, 875, 400}, 160), kSubMenu, 0, 0, kWorkArea);
    EXPECT_EQ(flipped.topLeft, (Point{625, 160}));
    EXPECT_TRUE(flipped.towardsStart);
    // Overlapping, the sub-menu needs 10 pixels less room on the right, and flips further in.
    EXPECT_EQ(PlaceSubMenu(VerticalParent({775, 100, 875, 400}, 160), kSubMenu, 0, 10, kWorkArea).topLeft,
              (Point{865, 160}));
    EXPECT_EQ(PlaceSubMenu(VerticalParent({785, 100, 885, 400}, 160), kSubMenu, 0, 10, kWorkArea).topLeft,
              (Point{645, 160}));
}

TEST(PlaceSubMenu, CascadeThatTurnedLeftKeepsGoingLeft) {
    Placement placement = PlaceSubMenu(VerticalParent({400, 100, 550, 400}, 160, true), kSubMenu, 0, 0, kWorkArea);
    EXPECT_EQ(placement.topLeft, (Point{250, 160}));
    EXPECT_TRUE(placement.towardsStart);
    // Until the left edge: then it turns right again.
    Placement back = PlaceSubMenu(VerticalParent({149, 100, 299, 400}, 160, true), kSubMenu, 0, 0, kWorkArea);
    EXPECT_EQ(back.topLeft, (Point{299, 160}));
    EXPECT_FALSE(back.towardsStart);
    EXPECT_EQ(PlaceSubMenu(VerticalParent({150, 100, 299, 400}, 160, true), kSubMenu, 0, 0, kWorkArea).topLeft,
              (Point{0, 160}));
}

TEST(PlaceSubMenu, NoRoomOnEitherSideTakesTheRoomierOneAndStaysOnTheScreen) {
    Rect narrow{0, 0, 300, 738};
    Placement left = PlaceSubMenu(VerticalParent({120, 100, 220, 400}, 160), kSubMenu, 0, 0, narrow);
    EXPECT_EQ(left.topLeft, (Point{0, 160}));
    EXPECT_TRUE(left.towardsStart);
    Placement right = PlaceSubMenu(VerticalParent({80, 100, 180, 400}, 160), kSubMenu, 0, 0, narrow);
    EXPECT_EQ(right.topLeft, (Point{150, 160}));
    EXPECT_FALSE(right.towardsStart);
    Placement tie = PlaceSubMenu(VerticalParent({100, 100, 200, 400}, 160), kSubMenu, 0, 0, narrow);
    EXPECT_EQ(tie.topLeft, (Point{150, 160}));
    EXPECT_FALSE(tie.towardsStart);
}

TEST(PlaceSubMenu, IsMovedUpFromTheBottomOfTheScreen) {
    EXPECT_EQ(PlaceSubMenu(VerticalParent({100, 300, 250, 738}, 618), kSubMenu, 0, 0, kWorkArea).topLeft,
              (Point{250, 618}));
    EXPECT_EQ(PlaceSubMenu(VerticalParent({100, 300, 250, 738}, 700), kSubMenu, 0, 0, kWorkArea).topLeft,
              (Point{250, 618}));
    EXPECT_EQ(PlaceSubMenu(VerticalParent({100, 0, 250, 738}, 10), kSubMenu, kAlignFirstButtonWithButton, 0, kWorkArea)
                  .topLeft,
              (Point{250, 0}));
}

TEST(PlaceSubMenu, HorizontalParentDropsItsSubMenusBelow) {
    SubMenuAnchor bar{{100, 0, 600, 22}, true, 250, false};
    SubMenuFrame menu{{150, 200}, 0, 0};
    Placement placement = PlaceSubMenu(bar, menu, kAlignTitleWithButton, 0, kWorkArea);
    EXPECT_EQ(placement.topLeft, (Point{250, 22}));
    EXPECT_EQ(PlaceSubMenu(bar, menu, kAlignByTitlebar, 0, kWorkArea).topLeft, (Point{100, 22}));
    EXPECT_EQ(PlaceSubMenu(bar, menu, kAlignTitleWithButton, 10, kWorkArea).topLeft, (Point{250, 12}));
    bar.buttonStart = 950;
    EXPECT_EQ(PlaceSubMenu(bar, menu, kAlignTitleWithButton, 0, kWorkArea).topLeft, (Point{874, 22}));
}

TEST(PlaceSubMenu, HorizontalParentAtTheBottomOpensUpwards) {
    SubMenuAnchor bar{{100, 716, 600, 738}, true, 250, false};
    Placement placement = PlaceSubMenu(bar, {{150, 200}, 0, 0}, 0, 0, kWorkArea);
    EXPECT_EQ(placement.topLeft, (Point{250, 516}));
    EXPECT_TRUE(placement.towardsStart);
}

TEST(SubMenuFrameOf, MeasuresTitleAndFirstButtonInTheWindow) {
    MenuLayout layout;
    layout.window = {152, 100};
    layout.titlePlace = TitlePlace::Top;
    layout.title = {1, 1, 151, 23};
    layout.surface = {1, 23, 151, 83};
    layout.buttons.buttonHeight = 20;
    layout.buttons.buttonWidth = 150;
    layout.buttons.view = PlanScroll(3, 3, 9999, false, 0);
    EXPECT_EQ(SubMenuFrameOf(layout, false), (SubMenuFrame{{152, 100}, 1, 23}));
    EXPECT_EQ(SubMenuFrameOf(layout, true), (SubMenuFrame{{152, 100}, 1, 1}));
    layout.titlePlace = TitlePlace::None;
    EXPECT_EQ(SubMenuFrameOf(layout, false).titleStart, 0);
}

TEST(SubMenuFrameOf, HorizontalSubMenuStartsItsFirstButtonOneColumnIn) {
    MenuLayout layout;
    layout.titlePlace = TitlePlace::None;
    layout.surface = {0, 0, 101, 20};
    layout.buttons.horizontal = true;
    layout.buttons.buttonHeight = 20;
    layout.buttons.widths = {100};
    layout.buttons.view = PlanScroll(1, 1, 9999, false, 0);
    EXPECT_EQ(SubMenuFrameOf(layout, true).firstButtonStart, 1);
}
