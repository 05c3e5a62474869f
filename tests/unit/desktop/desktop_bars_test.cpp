#include "desktop/desktop_bars.h"
#include "desktop/systray_collapse.h"

#include <gtest/gtest.h>

using namespace DesktopBars;

namespace {

const Rect kScreen{0, 0, 1024, 768};

} // namespace

TEST(DesktopBars, CornersOffsetsInwardsAndTheRoomWhileTheTaskbarIsHidden) {
    struct Case {
        std::int16_t position;
        Rect expected;
    };
    const Case cases[] = {
        {0, {10, 20, 110, 70}},   {1, {914, 20, 1014, 70}}, {2, {10, 698, 110, 748}},
        {3, {914, 698, 1014, 748}}, {7, {10, 698, 110, 748}}, {-1, {10, 698, 110, 748}}};
    for (const Case& c : cases)
        EXPECT_EQ(PlaceInCorner(kScreen, {100, 50}, CornerOf(c.position, Corner::BottomLeft), 10, 20), c.expected)
            << c.position;
    Rect work{0, 0, 1024, 738};
    EXPECT_EQ(PlacementArea(kScreen, work, true), work);
    EXPECT_EQ(PlacementArea(kScreen, work, false), kScreen) << "the hidden taskbar's room is ours";
}

TEST(DesktopBars, TaskListSlotsInEveryShapeAndFittedToTheRoom) {
    SettingsRec settings;
    settings.TaskbarFrame = 1;
    settings.TaskbarIconSize = 1;
    settings.TaskbarOrientation = 1;
    settings.TaskbarStyle = 0;
    TaskListShape icons = ShapeOf(settings, 14, 96);
    TaskListLayout row = LayOutTaskList(icons, 3, {1024, 768});
    EXPECT_EQ(row.window, (Size{3 * 40 + 2, 42}));
    ASSERT_EQ(row.slots.size(), 3u);
    EXPECT_EQ(row.slots[1], (Rect{41, 1, 81, 41}));
    EXPECT_EQ(SlotAt(row, {50, 10}), 1);
    EXPECT_EQ(SlotAt(row, {0, 0}), std::nullopt) << "the frame is no task";

    TaskListLayout empty = LayOutTaskList(icons, 0, {1024, 768});
    EXPECT_EQ(empty.window, (Size{42, 42})) << "an empty list keeps a slot's room";
    EXPECT_TRUE(empty.slots.empty());

    settings.TaskbarOrientation = 0;
    TaskListLayout column = LayOutTaskList(ShapeOf(settings, 14, 96), 100, {1024, 768});
    EXPECT_EQ(column.slots.size(), 19u) << "a column shows what fits";
    EXPECT_LE(column.window.height, 768);

    settings.TaskbarOrientation = 1;
    settings.TaskbarStyle = 1;
    TaskListLayout buttons = LayOutTaskList(ShapeOf(settings, 14, 96), 20, {1024, 768});
    EXPECT_EQ(buttons.slots.size(), 20u) << "buttons narrow to share the width";
    EXPECT_EQ(buttons.slots[0].Width(), 1022 / 20);
    EXPECT_LE(buttons.window.width, 1024);
    EXPECT_EQ(LayOutTaskList(ShapeOf(settings, 14, 96), 200, {1024, 768}).slots[0].Width(), 40)
        << "never narrower than an icon";
}

TEST(DesktopBars, TheSystrayStandsBesideItsButtonInItsCorner) {
    SettingsRec settings;
    settings.TaskbarFrame = 1;
    SystrayLayout layout = LayOutSystray(settings, {80, 30}, 40, 150, 14, 96);
    EXPECT_EQ(layout.window, (Size{80 + 162 + 2, 40 + 2}));
    EXPECT_EQ(layout.clock.left, 81);
    EXPECT_EQ(layout.notifyArea, (Rect{1, 6, 81, 36}));
    settings.SystrayStyle = 1;
    SystrayLayout column = LayOutSystray(settings, {80, 30}, 40, 150, 14, 96);
    EXPECT_EQ(column.window, (Size{162 + 2, 30 + 40 + 2})) << "the clock under the icons";
    EXPECT_EQ(column.notifyArea, (Rect{42, 1, 122, 31}));
    EXPECT_EQ(column.clock, (Rect{1, 31, 163, 71}));
    settings.SystrayStyle = 0;

    settings.SystrayXofset = 5;
    SystrayPlaces alone = PlaceSystray(settings, kScreen, layout.window, false, 96);
    EXPECT_EQ(alone.systray, (Rect{1024 - 5 - 244, 768 - 42, 1024 - 5, 768}));
    SystrayPlaces withButton = PlaceSystray(settings, kScreen, layout.window, true, 96);
    EXPECT_EQ(withButton.button, (Rect{1024 - 5 - 24, 768 - 24, 1024 - 5, 768}));
    EXPECT_EQ(withButton.systray.right, withButton.button.left);
}

TEST(SystrayCollapse, TheOverflowAndTheThirtyThreeSecondsAreKept) {
    using namespace SystrayCollapse;
    EXPECT_EQ(ArmedInterval(5), 32767);
    EXPECT_EQ(ArmedInterval(32), 32767);
    EXPECT_EQ(ArmedInterval(0), 32767);
    EXPECT_EQ(ArmedInterval(33), std::nullopt);
    EXPECT_EQ(ArmedInterval(-33), std::nullopt);

    Timer off;
    Step collapse = Elapse(0, {true, 32767});
    EXPECT_TRUE(collapse.hideSystray);
    EXPECT_EQ(collapse.collapsed, kCollapsed);
    EXPECT_FALSE(collapse.timer.enabled);
    EXPECT_FALSE(Elapse(kCollapsed, {true, 32767}).hideSystray) << "already collapsed: the timer only stops";

    Step expand = Toggle(kCollapsed, off, true, 5);
    EXPECT_TRUE(expand.showSystray);
    EXPECT_EQ(expand.collapsed, 0);
    EXPECT_EQ(expand.timer, (Timer{true, 32767}));
    EXPECT_EQ(Toggle(kCollapsed, off, false, 5).timer, (Timer{false, 32767}));
    Step overflow = Toggle(kCollapsed, off, true, 40);
    EXPECT_EQ(overflow.timer, off) << "a delay of 40 leaves the timer as it was";
    EXPECT_EQ(overflow.collapsed, 0);

    Step hide = Toggle(0, {true, 32767}, true, 5);
    EXPECT_TRUE(hide.hideSystray);
    EXPECT_EQ(hide.collapsed, kCollapsed);
    EXPECT_EQ(hide.timer, (Timer{true, 32767})) << "hiding by hand does not touch the timer";
}
