#include "menuwindow/paint/paint_parts.h"

#include "fake_measure.h"
#include "print_helpers.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

namespace {

PartLook EdgeColours() {
    PartLook look;
    look.edgeLight = 0xEEEEEE;
    look.edgeDark = 0x111111;
    return look;
}

} // namespace

TEST(AddPartEdge, StylesAndThePressedState) {
    PartLook look = EdgeColours();
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

TEST(AddText, SunkenTextHasALightCopyBelowRightRaisedTextADarkOne) {
    PartLook look = EdgeColours();
    TextOp text{{10, 5}, "Menu", FontRole::Button, 0x0000FF, {0, 0, 100, 20}};
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
    look.textEffect = TextEffect::Plain;
    DrawList plain;
    AddText(plain, text, look);
    EXPECT_EQ(OpsOf<TextOp>(plain), (std::vector<TextOp>{text}));
}
