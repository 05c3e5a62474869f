// The two timers that make hotspots work. Timer3 (10 ms, from the main form's creation)
// samples the mouse into one pending event; Timer1 (100 ms, from the end of start-up)
// turns that event, a hot key or a requested hotspot into the hotspot it fires, and
// fires it: its menu opens or closes, or its program or command runs.
#pragma once

#include "desktop/click_tracker.h"
#include "desktop/hotspot_dispatch.h"
#include "desktop/win/early_keys_hook.h"

#include <windows.h>

class Form1;
class Form2;

class HotspotTimers {
public:
    // The timers' identifiers on the main form's window.
    static constexpr UINT_PTR kTimer1Id = 1;
    static constexpr UINT_PTR kTimer3Id = 3;

    explicit HotspotTimers(Form1& form1) : form1_(form1) {}

    // Timer3 runs from here, on the main form's window.
    void Start(HWND window);
    void EnableTimer1();
    // Both timers stop for good: the program is ending.
    void Stop();

    // Called for Timer3's message only: the message's cursor position is the tick's.
    void Timer3_Timer();
    void Timer1_Timer();

private:
    class Timer1Pause;
    void DisableTimer1();
    // Timer1's work: a requested hotspot, the general hot key, a hotspot's hot key or
    // the pending event, in that order. False when the tick took a requested hotspot or
    // a click instead of looking at the hot keys: what Timer3 sampled of them is then
    // kept for the next tick, so a tap that comes with a click is not lost.
    bool Dispatch();
    // The toggle and group rule, then the hotspot's action; the menu it opened, if any.
    Form2* Fire(int hotspot, MenuWindow::Point origin, MenuWindow::Point cursor);

    Form1& form1_;
    HWND window_ = nullptr;
    bool timer1Enabled_ = false;
    bool stopped_ = false;
    Hotspots::ClickTracker tracker_;
    Hotspots::CursorLook cursorLook_;
    Hotspots::PendingEvent event_;
    Hotspots::HotKeyWatch hotKeys_;
    EarlyKeysHook earlyKeys_{hotKeys_};
};
