// Where on the screen each hotspot fires, as the click tracker and the dispatch decide it,
// so that the preferences can show the zones: a click's rectangle on its window, the one
// pixel of a corner, the one-pixel line of an edge between its corners. A middle click
// anywhere, or an event the tracker never raises, has no zone.
#pragma once

#include "core/settings.h"
#include "menuwindow/layout/geometry.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace Hotspots {

struct Zone {
    int hotspot = 0;
    std::int16_t event = 0;
    MenuWindow::Rect fires; // the screen pixels where the event fires it
    MenuWindow::Rect shown; // the same, a corner or edge grown inwards so that it can be seen
    std::optional<int> takenBy; // an earlier hotspot that every such event fires instead
};

// How far a corner's pixel and an edge's line are grown into the screen to be shown.
inline constexpr int kShownCorner = 32;
inline constexpr int kShownEdge = 12;

// The rectangle of the open top-level window with a title; none when none is open. The
// desktop ("Desktop") is the screen and is not asked for.
using WindowRectOf = std::function<std::optional<MenuWindow::Rect>(std::string_view title)>;

// The zones of the hotspots in index order. A click's rectangle (bounds included) counts
// from its window's corner and is cut to the window and the screen; one that is left
// empty, or whose window is not open, has no zone.
std::vector<Zone> HotspotZones(const std::vector<HotspotRec>& hotSpots, MenuWindow::Size screen,
                               const WindowRectOf& windowRect);

// Places each zone's label (of the measured size) inside the top-left of what is shown,
// on the screen, moved down below the labels placed before it that it would cover.
std::vector<MenuWindow::Rect> PlaceZoneLabels(const std::vector<Zone>& zones,
                                              const std::vector<MenuWindow::Size>& labels, MenuWindow::Size screen);

// A colour of its own for each of the ten hotspots, 0x00BBGGRR.
MenuWindow::Colour ZoneColour(int hotspot);

// How long the zones stay: about four seconds, or until a key or a mouse button goes down
// after all were up, so that the press that asked for them, if still held, does not count.
class ZonesLife {
public:
    static constexpr int kShownFor = 4000; // ms

    // One look: the time since they showed and whether any key or button is down. False
    // once they should go.
    bool Stays(int elapsedMs, bool inputDown);

private:
    bool allUpSeen_ = false;
};

} // namespace Hotspots
