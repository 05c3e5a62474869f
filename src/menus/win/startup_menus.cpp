#include "menus/win/startup_menus.h"

#include "core/paths.h"
#include "menus/data_manager.h"
#include "menus/default_menus.h"
#include "menus/win/menu_store.h"
#include "win/text_convert.h"

#include <windows.h>

namespace MenuStore {

namespace {

bool FileExists(const std::string& path) {
    const DWORD attributes = ::GetFileAttributesW(Win::Widen(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

} // namespace

StartupMenus LoadMenusAtStartup(MenuTable& table, std::string_view programFolder, std::string_view systemFolder,
                                const ProgramFolders& shellFolders, SettingsRec& settings) {
    const std::string menuFile = MenuFilePath(programFolder);
    if (FileExists(menuFile)) {
        LoadMenuFile(table, menuFile);
        return StartupMenus::MenuFile;
    }
    const std::string defaultFile = Paths::Join(programFolder, kDefaultMenuFileName);
    if (!FileExists(defaultFile)) {
        DataManager::Reset(table);
        DefaultMenus::ShowMissingMenuFiles();
        return StartupMenus::None;
    }
    LoadMenuFile(table, defaultFile);
    DefaultMenus::AdaptPaths(table, shellFolders, systemFolder);
    if (DefaultMenus::AskTaskbarOnStartup())
        settings.TaskbarRunOnStartup = true;
    return StartupMenus::DefaultMenus;
}

} // namespace MenuStore
