#include "menuwindow/interaction/sub_menu_aim.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

TEST(SubMenuAim, TheNearSideFacesTheParentWhicheverWayTheSubMenuOpened) {
    const Rect subMenu{200, 50, 300, 150};
    struct Case {
        bool parentHorizontal;
        bool towardsStart;
        Edge edge;
    } cases[] = {
        {false, false, {{200, 50}, {200, 149}}}, // to the right: its left side
        {false, true, {{299, 50}, {299, 149}}},  // to the left: its right side
        {true, false, {{200, 50}, {299, 50}}},   // below: its top
        {true, true, {{200, 149}, {299, 149}}},  // above: its bottom
    };
    for (const Case& c : cases)
        EXPECT_EQ(NearEdge(subMenu, c.parentHorizontal, c.towardsStart), c.edge)
            << c.parentHorizontal << c.towardsStart;
}

TEST(SubMenuAim, TheTriangleHoldsItsInsideAndItsBorder) {
    const Point start{10, 10}, top{100, 0}, bottom{100, 40};
    struct Case {
        Point point;
        bool inside;
    } cases[] = {
        {{50, 20}, true}, {{10, 10}, true},   {{100, 20}, true}, {{55, 5}, true},   {{100, 40}, true},
        {{9, 10}, false}, {{101, 20}, false}, {{50, 4}, false},  {{50, 30}, false},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(InTriangle(c.point, start, top, bottom), c.inside) << c.point.x << "," << c.point.y;
        EXPECT_EQ(InTriangle(c.point, bottom, start, top), c.inside) << "in any order of the corners";
    }
}

TEST(SubMenuAim, TheRestIsTheDropDownDelayButNeverShorterThanAPause) {
    EXPECT_EQ(AimRest(400), 400);
    EXPECT_EQ(AimRest(0), kAimRestAtLeast);
}
