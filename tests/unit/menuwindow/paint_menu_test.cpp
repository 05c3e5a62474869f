// What the draw lists hold beyond what the Wine paint tests and the end-to-end tests show:
// the frame lines, the frame carried into the body, a title over the frame, and the few
// button rules a picture would not make plain.
#include "menuwindow/paint/paint_menu.h"

#include "menuwindow/paint/paint_button.h"
#include "menuwindow/paint/paint_title.h"
#include "print_helpers.h"
#include "scene_support.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

TEST(FrameOps, NoneOrOneFlatLineOrTwo3DLines) {
    EXPECT_TRUE(FrameOps(Scene(PlainLook(), Items({"A"}))).empty());
    MenuLook look = PlainLook();
    look.MenuNoFrames = 0;
    look.MenuFrameColor = 0x0000FF;
    look.MenuFrameColor2 = 0x00FF00;
    look.MenuFrameColor3 = 0xFF0000;
    look.MenuFrameColor4 = 0x123456;
    Size window = Scene(look, Items({"A"})).layout.window;
    EXPECT_EQ(FilledAt(FrameOps(Scene(look, Items({"A"}))), {5, window.height - 1}), 0x0000FF)
        << "flat: one colour all round";

    look.Menu3DFrame = true;
    look.Menu3DFrame2 = true;
    MenuScene twoLines = Scene(look, Items({"A"}));
    window = twoLines.layout.window;
    DrawList both = FrameOps(twoLines);
    EXPECT_EQ(FilledAt(both, {5, 0}), 0x0000FF);
    EXPECT_EQ(FilledAt(both, {5, window.height - 1}), 0x00FF00);
    EXPECT_EQ(FilledAt(both, {5, 1}), 0xFF0000);
    EXPECT_EQ(FilledAt(both, {5, window.height - 2}), 0x123456);
    EXPECT_EQ(FilledAt(both, {5, 2}), std::nullopt);
}

TEST(SurfaceOps, FrameToBodyRunsTheInnerFrameLineOverPlainButtons) {
    MenuLook look = PlainLook();
    look.MenuNoFrames = 0;
    look.Menu3DFrame = true;
    look.Menu3DFrame2 = true;
    look.MenuFrameColor3 = 0xFFFFFF;
    look.MenuFrameColor4 = 0x000000;
    look.MenuFrameToBody = true;
    MenuScene scene = Scene(look, Items({"Editor", "Calculator", "Paint", "Mail"}));
    const Rect& body = scene.layout.surface;
    DrawList ops = SurfaceOps(scene, {}, FakeMeasure{});
    std::vector<ColourBand> down =
        GradientBands({body.Width(), body.Height()}, {0xFFFFFF, 0x000000, kGradientTopToBottom, false});
    EXPECT_EQ(FilledAt(ops, {body.left + 5, body.top}), down.front().colour);
    EXPECT_EQ(FilledAt(ops, {body.left + 5, body.bottom - 1}), down.back().colour);

    Point inThird{body.left + 5, SlotInWindow(scene, 3).top + 2};
    DrawList third = ButtonOps(scene, 3, ButtonState::Normal, FakeMeasure{}, false);
    EXPECT_EQ(FilledAt(third, inThird), FilledAt(ops, inThird)) << "a repainted button shows its stretch of the run";
    DrawList selected = ButtonOps(scene, 3, ButtonState::Selected, FakeMeasure{}, false);
    EXPECT_EQ(FilledAt(selected, inThird), kBar) << "the selection bar keeps its own colour";

    MenuScene across = Scene(look, Items({"Editor", "Calculator"}), "Tools", {0, 0, 1024, 768}, true);
    EXPECT_EQ(LookIn(across, Part::Button).gradient.type, kGradientLeftToRight);

    look.ButtonGradient = true;
    EXPECT_EQ(LookIn(Scene(look, Items({"A"})), Part::Button).gradient.from, kButton) << "own gradient kept";
    look.ButtonGradient = false;
    look.MenuNoFrames = 1;
    EXPECT_EQ(FilledAt(SurfaceOps(Scene(look, Items({"A"})), {}, FakeMeasure{}), {body.left + 5, body.top}), kButton)
        << "no frame, nothing to carry";
}

TEST(MenuOps, ATitleOverTheFrameCoversIt) {
    MenuLook look = PlainLook();
    look.MenuNoFrames = 0;
    look.TitleOverlap = true;
    MenuScene scene = Scene(look, Items({"Editor"}));
    DrawList ops = MenuOps(scene, {}, FakeMeasure{});
    EXPECT_EQ(FilledAt(ops, {3, 0}), kTitle);
    EXPECT_EQ(FilledAt(ops, {0, scene.layout.window.height - 1}), look.MenuFrameColor);
}

TEST(MenuOps, AnEmptyMenuIsItsTitleBarAlone) {
    MenuScene scene = Scene(PlainLook(), DisplayList{}, "Nothing here");
    EXPECT_EQ(scene.layout.window.height, 24);
    std::vector<TextOp> texts = OpsOf<TextOp>(MenuOps(scene, {}, FakeMeasure{}));
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0].text, "Nothing here");
}

TEST(ButtonOps, ALabelWiderThanTheButtonEndsInDots) {
    MenuLook look = PlainLook();
    look.ButtonMaxWidth = 100;
    MenuScene scene = Scene(look, Items({"A label much wider than the menu"}), "T");
    EXPECT_EQ(OpsOf<TextOp>(ButtonOps(scene, 1, ButtonState::Normal, FakeMeasure{}))[0].text, "A label muc...")
        << "84 pixels of room: 14 characters";
}

TEST(ButtonOps, AHorizontalMenusSubMenuArrowPointsDown) {
    DisplayList list = Items({"Tools"});
    list.entries[0].TYPE = kItemFolderPath;
    MenuLook look = PlainLook();
    look.Menu3DArrows = 1;
    MenuScene scene = Scene(look, list, "Tools", {0, 0, 1024, 768}, true);
    std::vector<TriangleOp> arrows = OpsOf<TriangleOp>(ButtonOps(scene, 1, ButtonState::Normal, FakeMeasure{}));
    ASSERT_EQ(arrows.size(), 1u);
    EXPECT_GT(arrows[0].points[1].y, arrows[0].points[0].y);
}

TEST(ButtonOps, NothingForAnItemThatIsNotDrawn) {
    MenuScene scene = Scene(PlainLook(), Items({"A", "B"}));
    EXPECT_TRUE(ButtonOps(scene, 3, ButtonState::Normal, FakeMeasure{}).empty());
    EXPECT_TRUE(ButtonOps(scene, 0, ButtonState::Normal, FakeMeasure{}).empty());
}
