// The default menus (DefMenu.ini) and the two start-up messages around them. The
// default file names folders as they were on the machine it was written on; after
// loading it, those prefixes are replaced by this machine's folders.
#pragma once

#include "core/program_folders.h"
#include "menus/menu_records.h"

#include <string>
#include <string_view>

namespace DefaultMenus {

inline constexpr std::string_view kSystemPrefix = "C:\\WINNT\\System32\\";
inline constexpr std::string_view kUserProgramsPrefix = "C:\\WINNT\\Profiles\\Administrator\\Start Menu\\Programs\\";
inline constexpr std::string_view kCommonProgramsPrefix = "C:\\WINNT\\Profiles\\All Users\\Start Menu\\Programs\\";

// Replaces the prefixes (matched without regard to case, as Windows paths are) in
// every item's ICONPATH (the system folder) and PATH (the two Programs folders), and
// in the second folder (ARG) of folder items. Folders may end in a backslash or not.
void AdaptPaths(MenuTable& table, const ProgramFolders& folders, std::string_view systemFolder);

inline constexpr const char* kInitializationTitle = "Tarvex Initialization";
inline constexpr const char* kProblemTitle = "Tarvex Initialization Problem";

std::string TaskbarQuestionText();
std::string MissingMenuFilesText();

// Asks whether the taskbar should be replaced from now on; true on Yes.
bool AskTaskbarOnStartup();

// Tells the user that neither menu file was found.
void ShowMissingMenuFiles();

} // namespace DefaultMenus
