#include "desktop/click_tracker.h"
#include "desktop/hotspot_dispatch.h"
#include "menuwindow/layout/menu_position.h"
#include "menuwindow/layout/monitors.h"
#include "prefs/hotspot_fields.h"

#include <gtest/gtest.h>

#include <vector>

using namespace MenuWindow;

namespace {

// Layouts as the system lists them; the work areas lose a 30-pixel taskbar at the bottom.
Monitor At(Rect bounds, int dpi = 96, bool primary = false) {
    return {bounds, {bounds.left, bounds.top, bounds.right, bounds.bottom - 30}, dpi, primary};
}
const std::vector<Monitor> kOne = {At({0, 0, 1024, 768}, 96, true)};
// The second is taller and of another scaling, so their bottoms do not line up.
const std::vector<Monitor> kSideBySide = {At({0, 0, 1920, 1080}, 96, true), At({1920, -200, 3840, 1240}, 144)};
const std::vector<Monitor> kStacked = {At({0, 0, 1920, 1080}, 96, true), At({0, 1080, 1920, 2160}, 192)};
// A monitor left of the primary one stands at negative coordinates.
const std::vector<Monitor> kNegative = {At({0, 0, 1920, 1080}, 96, true), At({-1280, 0, 0, 1024}, 120)};

EdgeContact Edges(int monitor, const char* sides) {
    std::string_view s(sides);
    return {monitor, s.find('L') != s.npos, s.find('R') != s.npos, s.find('T') != s.npos, s.find('B') != s.npos};
}

} // namespace

TEST(Monitors, OnlyTheOuterEdgesOfTheWholeDesktopAreEdges) {
    struct Case {
        const char* what;
        const std::vector<Monitor>& layout;
        Point at;
        EdgeContact expected;
    } cases[] = {
        {"one: a corner", kOne, {0, 0}, Edges(1, "LT")},
        {"one: the last column", kOne, {1023, 300}, Edges(1, "R")},
        {"one: inside", kOne, {500, 300}, Edges(1, "")},
        {"one: off every monitor", kOne, {1024, 300}, Edges(0, "")},
        {"side by side: where they meet, left", kSideBySide, {1919, 500}, Edges(1, "")},
        {"side by side: where they meet, right", kSideBySide, {1920, 500}, Edges(2, "")},
        {"side by side: the taller one's left side below the other", kSideBySide, {1920, 1100}, Edges(2, "L")},
        {"side by side: the taller one's top-left corner", kSideBySide, {1920, -200}, Edges(2, "LT")},
        {"side by side: the far right corner", kSideBySide, {3839, 1239}, Edges(2, "RB")},
        {"side by side: the first one's bottom", kSideBySide, {1000, 1079}, Edges(1, "B")},
        {"stacked: where they meet", kStacked, {500, 1079}, Edges(1, "")},
        {"stacked: the lower one's bottom-left corner", kStacked, {0, 2159}, Edges(2, "LB")},
        {"negative: the seam at x = 0", kNegative, {0, 500}, Edges(1, "")},
        {"negative: the seam at x = -1", kNegative, {-1, 500}, Edges(2, "")},
        {"negative: the far left", kNegative, {-1280, 500}, Edges(2, "L")},
        {"negative: the primary's left side below the other", kNegative, {0, 1050}, Edges(1, "L")},
    };
    for (const Case& c : cases)
        EXPECT_EQ(OuterEdgesAt(c.layout, c.at), c.expected) << c.what;
}

TEST(Monitors, BumpsFireOnEveryMonitorsOuterCornersWithTheirMonitorAndNotWhereMonitorsMeet) {
    using namespace Hotspots;
    auto bump = [](const std::vector<Monitor>& layout, Point at) {
        ClickTracker tracker;
        PendingEvent event;
        MouseSample sample{false, false, false, at, [] { return std::uintptr_t{1}; }, layout};
        for (int tick = 0; tick < 20; ++tick) {
            if (TrackMouse(tracker, event, sample, {12, 5}))
                return std::pair{event.PendingClickCode, event.ClickMonitor};
        }
        return std::pair<std::int16_t, int>{-1, 0};
    };
    EXPECT_EQ(bump(kSideBySide, {3839, -200}), (std::pair<std::int16_t, int>{kTopRightCorner, 2}));
    EXPECT_EQ(bump(kSideBySide, {1919, 0}), (std::pair<std::int16_t, int>{kTopEdge, 1})) << "the seam is no corner";
    EXPECT_EQ(bump(kSideBySide, {1919, 500}).first, -1) << "the seam is no edge";
    EXPECT_EQ(bump(kNegative, {-1280, 1023}), (std::pair<std::int16_t, int>{kBottomLeftCorner, 2}));
    EXPECT_EQ(bump(kStacked, {1919, 2159}), (std::pair<std::int16_t, int>{kBottomRightCorner, 2}));
}

TEST(Monitors, AHotspotOfOneMonitorTakesOnlyThatMonitorsBumps) {
    using namespace Hotspots;
    std::vector<HotspotRec> hotSpots(3);
    hotSpots[0].MouseButton = kLeftClick;
    hotSpots[1].MouseButton = kTopLeftCorner;
    hotSpots[1].Monitor = 2;
    hotSpots[2].MouseButton = kTopLeftCorner; // any monitor
    auto chosen = [&](int monitor) {
        std::optional<Choice> choice = ChooseHotspot(hotSpots, kTopLeftCorner, {0, 0}, monitor, {});
        return choice ? choice->hotspot : -1;
    };
    EXPECT_EQ(chosen(2), 1);
    EXPECT_EQ(chosen(1), 2);
    hotSpots[2].Monitor = 3;
    EXPECT_EQ(chosen(1), -1) << "no hotspot of monitor 1's corner";
}

TEST(Monitors, MenusOpenOnTheMonitorOfTheirPlaceOrCursorAndAGoneMonitorsPlaceOnThePrimary) {
    CascadeRec atPlace;
    atPlace.position = {2500, 100};
    EXPECT_EQ(MonitorOfMenu(atPlace, kSideBySide), kSideBySide[1]);
    EXPECT_EQ(MonitorOfMenu(atPlace, kOne), kOne[0]) << "the second monitor is gone";
    atPlace.position = {-600, 100};
    EXPECT_EQ(MonitorOfMenu(atPlace, kNegative), kNegative[1]);

    CascadeRec onMouse;
    onMouse.onMouse = true;
    onMouse.position = {900, 1500};
    EXPECT_EQ(MonitorOfMenu(onMouse, kStacked), kStacked[1]);
    onMouse.position = {1950, 1200}; // in the gap below the first monitor's bottom-right corner
    EXPECT_EQ(MonitorOfMenu(onMouse, kSideBySide), kSideBySide[1]) << "the nearest";

    CascadeRec subMenu;
    subMenu.anchor = SubMenuAnchor{{1700, 100, 1920, 600}, false, 300, false};
    EXPECT_EQ(MonitorOfMenu(subMenu, kSideBySide).dpi, 144) << "beside its parent, across the seam";

    std::vector<Monitor> noPrimary = {At({0, 0, 800, 600}), At({800, 0, 1600, 600})};
    EXPECT_EQ(PrimaryMonitor(noPrimary), noPrimary[0]);
    EXPECT_EQ(NearestMonitor({}, {5, 5}), Monitor{}) << "no monitors listed";
}

TEST(Monitors, AMenuIsKeptInsideItsOwnMonitorsWorkArea) {
    // A menu asked for at the right of the first monitor does not hang over onto the second.
    Rect work = NearestMonitor(kSideBySide, {1900, 500}).work;
    EXPECT_EQ(KeepOnScreen({1900, 500}, {200, 300}, work), (Point{1720, 500}));
    work = MonitorOfPlace(kNegative, {-100, 900}).work;
    EXPECT_EQ(KeepOnScreen({-100, 900}, {200, 300}, work), (Point{-200, 694}));
}

TEST(Monitors, AFullScreenWindowIsOneWithoutACaptionCoveringItsWholeMonitor) {
    struct Case {
        const char* what;
        Rect window;
        bool captioned;
        bool covers;
    } cases[] = {
        {"a game on the second monitor", {1920, -200, 3840, 1240}, false, true},
        {"a video larger than its monitor", {-10, -10, 1930, 1090}, false, true},
        {"a maximized window with a caption", {-8, -8, 1928, 1088}, true, false},
        {"a popup a pixel short", {0, 0, 1920, 1079}, false, false},
        {"a popup on the first monitor only", {0, 0, 1920, 1080}, false, true},
        {"an empty window", {0, 0, 0, 0}, false, false},
    };
    for (const Case& c : cases)
        EXPECT_EQ(CoversItsMonitor(kSideBySide, c.window, c.captioned), c.covers) << c.what;
}

TEST(Monitors, FullScreenQuietSilencesBumpsOnlyAndOnlyWhenOn) {
    using namespace Hotspots;
    SettingsRec settings;
    int asked = 0;
    auto fills = [&] { ++asked; return true; };
    EXPECT_TRUE(QuietBump(settings, kTopLeftCorner, fills));
    EXPECT_TRUE(QuietBump(settings, kRightEdge, fills));
    EXPECT_FALSE(QuietBump(settings, kLeftClick, fills));
    EXPECT_FALSE(QuietBump(settings, kMiddleAnywhere, fills));
    EXPECT_EQ(asked, 2) << "the foreground is looked at for bumps only";
    settings.GenQuietFullScreen = false;
    EXPECT_FALSE(QuietBump(settings, kTopLeftCorner, fills));
    EXPECT_FALSE(QuietBump(SettingsRec{}, kBottomEdge, [] { return false; }));
}

TEST(Monitors, ThePageOffersAnyMonitorEachMonitorAndAGoneOneStillChosen) {
    using Names = std::vector<std::string>;
    EXPECT_EQ(Preferences::MonitorChoices(2, 0), (Names{"Any monitor", "Monitor 1", "Monitor 2"}));
    EXPECT_EQ(Preferences::MonitorChoices(1, 3),
              (Names{"Any monitor", "Monitor 1", "Monitor 2 (not connected)", "Monitor 3 (not connected)"}));
    HotspotRec hotspot;
    EXPECT_FALSE(Preferences::FieldEnabled(hotspot, Preferences::HotspotField::Monitor)) << "a click has its rectangle";
    hotspot.MouseButton = Hotspots::kBottomEdge;
    EXPECT_TRUE(Preferences::FieldEnabled(hotspot, Preferences::HotspotField::Monitor));
}
