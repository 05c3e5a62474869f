// The Global page's start-up part: a check box for each hotspot, checked when it opens
// at start-up. Hotspots that do not exist hide their box.
#pragma once

#include "core/settings.h"
#include "prefs/win/dialog_font.h"

#include <windows.h>

#include <array>
#include <functional>

namespace PrefsWin {

class StartupHotspots {
public:
    // The room it takes on the page, in dialog units: a line of text and five rows of two.
    static constexpr int kRoomHeight = 72;
    static constexpr int kFirstId = 950;

    // Makes the check boxes in the room of the page's panel; the panel hands their commands on.
    StartupHotspots(HWND panel, RECT room, const DialogFont& font, SettingsRec& working, std::function<void()> changed);

    // Shows the working copy's hotspots and start-up list again.
    void Refresh();
    // A command of one of its check boxes; false when it is none of them.
    bool Command(int id, int code);

private:
    SettingsRec& working_;
    std::function<void()> changed_;
    std::array<HWND, 10> boxes_{};
};

} // namespace PrefsWin
