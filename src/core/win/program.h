// Everything the program holds for its whole run. wWinMain owns the one instance and
// hands it to the forms, which read and change it on the one user-interface thread.
#pragma once

#include "core/exit_rules.h"
#include "core/program_values.h"
#include "core/save_notices.h"
#include "core/settings.h"
#include "desktop/command_table.h"
#include "menus/menu_records.h"
#include "menuwindow/win/open_menus.h"

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

// Sets a busy flag for as long as it lives, and then puts back what it was: a scope
// inside another one (a theme loaded while settings are applied) leaves the flag set.
class BusyScope {
public:
    explicit BusyScope(bool& flag) : flag_(flag), was_(flag) { flag_ = true; }
    ~BusyScope() { flag_ = was_; }
    BusyScope(const BusyScope&) = delete;
    BusyScope& operator=(const BusyScope&) = delete;

private:
    bool& flag_;
    bool was_;
};

struct Program {
    HINSTANCE instance = nullptr;
    int iconResource = 0;  // the program's icon among the exe's resources
    std::string arguments; // the command line without the program's name
    ProgramValues values;
    SettingsRec settings;
    ExitRules::DesktopChanges desktopChanges;
    MenuTable menus;     // the menus of the menu file
    OpenMenus openMenus; // the cascade list: every open menu window and its record
    // A hotspot that other parts ask to have fired on Timer1's next tick; -1 for none.
    std::int16_t RequestedHotspot = -1;
    // While either is set Timer1 fires no hotspot, and a click waits for it: a question of
    // the internal commands is up; menus are being rebuilt or settings applied.
    bool QuestionBusy = false;
    bool RebuildBusy = false;
    // The internal commands as the menu editor and the hotspots page offer them.
    std::vector<CommandTable::CommandRow> commandTable;
    // The kinds of file whose failed save the user was told of in this run.
    SaveNotices::Told saveNotices;
};
