#include "menuwindow/menu_scene.h"

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

TEST(BuildScene, TheRoomAlongTheButtonsIsTheWorkAreasHeightOrWidth) {
    std::vector<std::string> labels(50, "Item");
    MenuScene vertical = Scene(PlainLook(), Items(labels), "T", {0, 0, 1024, 224});
    EXPECT_EQ(vertical.view().slots, 10);
    MenuLook look = PlainLook();
    look.HorzNoTitlebar = true;
    MenuScene horizontal = Scene(look, Items(labels), "T", {0, 0, 1 + 5 * 40, 768}, true);
    EXPECT_EQ(horizontal.view().slots, 5);
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

TEST(ItemInWindow, ADrawnItemsButtonAndNothingForOthers) {
    std::vector<std::string> labels(30, "Item");
    MenuScene scene = Scene(PlainLook(), Items(labels), "T", {0, 0, 1024, 224});
    int width = scene.layout.window.width;
    EXPECT_EQ(ItemInWindow(scene, 1), (Rect{0, 24, width, 44}));
    EXPECT_EQ(ItemInWindow(scene, 9), (Rect{0, 184, width, 204}));
    EXPECT_TRUE(ItemInWindow(scene, 10).Empty()) << "behind the scroll button";
    EXPECT_EQ(SlotInWindow(scene, 10), (Rect{0, 204, width, 224}));
    ScrollTo(scene, 4);
    EXPECT_TRUE(ItemInWindow(scene, 5).Empty()) << "behind the top scroll button";
    EXPECT_EQ(ItemInWindow(scene, 6), (Rect{0, 44, width, 64}));
    EXPECT_TRUE(ItemInWindow(scene, 2).Empty());
}
