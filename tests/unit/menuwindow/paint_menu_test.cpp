#include "menuwindow/paint_menu.h"

#include "menuwindow/paint_button.h"
#include "menuwindow/paint_title.h"
#include "print_helpers.h"
#include "scene_support.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

TEST(FrameOps, NoneWithoutAFrame) {
    EXPECT_TRUE(FrameOps(Scene(PlainLook(), Items({"A"}))).empty());
}

TEST(FrameOps, OneFlatLineOrTwo3DLines) {
    MenuLook look = PlainLook();
    look.MenuNoFrames = 0;
    look.MenuFrameColor = 0x0000FF;
    look.MenuFrameColor2 = 0x00FF00;
    look.MenuFrameColor3 = 0xFF0000;
    look.MenuFrameColor4 = 0x123456;
    MenuScene flat = Scene(look, Items({"A"}));
    Size window = flat.layout.window;
    DrawList ops = FrameOps(flat);
    EXPECT_EQ(FilledAt(ops, {5, 0}), 0x0000FF);
    EXPECT_EQ(FilledAt(ops, {5, window.height - 1}), 0x0000FF) << "flat: one colour all round";

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

TEST(SurfaceOps, TheBodyThenEveryDrawnItemInItsStateThenTheScrollButtons) {
    MenuScene scene = Scene(PlainLook(), Items({"Editor", "Calculator", "Paint"}));
    DrawList ops = SurfaceOps(scene, {2, false}, FakeMeasure{});
    std::vector<TextOp> texts = OpsOf<TextOp>(ops);
    ASSERT_EQ(texts.size(), 3u);
    EXPECT_EQ(texts[1].text, "Calculator");
    EXPECT_EQ(texts[1].colour, kBarText);
    EXPECT_EQ(texts[0].colour, kButtonText);
    EXPECT_EQ(FilledAt(ops, {scene.layout.window.width - 2, 24 + 25}), kBar);
    EXPECT_EQ(FilledAt(ops, {scene.layout.window.width - 2, 24 + 5}), kButton);
    EXPECT_EQ(std::get<FillOp>(ops.front()).rect, scene.layout.surface) << "the body first";
}

TEST(SurfaceOps, AGradientOverTheMenuIsPaintedOnceNotAgainForEveryButton) {
    MenuLook look = PlainLook();
    look.ButtonGradient = true;
    look.ButtonColor2 = 0x000000;
    look.ButtonGradientType = kGradientLeftToRight;
    look.MenuIsGradientTarget = true;
    MenuScene scene = Scene(look, Items({"Editor", "Calculator", "Paint", "Mail"}));
    DrawList ops = SurfaceOps(scene, {}, FakeMeasure{});
    std::vector<ColourBand> bands =
        GradientBands({scene.layout.surface.Width(), scene.layout.surface.Height()}, {kButton, 0x000000, 0, false});
    EXPECT_EQ(OpsOf<FillOp>(ops).size(), bands.size()) << "the body's bands alone";
    EXPECT_EQ(FilledAt(ops, {scene.layout.surface.right - 1, scene.layout.surface.bottom - 1}), bands.back().colour);
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

TEST(MenuOps, FrameTitleAndSurfaceInThatOrder) {
    MenuLook look = PlainLook();
    look.MenuNoFrames = 0;
    look.TitleOverlap = true;
    MenuScene scene = Scene(look, Items({"Editor"}));
    DrawList ops = MenuOps(scene, {}, FakeMeasure{});
    DrawList frame = FrameOps(scene);
    DrawList title = TitleOps(scene, FakeMeasure{});
    DrawList surface = SurfaceOps(scene, {}, FakeMeasure{});
    ASSERT_EQ(ops.size(), frame.size() + title.size() + surface.size());
    EXPECT_EQ(DrawList(ops.begin(), ops.begin() + static_cast<std::ptrdiff_t>(frame.size())), frame);
    EXPECT_EQ(FilledAt(ops, {3, 0}), kTitle) << "a title over the frame covers it";
    EXPECT_EQ(FilledAt(ops, {0, scene.layout.window.height - 1}), look.MenuFrameColor);
}

TEST(MenuOps, AnEmptyMenuIsItsTitleBarAlone) {
    MenuScene scene = Scene(PlainLook(), DisplayList{}, "Nothing here");
    EXPECT_EQ(scene.layout.window.height, 24);
    DrawList ops = MenuOps(scene, {}, FakeMeasure{});
    std::vector<TextOp> texts = OpsOf<TextOp>(ops);
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0].text, "Nothing here");
}
