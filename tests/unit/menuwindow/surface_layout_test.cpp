#include "menuwindow/layout/surface_layout.h"

#include "print_helpers.h"

#include <gtest/gtest.h>

#include <utility>

using namespace MenuWindow;

namespace {

SurfaceLayout Vertical(int count, int fitting, int first = 0, bool twin = false) {
    SurfaceLayout surface;
    surface.buttonHeight = 20;
    surface.buttonWidth = 150;
    surface.view = PlanScroll(count, fitting, 9999, twin, first);
    return surface;
}

SurfaceLayout Horizontal(std::vector<int> widths) {
    SurfaceLayout surface;
    surface.horizontal = true;
    surface.buttonHeight = 20;
    int count = static_cast<int>(widths.size());
    surface.widths = std::move(widths);
    surface.view = PlanScroll(count, count, 9999, false, 0);
    return surface;
}

Hit ItemHit(int item) {
    return {Hit::Kind::Item, item};
}

} // namespace

TEST(SurfaceLayout, VerticalButtonsStandInRowsOfTheButtonHeight) {
    SurfaceLayout surface = Vertical(5, 10);
    EXPECT_EQ(SurfaceSize(surface), (Size{150, 100}));
    EXPECT_EQ(ButtonRect(surface, 3), (Rect{0, 40, 150, 60}));
    const std::pair<Point, Hit> hits[] = {{{10, 0}, ItemHit(1)},  {{10, 19}, ItemHit(1)}, {{10, 20}, ItemHit(2)},
                                          {{10, 99}, ItemHit(5)}, {{150, 0}, Hit{}},      {{0, 100}, Hit{}},
                                          {{-1, 5}, Hit{}}};
    for (auto [point, hit] : hits)
        EXPECT_EQ(HitTest(surface, point), hit) << point.x << "," << point.y;
    // Scrolled, the first visible offset is added.
    EXPECT_EQ(HitTest(Vertical(20, 8, 5), {10, 25}), ItemHit(7));
}

TEST(SurfaceLayout, ScrollButtonsTakeTheSlotsAtTheCutEnds) {
    SurfaceLayout surface = Vertical(20, 8, 5);
    EXPECT_EQ(HitTest(surface, {10, 19}).kind, Hit::Kind::ScrollTowardsStart);
    EXPECT_EQ(HitTest(surface, {10, 140}).kind, Hit::Kind::ScrollTowardsEnd);
    EXPECT_EQ(HitTest(surface, {10, 139}), ItemHit(12));
}

TEST(SurfaceLayout, NoDrawnButtonLiesBehindAScrollButton) {
    for (int first : {0, 3, 12}) {
        for (bool twin : {false, true}) {
            SurfaceLayout surface = Vertical(20, 8, first, twin);
            for (const ScrollButton& scroll : ScrollButtons(surface)) {
                for (int position = 1; position <= surface.view.slots; ++position) {
                    if (!IsDrawn(surface.view, position))
                        continue;
                    Rect button = ButtonRect(surface, position);
                    bool overlaps = button.left < scroll.rect.right && scroll.rect.left < button.right &&
                                    button.top < scroll.rect.bottom && scroll.rect.top < button.bottom;
                    EXPECT_FALSE(overlaps) << "first " << first << " position " << position;
                }
            }
        }
    }
}

TEST(SurfaceLayout, TwinScrollButtonsSplitTheLastSlot) {
    SurfaceLayout surface = Vertical(20, 8, 0, true);
    std::vector<ScrollButton> buttons = ScrollButtons(surface);
    ASSERT_EQ(buttons.size(), 2u);
    EXPECT_EQ(buttons[0], (ScrollButton{{0, 140, 75, 160}, false}));
    EXPECT_EQ(buttons[1], (ScrollButton{{75, 140, 150, 160}, true}));
    EXPECT_EQ(HitTest(surface, {74, 150}).kind, Hit::Kind::ScrollTowardsStart);
    EXPECT_EQ(HitTest(surface, {75, 150}).kind, Hit::Kind::ScrollTowardsEnd);
    EXPECT_TRUE(ScrollButtons(Vertical(5, 10)).empty()) << "a menu that fits has none";
}

TEST(SurfaceLayout, HorizontalButtonsStandInColumnsFromOneEachOfItsOwnWidth) {
    SurfaceLayout own = Horizontal({50, 70, 30});
    EXPECT_EQ(SurfaceSize(own), (Size{151, 20}));
    EXPECT_EQ(ButtonRect(own, 2), (Rect{51, 0, 121, 20}));
    const std::pair<int, Hit> hits[] = {
        {0, ItemHit(1)}, {49, ItemHit(1)}, {50, ItemHit(2)}, {120, ItemHit(3)}, {150, Hit{}}};
    for (auto [x, hit] : hits)
        EXPECT_EQ(HitTest(own, {x, 5}), hit) << x;
    EXPECT_EQ(HitTest(own, {10, 20}), Hit{});
    EXPECT_EQ(SurfaceSize(Horizontal({})), (Size{0, 20})) << "an empty row has no width";
}

TEST(SurfaceLayout, ButtonScreenStartIsWhereTheButtonBegins) {
    EXPECT_EQ(ButtonScreenStart(Vertical(5, 10), 300, 3), 340);
    EXPECT_EQ(ButtonScreenStart(Horizontal({50, 70, 30}), 100, 1), 100);
    EXPECT_EQ(ButtonScreenStart(Horizontal({50, 70, 30}), 100, 3), 220);
}
