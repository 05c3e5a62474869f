#include "menuwindow/layout/menu_scene.h"

#include "menuwindow/paint/paint_title_buttons.h"
#include "menuwindow/layout/title_buttons.h"

#include "print_helpers.h"
#include "scene_support.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

TEST(BuildScene, AMenuIsWideEnoughForItsTitleWithinTheMaximumUnlessTheTitleIsAtTheLeft) {
    MenuScene scene = Scene(PlainLook(), Items({"A"}), "Programs");
    EXPECT_EQ(scene.layout.window.width, 8 * kTitleCharWidth + 2 * kTitleTextPadding);
    MenuLook look = PlainLook();
    look.ButtonMaxWidth = 50;
    EXPECT_EQ(Scene(look, Items({"A"}), "Programs").layout.window.width, 50);
    look.TitlePosition = 2;
    EXPECT_EQ(Scene(look, Items({"A"}), "Programs").layout.window.width, 24 + kSmallestMenuWidth);
}

TEST(BuildScene, TheTitleBarButtonsLeaveTheWholeTitleRoom) {
    MenuLook look = PlainLook();
    look.CloseStatus = kStatusActive;
    look.ClosePosition = 0;
    look.RollUpStatus = kStatusActive;
    look.RollUpPosition = -1;
    look.TitleVSize = 26; // the buttons stand further from the ends than from each other
    MenuScene scene = Scene(look, Items({"A"}), "Programs");
    Rect room = TitleTextRect(scene.layout.title, false, PlacedTitleButtons(scene), kTitleTextPadding);
    EXPECT_EQ(room.Width(), 8 * kTitleCharWidth) << "no \"...\" for a title the menu was widened for";
}

TEST(BuildScene, AMenuTurnedByItsRotateButtonKeepsItsTitleBarToTurnBack) {
    MenuLook look = PlainLook();
    look.HorzButtonsOnly = true;
    SceneRequest request;
    request.look = look;
    request.list = Items({"A", "B"});
    request.title = "Tools";
    request.horizontal = true;
    request.workArea = {0, 0, 1024, 768};
    EXPECT_TRUE(BuildScene(request, FakeMeasure{}).layout.title.Empty()) << "opened across: buttons only";
    request.rotated = true;
    EXPECT_FALSE(BuildScene(request, FakeMeasure{}).layout.title.Empty());
}

TEST(ScrollTo, KeepsTheOffsetWithinRange) {
    std::vector<std::string> labels(30, "Item");
    MenuScene scene = Scene(PlainLook(), Items(labels), "T", {0, 0, 1024, 224});
    ScrollTo(scene, 7);
    EXPECT_EQ(scene.view().first, 7);
    ScrollTo(scene, 100);
    EXPECT_EQ(scene.view().first, 20);
    ScrollTo(scene, -3);
    EXPECT_EQ(scene.view().first, 0);
}

TEST(HitInWindow, FindsTheItemUnderAWindowPointBelowTheTitle) {
    MenuScene scene = Scene(PlainLook(), Items({"A", "B", "C"}), "T");
    int width = scene.layout.window.width;
    EXPECT_EQ(HitInWindow(scene, {5, 10}).kind, Hit::Kind::None) << "the title bar";
    EXPECT_EQ(HitInWindow(scene, {5, 24}), (Hit{Hit::Kind::Item, 1}));
    EXPECT_EQ(HitInWindow(scene, {width - 1, 24 + 20 + 19}), (Hit{Hit::Kind::Item, 2}));
    EXPECT_EQ(HitInWindow(scene, {5, 24 + 40}), (Hit{Hit::Kind::Item, 3}));
    EXPECT_EQ(HitInWindow(scene, {width, 30}).kind, Hit::Kind::None) << "right of the surface";
    EXPECT_EQ(HitInWindow(scene, {5, 24 + 60}).kind, Hit::Kind::None) << "below the last item";
}
