// The zones the overlay shows are where the hotspots really fire: rectangles from their
// window's corner cut to it, corners and edges as the click tracker codes them, and the
// hotspots whose events an earlier one takes.
#include "desktop/click_tracker.h"
#include "desktop/hotspot_zones.h"
#include "prefs/hotspot_fields.h"

#include <gtest/gtest.h>

using namespace Hotspots;
using MenuWindow::Rect;

namespace {

constexpr MenuWindow::Size kScreen{1024, 768};

HotspotRec Spot(std::int16_t event, const char* app = "Desktop", std::int16_t x1 = 0, std::int16_t y1 = 0,
                std::int16_t x2 = 0, std::int16_t y2 = 0) {
    HotspotRec hotspot;
    hotspot.MouseButton = event;
    hotspot.App = app;
    hotspot.x1 = x1;
    hotspot.y1 = y1;
    hotspot.x2 = x2;
    hotspot.y2 = y2;
    return hotspot;
}

} // namespace

TEST(HotspotZones, AreWhereTheClickTrackerAndTheDispatchFireEachHotspot) {
    const std::vector<HotspotRec> hotSpots = {
        Spot(kLeftClick, "Desktop", 48, 0, 1024, 768),  Spot(kRightClick, "Notepad", 10, 5, 20, 15),
        Spot(kRightClick, "Not open", 0, 0, 9, 9),      Spot(kTopLeftCorner),
        Spot(kTopEdge),                                 Spot(kTopEdge),
        Spot(kMiddleAnywhere),                          Spot(kMiddleClick, "Desktop", 0, 0, 99, 99),
        Spot(kRightEdge),                               Spot(kLeftClick, "Notepad", 450, 0, 600, 0),
    };
    const std::vector<Zone> zones = HotspotZones(hotSpots, kScreen, [](std::string_view title) {
        return title == "Notepad" ? std::optional<Rect>({200, 150, 700, 550}) : std::nullopt;
    });
    const std::vector<Zone> expected = {
        {0, kLeftClick, {48, 0, 1024, 768}, {48, 0, 1024, 768}, {}},
        {1, kRightClick, {210, 155, 221, 166}, {210, 155, 221, 166}, {}},
        {3, kTopLeftCorner, {0, 0, 1, 1}, {0, 0, 32, 32}, {}},
        {4, kTopEdge, {1, 0, 1023, 1}, {1, 0, 1023, 12}, {}},
        {5, kTopEdge, {1, 0, 1023, 1}, {1, 0, 1023, 12}, 4},
        {7, kMiddleClick, {0, 0, 100, 100}, {0, 0, 100, 100}, 6},
        {8, kRightEdge, {1023, 1, 1024, 767}, {1012, 1, 1024, 767}, {}},
        {9, kLeftClick, {650, 150, 700, 151}, {650, 150, 700, 151}, {}}, // cut to its window
    };
    ASSERT_EQ(zones.size(), expected.size());
    for (std::size_t i = 0; i < zones.size(); ++i) {
        EXPECT_EQ(zones[i].hotspot, expected[i].hotspot);
        EXPECT_EQ(zones[i].fires, expected[i].fires) << zones[i].hotspot;
        EXPECT_EQ(zones[i].shown, expected[i].shown) << zones[i].hotspot;
        EXPECT_EQ(zones[i].takenBy, expected[i].takenBy) << zones[i].hotspot;
    }
    EXPECT_EQ(Preferences::ZoneLabel(zones[4]), "Hotspot 5: Top edge (Hotspot 4 fires instead)");
}

TEST(HotspotZones, LabelsStayOnTheScreenAndDoNotCoverEachOther) {
    const std::vector<Zone> zones = {{0, kLeftClick, {}, {48, 0, 1024, 768}, {}},
                                     {1, kTopEdge, {}, {46, 0, 1023, 12}, {}},
                                     {2, kBottomRightCorner, {}, {992, 736, 1024, 768}, {}}};
    const std::vector<Rect> labels = PlaceZoneLabels(zones, {{100, 20}, {100, 20}, {100, 20}}, kScreen);
    EXPECT_EQ(labels, (std::vector<Rect>{{52, 4, 152, 24}, {50, 25, 150, 45}, {924, 740, 1024, 760}}));
}

TEST(ZonesLife, GoesAfterFourSecondsOrAtAPressThatFollowsAllBeingUp) {
    struct Look {
        int elapsed;
        bool down;
        bool stays;
    };
    const std::vector<std::vector<Look>> runs = {
        {{0, false, true}, {3999, false, true}, {4000, false, false}},
        {{0, true, true}, {500, true, true}, {600, false, true}, {700, true, false}}, // the key that asked, held
    };
    for (const std::vector<Look>& run : runs) {
        ZonesLife life;
        for (const Look& look : run)
            EXPECT_EQ(life.Stays(look.elapsed, look.down), look.stays) << look.elapsed;
    }
}
