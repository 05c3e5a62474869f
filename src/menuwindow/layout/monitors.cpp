#include "menuwindow/layout/monitors.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace MenuWindow {

namespace {

bool OnAny(Monitors monitors, Point point) {
    return MonitorNumberAt(monitors, point) != 0;
}

// The square of the distance from a point to the nearest pixel of a rectangle.
std::int64_t DistanceSquared(Rect rect, Point point) {
    std::int64_t dx = std::max({rect.left - point.x, 0, point.x - (rect.right - 1)});
    std::int64_t dy = std::max({rect.top - point.y, 0, point.y - (rect.bottom - 1)});
    return dx * dx + dy * dy;
}

} // namespace

int MonitorNumberAt(Monitors monitors, Point point) {
    for (std::size_t i = 0; i < monitors.size(); ++i) {
        if (monitors[i].bounds.Contains(point))
            return static_cast<int>(i) + 1;
    }
    return 0;
}

Monitor NearestMonitor(Monitors monitors, Point point) {
    const Monitor* nearest = nullptr;
    std::int64_t best = std::numeric_limits<std::int64_t>::max();
    for (const Monitor& monitor : monitors) {
        std::int64_t distance = DistanceSquared(monitor.bounds, point);
        if (distance < best) {
            best = distance;
            nearest = &monitor;
        }
    }
    return nearest ? *nearest : Monitor{};
}

Monitor PrimaryMonitor(Monitors monitors) {
    auto primary = std::ranges::find_if(monitors, &Monitor::primary);
    if (primary != monitors.end())
        return *primary;
    return monitors.empty() ? Monitor{} : monitors.front();
}

Monitor MonitorOfPlace(Monitors monitors, Point place) {
    int number = MonitorNumberAt(monitors, place);
    return number ? monitors[static_cast<std::size_t>(number) - 1] : PrimaryMonitor(monitors);
}

EdgeContact OuterEdgesAt(Monitors monitors, Point point) {
    EdgeContact contact;
    contact.monitor = MonitorNumberAt(monitors, point);
    if (!contact.monitor)
        return contact;
    const Rect& bounds = monitors[static_cast<std::size_t>(contact.monitor) - 1].bounds;
    contact.left = point.x == bounds.left && !OnAny(monitors, {point.x - 1, point.y});
    contact.right = point.x == bounds.right - 1 && !OnAny(monitors, {point.x + 1, point.y});
    contact.top = point.y == bounds.top && !OnAny(monitors, {point.x, point.y - 1});
    contact.bottom = point.y == bounds.bottom - 1 && !OnAny(monitors, {point.x, point.y + 1});
    return contact;
}

bool CoversItsMonitor(Monitors monitors, Rect window, bool captioned) {
    if (captioned || window.Empty())
        return false;
    Point centre{window.left + window.Width() / 2, window.top + window.Height() / 2};
    Rect bounds = NearestMonitor(monitors, centre).bounds;
    return !bounds.Empty() && window.left <= bounds.left && window.top <= bounds.top &&
           window.right >= bounds.right && window.bottom >= bounds.bottom;
}

} // namespace MenuWindow
