// The menus the program starts with: the menu file, or the default menus adapted to
// this machine when there is none yet, or no menus at all when both files are missing.
#pragma once

#include "core/program_folders.h"
#include "core/settings.h"
#include "menus/menu_records.h"

#include <string_view>

namespace MenuStore {

inline constexpr std::string_view kDefaultMenuFileName = "DefMenu.ini";

enum class StartupMenus { MenuFile, DefaultMenus, None };

// Loads TvMenus.ini of the program folder when it exists. Otherwise loads DefMenu.ini,
// points its paths at this machine's system and Programs folders and asks whether the
// taskbar should be replaced at start-up (Yes sets settings.TaskbarRunOnStartup).
// When both are missing it says so and leaves the table without menus. Returns which
// of the three happened.
StartupMenus LoadMenusAtStartup(MenuTable& table, std::string_view programFolder, std::string_view systemFolder,
                                const ProgramFolders& shellFolders, SettingsRec& settings);

} // namespace MenuStore
