// The picture operations of the painted parts: backgrounds from the theme's files,
// stretched, tiled, over the body or transparent; picture arrows and command-key symbols;
// and the title-bar buttons in their three styles.
#include "menuwindow/paint_button.h"
#include "menuwindow/paint_menu.h"
#include "menuwindow/paint_title.h"
#include "menuwindow/paint_title_buttons.h"

#include "print_helpers.h"
#include "scene_support.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

namespace {

MenuScene PictureScene(const MenuLook& look, std::vector<std::string> files, DisplayList list = Items({"Editor"})) {
    SceneRequest request;
    request.look = look;
    request.list = std::move(list);
    request.title = "Tools";
    request.workArea = {0, 0, 1024, 768};
    request.pictures = std::move(files);
    return BuildScene(std::move(request), FakeMeasure{});
}

DisplayList SubMenuWithHotkey() {
    DisplayList list = Items({"Tools", "Editor"});
    list.entries[0].TYPE = kItemMenuName;
    list.entries[1].HOTKEY = "e";
    return list;
}

} // namespace

TEST(PictureBackgrounds, AStretchedTitlePictureCoversTheBar) {
    MenuLook look = PlainLook();
    look.TitleBitmap = true;
    MenuScene scene = PictureScene(look, {"titlea.JPG"});
    std::vector<PictureOp> pictures = OpsOf<PictureOp>(TitleOps(scene, FakeMeasure{}));
    ASSERT_EQ(pictures.size(), 1u);
    EXPECT_EQ(pictures[0],
              (PictureOp{scene.layout.title, scene.layout.title, "titlea.JPG", PictureFit::Stretch, false}));
}

TEST(PictureBackgrounds, AMissingPictureFallsBackToTheColour) {
    MenuLook look = PlainLook();
    look.TitleBitmap = true;
    look.ButtonBitmap = true;
    MenuScene scene = PictureScene(look, {"Other.bmp"});
    DrawList ops = MenuOps(scene, {}, FakeMeasure{});
    EXPECT_TRUE(OpsOf<PictureOp>(ops).empty());
    EXPECT_EQ(FilledAt(ops, {1, 1}), kTitle);
    Rect button = ItemInWindow(scene, 1);
    EXPECT_EQ(FilledAt(ops, {button.left + 1, button.top + 1}), kButton);
}

TEST(PictureBackgrounds, ButtonPicturesTileEachButtonOrSpanTheBody) {
    MenuLook look = PlainLook();
    look.ButtonBitmap = true;
    look.ButtonTileBitmap = true;
    MenuScene own = PictureScene(look, {"ButtonA.bmp"}, Items({"A", "B"}));
    std::vector<PictureOp> perButton = OpsOf<PictureOp>(MenuOps(own, {}, FakeMeasure{}));
    ASSERT_EQ(perButton.size(), 2u);
    EXPECT_EQ(perButton[1].area, ItemInWindow(own, 2));
    EXPECT_EQ(perButton[1].fit, PictureFit::Tile);

    look.ButtonTileBitmap = false;
    look.ButtonBitmapToMenu = true;
    MenuScene body = PictureScene(look, {"ButtonA.bmp"}, Items({"A", "B"}));
    std::vector<PictureOp> once = OpsOf<PictureOp>(MenuOps(body, {}, FakeMeasure{}));
    ASSERT_EQ(once.size(), 1u) << "the body's picture, not one per button";
    EXPECT_EQ(once[0].area, body.layout.surface);
    std::vector<PictureOp> redrawn = OpsOf<PictureOp>(ButtonOps(body, 2, ButtonState::Normal, FakeMeasure{}));
    ASSERT_EQ(redrawn.size(), 1u);
    EXPECT_EQ(redrawn[0].area, body.layout.surface) << "a single button shows its share of the body's picture";
    EXPECT_EQ(redrawn[0].clip, ItemInWindow(body, 2));
}

TEST(PictureBackgrounds, ATransparentButtonPictureStandsOnTheButtonColour) {
    MenuLook look = PlainLook();
    look.ButtonBitmap = true;
    look.ButtonTransparent = true;
    MenuScene scene = PictureScene(look, {"ButtonA.bmp"});
    DrawList ops = ButtonOps(scene, 1, ButtonState::Normal, FakeMeasure{});
    Rect button = ItemInWindow(scene, 1);
    EXPECT_EQ(FilledAt(ops, {button.left + 1, button.top + 1}), kButton);
    std::vector<PictureOp> pictures = OpsOf<PictureOp>(ops);
    ASSERT_EQ(pictures.size(), 1u);
    EXPECT_TRUE(pictures[0].transparent);
    EXPECT_EQ(pictures[0].area, button);
}

TEST(PictureBackgrounds, TheSelectionBarUsesItsOwnPicture) {
    MenuLook look = PlainLook();
    look.SelBarGradient = 2;
    MenuScene scene = PictureScene(look, {"ButtonA.bmp", "ButtonAS.bmp"});
    std::vector<PictureOp> pictures = OpsOf<PictureOp>(ButtonOps(scene, 1, ButtonState::Selected, FakeMeasure{}));
    ASSERT_EQ(pictures.size(), 1u);
    EXPECT_EQ(pictures[0].file, "ButtonAS.bmp");
}

TEST(PictureSymbols, ArrowAndCommandKeyIconsTakeTheirSelectedForms) {
    MenuLook look = PlainLook();
    look.Menu3DArrows = 2;
    look.HotkeyStyle = 2;
    MenuScene scene = PictureScene(look, {"ArrowA.ico", "ArrowAS.ico", "ComSymbA.ico"}, SubMenuWithHotkey());
    std::vector<PictureOp> normal = OpsOf<PictureOp>(ButtonOps(scene, 1, ButtonState::Normal, FakeMeasure{}));
    ASSERT_EQ(normal.size(), 1u);
    EXPECT_EQ(normal[0].file, "ArrowA.ico");
    EXPECT_EQ(normal[0].fit, PictureFit::Icon);
    EXPECT_EQ(normal[0].area.Width(), normal[0].area.Height());
    std::vector<PictureOp> selected = OpsOf<PictureOp>(ButtonOps(scene, 1, ButtonState::Selected, FakeMeasure{}));
    ASSERT_EQ(selected.size(), 1u);
    EXPECT_EQ(selected[0].file, "ArrowAS.ico");
    std::vector<PictureOp> key = OpsOf<PictureOp>(ButtonOps(scene, 2, ButtonState::Selected, FakeMeasure{}));
    ASSERT_EQ(key.size(), 1u);
    EXPECT_EQ(key[0].file, "ComSymbA.ico") << "no selected form in the folder: the plain one";
    EXPECT_TRUE(OpsOf<TriangleOp>(ButtonOps(scene, 1, ButtonState::Normal, FakeMeasure{})).empty());
}

TEST(PictureSymbols, WithoutItsIconTheArrowIsDrawn) {
    MenuLook look = PlainLook();
    look.Menu3DArrows = 2;
    MenuScene scene = PictureScene(look, {}, SubMenuWithHotkey());
    DrawList ops = ButtonOps(scene, 1, ButtonState::Normal, FakeMeasure{});
    EXPECT_TRUE(OpsOf<PictureOp>(ops).empty());
    EXPECT_FALSE(OpsOf<TriangleOp>(ops).empty());
}

namespace {

MenuLook WithAllTitleButtons(std::int16_t style) {
    MenuLook look = PlainLook();
    look.ButtonStyle = style;
    look.CloseStatus = 3;
    look.RotateStatus = 3;
    look.RollUpStatus = 3;
    look.AlwaysOnTopStatus = 3;
    return look;
}

} // namespace

TEST(TitleButtonPainting, TheTitleTextStopsBeforeTheButtons) {
    MenuScene scene = PictureScene(WithAllTitleButtons(0), {});
    std::vector<PlacedTitleButton> placed = PlacedTitleButtons(scene);
    ASSERT_EQ(placed.size(), 4u);
    std::vector<TextOp> texts = OpsOf<TextOp>(TitleOps(scene, FakeMeasure{}));
    ASSERT_EQ(texts.size(), 1u);
    int textEnd = texts[0].origin.x + FakeMeasure{}.Width(FontRole::Title, texts[0].text);
    for (const PlacedTitleButton& button : placed) {
        if (button.rect.left > texts[0].origin.x) {
            EXPECT_LE(textEnd, button.rect.left);
        }
    }
    EXPECT_GE(scene.layout.title.Width(),
              4 * scene.metrics().titleButtonSize + FakeMeasure{}.Width(FontRole::Title, "Tools"))
        << "the bar is made long enough for the name and the buttons";
}

TEST(TitleButtonPainting, SquareButtonsAreBevelledWithADarkGlyph) {
    MenuScene scene = PictureScene(WithAllTitleButtons(0), {});
    PlacedTitleButton close = PlacedTitleButtons(scene).front();
    DrawList up;
    AddTitleButton(up, scene, close, false);
    EXPECT_EQ(FilledAt(up, {close.rect.left, close.rect.top + 2}), kSquareButtonLight);
    EXPECT_EQ(FilledAt(up, {close.rect.right - 1, close.rect.top + 2}), kSquareButtonDark);
    DrawList down;
    AddTitleButton(down, scene, close, true);
    EXPECT_EQ(FilledAt(down, {close.rect.left, close.rect.top + 2}), kSquareButtonDark) << "pressed in";
    int middle = close.rect.left + close.rect.Width() / 2;
    EXPECT_EQ(FilledAt(up, {middle, close.rect.top + close.rect.Height() / 2}), kSquareButtonGlyph) << "the cross";
}

TEST(TitleButtonPainting, RoundButtonsAreCirclesInTheirOwnColours) {
    MenuScene scene = PictureScene(WithAllTitleButtons(1), {});
    for (const PlacedTitleButton& button : PlacedTitleButtons(scene)) {
        DrawList ops;
        AddTitleButton(ops, scene, button, false);
        std::vector<EllipseOp> circles = OpsOf<EllipseOp>(ops);
        ASSERT_FALSE(circles.empty());
        EXPECT_EQ(circles[0].fill, RoundButtonColour(button.button));
        EXPECT_EQ(circles[0].rect.Width(), circles[0].rect.Height());
    }
    EXPECT_NE(RoundButtonColour(TitleButton::Close), RoundButtonColour(TitleButton::OnTop));
}

TEST(TitleButtonPainting, PictureButtonsUseTheFoundFileOrNothing) {
    MenuScene scene = PictureScene(WithAllTitleButtons(2), {"closea.ico", "RotateAP.bmp"});
    std::vector<PlacedTitleButton> placed = PlacedTitleButtons(scene);
    auto opsOf = [&](TitleButton which, bool pressed) {
        DrawList ops;
        for (const PlacedTitleButton& button : placed)
            if (button.button == which)
                AddTitleButton(ops, scene, button, pressed);
        return OpsOf<PictureOp>(ops);
    };
    std::vector<PictureOp> close = opsOf(TitleButton::Close, false);
    ASSERT_EQ(close.size(), 1u);
    EXPECT_EQ(close[0].file, "closea.ico");
    EXPECT_EQ(close[0].fit, PictureFit::Icon);
    std::vector<PictureOp> rotate = opsOf(TitleButton::Rotate, true);
    ASSERT_EQ(rotate.size(), 1u);
    EXPECT_EQ(rotate[0].fit, PictureFit::Stretch);
    EXPECT_TRUE(opsOf(TitleButton::Rotate, false).empty()) << "only the pressed picture exists";
    EXPECT_TRUE(opsOf(TitleButton::OnTop, false).empty());
}
