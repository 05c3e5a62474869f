// Timer3's half of the hotspots: every 10 ms the mouse buttons, the cursor and the window
// under it go in, and at most one pending event comes out: a click (left, right or
// middle) or a bump against a screen edge or corner. Timer1 consumes the event.
#pragma once

#include "menuwindow/layout/geometry.h"
#include "menuwindow/layout/monitors.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace Hotspots {

// Event codes: the value of a hotspot's MouseButton and of a pending event.
inline constexpr std::int16_t kLeftClick = 0;
inline constexpr std::int16_t kMiddleClick = 1;
inline constexpr std::int16_t kRightClick = 2;
inline constexpr std::int16_t kTopLeftCorner = 3;
inline constexpr std::int16_t kBottomLeftCorner = 4;
inline constexpr std::int16_t kTopRightCorner = 5;
inline constexpr std::int16_t kBottomRightCorner = 6;
inline constexpr std::int16_t kTopEdge = 7;
inline constexpr std::int16_t kBottomEdge = 8;
inline constexpr std::int16_t kLeftEdge = 9;
inline constexpr std::int16_t kRightEdge = 10;
inline constexpr std::int16_t kMiddleAnywhere = 11;

// The one event waiting for Timer1, with where and on which window its press began.
struct PendingEvent {
    std::int16_t PendingClick = 0; // -1 while an event waits
    std::int16_t PendingClickCode = 0;
    MenuWindow::Point ClickPoint;
    std::uintptr_t ClickWindow = 0;
    int ClickMonitor = 0; // the number of the monitor it happened on; 0 for none
};

// Timer3's private state; -1 is true and 0 false, as in the settings' numbers.
struct ClickTracker {
    std::int16_t Armed = 0;   // all buttons up, a new press awaited
    std::int16_t Pending = 0; // between a press and its resolution
    std::int16_t Ticks = 0;   // ticks since the press
    std::int16_t Moved = 0;   // the cursor left the press point or the press window
    std::int16_t Button = 0;  // the button watched: 1 left, 2 right, 4 middle
    std::int16_t AtEdge = 0;  // the cursor touches a screen edge
    std::int16_t BumpCountdown = 0;
};

// One look at the mouse.
struct MouseSample {
    bool left = false;
    bool right = false;
    bool middle = false;
    MenuWindow::Point cursor;
    // The window under the cursor, asked for only when a press begins or ends: finding
    // it is the dearest part of a look, and most looks need none.
    std::function<std::uintptr_t()> windowAtCursor;
    // Bumps are raised on the outer edges of the whole desktop.
    MenuWindow::Monitors monitors;
};

struct TrackerDelays {
    std::int16_t doubleClick = 12; // GenDblClickDelay: ticks a left click waits for a second
    std::int16_t bump = 5;         // GenBumpDelay: ticks the cursor rests on an edge
};

// A bump's countdown once it fired: it stays so until the cursor leaves the edge, so a
// bump fires once per visit, however long the cursor rests there.
inline constexpr std::int16_t kBumpFired = 32767;

// Where the cursor is, at the least cost: the position the timer message carries while
// it moves; while it stands still, the cursor itself every few looks, and what that said
// in between. Under Wine the message's position goes stale while another program's
// window has the foreground, and asking for the cursor costs a query of the display on
// every look.
class CursorLook {
public:
    static constexpr int kAskEvery = 5;

    MenuWindow::Point Look(MenuWindow::Point messagePosition, const std::function<MenuWindow::Point()>& askCursor);

private:
    std::optional<MenuWindow::Point> message_;
    MenuWindow::Point known_;
    int still_ = 0;
};

// One tick of Timer3. True when an event waits for Timer1 after it.
bool TrackMouse(ClickTracker& tracker, PendingEvent& event, const MouseSample& sample, TrackerDelays delays);

} // namespace Hotspots
