#include "menuwindow/layout/scrolling.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

namespace {

// The items drawn in a view, in slot order.
std::vector<int> DrawnItems(const ScrollView& view) {
    std::vector<int> items;
    for (int position = 1; position <= view.slots; ++position) {
        if (IsDrawn(view, position))
            items.push_back(view.first + position);
    }
    return items;
}

std::vector<int> Range(int from, int to) {
    std::vector<int> items;
    for (int i = from; i <= to; ++i)
        items.push_back(i);
    return items;
}

} // namespace

TEST(PlanScroll, ScrollButtonsTakeTheSlotsAtTheCutEndsWithNoItemBehindThem) {
    const struct {
        int count, fitting, first;
        int slots;
        bool cut;
        ScrollSlot top, bottom;
        std::vector<int> drawn;
    } cases[] = {
        {5, 10, 3, 5, false, ScrollSlot::None, ScrollSlot::None, Range(1, 5)},               // fits
        {8, 8, 0, 8, false, ScrollSlot::None, ScrollSlot::None, Range(1, 8)},                // fits exactly
        {20, 8, 0, 8, true, ScrollSlot::None, ScrollSlot::TowardsEnd, Range(1, 7)},          // at the top
        {20, 8, 5, 8, true, ScrollSlot::TowardsStart, ScrollSlot::TowardsEnd, Range(7, 12)}, // in the middle
        {20, 8, 12, 8, true, ScrollSlot::TowardsStart, ScrollSlot::None, Range(14, 20)},     // at the end
        {20, 8, 50, 8, true, ScrollSlot::TowardsStart, ScrollSlot::None, Range(14, 20)},     // past the end
        {20, 8, -4, 8, true, ScrollSlot::None, ScrollSlot::TowardsEnd, Range(1, 7)},         // before the start
    };
    for (const auto& c : cases) {
        ScrollView view = PlanScroll(c.count, c.fitting, 9999, false, c.first);
        SCOPED_TRACE(::testing::Message() << c.count << " items, " << c.fitting << " fit, first " << c.first);
        EXPECT_EQ(view.slots, c.slots);
        EXPECT_EQ(IsCut(view), c.cut);
        EXPECT_EQ(ScrollSlotAt(view, 1), c.top);
        EXPECT_EQ(ScrollSlotAt(view, c.slots), c.bottom);
        EXPECT_EQ(DrawnItems(view), c.drawn);
        EXPECT_EQ(VisibleCount(view), c.slots) << "only a twin scroll slot maps to no item";
        EXPECT_EQ(HiddenBefore(view), c.top != ScrollSlot::None);
        EXPECT_EQ(HiddenAfter(view), c.bottom != ScrollSlot::None);
    }
    EXPECT_EQ(LargestFirst(PlanScroll(20, 8, 9999, false, 0)), 12);
}

TEST(PlanScroll, TwinScrollButtonsShareTheLastSlotWheneverTheMenuIsCut) {
    for (int first : {0, 6, 13}) {
        ScrollView view = PlanScroll(20, 8, 9999, true, first);
        EXPECT_EQ(view.first, first);
        EXPECT_EQ(VisibleCount(view), 7);
        EXPECT_EQ(ScrollSlotAt(view, 8), ScrollSlot::Twin);
        EXPECT_EQ(ScrollSlotAt(view, 1), ScrollSlot::None);
        EXPECT_EQ(DrawnItems(view), Range(first + 1, first + 7));
    }
    EXPECT_EQ(LargestFirst(PlanScroll(20, 8, 9999, true, 0)), 13);
    EXPECT_EQ(ScrollSlotAt(PlanScroll(6, 8, 9999, true, 0), 6), ScrollSlot::None) << "not on a menu that fits";
}

TEST(PlanScroll, MenuMaxNoItemsCutsAMenuThatWouldFitTheScreen) {
    ScrollView view = PlanScroll(20, 30, 6, false, 0);
    EXPECT_EQ(view.slots, 6);
    EXPECT_TRUE(IsCut(view));
    EXPECT_EQ(PlanScroll(6, 30, 6, false, 0).slots, 6);
    EXPECT_FALSE(IsCut(PlanScroll(6, 30, 6, false, 0)));
}

TEST(PlanScroll, CutMenuKeepsRoomForAnItemBetweenItsScrollButtons) {
    EXPECT_EQ(PlanScroll(10, 1, 9999, false, 0).slots, kFewestSlotsCut);
    EXPECT_EQ(PlanScroll(10, 0, 9999, true, 0).slots, kFewestSlotsCutTwin);
    EXPECT_EQ(PlanScroll(10, 8, 0, false, 0).slots, kFewestSlotsCut); // MenuMaxNoItems 0 counts as 1
    // Too few items to need scrolling after all: all shown, off the screen.
    EXPECT_FALSE(IsCut(PlanScroll(2, 1, 9999, false, 0)));
    EXPECT_EQ(PlanScroll(2, 1, 9999, false, 0).slots, 2);
}

TEST(PlanScroll, EmptyMenuHasNoSlots) {
    ScrollView view = PlanScroll(0, 10, 9999, true, 0);
    EXPECT_EQ(view.slots, 0);
    EXPECT_FALSE(IsCut(view));
    EXPECT_FALSE(IsDrawn(view, 1));
}

TEST(PlanScroll, EveryItemCanBeScrolledIntoView) {
    for (bool twin : {false, true}) {
        ScrollView view = PlanScroll(15, 5, 9999, twin, 0);
        std::vector<bool> seen(16, false);
        for (int first = 0; first <= LargestFirst(view); ++first) {
            for (int item : DrawnItems(WithFirst(view, first)))
                seen[static_cast<std::size_t>(item)] = true;
        }
        for (int item = 1; item <= 15; ++item)
            EXPECT_TRUE(seen[static_cast<std::size_t>(item)]) << item << (twin ? " twin" : "");
    }
}

TEST(FirstToShow, ScrollsJustEnoughToBringAnItemOutFromBehindTheScrollButtons) {
    const struct {
        bool twin;
        int first, item, expected;
    } cases[] = {
        {false, 5, 12, 5},                     // drawn: left where it is
        {false, 0, 8, 1},  {false, 0, 20, 12}, // behind the bottom scroll button or below it
        {false, 5, 6, 4},  {false, 5, 2, 0},   // behind the top scroll button; the first items go to the top
        {true, 0, 8, 1},                       // twin buttons keep the last slot to themselves
        {false, 5, 21, 5},                     // an item that does not exist changes nothing
    };
    for (const auto& c : cases)
        EXPECT_EQ(FirstToShow(PlanScroll(20, 8, 9999, c.twin, c.first), c.item), c.expected)
            << (c.twin ? "twin, " : "") << "first " << c.first << ", item " << c.item;
}
