// A theme that lacks a picture still shows a menu: the part's colour, the drawn arrow.
// How found pictures look is the Wine picture tests' and the end-to-end tests'.
#include "menuwindow/paint/paint_button.h"
#include "menuwindow/paint/paint_menu.h"

#include "print_helpers.h"
#include "scene_support.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

namespace {

MenuScene PictureScene(const MenuLook& look, std::vector<std::string> files, DisplayList list) {
    SceneRequest request;
    request.look = look;
    request.list = std::move(list);
    request.title = "Tools";
    request.workArea = {0, 0, 1024, 768};
    request.pictures = std::move(files);
    return BuildScene(std::move(request), FakeMeasure{});
}

} // namespace

TEST(MissingPictures, APartWithoutItsPictureShowsItsColour) {
    MenuLook look = PlainLook();
    look.TitleBitmap = true;
    look.ButtonBitmap = true;
    MenuScene scene = PictureScene(look, {"Other.bmp"}, Items({"Editor"}));
    DrawList ops = MenuOps(scene, {}, FakeMeasure{});
    EXPECT_TRUE(OpsOf<PictureOp>(ops).empty());
    EXPECT_EQ(FilledAt(ops, {1, 1}), kTitle);
    Rect button = ItemInWindow(scene, 1);
    EXPECT_EQ(FilledAt(ops, {button.left + 1, button.top + 1}), kButton);
}

TEST(MissingPictures, WithoutItsIconTheArrowIsDrawn) {
    MenuLook look = PlainLook();
    look.Menu3DArrows = 2;
    DisplayList list = Items({"Tools"});
    list.entries[0].TYPE = kItemMenuName;
    MenuScene scene = PictureScene(look, {}, list);
    DrawList ops = ButtonOps(scene, 1, ButtonState::Normal, FakeMeasure{});
    EXPECT_TRUE(OpsOf<PictureOp>(ops).empty());
    EXPECT_FALSE(OpsOf<TriangleOp>(ops).empty());
}
