#include "menuwindow/paint_title.h"

#include "print_helpers.h"
#include "scene_support.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

namespace {

std::vector<TextOp> TitleTexts(const MenuScene& scene) {
    return OpsOf<TextOp>(TitleOps(scene, FakeMeasure{}));
}

} // namespace

TEST(TitleOps, ASolidBarInTheTitleColourWithTheNameInTheFontColour) {
    MenuScene scene = Scene(PlainLook(), Items({"Editor", "Calculator"}), "Tools");
    DrawList ops = TitleOps(scene, FakeMeasure{});
    Rect bar = scene.layout.title;
    EXPECT_EQ(FilledAt(ops, {1, 1}), kTitle);
    EXPECT_EQ(FilledAt(ops, {bar.right - 1, bar.bottom - 1}), kTitle);
    std::vector<TextOp> texts = OpsOf<TextOp>(ops);
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0].text, "Tools");
    EXPECT_EQ(texts[0].font, FontRole::Title);
    EXPECT_EQ(texts[0].colour, kTitleText);
    EXPECT_EQ(texts[0].origin, (Point{6, (24 - kTitleLineHeight) / 2})) << "left, after the padding, centred";
}

TEST(TitleOps, AlignmentAlongTheBar) {
    MenuLook look = PlainLook();
    look.ButtonMinWidth = 200;
    MenuScene left = Scene(look, Items({"Editor"}), "Tools");
    ASSERT_EQ(left.layout.title.Width(), 200);
    look.TitleAlignment = 1;
    MenuScene centre = Scene(look, Items({"Editor"}), "Tools");
    look.TitleAlignment = 2;
    MenuScene right = Scene(look, Items({"Editor"}), "Tools");
    int width = 5 * kTitleCharWidth;
    EXPECT_EQ(TitleTexts(left)[0].origin.x, 6);
    EXPECT_EQ(TitleTexts(centre)[0].origin.x, 6 + (188 - width) / 2);
    EXPECT_EQ(TitleTexts(right)[0].origin.x, 194 - width);
}

TEST(TitleOps, ANameLongerThanTheWidestBarEndsInDots) {
    MenuLook look = PlainLook();
    look.ButtonMaxWidth = 100;
    MenuScene scene = Scene(look, Items({"Editor"}), "A rather long menu name");
    ASSERT_EQ(scene.layout.title.Width(), 100);
    std::vector<TextOp> texts = TitleTexts(scene);
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0].text, "A rather...") << "88 pixels of room: 11 characters";
}

TEST(TitleOps, ARaisedEdgeUnlessFlat) {
    MenuLook look = PlainLook();
    look.TitleFlat = false;
    look.Title3DColor1 = 0xEEEEEE;
    look.Title3DColor2 = 0x111111;
    MenuScene scene = Scene(look, Items({"Editor"}), "Tools");
    DrawList ops = TitleOps(scene, FakeMeasure{});
    Rect bar = scene.layout.title;
    EXPECT_EQ(FilledAt(ops, {3, 0}), 0xEEEEEE);
    EXPECT_EQ(FilledAt(ops, {3, bar.bottom - 1}), 0x111111);
    EXPECT_EQ(FilledAt(ops, {3, 3}), kTitle);
    EXPECT_EQ(OpsOf<TextOp>(ops)[0].clip, (Rect{1, 1, bar.right - 1, bar.bottom - 1})) << "text stays off the edge";
}

TEST(TitleOps, AtTheLeftTheNameIsTurnedAndReadsUpwardsFromTheBottom) {
    MenuLook look = PlainLook();
    look.TitlePosition = 2;
    MenuScene scene = Scene(look, Items({"A", "B", "C", "D", "E"}), "Tools");
    Rect bar = scene.layout.title;
    ASSERT_EQ(bar, (Rect{0, 0, 24, 100}));
    std::vector<TextOp> texts = TitleTexts(scene);
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0].font, FontRole::TitleVertical);
    EXPECT_EQ(texts[0].origin, (Point{(24 - kTitleLineHeight) / 2, 100 - 6})) << "left-aligned starts at the bottom";

    look.TitleAlignment = 2;
    MenuScene right = Scene(look, Items({"A", "B", "C", "D", "E"}), "Tools");
    EXPECT_EQ(TitleTexts(right)[0].origin.y, 6 + 5 * kTitleCharWidth) << "right-aligned ends at the top";
}

TEST(TitleOps, NothingWithoutATitleBar) {
    MenuLook look = PlainLook();
    look.HorzButtonsOnly = true;
    MenuScene scene = Scene(look, Items({"Editor"}), "Tools", {0, 0, 1024, 768}, true);
    EXPECT_TRUE(TitleOps(scene, FakeMeasure{}).empty());
}
