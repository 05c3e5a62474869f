#include "menuwindow/paint_parts.h"

#include "fake_measure.h"
#include "print_helpers.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

namespace {

PartLook Solid(Colour colour) {
    PartLook look;
    look.background = Background::Solid;
    look.colour = colour;
    return look;
}

PartLook Gradient(Colour from, Colour to, int type) {
    PartLook look = Solid(from);
    look.background = Background::Gradient;
    look.gradient = {from, to, type, false};
    return look;
}

} // namespace

TEST(Intersection, IsTheSharedPartOrEmpty) {
    EXPECT_EQ(Intersection({0, 0, 10, 10}, {5, 5, 20, 20}), (Rect{5, 5, 10, 10}));
    EXPECT_EQ(Intersection({0, 0, 10, 10}, {10, 0, 20, 10}), (Rect{}));
    EXPECT_TRUE(Intersection({0, 0, 10, 10}, {20, 20, 30, 30}).Empty());
}

TEST(AddBackground, AGradientOverALargerAreaShowsOnlyItsShareOfIt) {
    PartLook look = Gradient(0x000000, 0x00FC00, kGradientTopToBottom);
    Rect body{0, 20, 100, 146}; // 126 high: two rows per band
    Rect button{0, 40, 100, 60};
    DrawList list;
    AddBackground(list, look, button, body);
    std::vector<ColourBand> bands = GradientBands({100, 126}, look.gradient);
    std::vector<FillOp> fills = OpsOf<FillOp>(list);
    ASSERT_EQ(fills.size(), 10u) << "rows 20 to 39 of the body: bands 10 to 19";
    EXPECT_EQ(fills.front(), (FillOp{{0, 40, 100, 42}, bands[10].colour}));
    EXPECT_EQ(fills.back(), (FillOp{{0, 58, 100, 60}, bands[19].colour}));
    DrawList empty;
    AddBackground(empty, Solid(1), {5, 5, 5, 10}, {0, 0, 10, 10});
    EXPECT_TRUE(empty.empty()) << "an empty area draws nothing";
}

TEST(AddEdgeLines, LightTopAndLeftDarkBottomAndRightWhichOwnTheirCorners) {
    DrawList list;
    AddEdgeLines(list, {0, 0, 10, 8}, 1, 0xFFFFFF, 0x000000);
    EXPECT_EQ(FilledAt(list, {0, 0}), 0xFFFFFF);
    EXPECT_EQ(FilledAt(list, {5, 0}), 0xFFFFFF);
    EXPECT_EQ(FilledAt(list, {0, 4}), 0xFFFFFF);
    EXPECT_EQ(FilledAt(list, {9, 0}), 0x000000) << "top-right corner";
    EXPECT_EQ(FilledAt(list, {0, 7}), 0x000000) << "bottom-left corner";
    EXPECT_EQ(FilledAt(list, {9, 7}), 0x000000);
    EXPECT_EQ(FilledAt(list, {5, 4}), std::nullopt) << "the inside is left alone";
}

TEST(AddEdgeLines, ThicknessIsKeptWithinTheRectangle) {
    DrawList list;
    AddEdgeLines(list, {0, 0, 10, 10}, 2, 1, 2);
    EXPECT_EQ(FilledAt(list, {1, 5}), 1);
    EXPECT_EQ(FilledAt(list, {2, 5}), std::nullopt);
    EXPECT_EQ(FilledAt(list, {8, 5}), 2);
    DrawList thin;
    AddEdgeLines(thin, {0, 0, 10, 1}, 3, 1, 2);
    for (const FillOp& fill : OpsOf<FillOp>(thin))
        EXPECT_LE(fill.rect.bottom, 1);
}

TEST(AddPartEdge, StylesAndThePressedState) {
    PartLook look;
    look.edgeLight = 0xEEEEEE;
    look.edgeDark = 0x111111;
    Rect r{0, 0, 20, 10};
    auto topLeft = [&](EdgeStyle style, bool pressed) {
        look.edgeStyle = style;
        DrawList list;
        AddPartEdge(list, r, 1, look, pressed);
        return FilledAt(list, {5, 0});
    };
    EXPECT_EQ(topLeft(EdgeStyle::Raised, false), 0xEEEEEE);
    EXPECT_EQ(topLeft(EdgeStyle::Sunken, false), 0x111111);
    EXPECT_EQ(topLeft(EdgeStyle::Raised, true), 0x111111) << "pressed is sunken";
    EXPECT_EQ(topLeft(EdgeStyle::Bump, true), 0x111111);

    look.edgeStyle = EdgeStyle::Bump;
    DrawList bump;
    AddPartEdge(bump, r, 1, look, false);
    EXPECT_EQ(FilledAt(bump, {5, 0}), 0xEEEEEE) << "raised outside";
    EXPECT_EQ(FilledAt(bump, {5, 1}), 0x111111) << "sunken inside";
    EXPECT_EQ(FilledAt(bump, {5, 9}), 0x111111);
    EXPECT_EQ(FilledAt(bump, {5, 8}), 0xEEEEEE);
}

TEST(AddText, PlainSunkenAndRaisedTexts) {
    PartLook look;
    look.edgeLight = 0xEEEEEE;
    look.edgeDark = 0x111111;
    TextOp text{{10, 5}, "Menu", FontRole::Button, 0x0000FF, {0, 0, 100, 20}};

    look.textEffect = TextEffect::Plain;
    DrawList plain;
    AddText(plain, text, look);
    EXPECT_EQ(OpsOf<TextOp>(plain), (std::vector<TextOp>{text}));

    look.textEffect = TextEffect::Sunken;
    DrawList sunken;
    AddText(sunken, text, look);
    std::vector<TextOp> texts = OpsOf<TextOp>(sunken);
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_EQ(texts[0].origin, (Point{11, 6}));
    EXPECT_EQ(texts[0].colour, 0xEEEEEE);
    EXPECT_EQ(texts[1], text) << "the text itself last, over its copy";

    look.textEffect = TextEffect::Raised;
    DrawList raised;
    AddText(raised, text, look);
    EXPECT_EQ(OpsOf<TextOp>(raised)[0].colour, 0x111111);

    DrawList empty;
    AddText(empty, TextOp{}, look);
    EXPECT_TRUE(empty.empty());
}
