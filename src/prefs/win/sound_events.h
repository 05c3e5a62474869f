// The sound page's own part: the seven sound events with their files, a button that
// picks a "*.wav *.mid" file for the selected event, one that plays it, one that
// removes it, and one that clears them all after a warning.
#pragma once

#include "core/settings.h"
#include "prefs/win/dialog_font.h"

#include <windows.h>

#include <functional>
#include <string>

namespace PrefsWin {

class SoundEvents {
public:
    // The room it takes on the page, in dialog units.
    static constexpr int kRoomHeight = 108;

    // Makes the controls in the room of the page's panel; the panel hands their commands on.
    SoundEvents(HWND panel, RECT room, const DialogFont& font, SettingsRec& working, std::string programFolder,
                std::function<void()> changed);

    // Shows the working copy's sounds again.
    void Refresh();
    // A command of one of its controls; false when it is none of them.
    bool Command(int id, int code);

    static constexpr int kFirstId = 900;

private:
    int Selected() const;
    void SetSound(int event, std::string path);
    void cmdBrowse_Click();
    void cmdPlay_Click();
    void cmdClearAll_Click();

    SettingsRec& working_;
    std::string programFolder_;
    std::function<void()> changed_;
    HWND list_ = nullptr;
    HWND note_ = nullptr;
};

} // namespace PrefsWin
