#include "core/win/settings_store.h"

#include "core/win/ini_handler.h"
#include "core/win/registry_access.h"

#include <windows.h>

namespace SettingsStore {

namespace {

constexpr std::string_view kShellFoldersKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";

// The user's folders are under the current user; the folders shared by all users are
// under the local machine, and older systems keep them with the user's.
std::string ShellFolder(std::string_view name, bool sharedByAllUsers) {
    if (sharedByAllUsers) {
        std::string shared =
            RegistryAccess::AsString(RegistryAccess::QueryValue(HKEY_LOCAL_MACHINE, kShellFoldersKey, name));
        if (!shared.empty())
            return shared;
    }
    return RegistryAccess::AsString(RegistryAccess::QueryValue(HKEY_CURRENT_USER, kShellFoldersKey, name));
}

} // namespace

void Load(std::string_view file, bool themeOnly, SettingsRec& settings) {
    LoadSettings(IniHandler::ReadWholeSection(kSettingsSection, file), themeOnly, settings);
}

ProfileRewrite::Result Save(std::string_view file, bool themeOnly, const SettingsRec& settings) {
    return SaveAtomically(file, SaveSettings(settings, themeOnly));
}

ProfileRewrite::Result SaveAtomically(std::string_view file, const ProfileWrites& writes) {
    return ProfileRewrite::Rewrite(file, MergeChanges(IniHandler::ReadWholeFile(file), writes));
}

ProgramFolders ReadProgramFolders(std::string_view windowsFolder, bool isNT) {
    ProgramFolders shellFolders{
        ShellFolder("Programs", false),
        ShellFolder("Common Programs", true),
        ShellFolder("Desktop", false),
    };
    return ResolveProgramFolders(shellFolders, windowsFolder, isNT);
}

} // namespace SettingsStore
