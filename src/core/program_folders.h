// The shell's program-menu and desktop folders, which the default menus are adapted to.
#pragma once

#include <string>
#include <string_view>

struct ProgramFolders {
    std::string Programs;       // the user's Start-menu Programs folder
    std::string CommonPrograms; // the Programs folder shared by all users
    std::string Desktop;
};

// Takes the values "Programs", "Common Programs" and "Desktop" of Explorer's
// "Shell Folders" key (empty when absent) and gives every folder ending with one
// backslash; an absent value is replaced by the folder of that name under windowsFolder.
ProgramFolders ResolveProgramFolders(const ProgramFolders& shellFolders, std::string_view windowsFolder, bool isNT);
