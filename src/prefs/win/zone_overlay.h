// The hotspots' zones shown on the screen for a few seconds: one layered window over the
// whole screen, click-through, each zone hatched in its hotspot's colour with its name.
// It goes after about four seconds, or at the next key or mouse button pressed.
#pragma once

#include "core/settings.h"
#include "desktop/hotspot_zones.h"
#include "win/form_window.h"
#include "win/handles.h"

#include <windows.h>

#include <string>
#include <vector>

namespace PrefsWin {

class ZoneOverlay {
public:
    static constexpr const wchar_t* kClassName = L"Tarvex2HotspotZones";

    ZoneOverlay() = default;
    ZoneOverlay(const ZoneOverlay&) = delete;
    ZoneOverlay& operator=(const ZoneOverlay&) = delete;

    // Shows the zones of the hotspots, in place of any shown before, over the owner.
    void Show(HWND owner, const std::vector<HotspotRec>& hotSpots);
    // Takes the zones down at once.
    void Hide() { window_.reset(); }

private:
    friend LRESULT CALLBACK Win::FormWindowProc<ZoneOverlay>(HWND, UINT, WPARAM, LPARAM);
    LRESULT HandleMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    void Form_Paint();
    void tmrLife_Timer();

    struct Shown {
        Hotspots::Zone zone;
        std::wstring label;
        RECT labelRect{};
    };
    std::vector<Shown> shown_;
    Hotspots::ZonesLife life_;
    ULONGLONG shownAt_ = 0;
    Win::UniqueFont font_;
    Win::UniqueWindow window_;
};

} // namespace PrefsWin
