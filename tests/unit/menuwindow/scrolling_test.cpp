#include "menuwindow/scrolling.h"

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

TEST(PlanScroll, MenuThatFitsShowsEveryItemWithoutScrollButtons) {
    ScrollView view = PlanScroll(5, 10, 9999, false, 3);
    EXPECT_EQ(view.slots, 5);
    EXPECT_EQ(view.first, 0);
    EXPECT_FALSE(IsCut(view));
    EXPECT_EQ(VisibleCount(view), 5);
    EXPECT_EQ(DrawnItems(view), Range(1, 5));
    for (int position = 1; position <= 5; ++position)
        EXPECT_EQ(ScrollSlotAt(view, position), ScrollSlot::None);
}

TEST(PlanScroll, ExactFitIsNotCut) {
    ScrollView view = PlanScroll(8, 8, 9999, false, 0);
    EXPECT_FALSE(IsCut(view));
    EXPECT_EQ(DrawnItems(view), Range(1, 8));
}

TEST(PlanScroll, CutMenuShowsAScrollButtonAtTheBottomWithNoButtonBehindIt) {
    ScrollView view = PlanScroll(20, 8, 9999, false, 0);
    EXPECT_EQ(view.slots, 8);
    EXPECT_TRUE(IsCut(view));
    EXPECT_EQ(ScrollSlotAt(view, 1), ScrollSlot::None);
    EXPECT_EQ(ScrollSlotAt(view, 8), ScrollSlot::TowardsEnd);
    EXPECT_FALSE(IsDrawn(view, 8));
    EXPECT_EQ(DrawnItems(view), Range(1, 7));
}

TEST(PlanScroll, ScrolledIntoTheMiddleShowsBothScrollButtons) {
    ScrollView view = PlanScroll(20, 8, 9999, false, 5);
    EXPECT_EQ(ScrollSlotAt(view, 1), ScrollSlot::TowardsStart);
    EXPECT_EQ(ScrollSlotAt(view, 8), ScrollSlot::TowardsEnd);
    EXPECT_EQ(DrawnItems(view), Range(7, 12));
}

TEST(PlanScroll, ScrolledToTheEndShowsTheLastItemAndOnlyTheTopScrollButton) {
    ScrollView view = PlanScroll(20, 8, 9999, false, 12);
    EXPECT_EQ(LargestFirst(view), 12);
    EXPECT_TRUE(HiddenBefore(view));
    EXPECT_FALSE(HiddenAfter(view));
    EXPECT_EQ(ScrollSlotAt(view, 1), ScrollSlot::TowardsStart);
    EXPECT_EQ(ScrollSlotAt(view, 8), ScrollSlot::None);
    EXPECT_EQ(DrawnItems(view), Range(14, 20));
    EXPECT_EQ(PlanScroll(20, 8, 9999, false, 50).first, 12);
    EXPECT_EQ(PlanScroll(20, 8, 9999, false, -4).first, 0);
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
}

TEST(PlanScroll, TwinButtonsDoNotShowOnAMenuThatFits) {
    ScrollView view = PlanScroll(6, 8, 9999, true, 0);
    EXPECT_EQ(ScrollSlotAt(view, 6), ScrollSlot::None);
    EXPECT_EQ(DrawnItems(view), Range(1, 6));
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
    ScrollView middle = PlanScroll(10, 1, 9999, false, 4);
    EXPECT_EQ(DrawnItems(middle), std::vector<int>{6});
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

TEST(FirstToShow, LeavesADrawnItemWhereItIs) {
    ScrollView view = PlanScroll(20, 8, 9999, false, 5);
    EXPECT_EQ(FirstToShow(view, 7), 5);
    EXPECT_EQ(FirstToShow(view, 12), 5);
}

TEST(FirstToShow, ScrollsAnItemBehindTheBottomScrollButtonUpByOne) {
    ScrollView view = PlanScroll(20, 8, 9999, false, 0);
    EXPECT_EQ(FirstToShow(view, 8), 1);
    EXPECT_EQ(FirstToShow(view, 20), 12);
}

TEST(FirstToShow, ScrollsBackForAnItemAboveTheRun) {
    ScrollView view = PlanScroll(20, 8, 9999, false, 5);
    EXPECT_EQ(FirstToShow(view, 6), 4); // behind the top scroll button
    EXPECT_EQ(FirstToShow(view, 3), 1);
    EXPECT_EQ(FirstToShow(view, 2), 0);
    EXPECT_EQ(FirstToShow(view, 1), 0);
}

TEST(FirstToShow, TwinButtonsLeaveTheLastSlotToThemselves) {
    ScrollView view = PlanScroll(20, 8, 9999, true, 0);
    EXPECT_EQ(FirstToShow(view, 7), 0);
    EXPECT_EQ(FirstToShow(view, 8), 1);
    EXPECT_EQ(FirstToShow(view, 20), 13);
}

TEST(FirstToShow, ItemsThatDoNotExistChangeNothing) {
    ScrollView view = PlanScroll(20, 8, 9999, false, 5);
    EXPECT_EQ(FirstToShow(view, 0), 5);
    EXPECT_EQ(FirstToShow(view, 21), 5);
}
