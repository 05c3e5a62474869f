// The user's hands: mouse moves and clicks and key presses through SendInput, which
// the program sees as real input because both share Wine's virtual desktop.
#pragma once

#include "harness/wait.h"

#include <windows.h>

#include <functional>
#include <initializer_list>

namespace E2e {

enum class Button { Left, Right, Middle };

// False when the cursor would not stay at the point.
bool MoveMouse(int x, int y);
// One move, waiting only until the cursor is there: for sweeps of many moves, where
// MoveMouse's check that the cursor stays would take most of the time.
bool SweepMouseTo(int x, int y);
// The button is held for `hold`: the program's hotspots sample the buttons on a timer,
// whose messages wait while the machine is busy.
bool Click(int x, int y, Button button = Button::Left, Duration hold = 50ms);
// A click whose button events carry the point themselves: while a popup menu of the
// program tracks the mouse, Wine keeps the cursor where it is against moves from
// another process, but the menu still sees where the click is.
void ClickDuringCapture(int x, int y);
// Two clicks at a point in quick succession, well within a double-click time.
bool QuickClicks(int x, int y);
// Presses the left button at one point, moves to another in steps and lets go there;
// false when the cursor would not stay at the first point. beforeRelease runs while the
// button is still down at the end (a screenshot of what the drag shows).
bool Drag(int fromX, int fromY, int toX, int toY, const std::function<void()>& beforeRelease = {});
// Clicks the middle of a window.
bool ClickWindow(HWND hwnd);
// Presses and releases one key.
void PressKey(WORD virtualKey);
// A modifier and a key pressed together, held for a moment and let go: a hot key tapped
// more briefly than the program's 100 ms look at the hot keys.
void TapKeys(WORD modifier, WORD virtualKey, Duration hold);
// A modifier and a key and then each of keys pressed and let go, all in one SendInput:
// a hot key followed by keys faster than any hand types them.
void HotKeyThenKeys(WORD modifier, WORD virtualKey, std::initializer_list<WORD> keys);

// Holds a key down for as long as the object lives: a click with Ctrl held.
class HeldKey {
public:
    explicit HeldKey(WORD virtualKey);
    ~HeldKey();
    HeldKey(const HeldKey&) = delete;
    HeldKey& operator=(const HeldKey&) = delete;

private:
    WORD key_;
};

} // namespace E2e
