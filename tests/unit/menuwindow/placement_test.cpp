#include "menuwindow/layout/placement.h"

#include "print_helpers.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

namespace {

constexpr Rect kWorkArea{0, 0, 1024, 738};
constexpr Size kWindow{150, 200};

// A sub-menu 150 wide and 120 high whose title bar starts at its top and whose first
// button starts 22 pixels down.
constexpr SubMenuFrame kSubMenu{{150, 120}, 0, 22};

} // namespace

TEST(KeepOnScreen, MovesBackFromEveryEdgeAndShowsTheTopLeftOfATooLargeWindow) {
    EXPECT_EQ(KeepOnScreen({874, 538}, kWindow, kWorkArea), (Point{874, 538}));
    EXPECT_EQ(KeepOnScreen({875, 539}, kWindow, kWorkArea), (Point{874, 538}));
    EXPECT_EQ(KeepOnScreen({5, 5}, kWindow, {20, 30, 1024, 738}), (Point{20, 30}));
    EXPECT_EQ(KeepOnScreen({300, 300}, {2000, 1000}, kWorkArea), (Point{0, 0}));
}

TEST(PlaceHotspotMenu, AtItsPositionFromTheOriginOrOnMouseAtTheCursorKeptOnTheScreen) {
    EXPECT_EQ(PlaceHotspotMenu({100, 50}, {200, 100}, false, {500, 500}, kWindow, kWorkArea), (Point{300, 150}));
    EXPECT_EQ(PlaceHotspotMenu({950, 600}, {0, 0}, false, {0, 0}, kWindow, kWorkArea), (Point{874, 538}));
    EXPECT_EQ(PlaceHotspotMenu({100, 50}, {200, 100}, true, {10, 20}, kWindow, kWorkArea), (Point{10, 20}));
    // Without room on the right or below, left of and above the cursor, as popup menus open.
    EXPECT_EQ(PlaceHotspotMenu({}, {}, true, {1000, 20}, kWindow, kWorkArea), (Point{850, 20}));
    EXPECT_EQ(PlaceHotspotMenu({}, {}, true, {875, 539}, kWindow, kWorkArea), (Point{725, 339}));
    // Too tall to open above the cursor either: kept on the screen.
    EXPECT_EQ(PlaceHotspotMenu({}, {}, true, {10, 100}, {150, 700}, kWorkArea), (Point{10, 0}));
}

// A sub-menu of a vertical parent, in a work area 1024 wide and 738 high unless said.
TEST(PlaceSubMenu, BesideAVerticalParent) {
    const struct {
        Rect parent;
        int buttonTop;
        bool parentTowardsStart;
        int align;
        int overlap;
        Placement expected;
        const char* why;
    } cases[] = {
        {{100, 100, 250, 400}, 160, false, kAlignTitleWithButton, 0, {{250, 160}, false}, "title with the button"},
        {{100, 100, 250, 400}, 160, false, kAlignFirstButtonWithButton, 0, {{250, 138}, false}, "first button"},
        {{100, 100, 250, 400}, 160, false, kAlignByTitlebar, 0, {{250, 100}, false}, "title bars in line"},
        {{100, 100, 250, 400}, 160, false, 0, 10, {{240, 160}, false}, "overlapping the parent"},
        {{774, 100, 874, 400}, 160, false, 0, 0, {{874, 160}, false}, "874 + 150 still fits"},
        {{775, 100, 875, 400}, 160, false, 0, 0, {{625, 160}, true}, "flipped at the right edge"},
        {{775, 100, 875, 400}, 160, false, 0, 10, {{865, 160}, false}, "overlapping needs 10 less room"},
        {{400, 100, 550, 400}, 160, true, 0, 0, {{250, 160}, true}, "a cascade turned left keeps going"},
        {{149, 100, 299, 400}, 160, true, 0, 0, {{299, 160}, false}, "until the left edge"},
        {{100, 300, 250, 738}, 700, false, 0, 0, {{250, 618}, false}, "moved up from the bottom"},
        {{100, 0, 250, 738}, 10, false, kAlignFirstButtonWithButton, 0, {{250, 0}, false}, "not above the top"},
    };
    for (const auto& c : cases) {
        SubMenuAnchor anchor{c.parent, false, c.buttonTop, c.parentTowardsStart};
        EXPECT_EQ(PlaceSubMenu(anchor, kSubMenu, c.align, c.overlap, kWorkArea), c.expected) << c.why;
    }
    // No room on either side: the roomier one, kept on the screen; a tie goes right.
    Rect narrow{0, 0, 300, 738};
    EXPECT_EQ(PlaceSubMenu({{120, 100, 220, 400}, false, 160, false}, kSubMenu, 0, 0, narrow),
              (Placement{{0, 160}, true}));
    EXPECT_EQ(PlaceSubMenu({{100, 100, 200, 400}, false, 160, false}, kSubMenu, 0, 0, narrow),
              (Placement{{150, 160}, false}));
}

TEST(PlaceSubMenu, BelowAHorizontalParentOrAboveItAtTheBottom) {
    SubMenuAnchor bar{{100, 0, 600, 22}, true, 250, false};
    SubMenuFrame menu{{150, 200}, 0, 0};
    EXPECT_EQ(PlaceSubMenu(bar, menu, kAlignTitleWithButton, 0, kWorkArea), (Placement{{250, 22}, false}));
    EXPECT_EQ(PlaceSubMenu(bar, menu, kAlignByTitlebar, 0, kWorkArea).topLeft, (Point{100, 22}));
    bar.buttonStart = 950;
    EXPECT_EQ(PlaceSubMenu(bar, menu, kAlignTitleWithButton, 0, kWorkArea).topLeft, (Point{874, 22}));
    SubMenuAnchor bottom{{100, 716, 600, 738}, true, 250, false};
    EXPECT_EQ(PlaceSubMenu(bottom, menu, 0, 0, kWorkArea), (Placement{{250, 516}, true}));
}
