#include "menuwindow/menu_position.h"

#include "print_helpers.h"
#include "scene_support.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

namespace {
constexpr Rect kWork{0, 0, 1024, 738};
} // namespace

TEST(OpeningPoint, TheHotspotsPositionFromTheOriginOrTheCursor) {
    CascadeRec record;
    record.position = {100, 50};
    record.origin = {200, 10};
    EXPECT_EQ(OpeningPoint(record), (Point{300, 60}));
    record.onMouse = true;
    record.position = {7, 8};
    EXPECT_EQ(OpeningPoint(record), (Point{7, 8}));
}

TEST(OpeningPoint, ASubMenusIsBesideTheButtonThatOpenedIt) {
    CascadeRec record;
    record.anchor = SubMenuAnchor{{100, 100, 250, 400}, false, 160, false};
    EXPECT_EQ(OpeningPoint(record), (Point{250, 160}));
    record.anchor = SubMenuAnchor{{100, 100, 600, 122}, true, 340, false};
    EXPECT_EQ(OpeningPoint(record), (Point{340, 122}));
}

TEST(PlaceMenu, AHotspotsMenuAtItsPositionKeptOnTheScreen) {
    MenuScene scene = Scene(PlainLook(), Items({"Editor", "Calculator"}));
    CascadeRec record;
    record.position = {100, 50};
    record.origin = {20, 30};
    EXPECT_EQ(PlaceMenu(record, scene, kWork).topLeft, (Point{120, 80}));
    record.position = {1020, 730};
    record.origin = {};
    Size window = scene.layout.window;
    EXPECT_EQ(PlaceMenu(record, scene, kWork).topLeft, (Point{1024 - window.width, 738 - window.height}));
}

TEST(PlaceMenu, OnMouseAtTheCursor) {
    MenuScene scene = Scene(PlainLook(), Items({"Editor"}));
    CascadeRec record;
    record.onMouse = true;
    record.position = {500, 300};
    record.origin = {100, 100};
    EXPECT_EQ(PlaceMenu(record, scene, kWork).topLeft, (Point{500, 300}));
}

TEST(PlaceMenu, ASubMenuBesideItsParentsButtonAndFlippedWithoutRoom) {
    MenuScene scene = Scene(PlainLook(), Items({"Editor", "Calculator"}));
    CascadeRec record;
    record.anchor = SubMenuAnchor{{100, 100, 250, 400}, false, 160, false};
    Placement right = PlaceMenu(record, scene, kWork);
    EXPECT_EQ(right.topLeft, (Point{250, 160})) << "title bar level with the button";
    EXPECT_FALSE(right.towardsStart);

    record.anchor = SubMenuAnchor{{900, 100, 1000, 400}, false, 160, false};
    Placement left = PlaceMenu(record, scene, kWork);
    EXPECT_EQ(left.topLeft.x, 900 - scene.layout.window.width);
    EXPECT_TRUE(left.towardsStart);
}

TEST(PlaceMenu, ASubMenuFollowsTheAlignmentRuleAndOverlapsWithTheSwitch) {
    MenuLook look = PlainLook();
    look.MenuAlignWithTitle = kAlignFirstButtonWithButton;
    look.MenuOverlapMenus = true;
    MenuScene scene = Scene(look, Items({"Editor"}));
    CascadeRec record;
    record.anchor = SubMenuAnchor{{100, 100, 250, 400}, false, 160, false};
    EXPECT_EQ(PlaceMenu(record, scene, kWork).topLeft, (Point{250 - kSubMenuOverlap, 160 - 24}));
}
