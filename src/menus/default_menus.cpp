#include "menus/default_menus.h"

#include "core/message_box.h"
#include "core/text.h"

namespace DefaultMenus {

namespace {

std::string WithClosingBackslash(std::string_view folder) {
    std::string result(folder);
    if (result.empty() || result.back() != '\\')
        result += '\\';
    return result;
}

// Prefixes end in a backslash; so does the replacement, so the rest of the path
// follows exactly one separator. An unknown folder leaves the path as it is.
bool ReplacePrefix(std::string& path, std::string_view prefix, std::string_view folder) {
    if (folder.empty() || !Text::StartsWithIgnoreCase(path, prefix))
        return false;
    path.replace(0, prefix.size(), WithClosingBackslash(folder));
    return true;
}

void AdaptProgramsPath(std::string& path, const ProgramFolders& folders) {
    if (!ReplacePrefix(path, kUserProgramsPrefix, folders.Programs))
        ReplacePrefix(path, kCommonProgramsPrefix, folders.CommonPrograms);
}

} // namespace

void AdaptPaths(MenuTable& table, const ProgramFolders& folders, std::string_view systemFolder) {
    for (MenuItemRec& item : table.pool) {
        if (item.owner < 0)
            continue;
        ReplacePrefix(item.ICONPATH, kSystemPrefix, systemFolder);
        AdaptProgramsPath(item.PATH, folders);
        // A folder item's second folder is a path of the same kind: the default
        // "Programs" item lists the user's and the common Programs folders together.
        if (item.TYPE == kItemFolderPath)
            AdaptProgramsPath(item.ARG, folders);
    }
}

std::string TaskbarQuestionText() {
    return "Tarvex can automatically replace the Windows Taskbar...\n"
           "Would you like this feature to be turned on by default?";
}

std::string MissingMenuFilesText() {
    return "WARNING! Tarvex could not find the TvMenus.ini and DefMenu.ini\n"
           "files in the current working folder!\n"
           "\n"
           "This usually means that the shortcut you're using to run Tarvex\n"
           "points to the wrong 'Start in' location OR that instead of creating a shortcut\n"
           "to Tarvex in your startup folder you actually moved the executable itself.";
}

bool AskTaskbarOnStartup() {
    return MessageBoxes::MsgBox(TaskbarQuestionText(), kInitializationTitle, MessageBoxes::kYesNo) ==
           MessageBoxes::kYes;
}

void ShowMissingMenuFiles() {
    MessageBoxes::MsgBox(MissingMenuFilesText(), kProblemTitle, MessageBoxes::kCritical);
}

} // namespace DefaultMenus
