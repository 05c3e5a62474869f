#include "desktop/click_tracker.h"

#include <cstdlib>

namespace Hotspots {

namespace {

constexpr std::int16_t kTrue = -1;
constexpr std::int16_t kLeftButton = 1;
constexpr std::int16_t kRightButton = 2;
constexpr std::int16_t kMiddleButton = 4;
constexpr int kClickSlop = 3;  // pixels a press may move and still be a click
constexpr int kTickWrap = 39; // past this the tick count starts again and a stale event goes

struct Probe {
    std::int16_t button;
    std::int16_t code;
};
constexpr Probe kProbeOrder[] = {{kLeftButton, kLeftClick}, {kRightButton, kRightClick}, {kMiddleButton, kMiddleClick}};

bool IsDown(const MouseSample& sample, std::int16_t button) {
    switch (button) {
    case kLeftButton:
        return sample.left;
    case kRightButton:
        return sample.right;
    case kMiddleButton:
        return sample.middle;
    default:
        return false;
    }
}

bool AnyDown(const MouseSample& sample) {
    return sample.left || sample.right || sample.middle;
}

// A new press is looked for on every button, in the probing order; once one is watched,
// only that one counts.
bool WatchedButtonDown(ClickTracker& tracker, PendingEvent& event, const MouseSample& sample) {
    if (!(tracker.Armed && !tracker.Pending))
        return IsDown(sample, tracker.Button);
    for (const Probe& probe : kProbeOrder) {
        if (IsDown(sample, probe.button)) {
            event.PendingClickCode = probe.code;
            tracker.Button = probe.button;
            return true;
        }
    }
    return false;
}

bool LeftPressPlace(const PendingEvent& event, const MouseSample& sample) {
    return std::abs(sample.cursor.x - event.ClickPoint.x) > kClickSlop ||
           std::abs(sample.cursor.y - event.ClickPoint.y) > kClickSlop || sample.windowAtCursor() != event.ClickWindow;
}

// A press that moved away raises nothing.
void Resolve(ClickTracker& tracker, PendingEvent& event) {
    event.PendingClick = tracker.Moved ? 0 : kTrue;
    tracker.Ticks = 0;
    tracker.Pending = 0;
}

void TrackPress(ClickTracker& tracker, PendingEvent& event, const MouseSample& sample, bool down, std::int16_t delay) {
    if (tracker.Armed && !tracker.Pending) {
        if (down) {
            event.PendingClick = 0;
            tracker.Armed = 0;
            tracker.Pending = kTrue;
            tracker.Ticks = 0;
            event.ClickPoint = sample.cursor;
            event.ClickWindow = sample.windowAtCursor();
            event.ClickMonitor = MenuWindow::MonitorNumberAt(sample.monitors, sample.cursor);
        }
    } else if (tracker.Pending && !tracker.Armed) {
        if (!down) {
            tracker.Moved = LeftPressPlace(event, sample) ? kTrue : 0;
            if (tracker.Ticks > delay)
                Resolve(tracker, event);
            tracker.Armed = kTrue;
        }
    } else if (tracker.Pending && tracker.Armed) {
        if (down && tracker.Ticks <= delay) {
            // A second press within the delay: a double click, which is the desktop's.
            tracker.Armed = 0;
            tracker.Pending = 0;
        } else if (tracker.Ticks > delay) {
            Resolve(tracker, event);
        }
    } else if (!down) {
        tracker.Armed = kTrue;
    }
}

std::int16_t BumpCode(const MenuWindow::EdgeContact& edges) {
    if (edges.left)
        return edges.top ? kTopLeftCorner : edges.bottom ? kBottomLeftCorner : kLeftEdge;
    if (edges.right)
        return edges.top ? kTopRightCorner : edges.bottom ? kBottomRightCorner : kRightEdge;
    return edges.top ? kTopEdge : kBottomEdge;
}

void TrackEdges(ClickTracker& tracker, PendingEvent& event, const MouseSample& sample, std::int16_t bumpDelay) {
    MenuWindow::EdgeContact edges = MenuWindow::OuterEdgesAt(sample.monitors, sample.cursor);
    tracker.AtEdge = edges.Any() ? kTrue : 0;
    if (!edges.Any()) {
        tracker.BumpCountdown = 0;
    } else if (tracker.BumpCountdown == 0 || AnyDown(sample)) {
        tracker.BumpCountdown = bumpDelay;
    } else if (tracker.BumpCountdown == 1) {
        event.PendingClick = kTrue;
        event.PendingClickCode = BumpCode(edges);
        event.ClickPoint = sample.cursor; // where an OnMouse menu opens
        event.ClickMonitor = edges.monitor;
        tracker.Ticks = 0;
        tracker.BumpCountdown = kBumpFired;
    } else if (tracker.BumpCountdown != kBumpFired) {
        --tracker.BumpCountdown;
    }
}

} // namespace

MenuWindow::Point CursorLook::Look(MenuWindow::Point messagePosition,
                                   const std::function<MenuWindow::Point()>& askCursor) {
    if (messagePosition != message_) {
        message_ = messagePosition;
        known_ = messagePosition;
        still_ = 0;
    } else if (++still_ % kAskEvery == 0) {
        known_ = askCursor();
    }
    return known_;
}

bool TrackMouse(ClickTracker& tracker, PendingEvent& event, const MouseSample& sample, TrackerDelays delays) {
    if (tracker.Button == 0)
        tracker.Armed = kTrue;
    bool down = WatchedButtonDown(tracker, event, sample);
    std::int16_t delay = tracker.Button == kLeftButton ? delays.doubleClick : 1;
    TrackPress(tracker, event, sample, down, delay);
    if (!tracker.Pending)
        TrackEdges(tracker, event, sample, delays.bump);
    if (++tracker.Ticks > kTickWrap) {
        tracker.Ticks = 0;
        event.PendingClick = 0;
    }
    return event.PendingClick != 0;
}

} // namespace Hotspots
