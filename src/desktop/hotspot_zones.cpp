#include "desktop/hotspot_zones.h"

#include "desktop/click_tracker.h"
#include "desktop/hotspot_dispatch.h"

#include <algorithm>
#include <array>

namespace Hotspots {

namespace {

using MenuWindow::Rect;

constexpr int kLabelInset = 4;

Rect Intersect(const Rect& a, const Rect& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}

bool Overlap(const Rect& a, const Rect& b) {
    return !Intersect(a, b).Empty();
}

// The pixels a bump fires on, as the click tracker picks its code: a corner is its one
// pixel, an edge its line without the corners, which take their own codes.
struct BumpZone {
    Rect fires;
    Rect shown;
};
std::optional<BumpZone> Bump(std::int16_t event, MenuWindow::Size screen) {
    const int w = screen.width;
    const int h = screen.height;
    const int c = kShownCorner;
    const int e = kShownEdge;
    switch (event) {
    case kTopLeftCorner: return BumpZone{{0, 0, 1, 1}, {0, 0, c, c}};
    case kBottomLeftCorner: return BumpZone{{0, h - 1, 1, h}, {0, h - c, c, h}};
    case kTopRightCorner: return BumpZone{{w - 1, 0, w, 1}, {w - c, 0, w, c}};
    case kBottomRightCorner: return BumpZone{{w - 1, h - 1, w, h}, {w - c, h - c, w, h}};
    case kTopEdge: return BumpZone{{1, 0, w - 1, 1}, {1, 0, w - 1, e}};
    case kBottomEdge: return BumpZone{{1, h - 1, w - 1, h}, {1, h - e, w - 1, h}};
    case kLeftEdge: return BumpZone{{0, 1, 1, h - 1}, {0, 1, e, h - 1}};
    case kRightEdge: return BumpZone{{w - 1, 1, w, h - 1}, {w - e, 1, w, h - 1}};
    default: return std::nullopt;
    }
}

// The dispatch gives a bump to the first hotspot of its code, and a middle click to the
// first "middle click anywhere" hotspot when there is one.
std::optional<int> TakenBy(const std::vector<HotspotRec>& hotSpots, int index) {
    const std::int16_t event = hotSpots[static_cast<std::size_t>(index)].MouseButton;
    const std::int16_t taker = event == kMiddleClick ? kMiddleAnywhere : event;
    if (event != kMiddleClick && event <= kRightClick)
        return std::nullopt;
    for (int other = 0; other < static_cast<int>(hotSpots.size()); ++other)
        if (other != index && hotSpots[static_cast<std::size_t>(other)].MouseButton == taker &&
            (event == kMiddleClick || other < index))
            return other;
    return std::nullopt;
}

} // namespace

std::vector<Zone> HotspotZones(const std::vector<HotspotRec>& hotSpots, MenuWindow::Size screen,
                               const WindowRectOf& windowRect) {
    const Rect screenRect{0, 0, screen.width, screen.height};
    std::vector<Zone> zones;
    for (int index = 0; index < static_cast<int>(hotSpots.size()); ++index) {
        const HotspotRec& hotspot = hotSpots[static_cast<std::size_t>(index)];
        Zone zone{index, hotspot.MouseButton, {}, {}, TakenBy(hotSpots, index)};
        if (hotspot.MouseButton >= kLeftClick && hotspot.MouseButton <= kRightClick) {
            std::optional<Rect> window =
                hotspot.App == kDesktopApp ? std::optional<Rect>(screenRect) : windowRect(hotspot.App);
            if (!window)
                continue;
            Rect area{window->left + hotspot.x1, window->top + hotspot.y1, window->left + hotspot.x2 + 1,
                      window->top + hotspot.y2 + 1};
            zone.fires = zone.shown = Intersect(Intersect(area, *window), screenRect);
        } else if (std::optional<BumpZone> bump = Bump(hotspot.MouseButton, screen)) {
            zone.fires = bump->fires;
            zone.shown = bump->shown;
        }
        if (!zone.fires.Empty())
            zones.push_back(zone);
    }
    return zones;
}

std::vector<Rect> PlaceZoneLabels(const std::vector<Zone>& zones, const std::vector<MenuWindow::Size>& labels,
                                  MenuWindow::Size screen) {
    std::vector<Rect> placed;
    for (std::size_t i = 0; i < zones.size() && i < labels.size(); ++i) {
        const MenuWindow::Size size = labels[i];
        auto onScreen = [&](int left, int top) {
            left = std::max(0, std::min(left, screen.width - size.width));
            top = std::max(0, std::min(top, screen.height - size.height));
            return MenuWindow::RectAt({left, top}, size);
        };
        Rect label = onScreen(zones[i].shown.left + kLabelInset, zones[i].shown.top + kLabelInset);
        // Each move goes below a label placed earlier, so this ends within as many moves.
        for (std::size_t moves = 0; moves < placed.size(); ++moves) {
            auto covered = std::find_if(placed.begin(), placed.end(), [&](const Rect& r) { return Overlap(r, label); });
            if (covered == placed.end())
                break;
            label = onScreen(label.left, covered->bottom + 1);
        }
        placed.push_back(label);
    }
    return placed;
}

MenuWindow::Colour ZoneColour(int hotspot) {
    static constexpr std::array<MenuWindow::Colour, 10> kColours = {
        0x0000D0FF, 0x00FF8000, 0x0000C000, 0x000000FF, 0x00FF00C0,
        0x00C0C000, 0x000080FF, 0x00800080, 0x00008080, 0x00404040};
    return kColours[static_cast<std::size_t>(hotspot) % kColours.size()];
}

bool ZonesLife::Stays(int elapsedMs, bool inputDown) {
    if (elapsedMs >= kShownFor || (inputDown && allUpSeen_))
        return false;
    allUpSeen_ = allUpSeen_ || !inputDown;
    return true;
}

} // namespace Hotspots
