#include "desktop/click_tracker.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Hotspots;

namespace {

const MenuWindow::Monitor kScreen{{0, 0, 1024, 768}, {0, 0, 1024, 738}, 96, true};

// Some ticks of one mouse state.
struct Ticks {
    int count;
    char button = ' '; // 'L', 'R', 'M' held, ' ' none
    MenuWindow::Point at{500, 400};
    std::uintptr_t window = 1;
};

// Runs the ticks through a fresh tracker; Timer1 takes each event as it comes unless
// it is busy. Returns the events taken and the one left waiting.
struct Run {
    std::vector<std::int16_t> taken;
    PendingEvent left;
};
Run Track(const std::vector<Ticks>& script, TrackerDelays delays = {12, 5}, bool busy = false) {
    ClickTracker tracker;
    Run run;
    for (const Ticks& ticks : script) {
        std::uintptr_t window = ticks.window;
        MouseSample sample{ticks.button == 'L', ticks.button == 'R', ticks.button == 'M', ticks.at,
                           [window] { return window; }, MenuWindow::Monitors(&kScreen, 1)};
        for (int i = 0; i < ticks.count; ++i) {
            if (TrackMouse(tracker, run.left, sample, delays) && !busy) {
                run.taken.push_back(run.left.PendingClickCode);
                run.left.PendingClick = 0;
            }
        }
    }
    return run;
}

using Codes = std::vector<std::int16_t>;

} // namespace

TEST(ClickTracker, TurnsPressesIntoClicksByTheRules) {
    const MenuWindow::Point from{500, 400};
    struct Case {
        const char* what;
        std::vector<Ticks> script;
        Codes expected;
        TrackerDelays delays{12, 5};
    } cases[] = {
        {"a left click, once the delay is over", {{5, 'L'}, {20}}, {kLeftClick}},
        {"a left click waits out the delay", {{5, 'L'}, {7}}, {}},
        {"a double click is the desktop's", {{5, 'L'}, {3}, {5, 'L'}, {30}}, {}},
        {"with no delay a click resolves on release", {{2, 'L'}, {1}}, {kLeftClick}, {0, 5}},
        {"a long press resolves on release", {{20, 'L'}, {1}}, {kLeftClick}},
        {"right clicks wait one tick", {{2, 'R'}, {1}, {2, 'R'}, {1}}, {kRightClick, kRightClick}},
        {"a middle click", {{2, 'M'}, {3}}, {kMiddleClick}},
        {"3 pixels is still a click", {{5, 'L', from}, {20, ' ', {503, 397}}}, {kLeftClick}},
        {"4 pixels is a drag", {{5, 'L', from}, {20, ' ', {504, 400}}}, {}},
        {"released over another window", {{5, 'L', from, 1}, {20, ' ', from, 2}}, {}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Track(c.script, c.delays).taken, c.expected) << c.what;
}

TEST(ClickTracker, BumpsFireTheirCornerOrEdgeOncePerVisitAfterTheDelay) {
    struct Case {
        MenuWindow::Point at;
        std::int16_t code;
    } cases[] = {{{0, 0}, kTopLeftCorner},      {{0, 767}, kBottomLeftCorner}, {{1023, 0}, kTopRightCorner},
                 {{1023, 767}, kBottomRightCorner}, {{500, 0}, kTopEdge},         {{500, 767}, kBottomEdge},
                 {{0, 300}, kLeftEdge},           {{1023, 300}, kRightEdge}};
    for (const Case& c : cases)
        EXPECT_EQ(Track({{40000, ' ', c.at}}).taken, Codes{c.code}) << c.at.x << "," << c.at.y;

    EXPECT_EQ(Track({{5, ' ', {0, 0}}}).taken, Codes{}) << "not before the delay";
    EXPECT_EQ(Track({{6, ' ', {0, 0}}}).taken, Codes{kTopLeftCorner});
    EXPECT_EQ(Track({{10, ' ', {0, 0}}, {1}, {10, ' ', {0, 0}}}).taken, (Codes{kTopLeftCorner, kTopLeftCorner}))
        << "leaving the edge starts a new visit";
    EXPECT_EQ(Track({{10, ' ', {1, 1}}}).taken, Codes{}) << "one pixel in is no edge";
    EXPECT_EQ(Track({{10, 'L', {0, 300}}}).taken, Codes{}) << "no bump while a button is down";
}

TEST(ClickTracker, AnEventNobodyTakesGoesAfterFortyTicks) {
    PendingEvent left = Track({{5, 'L'}, {14}}, {12, 5}, true).left;
    EXPECT_TRUE(left.PendingClick);
    EXPECT_EQ(left.ClickPoint, (MenuWindow::Point{500, 400}));
    EXPECT_FALSE(Track({{5, 'L'}, {14 + 40}}, {12, 5}, true).left.PendingClick);
}

TEST(ClickTracker, TheCursorComesFromTheMessageWhileItMovesAndIsAskedForEveryFifthLookWhileItStandsStill) {
    CursorLook look;
    int asked = 0;
    const MenuWindow::Point corner{0, 0};
    auto ask = [&] { ++asked; return corner; };
    const MenuWindow::Point stale{500, 400}; // the message's position, stuck while the cursor went on
    for (int i = 0; i < CursorLook::kAskEvery; ++i) // the first look, then four standing still
        EXPECT_EQ(look.Look(stale, ask), stale);
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(look.Look(stale, ask), corner);
    EXPECT_EQ(look.Look(stale, ask), corner) << "what the cursor said holds in between";
    EXPECT_EQ(look.Look({510, 400}, ask), (MenuWindow::Point{510, 400})) << "a moving position is taken as it is";
    EXPECT_EQ(asked, 1);
}
