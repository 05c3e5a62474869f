#include "menuwindow/paint_symbols.h"

#include "fake_measure.h"
#include "print_helpers.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace MenuWindow;

namespace {

PartLook SymbolLook() {
    PartLook look;
    look.colour = 0x808080;
    look.textColour = 0x0000FF;
    look.edgeLight = 0xFFFFFF;
    look.edgeDark = 0x000000;
    return look;
}

Rect Bounds(const std::array<Point, 3>& points) {
    Rect r{points[0].x, points[0].y, points[0].x, points[0].y};
    for (const Point& p : points) {
        r.left = std::min(r.left, p.x);
        r.top = std::min(r.top, p.y);
        r.right = std::max(r.right, p.x);
        r.bottom = std::max(r.bottom, p.y);
    }
    return r;
}

} // namespace

TEST(SymbolStyles, NumbersOfTheSettings) {
    EXPECT_EQ(ArrowStyleOf(0), ArrowStyle::ThreeD);
    EXPECT_EQ(ArrowStyleOf(1), ArrowStyle::Flat);
    EXPECT_EQ(ArrowStyleOf(2), ArrowStyle::Flat) << "bitmap arrows are drawn until pictures are loaded";
    EXPECT_EQ(HotkeySymbolStyleOf(0), HotkeySymbolStyle::Dimple);
    EXPECT_EQ(HotkeySymbolStyleOf(1), HotkeySymbolStyle::Apple);
    EXPECT_EQ(HotkeySymbolStyleOf(2), HotkeySymbolStyle::Dimple);
}

TEST(AddArrow, AFlatArrowIsOneTriangleInTheTextColourCentredInItsBox) {
    DrawList list;
    AddArrow(list, {100, 0, 114, 20}, Direction::Right, ArrowStyle::Flat, SymbolLook(), 96);
    std::vector<TriangleOp> triangles = OpsOf<TriangleOp>(list);
    ASSERT_EQ(triangles.size(), 1u);
    EXPECT_EQ(triangles[0].colour, 0x0000FF);
    // Middle (107, 10); reach 4: base at x = 105 from y 6 to 14, tip at (109, 10).
    EXPECT_EQ(triangles[0].points[0], (Point{105, 6}));
    EXPECT_EQ(triangles[0].points[1], (Point{109, 10}));
    EXPECT_EQ(triangles[0].points[2], (Point{105, 14}));
}

TEST(AddArrow, EachDirectionPointsItsWay) {
    Rect box{0, 0, 20, 20};
    auto tip = [&](Direction direction) {
        DrawList list;
        AddArrow(list, box, direction, ArrowStyle::Flat, SymbolLook(), 96);
        return OpsOf<TriangleOp>(list)[0].points[1];
    };
    EXPECT_EQ(tip(Direction::Right), (Point{12, 10}));
    EXPECT_EQ(tip(Direction::Left), (Point{8, 10}));
    EXPECT_EQ(tip(Direction::Down), (Point{10, 12}));
    EXPECT_EQ(tip(Direction::Up), (Point{10, 8}));
}

TEST(AddArrow, A3DArrowIsDarkOverALightCopyBelowAndRight) {
    DrawList list;
    AddArrow(list, {0, 0, 20, 20}, Direction::Down, ArrowStyle::ThreeD, SymbolLook(), 96);
    std::vector<TriangleOp> triangles = OpsOf<TriangleOp>(list);
    ASSERT_EQ(triangles.size(), 2u);
    EXPECT_EQ(triangles[0].colour, 0xFFFFFF);
    EXPECT_EQ(triangles[1].colour, 0x000000);
    EXPECT_EQ(triangles[0].points[1], (Point{triangles[1].points[1].x + 1, triangles[1].points[1].y + 1}));
}

TEST(AddArrow, GrowsWithTheDpi) {
    DrawList small, large;
    AddArrow(small, {0, 0, 40, 40}, Direction::Right, ArrowStyle::Flat, SymbolLook(), 96);
    AddArrow(large, {0, 0, 40, 40}, Direction::Right, ArrowStyle::Flat, SymbolLook(), 192);
    EXPECT_EQ(Bounds(OpsOf<TriangleOp>(small)[0].points).Height(), 8);
    EXPECT_EQ(Bounds(OpsOf<TriangleOp>(large)[0].points).Height(), 16);
}

TEST(AddArrow, AnEmptyBoxHasNoArrow) {
    DrawList list;
    AddArrow(list, {}, Direction::Right, ArrowStyle::ThreeD, SymbolLook(), 96);
    EXPECT_TRUE(list.empty());
}

TEST(AddHotkeySymbol, TheDimpleIsAHollowWithADarkUpperAndALightLowerRim) {
    DrawList list;
    AddHotkeySymbol(list, {50, 0, 62, 20}, HotkeySymbolStyle::Dimple, SymbolLook(), 96);
    std::vector<EllipseOp> ellipses = OpsOf<EllipseOp>(list);
    ASSERT_EQ(ellipses.size(), 3u);
    EXPECT_EQ(ellipses[0].rect, (Rect{50, 6, 58, 14})) << "8 across, centred, at the box's left";
    EXPECT_EQ(ellipses[0].fill, 0x000000);
    EXPECT_EQ(ellipses[1].rect, (Rect{51, 7, 58, 14}));
    EXPECT_EQ(ellipses[1].fill, 0xFFFFFF);
    EXPECT_EQ(ellipses[2].rect, (Rect{51, 7, 57, 13}));
    EXPECT_EQ(ellipses[2].fill, 0x808080) << "the hollow in the part's colour";
}

TEST(AddHotkeySymbol, TheAppleSymbolIsFourLoopsJoinedByASquareInTheTextColour) {
    DrawList list;
    AddHotkeySymbol(list, {50, 0, 62, 20}, HotkeySymbolStyle::Apple, SymbolLook(), 96);
    std::vector<EllipseOp> loops = OpsOf<EllipseOp>(list);
    std::vector<FillOp> sides = OpsOf<FillOp>(list);
    ASSERT_EQ(loops.size(), 4u);
    ASSERT_EQ(sides.size(), 4u);
    EXPECT_EQ(loops[0].rect, (Rect{50, 5, 54, 9}));
    EXPECT_EQ(loops[3].rect, (Rect{56, 11, 60, 15}));
    for (const EllipseOp& loop : loops) {
        EXPECT_EQ(loop.outline, 0x0000FF);
        EXPECT_FALSE(loop.fill) << "the loops are open";
    }
    for (const FillOp& side : sides)
        EXPECT_EQ(side.colour, 0x0000FF);
    EXPECT_EQ(sides[0].rect, (Rect{52, 8, 58, 9})) << "the top side along the loops' lower edge";
}
