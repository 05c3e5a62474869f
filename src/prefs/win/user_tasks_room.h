// The Tasklist and Systray page's user tasks: the list by name with Add and Delete, and
// the selected task's name, executable and icon, each file with its Browse button. The
// edits go into the working copy, so that OK and Apply write them and Cancel drops them.
#pragma once

#include "core/settings.h"
#include "prefs/win/dialog_font.h"

#include <windows.h>

#include <array>
#include <functional>

namespace PrefsWin {

class UserTasksRoom {
public:
    // The room it takes on the page, in dialog units.
    static constexpr int kRoomHeight = 100;
    static constexpr int kFirstId = 600;

    UserTasksRoom(HWND panel, RECT room, const DialogFont& font, SettingsRec& working, std::function<void()> changed);

    // Shows the working copy's tasks again.
    void Refresh();
    // A command of one of its controls; false when it is none of them.
    bool Command(int id, int code);
    HWND note() const { return note_; }

private:
    enum Field { kName, kExec, kIcon };

    UserTaskRec* Selected();
    void ShowTask();
    void Field_Changed(Field field);
    void cmdAdd_Click();
    void cmdDelete_Click();
    void cmdBrowse_Click(Field field);

    HWND panel_;
    SettingsRec& working_;
    std::function<void()> changed_;
    int selected_ = 0;
    bool showing_ = false; // the room is setting its controls itself
    HWND list_ = nullptr;
    HWND delete_ = nullptr;
    HWND note_ = nullptr;
    std::array<HWND, 3> fields_{};
    std::array<HWND, 3> labels_{};
    std::array<HWND, 2> browse_{}; // for the executable and the icon
};

} // namespace PrefsWin
