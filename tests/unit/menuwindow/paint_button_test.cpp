#include "menuwindow/paint_button.h"

#include "print_helpers.h"
#include "scene_support.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

namespace {

DrawList Button(const MenuScene& scene, int item, ButtonState state = ButtonState::Normal) {
    return ButtonOps(scene, item, state, FakeMeasure{});
}

// The right end of an item's button, where only its background shows.
Point RightEnd(const MenuScene& scene, int item) {
    Rect button = ItemInWindow(scene, item);
    return {button.right - 2, button.top + button.Height() / 2};
}

} // namespace

TEST(PartForState, TheSelectionBarWhenSelectedOrPressedWithTheBarOn) {
    MenuLook look = PlainLook();
    EXPECT_EQ(PartForState(look, ButtonState::Normal), Part::Button);
    EXPECT_EQ(PartForState(look, ButtonState::Selected), Part::SelectionBar);
    EXPECT_EQ(PartForState(look, ButtonState::Pressed), Part::SelectionBar);
    look.SelBar = false;
    EXPECT_EQ(PartForState(look, ButtonState::Pressed), Part::Button);
}

TEST(ButtonOps, ANormalButtonInTheButtonColourWithItsLabel) {
    MenuScene scene = Scene(PlainLook(), Items({"Editor", "Calculator"}));
    DrawList ops = Button(scene, 2);
    Rect button = ItemInWindow(scene, 2);
    EXPECT_EQ(button, (Rect{0, 44, scene.layout.window.width, 64}));
    EXPECT_EQ(FilledAt(ops, RightEnd(scene, 2)), kButton);
    std::vector<TextOp> texts = OpsOf<TextOp>(ops);
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0].text, "Calculator");
    EXPECT_EQ(texts[0].colour, kButtonText);
    EXPECT_EQ(texts[0].origin, (Point{8, 44 + (20 - kButtonLineHeight) / 2}));
    EXPECT_TRUE(OpsOf<IconOp>(ops).empty()) << "icons are off";
}

TEST(ButtonOps, APressedButtonIsSunkenWithItsContentsMovedByOnePixel) {
    MenuLook look = PlainLook();
    look.Button3DColor1 = 0xEEEEEE;
    look.Button3DColor2 = 0x111111;
    MenuScene scene = Scene(look, Items({"Editor"}));
    Rect button = ItemInWindow(scene, 1);
    DrawList ops = Button(scene, 1, ButtonState::Pressed);
    EXPECT_EQ(FilledAt(ops, {button.left + 5, button.top}), 0x111111) << "dark above even though buttons are flat";
    EXPECT_EQ(FilledAt(ops, {button.left + 5, button.bottom - 1}), 0xEEEEEE);
    Point normal = OpsOf<TextOp>(Button(scene, 1))[0].origin;
    EXPECT_EQ(OpsOf<TextOp>(ops)[0].origin, (Point{normal.x + 1, normal.y + 1}));
}

TEST(ButtonOps, AnEdgedButtonHasItsStylesEdge) {
    MenuLook look = PlainLook();
    look.ButtonFlat = 0;
    look.Button3DStyle = 1; // sunken
    look.Button3DColor1 = 0xEEEEEE;
    look.Button3DColor2 = 0x111111;
    MenuScene scene = Scene(look, Items({"Editor"}));
    Rect button = ItemInWindow(scene, 1);
    DrawList ops = Button(scene, 1);
    EXPECT_EQ(FilledAt(ops, {button.left + 5, button.top}), 0x111111);
    EXPECT_EQ(FilledAt(ops, {button.left + 5, button.bottom - 1}), 0xEEEEEE);

    look.ButtonFlat = 2; // flat except under the selection bar
    MenuScene flat = Scene(look, Items({"Editor"}));
    EXPECT_EQ(FilledAt(Button(flat, 1), {button.left + 5, button.top}), kButton);
    EXPECT_EQ(FilledAt(Button(flat, 1, ButtonState::Selected), {button.left + 5, button.top}), 0x111111);
}

TEST(ButtonOps, AButtonOfAGradientOverTheMenuShowsItsShareOfTheBody) {
    MenuLook look = PlainLook();
    look.ButtonGradient = true;
    look.ButtonColor2 = 0x000000;
    look.ButtonGradientType = kGradientTopToBottom;
    look.MenuIsGradientTarget = true;
    MenuScene scene = Scene(look, Items({"A", "B", "C"}));
    Rect body = scene.layout.surface;
    std::vector<ColourBand> bands = GradientBands({body.Width(), body.Height()}, {kButton, 0x000000, 1, false});
    DrawList ops = Button(scene, 3);
    Rect third = ItemInWindow(scene, 3);
    EXPECT_EQ(FilledAt(ops, {third.right - 1, third.bottom - 1}), bands.back().colour);

    look.MenuIsGradientTarget = false;
    MenuScene own = Scene(look, Items({"A", "B", "C"}));
    std::vector<ColourBand> ownBands = GradientBands({third.Width(), third.Height()}, {kButton, 0x000000, 1, false});
    EXPECT_EQ(FilledAt(Button(own, 3), {third.right - 1, third.bottom - 1}), ownBands.back().colour);
    EXPECT_EQ(FilledAt(Button(own, 3), {third.right - 1, third.top}), ownBands.front().colour);
}

TEST(ButtonOps, IconTextHotKeyAndArrowStandInTheirParts) {
    MenuLook look = PlainLook();
    look.ButtonIcons = true;
    look.ButtonIconSize = 16;
    look.HotkeyStyle = 0;
    look.Menu3DArrows = 1;
    DisplayList list = Items({"Tools", "Editor"});
    list.entries[0].TYPE = kItemMenuName;
    list.entries[1].HOTKEY = "e";
    MenuScene scene = Scene(look, list);
    Rect first = ItemInWindow(scene, 1);
    DrawList tools = Button(scene, 1);
    std::vector<IconOp> icons = OpsOf<IconOp>(tools);
    ASSERT_EQ(icons.size(), 1u);
    EXPECT_EQ(icons[0], (IconOp{{4, first.top + 2, 20, first.top + 18}, 1}));
    EXPECT_EQ(OpsOf<TextOp>(tools)[0].origin.x, 4 + 16 + 8);
    std::vector<TriangleOp> arrows = OpsOf<TriangleOp>(tools);
    ASSERT_EQ(arrows.size(), 1u);
    EXPECT_EQ(arrows[0].colour, kButtonText) << "a flat arrow in the text colour";
    EXPECT_GT(arrows[0].points[1].x, arrows[0].points[0].x) << "pointing right";
    EXPECT_TRUE(OpsOf<EllipseOp>(tools).empty()) << "no hot key";

    DrawList editor = Button(scene, 2);
    EXPECT_EQ(OpsOf<EllipseOp>(editor).size(), 3u) << "the dimple";
    std::vector<TextOp> texts = OpsOf<TextOp>(editor);
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_EQ(texts[1].text, "E");
    EXPECT_TRUE(OpsOf<TriangleOp>(editor).empty());
}

TEST(ButtonOps, AHorizontalMenusSubMenuArrowPointsDown) {
    DisplayList list = Items({"Tools"});
    list.entries[0].TYPE = kItemFolderPath;
    MenuLook look = PlainLook();
    look.Menu3DArrows = 1;
    MenuScene scene = Scene(look, list, "Tools", {0, 0, 1024, 768}, true);
    std::vector<TriangleOp> arrows = OpsOf<TriangleOp>(Button(scene, 1));
    ASSERT_EQ(arrows.size(), 1u);
    EXPECT_GT(arrows[0].points[1].y, arrows[0].points[0].y);
}

TEST(ButtonOps, ALabelWiderThanTheButtonEndsInDots) {
    MenuLook look = PlainLook();
    look.ButtonMaxWidth = 100;
    MenuScene scene = Scene(look, Items({"A label much wider than the menu"}), "T");
    EXPECT_EQ(OpsOf<TextOp>(Button(scene, 1))[0].text, "A label muc...") << "84 pixels of room: 14 characters";
}

TEST(ButtonOps, NothingForAnItemThatIsNotDrawn) {
    MenuScene scene = Scene(PlainLook(), Items({"A", "B"}));
    EXPECT_TRUE(Button(scene, 3).empty());
    EXPECT_TRUE(Button(scene, 0).empty());
}

TEST(ScrollButtonOps, AnArrowTowardsTheHiddenItemsAtEachCutEnd) {
    std::vector<std::string> labels;
    for (int i = 0; i < 30; ++i)
        labels.push_back("Item");
    MenuLook look = PlainLook();
    look.Menu3DArrows = 1;
    MenuScene scene = Scene(look, Items(labels), "Tools", {0, 0, 1024, 24 + 10 * 20});
    ASSERT_EQ(scene.view().slots, 10);
    std::vector<TriangleOp> down = OpsOf<TriangleOp>(ScrollButtonOps(scene));
    ASSERT_EQ(down.size(), 1u);
    Rect last = SlotInWindow(scene, 10);
    EXPECT_TRUE(last.Contains(down[0].points[1]));
    EXPECT_GT(down[0].points[1].y, down[0].points[0].y) << "down";
    EXPECT_EQ(FilledAt(ScrollButtonOps(scene), {last.right - 2, last.top + 2}), kButton);

    ScrollTo(scene, 5);
    std::vector<TriangleOp> both = OpsOf<TriangleOp>(ScrollButtonOps(scene));
    ASSERT_EQ(both.size(), 2u);
    EXPECT_LT(both[0].points[1].y, both[0].points[0].y) << "up, in the first slot";
    EXPECT_TRUE(SlotInWindow(scene, 1).Contains(both[0].points[1]));
}

TEST(ScrollButtonOps, NoneWhenEverythingFits) {
    MenuScene scene = Scene(PlainLook(), Items({"A", "B"}));
    EXPECT_TRUE(ScrollButtonOps(scene).empty());
}

TEST(ButtonOps, OverAFreshBodyAButtonShowingTheBodyLeavesItsBackgroundAlone) {
    MenuLook look = PlainLook();
    look.ButtonGradient = true;
    look.MenuIsGradientTarget = true;
    MenuScene scene = Scene(look, Items({"A", "B"}));
    Point end = RightEnd(scene, 1);
    EXPECT_FALSE(FilledAt(ButtonOps(scene, 1, ButtonState::Normal, FakeMeasure{}, true), end).has_value());
    EXPECT_TRUE(FilledAt(ButtonOps(scene, 1, ButtonState::Normal, FakeMeasure{}, false), end).has_value());
    EXPECT_EQ(FilledAt(ButtonOps(scene, 1, ButtonState::Selected, FakeMeasure{}, true), end), kBar)
        << "the selection bar has its own background";

    MenuScene solid = Scene(PlainLook(), Items({"A", "B"}));
    EXPECT_EQ(FilledAt(ButtonOps(solid, 1, ButtonState::Normal, FakeMeasure{}, true), end), kButton)
        << "a button of its own colour paints it";
}
