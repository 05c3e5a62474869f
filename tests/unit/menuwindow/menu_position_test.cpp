#include "menuwindow/layout/menu_position.h"

#include "print_helpers.h"
#include "scene_support.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

TEST(OpeningPoint, TheHotspotsPositionFromTheOriginOrTheCursorOrBesideTheOpeningButton) {
    CascadeRec record;
    record.position = {100, 50};
    record.origin = {200, 10};
    EXPECT_EQ(OpeningPoint(record), (Point{300, 60}));
    record.onMouse = true;
    record.position = {7, 8};
    EXPECT_EQ(OpeningPoint(record), (Point{7, 8}));
    record.anchor = SubMenuAnchor{{100, 100, 250, 400}, false, 160, false};
    EXPECT_EQ(OpeningPoint(record), (Point{250, 160}));
    record.anchor = SubMenuAnchor{{100, 100, 600, 122}, true, 340, false};
    EXPECT_EQ(OpeningPoint(record), (Point{340, 122}));
}

// The placement rules themselves are the placement tests'; here, that a menu window hands
// them its own size, title and switches.
TEST(PlaceMenu, TakesTheWindowsSizeAlignmentRuleAndOverlapSwitch) {
    constexpr Rect kWork{0, 0, 1024, 738};
    MenuScene scene = Scene(PlainLook(), Items({"Editor", "Calculator"}));
    CascadeRec record;
    record.position = {1020, 730};
    Size window = scene.layout.window;
    EXPECT_EQ(PlaceMenu(record, scene, kWork).topLeft, (Point{1024 - window.width, 738 - window.height}));

    record.anchor = SubMenuAnchor{{900, 100, 1000, 400}, false, 160, false};
    EXPECT_EQ(PlaceMenu(record, scene, kWork), (Placement{{900 - window.width, 160}, true}));

    MenuLook look = PlainLook();
    look.MenuAlignWithTitle = kAlignFirstButtonWithButton;
    look.MenuOverlapMenus = true;
    record.anchor = SubMenuAnchor{{100, 100, 250, 400}, false, 160, false};
    EXPECT_EQ(PlaceMenu(record, Scene(look, Items({"Editor"})), kWork).topLeft,
              (Point{250 - kSubMenuOverlap, 160 - 24}));
}
