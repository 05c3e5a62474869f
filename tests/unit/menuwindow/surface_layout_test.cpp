#include "menuwindow/surface_layout.h"

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
    EXPECT_EQ(ButtonRect(surface, 1), (Rect{0, 0, 150, 20}));
    EXPECT_EQ(ButtonRect(surface, 3), (Rect{0, 40, 150, 60})); // rows 40 to 59
    EXPECT_EQ(ButtonRect(surface, 5), (Rect{0, 80, 150, 100}));
    // The position is the row divided by the button height; outside the surface, nothing.
    const std::pair<Point, int> positions[] = {{{0, 0}, 1},   {{0, 19}, 1},  {{0, 20}, 2}, {{149, 99}, 5},
                                               {{150, 0}, 0}, {{0, 100}, 0}, {{-1, 5}, 0}, {{5, -1}, 0}};
    for (auto [point, position] : positions)
        EXPECT_EQ(PositionAt(surface, point), position) << point.x << "," << point.y;
    EXPECT_EQ(HitTest(surface, {150, 0}), Hit{});
    EXPECT_EQ(HitTest(surface, {0, 100}), Hit{});
    EXPECT_EQ(HitTest(surface, {10, 0}), ItemHit(1));
    EXPECT_EQ(HitTest(surface, {10, 99}), ItemHit(5));
    // Scrolled, the first visible offset is added.
    EXPECT_EQ(HitTest(Vertical(20, 8, 5), {10, 25}), ItemHit(7));
    EXPECT_EQ(HitTest(Vertical(20, 8, 5), {10, 139}), ItemHit(12));
}

TEST(SurfaceLayout, ScrollButtonsTakeTheSlotsAtTheCutEnds) {
    SurfaceLayout surface = Vertical(20, 8, 5);
    std::vector<ScrollButton> buttons = ScrollButtons(surface);
    ASSERT_EQ(buttons.size(), 2u);
    EXPECT_EQ(buttons[0], (ScrollButton{{0, 0, 150, 20}, false}));
    EXPECT_EQ(buttons[1], (ScrollButton{{0, 140, 150, 160}, true}));
    EXPECT_EQ(HitTest(surface, {10, 0}).kind, Hit::Kind::ScrollTowardsStart);
    EXPECT_EQ(HitTest(surface, {10, 19}).kind, Hit::Kind::ScrollTowardsStart);
    EXPECT_EQ(HitTest(surface, {10, 140}).kind, Hit::Kind::ScrollTowardsEnd);
    EXPECT_EQ(HitTest(surface, {10, 159}).kind, Hit::Kind::ScrollTowardsEnd);
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
    EXPECT_EQ(HitTest(surface, {75, 139}), ItemHit(7));
    EXPECT_TRUE(ScrollButtons(Vertical(5, 10)).empty()) << "a menu that fits has none";
}

TEST(SurfaceLayout, HorizontalButtonsStandInColumnsFromOneEachOfItsOwnWidth) {
    SurfaceLayout even = Horizontal({80, 80, 80, 80});
    EXPECT_EQ(SurfaceSize(even), (Size{321, 20}));
    EXPECT_EQ(ButtonRect(even, 1), (Rect{1, 0, 81, 20}));   // columns 1 to 80
    EXPECT_EQ(ButtonRect(even, 2), (Rect{81, 0, 161, 20})); // columns 81 to 160
    EXPECT_EQ(ButtonRect(even, 4), (Rect{241, 0, 321, 20}));
    const std::pair<Point, int> positions[] = {{{0, 5}, 1},    {{79, 5}, 1},   {{80, 5}, 2},
                                               {{319, 19}, 4}, {{320, 19}, 5}, {{10, 20}, 0}};
    for (auto [point, position] : positions)
        EXPECT_EQ(PositionAt(even, point), position) << point.x << "," << point.y;
    EXPECT_EQ(HitTest(even, {320, 5}), Hit{});

    SurfaceLayout own = Horizontal({50, 70, 30});
    EXPECT_EQ(ButtonRect(own, 1), (Rect{1, 0, 51, 20}));
    EXPECT_EQ(ButtonRect(own, 2), (Rect{51, 0, 121, 20}));
    EXPECT_EQ(ButtonRect(own, 3), (Rect{121, 0, 151, 20}));
    const std::pair<int, Hit> hits[] = {
        {49, ItemHit(1)}, {50, ItemHit(2)}, {119, ItemHit(2)}, {120, ItemHit(3)}, {150, Hit{}}};
    for (auto [x, hit] : hits)
        EXPECT_EQ(HitTest(own, {x, 5}), hit) << x;
    EXPECT_EQ(SurfaceSize(Horizontal({})), (Size{0, 20})) << "an empty row has no width";
}

TEST(SurfaceLayout, ButtonScreenStartIsWhereTheButtonBegins) {
    EXPECT_EQ(ButtonScreenStart(Vertical(5, 10), 300, 1), 300);
    EXPECT_EQ(ButtonScreenStart(Vertical(5, 10), 300, 3), 340);
    EXPECT_EQ(ButtonScreenStart(Horizontal({50, 70, 30}), 100, 1), 100);
    EXPECT_EQ(ButtonScreenStart(Horizontal({50, 70, 30}), 100, 3), 220);
    EXPECT_EQ(ButtonScreenStart(Horizontal({80, 80, 80}), 100, 3), 260);
}
